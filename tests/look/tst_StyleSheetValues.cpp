// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetRows.h"

#include "utilsDll/frame/QtResources.h"

using namespace StyleSheets;

namespace {

const QString grooveV
    = u"qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 #383838, stop: 0.5 #414141, stop: 1 #383838)"_qs;
const QString grooveH
    = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #383838, stop: 0.5 #414141, stop: 1 #383838)"_qs;
const QString handleV = u"qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 #565656, stop: 1 #494949)"_qs;
const QString handleH = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #565656, stop: 1 #494949)"_qs;
const QString toolTip = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #ecebda, stop: 1 #e0dbc1)"_qs;
const QString accentGlass = u"rgba(163, 63, 18, 60%)"_qs;
const QString accentLine = u"1px solid rgb(163, 63, 18)"_qs;
const QString darkLine = u"1px solid #1b1b1b"_qs;
const QString panelLine = u"1px solid #3b3b3b"_qs;
const QString robotoLight = u"\"Roboto Light\""_qs;
const QString openSansLight = u"\"OpenSansLight\""_qs;
const QString crashSender = u"QWidget#CrashSenderMainWindow "_qs;

void addGrounds()
{
    must("custom", u"QDialog"_qs, "background-color", u"#232323"_qs);
    must("custom", u"QWidget#fileBrowser"_qs, "background-color", u"#232323"_qs);
    must("custom", u"QWidget#settingsPanel"_qs, "background-color", u"#232323"_qs);
    must("custom", u"QWidget#snapshotsPanel"_qs, "background-color", u"#232323"_qs);
    must("sideBar", u"QTabBar#controlsTab::tab:selected"_qs, "background-color", u"#232323"_qs);
    must("dialogs", u"QMessageBox"_qs, "background-color", u"#232323"_qs);
    must("dialogs", u"QWidget#buttonStrip"_qs, "background-color", u"#1b1b1b"_qs);
    must("toolBar", u"QToolBar"_qs, "background-color", u"#1b1b1b"_qs);
    must("custom", u"QWidget#zoomWidget"_qs, "background-color", u"#1b1b1b"_qs);
    must("previewArea", u"QSplitter::handle"_qs, "background-color", u"#1b1b1b"_qs);
    must("sideBar", u"QTabBar#controlsTab::tab"_qs, "background-color", u"#1f1f1f"_qs);
    must("previewArea", u"QWidget#previewArea"_qs, "background-color", u"#030303"_qs);
    must("previewArea", u"QWidget#navigatorPanel"_qs, "background-color", u"#030303"_qs);
    must("previewArea", u"QWidget#histogramPanel"_qs, "background-color", u"#030303"_qs);
    must("custom", u"QWidget#centralWidget"_qs, "background-color", u"#535353"_qs);
    must("custom", u"QWidget#FBSpacer"_qs, "background-color", u"#535353"_qs);
    must("custom", u"QAbstractItemView"_qs, "background-color", u"#3d3d3d"_qs);
    must("toolBar", u"QStatusBar"_qs, "background-color", u"#1b1b1b"_qs);
    must("toolBar", u"QWidget#bottomBar"_qs, "background-color", u"#1b1b1b"_qs);
    must("printing", u"QWidget#printPreviewWindow QToolBar"_qs, "background-color", u"#1b1b1b"_qs);
    must("crash_sender", u"QWidget#CrashSenderMainWindow"_qs, "background-color", u"#232323"_qs);
    must("crash_sender", crashSender + u"QWidget#buttonStrip", "background-color", u"#1b1b1b"_qs);
    must("crash_sender", crashSender + u"QSplitter::handle", "background-color", u"#1b1b1b"_qs);
    must("combobox", u"QComboBox"_qs, "background-color", u"#292929"_qs);
    must("custom", u"QWidget#processingWidget"_qs, "background-color", u"rgba(0, 0, 0, 150)"_qs);
    must("custom", u"QWidget#processingWidget"_qs, "border-radius", u"3px"_qs);
}

void addInDialogs()
{
    must("dialogs", u"QDialog QTabBar::tab"_qs, "background-color", u"#1f1f1f"_qs);
    must("dialogs", u"QDialog QTabBar::tab:selected"_qs, "background-color", u"#232323"_qs);
    must("dialogs", u"QDialog QGroupBox"_qs, "border", darkLine);
    must("dialogs", u"QDialog QTabWidget::pane"_qs, "border", darkLine);
    must("dialogs", u"QDialog QFrame#separatorLine"_qs, "background-color", u"#1b1b1b"_qs);
    must("dialogs", u"CPreferenciesDialog QListView#pageList"_qs, "background-color", u"#3a3a3a"_qs);
    const QString description = u"QDialog#TimeMachineDescriptionBigDialog QTextBrowser#filmDescription"_qs;
    must("timeMachine", description, "background-color", u"#3a3a3a"_qs);
    must("timeMachine", description, "border", darkLine);
    for (const char *area : {"QTextEdit", "QPlainTextEdit", "QListView", "QTreeView", "QTableView"}) {
        const QString selector = u"QDialog "_qs + QString::fromLatin1(area);
        must("dialogs", selector, "background-color", u"#3a3a3a"_qs);
        must("dialogs", selector, "border", darkLine);
    }
    for (const char *area : {"QTextEdit", "QPlainTextEdit"}) {
        const QString selector = u"QDialog "_qs + QString::fromLatin1(area);
        must("dialogs", selector, "selection-background-color", u"#aaaaaa"_qs);
        must("dialogs", selector, "selection-color", u"#030303"_qs);
    }
    for (const char *area : {"QLineEdit", "QPlainTextEdit", "QTreeView"}) {
        must("crash_sender", crashSender + QString::fromLatin1(area), "background-color", u"#3a3a3a"_qs);
        must("crash_sender", crashSender + QString::fromLatin1(area), "border", darkLine);
    }
}

void addLinesAndAccents()
{
    must("custom", u"QCheckBox::indicator"_qs, "border", panelLine);
    must("custom", u"QWidget#presetInfoPanel"_qs, "border", panelLine);
    must("sideBar", u"CGroupBox"_qs, "border-bottom", panelLine);
    must("custom", u"QGroupBox"_qs, "border", panelLine);
    must("custom", u"QProgressBar::chunk"_qs, "background-color", u"#a33f12"_qs);
    must("crash_sender", crashSender + u"QProgressBar::chunk", "background-color", u"#a33f12"_qs);
    must("dialogs", u"CStandaloneBatchDlg QProgressBar::chunk"_qs, "background-color", u"#a33f12"_qs);
    must("dialogs", u"CPluginBatchDlg QProgressBar::chunk"_qs, "background-color", u"#a33f12"_qs);
    must("custom", u"QLabel#zoomLabel"_qs, "color", u"#A33F12"_qs);
    must("sideBar", u"CFilmsUniversalFilter CGL5LinkButton:hover"_qs, "color", u"#a33f12"_qs);
    must("dialogs", u"CGL5LinkButton:hover"_qs, "color", u"#a33f12"_qs);
    must("menu", u"QMenu::item:selected"_qs, "background-color", accentGlass);
    must("menu", u"QMenu::item:selected"_qs, "border-top", accentLine);
    must("menu", u"QMenu::item:selected"_qs, "border-bottom", accentLine);
    must("menu", u"CBalloonMenu::item:selected"_qs, "background-color", u"#a5694e"_qs);
    must("combobox", u"QComboBox QAbstractItemView::item:selected"_qs, "background-color", accentGlass);
    must("menu", u"QMenu"_qs, "background-color", u"#aaaaaa"_qs);
    must("menu", u"CBalloonMenu"_qs, "background-color", u"#aaaaaa"_qs);
    must("combobox", u"QComboBox QAbstractItemView"_qs, "background-color", u"#aaaaaa"_qs);
}

/*! What is selected, and all dark text on light or coloured ground. */
void addSelections()
{
    for (const char *widget : {"QAbstractItemView", "QLineEdit", "QSpinBox"}) {
        must("custom", QString::fromLatin1(widget), "selection-background-color", u"#987947"_qs);
        must("custom", QString::fromLatin1(widget), "selection-color", u"#030303"_qs);
    }
    for (const auto &[area, ground] : {std::pair("QLineEdit", u"#987947"_qs), std::pair("QTreeView", u"#987947"_qs),
                                       std::pair("QPlainTextEdit", u"#aaaaaa"_qs)}) {
        must("crash_sender", crashSender + QString::fromLatin1(area), "selection-background-color", ground);
        must("crash_sender", crashSender + QString::fromLatin1(area), "selection-color", u"#030303"_qs);
    }
    for (const auto &[sheet, view] :
         {std::pair("custom", u"QAbstractItemView"_qs), std::pair("crash_sender", QString(crashSender + u"QTreeView")),
          std::pair("dialogs", u"CPreferenciesDialog QListView#pageList"_qs)}) {
        must(sheet, view + u"::item:selected", "background-color", u"#987947"_qs);
        must(sheet, view + u"::item:selected", "color", u"#030303"_qs);
    }
    for (const char *item : {"QMenu", "QMenu::item:selected", "CBalloonMenu::item"}) {
        must("menu", QString::fromLatin1(item), "color", u"#030303"_qs);
    }
    const QString popUp = u"QComboBox QAbstractItemView"_qs;
    must("combobox", popUp, "color", u"#030303"_qs);
    must("combobox", popUp, "selection-color", u"#030303"_qs);
    must("combobox", popUp + u"::item", "color", u"#030303"_qs);
    must("combobox", popUp + u"::item:selected", "color", u"#030303"_qs);
}

void addHeadings()
{
    must("custom", u"QLabel#headingLabel"_qs, "color", u"#d9d9d9"_qs);
    must("custom", u"QLabel#presetInfoTitle"_qs, "color", u"#d9d9d9"_qs);
    must("previewArea", u"QLabel#emptyPreviewLabel"_qs, "color", u"#d9d9d9"_qs);
    must("timeMachine", u"QDialog#TimeMachineDescriptionBigDialog QLabel#decadeLabel"_qs, "color", u"#d9d9d9"_qs);
    must("dialogs", u"QDialog QLabel#headingLabel"_qs, "color", u"#d9d9d9"_qs);
    must("crash_sender", crashSender + u"QLabel#heading", "color", u"#d9d9d9"_qs);
    must("crash_sender", crashSender + u"QLabel#heading", "font-family", openSansLight);
    for (const char *label : {"headingLabel", "presetInfoTitle", "emptyPreviewLabel", "decadeLabel"}) {
        must("win", u"QLabel#"_qs + QString::fromLatin1(label), "font-family", openSansLight);
    }
}

void addTexts()
{
    must("custom", u"QLabel"_qs, "color", u"#e5e5e5"_qs);
    must("custom", u"QLabel"_qs, "font-size", u"12px"_qs);
    for (const char *widget : {"QAbstractButton", "QCheckBox", "QRadioButton"}) {
        must("custom", QString::fromLatin1(widget), "color", u"#999999"_qs);
    }
    must("combobox", u"QComboBox"_qs, "color", u"#999999"_qs);
    must("dialogs", u"QDialog QLabel"_qs, "color", u"#999999"_qs);
    must("custom", u"QTabBar"_qs, "color", u"#999999"_qs);
    must("menu", u"QMenu::item:disabled"_qs, "color", u"#d9d9d9"_qs);
    must("custom", u"QRadioButton:disabled"_qs, "color", u"#484848"_qs);
    must("custom", u"QToolTip"_qs, "color", u"#131212"_qs);
    must("custom", u"QToolTip"_qs, "background-color", toolTip);
    must("custom", u"QToolTip"_qs, "border", u"1px solid #000000"_qs);
    must("custom", u"QToolTip"_qs, "min-height", u"19px"_qs);
}

/*! Where each part of a scroll bar has a line: towards what lies beside it. */
constexpr std::pair<const char *, const char *> scrollBarLines[]
    = {{"handle:vertical", "border-top"},      {"handle:vertical", "border-bottom"},
       {"handle:horizontal", "border-left"},   {"handle:horizontal", "border-right"},
       {"add-line:vertical", "border-top"},    {"sub-line:vertical", "border-bottom"},
       {"add-line:horizontal", "border-left"}, {"sub-line:horizontal", "border-right"}};

void addScrollBars(const char *sheet, const QString &window)
{
    must(sheet, window + u"QScrollBar:vertical", "background-color", grooveV);
    must(sheet, window + u"QScrollBar:horizontal", "background-color", grooveH);
    must(sheet, window + u"QScrollBar:vertical", "width", u"12px"_qs);
    must(sheet, window + u"QScrollBar:horizontal", "height", u"12px"_qs);
    must(sheet, window + u"QScrollBar:vertical", "margin", u"13px 0px 13px 0px"_qs);
    must(sheet, window + u"QScrollBar:horizontal", "margin", u"0px 13px 0px 13px"_qs);
    must(sheet, window + u"QScrollBar::handle:vertical", "background-color", handleV);
    must(sheet, window + u"QScrollBar::handle:horizontal", "background-color", handleH);
    must(sheet, window + u"QScrollBar::handle:vertical", "min-height", u"20px"_qs);
    must(sheet, window + u"QScrollBar::handle:horizontal", "min-width", u"20px"_qs);
    for (const auto &[part, line] : scrollBarLines) {
        must(sheet, window + u"QScrollBar::" + QString::fromLatin1(part), line, u"1px solid #292929"_qs);
    }
    for (const char *part : {"add-line:vertical", "sub-line:vertical", "add-line:horizontal", "sub-line:horizontal"}) {
        must(sheet, window + u"QScrollBar::" + QString::fromLatin1(part), "background-color", u"#363636"_qs);
    }
}

void addMessageBoxes()
{
    must("dialogs", u"QMessageBox"_qs, "messagebox-critical-icon", u"url(:/icons/secondary_windows/error.svg)"_qs);
    must("dialogs", u"QMessageBox"_qs, "messagebox-information-icon",
         u"url(:/icons/secondary_windows/information.svg)"_qs);
    must("dialogs", u"QMessageBox"_qs, "messagebox-question-icon", u"url(:/icons/secondary_windows/warning.svg)"_qs);
    must("dialogs", u"QMessageBox"_qs, "messagebox-warning-icon", u"url(:/icons/secondary_windows/warning.svg)"_qs);
    must("dialogs", u"QMessageBox QDialogButtonBox"_qs, "button-layout", u"1"_qs);
    must("dialogs", u"QMessageBox QLabel"_qs, "color", u"#999999"_qs);
    must("dialogs", u"QMessageBox QLabel"_qs, "font-size", u"13px"_qs);
    must("dialogs", u"QMessageBox QLabel"_qs, "font-family", robotoLight);
}

void addAbout()
{
    const QString dialog = u"QDialog#aboutDlg"_qs;
    must("dialogs", dialog, "background-color", u"#000000"_qs);
    must("dialogs", dialog + u" QLabel", "color", u"#747474"_qs);
    must("dialogs", dialog + u" QLabel", "font-size", u"11px"_qs);
    must("dialogs", dialog + u" QLabel#sloganLabel", "color", u"#ffffff"_qs);
    must("dialogs", dialog + u" QLabel#productNameLabel", "font-weight", u"bold"_qs);
    must("dialogs", dialog + u" QWidget#bottomWidget", "background-color", u"#262626"_qs);
    must("dialogs", dialog + u" QLabel#logoVersionLabel", "font-family", u"\"Maven Pro\""_qs);
    must("dialogs", dialog + u" QLabel#logoVersionLabel", "color", u"#ffffff"_qs);
    must("dialogs", dialog + u" QTextBrowser#description", "background-color", u"#3a3a3a"_qs);
    must("dialogs", dialog + u" QTextBrowser#description", "border", darkLine);
    must("dialogs", dialog + u" QTextBrowser#description", "padding-left", u"15px"_qs);
    must("dialogs", dialog + u" QWidget#licensesWidget", "background-color", u"#232323"_qs); // no page has that name
}

void addOverlays()
{
    must("custom", u"QLabel#processLabel"_qs, "font-size", u"14px"_qs);
    must("custom", u"QLabel#processLabel"_qs, "padding-left", u"5px"_qs);
    must("custom", u"QLabel#processLabel"_qs, "padding-bottom", u"3px"_qs);
    must("custom", u"QLabel#AnimatedLabel"_qs, "padding-right", u"11px"_qs);
    must("custom", u"QLabel#AnimatedLabel"_qs, "padding-top", u"7px"_qs);
    must("custom", u"QWidget#zoomWidget"_qs, "border-radius", u"3px"_qs);
    must("custom", u"QLabel#zoomLabel"_qs, "font-size", u"14px"_qs);
    must("custom", u"QLabel#zoomLabel"_qs, "padding-left", u"5px"_qs);
    must("custom", u"QLabel#zoomLabel"_qs, "padding-bottom", u"1px"_qs);
}

void addPlatformLayer()
{
    must("win", u"QWidget"_qs, "font-family", u"\"Lucida Sans Unicode\""_qs);
    for (const char *list : {"texture", "defect", "frame"}) {
        const QString selector = u"CComboBox#%1ComboBox QAbstractItemView::item"_qs.arg(QString::fromLatin1(list));
        must("win", selector, "padding-top", u"3px"_qs);
        must("win", selector, "padding-bottom", u"3px"_qs);
    }
    must("win", u"CFilmsUniversalFilter QLabel#filterBubbleLabel"_qs, "font-size", u"8pt"_qs);
}

void addPrinting()
{
    must("printing", u"QWidget"_qs, "selection-color", u"#030303"_qs);
    must("printing", u"QWidget"_qs, "selection-background-color", u"#aaaaaa"_qs);
    must("printing", u"QWidget#centralWidget"_qs, "background-color", u"#232323"_qs);
}

void addLanguages()
{
    must("extra-de", u"CFilmsUniversalFilter CGL5LinkButton"_qs, "font-size", u"12px"_qs);
    must("extra-fr", u"CFilmsUniversalFilter CGL5LinkButton"_qs, "font-size", u"11px"_qs);
    const std::pair<QString, QString> states[] = {{QString(), u"default"_qs},
                                                  {u":hover"_qs, u"hover"_qs},
                                                  {u":checked"_qs, u"selected"_qs},
                                                  {u":checked:hover"_qs, u"selected-hover"_qs}};
    for (const auto &[state, ending] : states) {
        must("extra-fr", u"QToolButton#toolButtonAll"_qs + state, "image",
             u"url(:/icons/toneCurves/RVB-%1.svg)"_qs.arg(ending));
        must("extra-fr", u"QToolButton#toolButtonGreen"_qs + state, "image",
             u"url(:/icons/toneCurves/V-%1.svg)"_qs.arg(ending));
    }
    must("extra-ja", u"QListView#snapshotView"_qs, "font-size", u"12px"_qs);
    must("extra-ja", u"QListView#snapshotView QLineEdit"_qs, "font-size", u"12px"_qs);
}

/*! Each has a rule of its own or shares one; windows only need one for anything in them. */
void addSelectors(const char *sheet, const QStringList &selectors)
{
    for (const QString &selector : selectors) {
        QTest::addRow("%s, %s", sheet, qPrintable(selector)) << QString::fromLatin1(sheet) << selector;
    }
}

} // namespace

class tst_StyleSheetValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void value_standsInItsSheet_data();
    void value_standsInItsSheet();
    void selector_isInItsSheet_data();
    void selector_isInItsSheet();
    void essintial_hasItsTwoRulesOnly();
    void languageSheet_hasNoOtherRules_data();
    void languageSheet_hasNoOtherRules();
};

void tst_StyleSheetValues::initTestCase()
{
    ZYX_zglv6::initQtResources(); // the linker leaves out a library that nothing is called of
}

void tst_StyleSheetValues::value_standsInItsSheet_data()
{
    addValueColumns();
    addGrounds();
    addInDialogs();
    addLinesAndAccents();
    addSelections();
    addHeadings();
    addTexts();
    addScrollBars("custom", QString());
    addScrollBars("crash_sender", crashSender);
    addMessageBoxes();
    addAbout();
    addOverlays();
    addPlatformLayer();
    addPrinting();
    addLanguages();
}

void tst_StyleSheetValues::value_standsInItsSheet()
{
    verifyValue();
}

void tst_StyleSheetValues::selector_isInItsSheet_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<QString>("selector");

    addSelectors("custom",
                 {u"QDialog"_qs,
                  u"QLabel"_qs,
                  u"QToolTip"_qs,
                  u"QProgressBar"_qs,
                  u"QAbstractButton"_qs,
                  u"QPushButton:pressed"_qs,
                  u"QToolButton"_qs,
                  u"QLineEdit"_qs,
                  u"QPlainTextEdit"_qs,
                  u"QSpinBox"_qs,
                  u"QRadioButton"_qs,
                  u"QScrollBar:vertical"_qs,
                  u"QCheckBox"_qs,
                  u"QAbstractItemView"_qs,
                  u"QLabel#bottomPathLabel"_qs,
                  u"QWidget#snapshotsPanel"_qs,
                  u"QWidget#settingsPanel"_qs,
                  u"QWidget#fileBrowser"_qs,
                  u"QWidget#downloadProgressWidget"_qs,
                  u"QWidget#processingWidget"_qs,
                  u"QWidget#zoomWidget"_qs,
                  u"QWidget#presetInfoPanel"_qs});
    addSelectors("menu", {u"QMenu"_qs, u"QMenu::item"_qs, u"CActionableMenu::item"_qs, u"CBalloonMenu"_qs});
    addSelectors(
        "toolBar",
        {u"QToolBar"_qs, u"QWidget#bottomBar"_qs, u"QToolBar::separator:horizontal"_qs, u"QToolBar QLabel"_qs});
    addSelectors("previewArea",
                 {u"QWidget#fileSaveErrorWidget"_qs, u"QWidget#fileSaveProgressWidget"_qs, u"QWidget#previewArea"_qs,
                  u"QSplitter::handle"_qs, u"QWidget#fileBrowserInfoWidget"_qs, u"QWidget#navigatorPanel"_qs,
                  u"QWidget#histogramPanel"_qs});
    addSelectors("sideBar",
                 {u"QTabBar#controlsTab::tab"_qs, u"QListView#presetFilmStrip"_qs,
                  u"CGroupBox#settingsGroup QLabel#profileLabel"_qs, u"CGroupBox#cafGroup QLabel#cafStateLabel"_qs,
                  u"CGroupBox#hslGroup QLabel#channelLabel"_qs, u"CGroupBox#vignetingGroup QLabel#pinIcon"_qs,
                  u"CGroupBox#blurGroup QLabel#radiusIcon"_qs, u"QLabel#noFrameIcon"_qs, u"QListView#textureList"_qs,
                  u"QListView#lightLeakList"_qs, u"QToolButton#toningFrameButton"_qs});
    addSelectors("combobox", {u"QComboBox"_qs, u"QComboBox::down-arrow"_qs, u"QComboBox QAbstractItemView"_qs});
    addSelectors("slider",
                 {u"CSlider"_qs, u"COriginalSlider"_qs, u"COriginalSlider QToolButton#sliderUpButton"_qs,
                  u"COriginalSlider QToolButton#sliderDownButton"_qs});
    addSelectors("dialogs",
                 {u"QWidget#buttonStrip"_qs, u"CPreferenciesDialog QListView#pageList"_qs,
                  u"CStandaloneBatchDlg QProgressBar"_qs, u"CPluginBatchDlg QProgressBar"_qs, u"CProgressDlg QLabel"_qs,
                  u"CFileBrowserProgressDialog QLabel"_qs, u"CFileSaveDialog QLineEdit"_qs,
                  u"CCheckForUpdateDialog QTextBrowser"_qs, u"RewriteConfirmation QLabel"_qs});
    addSelectors("timeMachine", {u"QDialog#TimeMachineDescriptionBigDialog"_qs});
    addSelectors("crash_sender",
                 {u"QWidget#CrashSenderMainWindow"_qs, u"QWidget#CrashSenderMainWindow QPushButton"_qs,
                  u"QWidget#CrashSenderMainWindow QLineEdit"_qs, u"QWidget#CrashSenderMainWindow QPlainTextEdit"_qs});
    addSelectors("printing", {u"QWidget#printPreviewWindow"_qs});
}

void tst_StyleSheetValues::selector_isInItsSheet()
{
    QFETCH(const QString, sheet);
    QFETCH(const QString, selector);
    const QList<Rule> rules = parse(sheetText(sheet)).rules;
    QVERIFY(std::any_of(rules.cbegin(), rules.cend(),
                        [&selector](const Rule &rule) { return rule.selectors.contains(selector); }));
}

void tst_StyleSheetValues::essintial_hasItsTwoRulesOnly()
{
    const QList<Rule> rules = parse(sheetText(u"essintial"_qs)).rules;
    QCOMPARE(rules.size(), 2);
    QCOMPARE(rules[0].selectors, QStringList{u"QWidget#tabWidget CGroupBox#vignetingGroup"_qs});
    QCOMPARE(rules[0].declarations, (QList<Declaration>{{u"border-bottom"_qs, u"none"_qs}}));
    QCOMPARE(rules[1].selectors, QStringList{u"CFilmsUniversalFilter CGL5LinkButton"_qs});
    QCOMPARE(rules[1].declarations, (QList<Declaration>{{u"font-size"_qs, u"13px"_qs}}));
}

void tst_StyleSheetValues::languageSheet_hasNoOtherRules_data()
{
    QTest::addColumn<QString>("sheet");
    QTest::addColumn<int>("declarations");

    QTest::newRow("English") << u"extra-en"_qs << 0;
    QTest::newRow("German") << u"extra-de"_qs << 1;
    QTest::newRow("French") << u"extra-fr"_qs << 9;
    QTest::newRow("Japanese") << u"extra-ja"_qs << 1;
}

void tst_StyleSheetValues::languageSheet_hasNoOtherRules()
{
    QFETCH(const QString, sheet);
    QFETCH(const int, declarations);
    int count = 0;
    for (const Rule &rule : parse(sheetText(sheet)).rules) {
        count += int(rule.declarations.size());
    }
    QCOMPARE(count, declarations);
}

QTEST_GUILESS_MAIN(tst_StyleSheetValues)

#include "tst_StyleSheetValues.moc"
