// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetRows.h"

#include "utilsDll/frame/QtResources.h"

#include <QtTest/QTest>

using namespace StyleSheets;

namespace {

const QString panelLine = u"1px solid #3b3b3b"_qs;
const QString film = u"QDialog#TimeMachineDescriptionBigDialog "_qs;
const QString darkLine = u"1px solid #1b1b1b"_qs;

void addGrounds()
{
    must("custom", u"QWidget#presetInfoPanel"_qs, "background-color", u"#232323"_qs);
    must("sideBar", u"CGroupBox"_qs, "background-color", u"#232323"_qs);
    must("sideBar", u"QWidget#tabWidget"_qs, "background-color", u"#232323"_qs);
    must("sideBar", u"QListView#presetFilmStrip"_qs, "background-color", u"#232323"_qs);
    must("previewArea", u"QWidget#fileSaveProgressWidget"_qs, "background-color", u"#232323"_qs);
    must("previewArea", u"QWidget#fileSaveErrorWidget"_qs, "background-color", u"#232323"_qs);
    must("previewArea", u"QWidget#fileBrowserInfoWidget"_qs, "background-color", u"#232323"_qs);
    must("timeMachine", u"QDialog#TimeMachineDescriptionBigDialog"_qs, "background-color", u"#232323"_qs);
    must("dialogs", u"CCheckForUpdateDialog QTextBrowser"_qs, "background-color", u"#3a3a3a"_qs);
    for (const char *dialog : {"CStandaloneBatchDlg", "CPluginBatchDlg"}) {
        must("dialogs", QString::fromLatin1(dialog) + u" QListView#batchFileList", "background-color", u"#3a3a3a"_qs);
    }
}

void addLines()
{
    for (const char *panel : {"settingsPanel", "snapshotsPanel"}) {
        must("custom", u"QWidget#"_qs + QString::fromLatin1(panel), "border", panelLine);
    }
    for (const char *panel : {"navigatorPanel", "histogramPanel", "fileSaveProgressWidget", "fileSaveErrorWidget"}) {
        must("previewArea", u"QWidget#"_qs + QString::fromLatin1(panel), "border", panelLine);
    }
    for (const char *panel : {"cropToolPanel", "vignettingToolPanel", "horizonToolPanel"}) {
        must("tools", u"CMainWindow QWidget#"_qs + QString::fromLatin1(panel), "border-bottom", panelLine);
    }
    must("menu", u"QMenu::indicator:checked"_qs, "border", panelLine);
    for (const char *area :
         {"CStandaloneBatchDlg QListView#batchFileList", "CPluginBatchDlg QListView#batchFileList",
          "CFileSaveDialog QLineEdit", "CFileSaveDialog QSpinBox", "CCheckForUpdateDialog QTextBrowser"}) {
        must("dialogs", QString::fromLatin1(area), "border", darkLine);
    }
}

void addSelections()
{
    must("custom", u"QDoubleSpinBox"_qs, "selection-background-color", u"#987947"_qs);
    must("custom", u"QDoubleSpinBox"_qs, "selection-color", u"#030303"_qs);
    must("custom", u"QListView#snapshotView::item:selected"_qs, "background-color", u"#987947"_qs);
    must("custom", u"QListView#snapshotView::item:selected"_qs, "color", u"#030303"_qs);
    must("sideBar", u"QListView#presetFilmStrip::item:selected"_qs, "background-color", u"#987947"_qs);
    must("sideBar", u"QListView#presetFilmStrip::item:selected"_qs, "color", u"#030303"_qs);
    const QString glass = u"rgba(163, 63, 18, 60%)"_qs;
    must("combobox", u"QComboBox QAbstractItemView"_qs, "selection-background-color", glass);
    must("dialogs", u"QDialog QComboBox QListView"_qs, "selection-background-color", glass);
    for (const char *state : {":selected", ":pressed"}) {
        must("menu", u"QMenuBar::item"_qs + QString::fromLatin1(state), "color", u"#030303"_qs);
    }
    must("sideBar", u"CFilmsUniversalFilter QLabel#filterBubbleLabel"_qs, "color", u"#030303"_qs);
    const QString description = film + u"QTextBrowser#filmDescription";
    must("timeMachine", description, "selection-background-color", u"#aaaaaa"_qs);
    must("timeMachine", description, "selection-color", u"#030303"_qs);
    must("sideBar", u"CFilmsUniversalFilter CGL5LinkButton:checked:hover"_qs, "color", u"#a33f12"_qs);
    must("printing", u"QAbstractItemView::item:selected"_qs, "background-color", u"#aaaaaa"_qs);
}

/*! Where a stronger rule hides that of the base. */
void addTexts()
{
    must("timeMachine", film + u"QLabel#decadeLabel", "font-family", u"\"OpenSansLight\""_qs);
    must("dialogs", u"QDialog QLabel#headingLabel"_qs, "font-family", u"\"OpenSansLight\""_qs);
    must("crash_sender", u"QWidget#CrashSenderMainWindow QLabel"_qs, "color", u"#e5e5e5"_qs);
    must("crash_sender", u"QWidget#CrashSenderMainWindow QLabel"_qs, "font-size", u"12px"_qs);
    must("printing", u"QWidget#printPreviewWindow QComboBox"_qs, "color", u"#999999"_qs);
    must("toolBar", u"QToolBar QLabel"_qs, "color", u"#999999"_qs);
    for (const char *widget : {"QLabel", "QCheckBox", "QRadioButton"}) {
        must("dialogs", u"QDialog "_qs + QString::fromLatin1(widget), "color", u"#999999"_qs);
        must("sideBar", u"CGroupBox "_qs + QString::fromLatin1(widget), "color", u"#999999"_qs);
    }
    for (const char *panel : {"cropToolPanel", "vignettingToolPanel", "horizonToolPanel"}) {
        must("tools", u"CMainWindow QWidget#"_qs + QString::fromLatin1(panel) + u" QLabel", "color", u"#999999"_qs);
    }
    must("dialogs", u"QDialog QRadioButton:disabled"_qs, "color", u"#484848"_qs);
    must("sideBar", u"CGroupBox QRadioButton:disabled"_qs, "color", u"#484848"_qs);
}

void addFields()
{
    for (const char *field : {"QLineEdit", "QSpinBox", "QDoubleSpinBox"}) {
        must("custom", QString::fromLatin1(field), "background-color", u"#3a3a3a"_qs);
        must("custom", QString::fromLatin1(field), "border", darkLine);
    }
    for (const char *field : {"QLineEdit", "QSpinBox"}) {
        must("dialogs", u"CFileSaveDialog "_qs + QString::fromLatin1(field), "background-color", u"#3a3a3a"_qs);
    }
    must("custom", u"QWidget#fileBrowser QTreeView"_qs, "background-color", u"#232323"_qs);
    must("custom", u"QWidget#fileBrowser QListView#recentFilesView"_qs, "background-color", u"#232323"_qs);
    must("printing", u"QWidget#printPreviewWindow QComboBox"_qs, "background-color", u"#292929"_qs);
    must("timeMachine", u"QDialog#TimeMachineDescriptionBigDialog"_qs, "border", darkLine);
    must("timeMachine", film + u"QLabel#filmImage", "border", darkLine);
}

} // namespace

/*! Panels and fields, their lines and texts, and what is selected in them. */
class tst_StyleSheetPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sheet_hasItsValue_data();
    void sheet_hasItsValue();
};

void tst_StyleSheetPanels::sheet_hasItsValue_data()
{
    ZYX_zglv6::initQtResources(); // the linker leaves out a library that nothing is called of
    addValueColumns();
    addGrounds();
    addLines();
    addSelections();
    addTexts();
    addFields();
}

void tst_StyleSheetPanels::sheet_hasItsValue()
{
    verifyValue();
}

QTEST_GUILESS_MAIN(tst_StyleSheetPanels)
#include "tst_StyleSheetPanels.moc"
