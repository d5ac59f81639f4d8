// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetRows.h"

#include "utilsDll/frame/QtResources.h"

using namespace StyleSheets;

namespace {

const QString orange = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #a34012, stop: 1 #8d370f)"_qs;
const QString orangeHover
    = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.4 #b35f3a, stop: 0.68 #a33f12, stop: 1 #a33f12)"_qs;
const QString gray = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0 #616161, stop: 1 #5e5e5e)"_qs;
const QString grayHover
    = u"qlineargradient(x1: 0, y1: 0, x2: 0, y2: 1, stop: 0.4 #737373, stop: 0.68 #616161, stop: 1 #616161)"_qs;
const QString highlighted = u"QPushButton[highlighted=\"true\"]"_qs;

void addShape(const char *sheet, const QString &selector, const QString &size)
{
    must(sheet, selector, "border-radius", u"5px"_qs);
    must(sheet, selector, "border-width", u"1px"_qs);
    must(sheet, selector, "font-family", u"\"RobotoRegular\""_qs);
    must(sheet, selector, "font-size", size);
    must(sheet, selector, "color", u"#030303"_qs);
    must(sheet, selector, "padding", u"0px 13px 3px 13px"_qs);
}

void addDisabled(const char *sheet, const QString &selector)
{
    must(sheet, selector + u":disabled", "background-color", u"#2c2c2c"_qs);
    must(sheet, selector + u":disabled", "border-color", u"#4b4b4b #2c2c2c #2c2c2c #4b4b4b"_qs);
}

void addOrange(const char *sheet, const QString &selector)
{
    must(sheet, selector, "background-color", orange);
    must(sheet, selector, "border-color", u"#ce7044 #8d370f #8d370f #ce7044"_qs); // top, right, bottom, left
    must(sheet, selector + u":hover", "background-color", orangeHover);
    must(sheet, selector + u":hover", "border-color", u"#f7a37e"_qs);
    addDisabled(sheet, selector);
}

void addGray(const char *sheet, const QString &selector)
{
    must(sheet, selector, "background-color", gray);
    must(sheet, selector, "border-color", u"#949494 #5e5e5e #5e5e5e #949494"_qs);
    must(sheet, selector + u":hover", "background-color", grayHover);
    must(sheet, selector + u":hover", "border-color", u"#cccccc"_qs);
    addDisabled(sheet, selector);
}

void addDialogs()
{
    addShape("dialogs", u"QPushButton"_qs, u"17px"_qs);
    addGray("dialogs", u"QPushButton"_qs);
    addOrange("dialogs", highlighted);
    for (const char *button : {"okButton", "applyButton", "saveButton", "startButton", "updateButton"}) {
        addOrange("dialogs", u"QPushButton#"_qs + QString::fromLatin1(button));
    }
}

void addTools()
{
    for (const char *tool : {"crop", "vignetting", "horizon"}) {
        const QString panel = u"CMainWindow QWidget#%1ToolPanel "_qs.arg(QString::fromLatin1(tool));
        addShape("tools", panel + u"QPushButton", u"16px"_qs);
        addGray("tools", panel + u"QPushButton");
        addOrange("tools", panel + u"QPushButton#applyButton");
        addOrange("tools", panel + highlighted);
        addDisabled("tools", panel + u"QPushButton#previewButton"); // its name would win over :disabled alone
    }
}

void addCrashSender()
{
    const QString window = u"QWidget#CrashSenderMainWindow "_qs;
    addShape("crash_sender", window + u"QPushButton", u"17px"_qs);
    addGray("crash_sender", window + u"QPushButton");
    addOrange("crash_sender", window + u"QPushButton#sendButton");
    addOrange("crash_sender", window + highlighted);
}

} // namespace

class tst_StyleSheetButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void value_standsInItsSheet_data();
    void value_standsInItsSheet();
};

void tst_StyleSheetButtons::initTestCase()
{
    ZYX_zglv6::initQtResources(); // the linker leaves out a library that nothing is called of
}

void tst_StyleSheetButtons::value_standsInItsSheet_data()
{
    addValueColumns();
    addDialogs();
    addTools();
    addCrashSender();
}

void tst_StyleSheetButtons::value_standsInItsSheet()
{
    verifyValue();
}

QTEST_GUILESS_MAIN(tst_StyleSheetButtons)

#include "tst_StyleSheetButtons.moc"
