// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/RetinaToolButton.h"

#include "utilsDll/look/GuiUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QEnterEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

using ZYX_zglv6::CustomZyxAppStyle;

namespace {

int countOfButtons = 0; // made so far, in this process

constexpr int focusMargin = 3;
constexpr int textMargin = 10; // beyond the text
constexpr int rightToLeftGap = 5; // between text and icon

void addToAllLooks(QIcon &icon, const QString &file)
{
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Active, QIcon::Selected}) {
        for (const QIcon::State state : {QIcon::On, QIcon::Off}) {
            icon.addFile(file, QSize(), mode, state);
        }
    }
}

QIcon::Mode iconMode(QStyle::State state)
{
    if (!state.testFlag(QStyle::State_Enabled)) {
        return QIcon::Disabled;
    }
    const bool isActive = state.testFlag(QStyle::State_MouseOver) && state.testFlag(QStyle::State_AutoRaise);
    return isActive ? QIcon::Active : QIcon::Normal;
}

/*! Where the icon and its text go. */
struct Places
{
    QRect icon;
    QRect text;
};

Places placesBeside(const QRect &rect, int iconWidth, Qt::LayoutDirection direction)
{
    if (direction != Qt::RightToLeft) {
        return {QRect(0, 0, iconWidth, rect.height()), rect.adjusted(iconWidth, 0, -textMargin, 0)};
    }
    const QRect text = rect.adjusted(0, 0, -(rightToLeftGap + iconWidth), 0);
    return {rect.adjusted(text.right() - text.left() + rightToLeftGap + 1, 0, 0, 0), text};
}

void drawFocus(QStylePainter &painter, const QStyleOptionToolButton &option, const QWidget *button)
{
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect.adjust(focusMargin, focusMargin, -focusMargin, -focusMargin);
    if (option.features.testFlag(QStyleOptionToolButton::MenuButtonPopup)) {
        focus.rect.adjust(0, 0, -button->style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, button), 0);
    }
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace

CRetinaToolButton::CRetinaToolButton(QWidget *parent)
    : QToolButton(parent)
{
    initialize();
}

CRetinaToolButton::CRetinaToolButton(const QString &normal, const QString &hover, const QString &pressed,
                                     QWidget *parent)
    : QToolButton(parent)
{
    changeIcons(normal, hover, pressed);
    initialize();
}

CRetinaToolButton::~CRetinaToolButton() = default;

void CRetinaToolButton::initialize()
{
    setIconSize(defaultIconSize());
    ++countOfButtons;
    setObjectName(u"CRetinaToolButton"_qs + QString::number(countOfButtons));
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        return;
    }
    if (auto *style = qobject_cast<CustomZyxAppStyle *>(QApplication::style())) {
        style->disableButtonShift(this, true);
    }
}

const QSize &CRetinaToolButton::defaultIconSize()
{
    static const QSize size(44, 44);
    return size;
}

void CRetinaToolButton::changeIcons(const QString &normal, const QString &hover, const QString &pressed)
{
    addToAllLooks(m_normalIcon, normal);
    addToAllLooks(m_pressedIcon, pressed);
    addToAllLooks(m_hoverIcon, hover);
    updateIcon(); // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall): no more is needed in the constructor
}

void CRetinaToolButton::forcePress(bool b)
{
    m_isPressForced = b;
    updateIcon();
}

void CRetinaToolButton::forceDisable(bool b)
{
    m_isDisableForced = b;
    updateIcon();
}

void CRetinaToolButton::markAsPressed()
{
    forcePress(true);
}

void CRetinaToolButton::markAsUnpressed()
{
    forcePress(false);
}

void CRetinaToolButton::setPressState(bool b)
{
    if (m_isPressed == b) {
        return;
    }
    m_isPressed = b;
    updateIcon();
}

bool CRetinaToolButton::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ActionChanged && object == defaultAction()) {
        updateIcon();
    }
    return false;
}

void CRetinaToolButton::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons().testFlag(Qt::LeftButton)) {
        m_isPressed = true;
    }
    const QPointer<CRetinaToolButton> self(this);
    QToolButton::mousePressEvent(event); // may open a menu, and a slot may delete this button
    if (self) {
        updateIcon();
    }
}

void CRetinaToolButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (!event->buttons().testFlag(Qt::LeftButton)) {
        m_isPressed = false;
    }
    const QPointer<CRetinaToolButton> self(this);
    QToolButton::mouseReleaseEvent(event); // a slot of clicked() may delete this button
    if (self) {
        updateIcon();
    }
}

void CRetinaToolButton::leaveEvent(QEvent *event)
{
    m_isHovered = false;
    QToolButton::leaveEvent(event);
    updateIcon();
}

void CRetinaToolButton::paintEvent(QPaintEvent *event)
{
    if (isDefaultActionDisabled() || m_isDisableForced) {
        QStylePainter painter(this);
        QStyleOptionToolButton option;
        initStyleOption(&option);
        option.icon = m_normalIcon;
        painter.drawComplexControl(QStyle::CC_ToolButton, option);
        return;
    }
    if (toolButtonStyle() == Qt::ToolButtonTextBesideIcon) {
        paintTextBesideIconStyle();
        return;
    }
    QToolButton::paintEvent(event);
}

/*! Icon and text alone, without the button around them, each at its edge. */
void CRetinaToolButton::paintTextBesideIconStyle()
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        drawFocus(painter, option, this);
    }
    const int shift = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    option.rect = style()
                      ->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButton, this)
                      .adjusted(shift, shift, -shift, -shift);
    const Places places = placesBeside(option.rect, iconSize().width(), option.direction);
    painter.drawItemText(places.text, Qt::AlignRight | Qt::AlignVCenter, option.palette,
                         option.state.testFlag(QStyle::State_Enabled), option.text, QPalette::ButtonText);
    const QIcon::State iconState = option.state.testFlag(QStyle::State_On) ? QIcon::On : QIcon::Off;
    painter.drawItemPixmap(places.icon, Qt::AlignLeft | Qt::AlignVCenter,
                           icon().pixmap(iconSize(), iconMode(option.state), iconState));
}

void CRetinaToolButton::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    if (!m_isBeforeFirstShow) {
        ZYX_zglv6::flickHoverEvent(this); // a button that moved away from under the mouse keeps no look of it
    }
}

void CRetinaToolButton::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!m_isBeforeFirstShow) {
        ZYX_zglv6::flickHoverEvent(this);
    }
}

void CRetinaToolButton::showEvent(QShowEvent *event)
{
    updateIcon();
    QWidget::showEvent(event);
    if (!m_isBeforeFirstShow) {
        return;
    }
    m_isBeforeFirstShow = false;
    if (QAction *action = defaultAction()) {
        followAction(action);
    }
}

void CRetinaToolButton::followAction(QAction *action)
{
    action->installEventFilter(this);
    // The filter comes before QToolButton, which then takes the action's icon; this signal comes last.
    connect(action, &QAction::changed, this, [this, action] {
        if (action == defaultAction()) {
            updateIcon();
        }
    });
}

void CRetinaToolButton::enterEvent(QEvent *event)
{
    m_isHovered = true;
    const QPointer<CRetinaToolButton> self(this);
    if (auto *enter = dynamic_cast<QEnterEvent *>(event)) { // a plain event may have the type QEvent::Enter, too
        QToolButton::enterEvent(enter); // a slot of the action's hovered() may delete this button
    }
    if (self) {
        updateIcon();
    }
}

void CRetinaToolButton::updateIcon()
{
    const bool isOwnLookShown = !isDefaultActionDisabled();
    if (isOwnLookShown && (m_isPressed || m_isPressForced)) {
        setIcon(m_pressedIcon);
        return;
    }
    setIcon(isOwnLookShown && m_isHovered ? m_hoverIcon : m_normalIcon);
}

bool CRetinaToolButton::isDefaultActionDisabled() const
{
    return defaultAction() && !defaultAction()->isEnabled();
}
