// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"
#include "Texts.h"

#include "utilsDll/dialogs/MessageBox.h"

using namespace ZYX_zglv6;

namespace {

using Button = QMessageBox::StandardButton;
using Buttons = QFlags<Button>;

QString product()
{
    return u"Zyx Grainlab 6"_qs;
}

/*! One of the four operations with the arguments of QMessageBox. */
struct PlainBox
{
    QString name;
    QString title;
    decltype(&CMessageBox::critical) operation;
    Text text;
    Buttons buttons;
    Button defaultButton;
    bool showIcon = true;
};

QList<PlainBox> plainBoxes()
{
    const Buttons ok = QMessageBox::Ok;
    const Buttons okCancel = QMessageBox::Ok | QMessageBox::Cancel;
    const Buttons yesNo = QMessageBox::Yes | QMessageBox::No;
    const Buttons yesNoCancel = yesNo | QMessageBox::Cancel;
    return {
        {u"critical-ok"_qs, u"Critical, OK alone"_qs, &CMessageBox::critical, Text::Problem, ok, QMessageBox::Ok},
        {u"critical-ok-cancel"_qs, u"Critical, OK and Cancel"_qs, &CMessageBox::critical, Text::Problem, okCancel,
         QMessageBox::Cancel},
        {u"critical-without-icon"_qs, u"Critical, without icon"_qs, &CMessageBox::critical, Text::Problem, ok,
         QMessageBox::Ok, false},
        {u"critical-long"_qs, u"Critical, long text"_qs, &CMessageBox::critical, Text::Long, ok, QMessageBox::Ok},
        {u"information"_qs, u"Information"_qs, &CMessageBox::information, Text::Hint, ok, QMessageBox::Ok},
        {u"information-without-icon"_qs, u"Information, without icon"_qs, &CMessageBox::information, Text::Hint, ok,
         QMessageBox::Ok, false},
        {u"information-long"_qs, u"Information, long text"_qs, &CMessageBox::information, Text::Long, ok,
         QMessageBox::Ok},
        {u"question-yes"_qs, u"Question, Yes is the default"_qs, &CMessageBox::question, Text::Question, yesNo,
         QMessageBox::Yes},
        {u"question-no"_qs, u"Question, No is the default"_qs, &CMessageBox::question, Text::Question, yesNo,
         QMessageBox::No},
        {u"question-cancel"_qs, u"Question, three buttons"_qs, &CMessageBox::question, Text::Question, yesNoCancel,
         QMessageBox::Cancel},
        {u"question-without-icon"_qs, u"Question, without icon"_qs, &CMessageBox::question, Text::Question, yesNo,
         QMessageBox::Yes, false},
        {u"question-long"_qs, u"Question, long text"_qs, &CMessageBox::question, Text::Long, yesNo, QMessageBox::Yes},
        {u"warning"_qs, u"Warning"_qs, &CMessageBox::warning, Text::Problem, ok, QMessageBox::Ok},
        {u"warning-retry"_qs, u"Warning, Abort, Retry and Ignore"_qs, &CMessageBox::warning, Text::Problem,
         QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, QMessageBox::Retry},
        {u"warning-without-icon"_qs, u"Warning, without icon"_qs, &CMessageBox::warning, Text::Problem, okCancel,
         QMessageBox::Ok, false},
        {u"warning-long"_qs, u"Warning, long text"_qs, &CMessageBox::warning, Text::Long, okCancel, QMessageBox::Ok},
    };
}

Exhibit exhibitOf(const PlainBox &box)
{
    return {u"box-"_qs + box.name, box.title, {}, [box](QWidget *parent) {
                box.operation(parent, product(), galleryText(box.text), box.buttons, box.defaultButton, box.showIcon);
            }};
}

Exhibit yesNoBox(const QString &name, const QString &title, Text text, Button defaultButton)
{
    return {name, title, {}, [text, defaultButton](QWidget *parent) {
                CMessageBox::yesNoMessage(parent, product(), galleryText(text), defaultButton);
            }};
}

Exhibit checkBox(const QString &name, const QString &title, Text text, bool checked, Button defaultButton)
{
    return {name, title, {}, [text, checked, defaultButton](QWidget *parent) {
                CMessageBox::yesNoMessageWithCheckBox(parent, product(), galleryText(text),
                                                      galleryText(Text::DoNotAskAgain), checked, defaultButton);
            }};
}

Exhibit saveBox(const QString &name, const QString &title, Text text, Button defaultButton)
{
    return {name, title, {}, [text, defaultButton](QWidget *parent) {
                CMessageBox::saveDiscardCancelMessage(parent, product(), galleryText(text), defaultButton);
            }};
}

Exhibit quitBox(const QString &name, const QString &title, Text text)
{
    return {name, title, {}, [text](QWidget *parent) {
                CMessageBox::backgroundProcessingCancelMessage(parent, product(), galleryText(text));
            }};
}

Exhibit rotateBox(const QString &name, const QString &title, Text text)
{
    return {name, title, {}, [text](QWidget *parent) {
                CMessageBox::rotateQuestion(parent, product(), galleryText(text));
            }};
}

Exhibit boxWithoutParent()
{
    return {u"box-without-parent"_qs, u"Without a parent: the box wears the sheets itself"_qs, {}, [](QWidget *) {
                CMessageBox::question(nullptr, product(), galleryText(Text::Question),
                                      QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, true);
            }};
}

} // namespace

QList<Exhibit> boxExhibits()
{
    QList<Exhibit> exhibits;
    for (const PlainBox &box : plainBoxes()) {
        exhibits.append(exhibitOf(box));
    }
    exhibits += {
        rotateBox(u"box-rotate"_qs, u"Rotate question"_qs, Text::Rotate),
        rotateBox(u"box-rotate-long"_qs, u"Rotate question, long text"_qs, Text::Long),
        yesNoBox(u"box-yes-no-yes"_qs, u"Yes or no, Yes is the default"_qs, Text::Question, QMessageBox::Yes),
        yesNoBox(u"box-yes-no-no"_qs, u"Yes or no, No is the default"_qs, Text::Question, QMessageBox::No),
        yesNoBox(u"box-yes-no-long"_qs, u"Yes or no, long text"_qs, Text::Long, QMessageBox::Yes),
        checkBox(u"box-check-box"_qs, u"With a check box"_qs, Text::Question, false, QMessageBox::Yes),
        checkBox(u"box-check-box-checked"_qs, u"With a check box, checked"_qs, Text::Question, true, QMessageBox::No),
        checkBox(u"box-check-box-long"_qs, u"With a check box, long text"_qs, Text::Long, false, QMessageBox::Yes),
        saveBox(u"box-save"_qs, u"Save, Save is the default"_qs, Text::Save, QMessageBox::Save),
        saveBox(u"box-save-discard"_qs, u"Save, Don’t save is the default"_qs, Text::Save, QMessageBox::Discard),
        saveBox(u"box-save-cancel"_qs, u"Save, Cancel is the default"_qs, Text::Save, QMessageBox::Cancel),
        saveBox(u"box-save-long"_qs, u"Save, long text"_qs, Text::Long, QMessageBox::Save),
        quitBox(u"box-quit"_qs, u"Processing in the background"_qs, Text::Quit),
        quitBox(u"box-quit-long"_qs, u"Processing in the background, long text"_qs, Text::Long),
        boxWithoutParent(),
    };
    return exhibits;
}
