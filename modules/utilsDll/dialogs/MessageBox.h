// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QObject>
#include <QtCore/QQueue>
#include <QtWidgets/QMessageBox>

#include <memory>
#include <utility>

namespace ZYX_zglv6 {

/*!
    The single gate for questions to the user: message boxes in the product's look, of which no two are ever shown at
    once. One that is asked for while another is open waits out of sight until that one is gone.

    All operations block in a local event loop and belong to the main thread. The parent may be null, and may be
    destroyed meanwhile: the box goes with it and answers as if it had been closed. Closing a box, by its close button
    or by Escape, answers what is named as its escape. An exception from a slot ends the box and goes on to the caller.
    Texts may be rich text, as QMessageBox takes them: escape what comes from outside.
*/
class UTILSDLL_EXPORT CMessageBox : public QObject
{
    Q_OBJECT

public:
    ~CMessageBox() override;

    // The plain boxes, without an icon unless \a showIcon. The last one of \a buttons, in Qt's order, is highlighted; a
    // default button that is not among them is ignored. Give one at least: the user can't close a box that has none.
    // NoButton: closed, and none of the buttons stands for that.

    /*! With its icon and QMessageBox::Ok alone the button reads "Close", is not highlighted, and answers NoButton. */
    static QMessageBox::StandardButton critical(QWidget *parent, const QString &title, const QString &text,
                                                QFlags<QMessageBox::StandardButton> buttons,
                                                QMessageBox::StandardButton defaultButton, bool showIcon);
    static QMessageBox::StandardButton information(QWidget *parent, const QString &title, const QString &text,
                                                   QFlags<QMessageBox::StandardButton> buttons,
                                                   QMessageBox::StandardButton defaultButton, bool showIcon);
    static QMessageBox::StandardButton question(QWidget *parent, const QString &title, const QString &text,
                                                QFlags<QMessageBox::StandardButton> buttons,
                                                QMessageBox::StandardButton defaultButton, bool showIcon);
    static QMessageBox::StandardButton warning(QWidget *parent, const QString &title, const QString &text,
                                               QFlags<QMessageBox::StandardButton> buttons,
                                               QMessageBox::StandardButton defaultButton, bool showIcon);

    /*! "Rotate" or "Cancel". True for the first, which is the default; the escape is the second. */
    static bool rotateQuestion(QWidget *parent, const QString &title, const QString &text);

    /*! Yes or No; the escape is No. Another \a defaultButton than these two is a failed assertion and counts as No. */
    static QMessageBox::StandardButton yesNoMessage(QWidget *parent, const QString &title, const QString &text,
                                                    QMessageBox::StandardButton defaultButton);

    /*!
        Yes or No, and whether the check box below the text is checked; the escape is No. Another \a defaultButton than
        these two is a failed assertion and counts as Yes. The check box of a box that goes with its parent answers
        \a checked.
    */
    static std::pair<QMessageBox::StandardButton, bool>
    yesNoMessageWithCheckBox(QWidget *parent, const QString &title, const QString &text, const QString &checkBoxText,
                             bool checked, QMessageBox::StandardButton defaultButton);

    // While these two are open, commands of the user are dropped; afterwards no block of CActionManager remains, not
    // even one from before.

    /*! Save, Discard or Cancel; the escape is Cancel, and so is every \a defaultButton but Save and Discard. */
    static QMessageBox::StandardButton saveDiscardCancelMessage(QWidget *parent, const QString &title,
                                                                const QString &text,
                                                                QMessageBox::StandardButton defaultButton);

    /*! Discard, the default, to quit without saving, or Cancel, the escape, to stay. */
    static QMessageBox::StandardButton backgroundProcessingCancelMessage(QWidget *parent, const QString &title,
                                                                         const QString &text);

    /*! Makes the one instance anew, for a scripted driver of the user interface. Its queues start empty. */
    static void initializeScripting();

    /*! The object name of the instance: "messageBoxes". */
    static QString scriptableObjectName();

    // Prepare the answers that the driver gives, one a call, in their order. The boxes themselves do not read them.

    Q_INVOKABLE void setRotateQuestion(bool predefinedValue);
    Q_INVOKABLE void setYesNoMessage(bool predefinedButtonPressed);
    Q_INVOKABLE void setYesNoMessageWithCheckBox(bool predefinedButtonPressed, bool predefinedCheckBox);
    /*! 0 is Save, 1 Discard, 2 Cancel; any other value is a failed assertion and appends nothing. */
    Q_INVOKABLE void setSaveDiscardCancelMessage(int predefinedValue);

private:
    friend class CStorageLocation;

    explicit CMessageBox(QObject *parent);

    /*! The plain boxes' common path; \a icon may be NoIcon. */
    static QMessageBox::StandardButton messageHelper(QWidget *parent, const QString &title, const QString &text,
                                                     QFlags<QMessageBox::StandardButton> buttons,
                                                     QMessageBox::StandardButton defaultButton, QMessageBox::Icon icon);

    static std::unique_ptr<CMessageBox> m_instance;

    QQueue<std::pair<QMessageBox::StandardButton, bool>> m_checkBoxAnswers;
    QQueue<QMessageBox::StandardButton> m_saveAnswers;
    QQueue<QMessageBox::StandardButton> m_yesNoAnswers;
    QQueue<bool> m_rotateAnswers;
};

} // namespace ZYX_zglv6
