// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetRows.h"

#include "utilsDll/frame/QtResources.h"

#include <QtTest/QTest>

using namespace StyleSheets;

namespace {

const QString panelLine = u"1px solid #3b3b3b"_qs;
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
    must("sideBar", u"QListView#presetFilmStrip::item:selected"_qs, "background-color", u"#987947"_qs);
    for (const char *state : {":selected", ":pressed"}) {
        must("menu", u"QMenuBar::item"_qs + QString::fromLatin1(state), "color", u"#030303"_qs);
    }
    must("sideBar", u"CFilmsUniversalFilter QLabel#filterBubbleLabel"_qs, "color", u"#030303"_qs);
    const QString description = u"QDialog#TimeMachineDescriptionBigDialog QTextBrowser#filmDescription"_qs;
    must("timeMachine", description, "selection-background-color", u"#aaaaaa"_qs);
    must("timeMachine", description, "selection-color", u"#030303"_qs);
    must("sideBar", u"CFilmsUniversalFilter CGL5LinkButton:checked:hover"_qs, "color", u"#a33f12"_qs);
    must("printing", u"QAbstractItemView::item:selected"_qs, "background-color", u"#aaaaaa"_qs);
}

} // namespace

/*! Panels, their lines, and what is selected in them. */
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
}

void tst_StyleSheetPanels::sheet_hasItsValue()
{
    verifyValue();
}

QTEST_GUILESS_MAIN(tst_StyleSheetPanels)
#include "tst_StyleSheetPanels.moc"
