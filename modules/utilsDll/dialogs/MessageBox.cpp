// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/dialogs/MessageBox.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/MessageBoxWindow_p.h"
#include "utilsDll/frame/Assertions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <initializer_list>
#include <iterator>

namespace ZYX_zglv6 {

namespace {

constexpr int okButtonHeight = 22; // at least; exec() sets the height of all buttons

/*! Owns a box, whose parent may delete it first, while it is open. */
class BoxOwner
{
public:
    template <typename... Arguments>
    explicit BoxOwner(const Arguments &...arguments)
        : m_box(new CZyxMessageBox(arguments...))
    {
    }
    ~BoxOwner()
    {
        const std::unique_ptr<CZyxMessageBox> rest(m_box);
    }
    Q_DISABLE_COPY_MOVE(BoxOwner)

    CZyxMessageBox *operator->() const
    {
        return m_box;
    }
    CZyxMessageBox &operator*() const
    {
        return *m_box;
    }
    /*! False if the box has gone meanwhile. */
    bool exec() const
    {
        m_box->exec();
        return !m_box.isNull();
    }

private:
    QPointer<CZyxMessageBox> m_box;
};

/*! A box's own button, and the answer that it stands for. */
struct Choice
{
    QString text;
    QMessageBox::StandardButton answer;
    QString objectName = QString();
};

/*! The first of \a choices is highlighted, the last one is the escape. NoButton: the box ended without a button. */
QMessageBox::StandardButton ask(const BoxOwner &box, std::initializer_list<Choice> choices,
                                QMessageBox::StandardButton defaultAnswer)
{
    QHash<QAbstractButton *, QMessageBox::StandardButton> answers;
    for (const Choice &choice : choices) {
        QPushButton *button = box->addButton(choice.text, QMessageBox::NoRole);
        button->setObjectName(choice.objectName);
        if (answers.isEmpty()) {
            highlight(button);
        }
        if (choice.answer == defaultAnswer) {
            box->setDefaultButton(button);
        }
        box->setEscapeButton(button);
        answers.insert(button, choice.answer);
    }
    return box.exec() ? answers.value(box->clickedButton(), QMessageBox::NoButton) : std::prev(choices.end())->answer;
}

QMessageBox::StandardButton yesOrNo(bool isYes)
{
    return isYes ? QMessageBox::Yes : QMessageBox::No;
}

QMessageBox::StandardButton askYesNo(const BoxOwner &box, QMessageBox::StandardButton defaultAnswer)
{
    const QMessageBox::StandardButton answer
        = ask(box,
              {{QCoreApplication::translate("CMessageBox", "Yes"), QMessageBox::Yes},
               {QCoreApplication::translate("CMessageBox", "No"), QMessageBox::No}},
              defaultAnswer);
    return yesOrNo(answer == QMessageBox::Yes);
}

bool isYesOrNo(QMessageBox::StandardButton button)
{
    return button == QMessageBox::Yes || button == QMessageBox::No;
}

QCheckBox *addCheckBox(CZyxMessageBox &box, const QString &text, bool isChecked)
{
    auto *checkBox = new QCheckBox(text, &box);
    checkBox->setChecked(isChecked);
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    ASSERT_X_RETURN_VALUE(grid != nullptr, checkBox, "message box without a grid");
    auto *row = new QHBoxLayout;
    row->setContentsMargins(10, 0, 0, 0);
    row->addWidget(checkBox);
    grid->addLayout(row, 1, 1);
    return checkBox;
}

/*! What closing the box would answer, by QMessageBox's rule, which it follows only once it is shown. */
QMessageBox::StandardButton answerOfClosing(const QMessageBox &box)
{
    if (box.button(QMessageBox::Cancel) != nullptr) {
        return QMessageBox::Cancel;
    }
    const QList<QAbstractButton *> buttons = box.buttons();
    if (buttons.size() == 1) {
        return box.standardButton(buttons.front());
    }
    for (const QMessageBox::ButtonRole role : {QMessageBox::RejectRole, QMessageBox::NoRole}) {
        const auto hasRole = [&box, role](QAbstractButton *button) { return box.buttonRole(button) == role; };
        if (std::count_if(buttons.cbegin(), buttons.cend(), hasRole) == 1) {
            return box.standardButton(*std::find_if(buttons.cbegin(), buttons.cend(), hasRole));
        }
    }
    return QMessageBox::NoButton;
}

/*! Drops the user's commands while it lives, and every block and remembered command at its end. */
class CommandStop
{
public:
    CommandStop()
    {
        Singleton<CActionManager>::instance().blockActions();
    }
    ~CommandStop()
    {
        // not unBlockActions(): a command from before the question must not follow its answer
        Singleton<CActionManager>::instance().clearLock();
    }
    Q_DISABLE_COPY_MOVE(CommandStop)
};

} // namespace

std::unique_ptr<CMessageBox> CMessageBox::m_instance;

CMessageBox::CMessageBox(QObject *parent)
    : QObject(parent)
{
    setObjectName(scriptableObjectName());
}

CMessageBox::~CMessageBox() = default;

QMessageBox::StandardButton CMessageBox::critical(QWidget *parent, const QString &title, const QString &text,
                                                  QFlags<QMessageBox::StandardButton> buttons,
                                                  QMessageBox::StandardButton defaultButton, bool showIcon)
{
    return messageHelper(parent, title, text, buttons, defaultButton,
                         showIcon ? QMessageBox::Critical : QMessageBox::NoIcon);
}

QMessageBox::StandardButton CMessageBox::information(QWidget *parent, const QString &title, const QString &text,
                                                     QFlags<QMessageBox::StandardButton> buttons,
                                                     QMessageBox::StandardButton defaultButton, bool showIcon)
{
    return messageHelper(parent, title, text, buttons, defaultButton,
                         showIcon ? QMessageBox::Information : QMessageBox::NoIcon);
}

QMessageBox::StandardButton CMessageBox::question(QWidget *parent, const QString &title, const QString &text,
                                                  QFlags<QMessageBox::StandardButton> buttons,
                                                  QMessageBox::StandardButton defaultButton, bool showIcon)
{
    return messageHelper(parent, title, text, buttons, defaultButton,
                         showIcon ? QMessageBox::Question : QMessageBox::NoIcon);
}

QMessageBox::StandardButton CMessageBox::warning(QWidget *parent, const QString &title, const QString &text,
                                                 QFlags<QMessageBox::StandardButton> buttons,
                                                 QMessageBox::StandardButton defaultButton, bool showIcon)
{
    return messageHelper(parent, title, text, buttons, defaultButton,
                         showIcon ? QMessageBox::Warning : QMessageBox::NoIcon);
}

QMessageBox::StandardButton CMessageBox::messageHelper(QWidget *parent, const QString &title, const QString &text,
                                                       QFlags<QMessageBox::StandardButton> buttons,
                                                       QMessageBox::StandardButton defaultButton,
                                                       QMessageBox::Icon icon)
{
    const BoxOwner box(icon, title, text, parent);
    if (buttons == QMessageBox::Ok && icon == QMessageBox::Critical) {
        // no standard button: who reports an error takes any answer as a plain dismissal
        box->addButton(QCoreApplication::translate("CMessageBox", "Close"), QMessageBox::AcceptRole);
    } else {
        box->setStandardButtons(buttons);
        highlight(box->buttons().isEmpty() ? nullptr : box->buttons().constLast());
    }
    if (QAbstractButton *ok = box->button(QMessageBox::Ok)) {
        ok->setMinimumHeight(okButtonHeight);
    }
    box->setDefaultButton(defaultButton);
    const QMessageBox::StandardButton closing = answerOfClosing(*box);
    return box.exec() ? box->standardButton(box->clickedButton()) : closing;
}

bool CMessageBox::rotateQuestion(QWidget *parent, const QString &title, const QString &text)
{
    const BoxOwner box(QMessageBox::NoIcon, title, text, parent);
    box->setObjectName(u"rotateQuestionMessage"_qs);
    return ask(box,
               {{QCoreApplication::translate("CMessageBox", "Rotate"), QMessageBox::Yes},
                {QCoreApplication::translate("CMessageBox", "Cancel"), QMessageBox::Cancel}},
               QMessageBox::Yes)
        == QMessageBox::Yes;
}

QMessageBox::StandardButton CMessageBox::yesNoMessage(QWidget *parent, const QString &title, const QString &text,
                                                      QMessageBox::StandardButton defaultButton)
{
    ASSERT(isYesOrNo(defaultButton));
    const BoxOwner box(QMessageBox::Question, title, text, parent);
    return askYesNo(box, yesOrNo(defaultButton == QMessageBox::Yes));
}

std::pair<QMessageBox::StandardButton, bool>
CMessageBox::yesNoMessageWithCheckBox(QWidget *parent, const QString &title, const QString &text,
                                      const QString &checkBoxText, bool checked,
                                      QMessageBox::StandardButton defaultButton)
{
    ASSERT(isYesOrNo(defaultButton));
    const BoxOwner box(parent);
    box->setText(text);
    box->setWindowTitle(title);
    const QPointer<QCheckBox> checkBox = addCheckBox(*box, checkBoxText, checked);
    // A wrong default is Yes here and No in yesNoMessage().
    const QMessageBox::StandardButton answer = askYesNo(box, yesOrNo(defaultButton != QMessageBox::No));
    return {answer, checkBox.isNull() ? checked : checkBox->isChecked()};
}

QMessageBox::StandardButton CMessageBox::saveDiscardCancelMessage(QWidget *parent, const QString &title,
                                                                  const QString &text,
                                                                  QMessageBox::StandardButton defaultButton)
{
    const CommandStop stop;
    const BoxOwner box(QMessageBox::Warning, title, text, parent);
    box->setObjectName(u"saveDiscardCancelMessage"_qs);
    const bool isKnown = defaultButton == QMessageBox::Save || defaultButton == QMessageBox::Discard;
    const QMessageBox::StandardButton answer
        = ask(box,
              {{QCoreApplication::translate("CMessageBox", "Save"), QMessageBox::Save, u"saveButton"_qs},
               {QCoreApplication::translate("CMessageBox", "Don't save"), QMessageBox::Discard, u"discardButton"_qs},
               {QCoreApplication::translate("CMessageBox", "Cancel"), QMessageBox::Cancel, u"cancelButton"_qs}},
              isKnown ? defaultButton : QMessageBox::Cancel);
    return answer == QMessageBox::NoButton ? QMessageBox::Cancel : answer;
}

QMessageBox::StandardButton CMessageBox::backgroundProcessingCancelMessage(QWidget *parent, const QString &title,
                                                                           const QString &text)
{
    const CommandStop stop;
    const BoxOwner box(QMessageBox::Warning, title, text, parent);
    box->setObjectName(u"saveDiscardCancelMessage"_qs); // the same: sheets and drivers treat both boxes alike
    const QMessageBox::StandardButton answer = ask(
        box,
        {{QCoreApplication::translate("CMessageBox", "Quit without saving"), QMessageBox::Discard, u"discardButton"_qs},
         {QCoreApplication::translate("CMessageBox", "Don't quit"), QMessageBox::Cancel, u"cancelButton"_qs}},
        QMessageBox::Discard);
    return answer == QMessageBox::Cancel ? QMessageBox::Cancel : QMessageBox::Discard;
}

void CMessageBox::initializeScripting()
{
    m_instance.reset(new CMessageBox(nullptr)); // its constructor is private
}

QString CMessageBox::scriptableObjectName()
{
    return u"messageBoxes"_qs;
}

void CMessageBox::setRotateQuestion(bool predefinedValue)
{
    m_rotateAnswers.enqueue(predefinedValue);
}

void CMessageBox::setYesNoMessage(bool predefinedButtonPressed)
{
    m_yesNoAnswers.enqueue(yesOrNo(predefinedButtonPressed));
}

void CMessageBox::setYesNoMessageWithCheckBox(bool predefinedButtonPressed, bool predefinedCheckBox)
{
    m_checkBoxAnswers.enqueue({yesOrNo(predefinedButtonPressed), predefinedCheckBox});
}

void CMessageBox::setSaveDiscardCancelMessage(int predefinedValue)
{
    constexpr QMessageBox::StandardButton answers[] = {QMessageBox::Save, QMessageBox::Discard, QMessageBox::Cancel};
    ASSERT_X_RETURN(predefinedValue >= 0 && predefinedValue < int(std::size(answers)),
                    qPrintable(u"wrong value: %1"_qs.arg(predefinedValue)));
    m_saveAnswers.enqueue(answers[predefinedValue]);
}

} // namespace ZYX_zglv6
