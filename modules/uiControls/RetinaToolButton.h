// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtGui/QIcon>
#include <QtWidgets/QToolButton>

/*!
    A tool button with an image file for each of its looks: normal, with the mouse over it, and pressed. The application
    style must be installed before: it then keeps the content in place while the button is pressed.

    Each button gets an object name of its own, "CRetinaToolButton" and a number; another one may be set. Without a text
    it needs an accessible name. A default action must be set before the button is first shown, and its icon is not
    used. Main thread only.
*/
class UTILSDLL_EXPORT CRetinaToolButton : public QToolButton
{
    Q_OBJECT

public:
    explicit CRetinaToolButton(QWidget *parent);
    CRetinaToolButton(const QString &normal, const QString &hover, const QString &pressed, QWidget *parent);
    ~CRetinaToolButton() override;

    /*! 44 by 44. */
    static const QSize &defaultIconSize();

    /*! Adds image files to the looks. What was there before stays, too: a file of another size can still be chosen. */
    void changeIcons(const QString &normal, const QString &hover, const QString &pressed);

    /*! Shows the pressed look also without the mouse; as markAsPressed() and markAsUnpressed(). */
    void forcePress(bool b);

    /*! Paints the normal image whatever the state. The button itself stays as it is and can be clicked. */
    void forceDisable(bool b);

    bool eventFilter(QObject *object, QEvent *event) override;

public Q_SLOTS:
    void markAsPressed();
    void markAsUnpressed();

    /*! What else the left mouse button does: it lasts until a release. */
    void setPressState(bool b);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

public:
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_GCC("-Woverloaded-virtual") // of Qt's operation, which it hides
    QT_WARNING_DISABLE_CLANG("-Woverloaded-virtual")
    /*!
        Shows the hover look until the mouse leaves. An operation of its own that Qt does not call, for it takes any
        event: who wants the look calls it, with a QEnterEvent or another event.
    */
    virtual void enterEvent(QEvent *event); // NOLINT(clang-diagnostic-overloaded-virtual)
    QT_WARNING_POP

protected:
    /*! Chooses the icon: normal with a disabled default action, else pressed, else hover, else normal. */
    virtual void updateIcon();

private:
    void initialize();
    void followAction(QAction *action);
    bool isDefaultActionDisabled() const;
    void paintTextBesideIconStyle();

    QIcon m_normalIcon; // also when disabled
    QIcon m_hoverIcon;
    QIcon m_pressedIcon;
    bool m_isHovered = false;
    bool m_isPressed = false;
    bool m_isPressForced = false;
    bool m_isDisableForced = false;
    bool m_isBeforeFirstShow = true;
};
