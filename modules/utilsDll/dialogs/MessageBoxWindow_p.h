// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Assertions.h"
#include "utilsDll/look/GuiUtils.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QEventLoop>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtGui/QBrush>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <optional>

// The window of a message box; a part of MessageBox.cpp, which alone includes it.
namespace ZYX_zglv6 {

// NOLINTBEGIN(misc-definitions-in-headers): for one source

namespace {

constexpr QSize iconSize(48, 48);
constexpr int stripHeight = 51;
constexpr int buttonHeight = 29;
constexpr int buttonWidth = 90; // at least
constexpr int buttonBoxWidth = 450; // at least
constexpr int buttonSpacing = 10;
constexpr int leftMargin = 25;
constexpr int bottomMargin = 10;
constexpr int textRowHeight = 35; // at least
constexpr int lowerRowHeight = 10; // at least

void highlight(QAbstractButton *button)
{
    if (button == nullptr) {
        return;
    }
    button->setProperty("highlighted", true);
    QStyle *style = button->style(); // sheets look at a property only when they polish
    style->unpolish(button);
    style->polish(button);
    button->update();
}

std::optional<QStyle::StandardPixmap> standardPixmapOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStyle::SP_MessageBoxInformation;
    case QMessageBox::Warning:
        return QStyle::SP_MessageBoxWarning;
    case QMessageBox::Critical:
        return QStyle::SP_MessageBoxCritical;
    case QMessageBox::Question:
        return QStyle::SP_MessageBoxQuestion;
    case QMessageBox::NoIcon:
        break;
    }
    return std::nullopt;
}

/*! The icon as \a box shows it, in the pixels of the box's screen; null for none. */
QPixmap iconPixmapOf(QMessageBox::Icon icon, const QWidget &box)
{
    const std::optional<QStyle::StandardPixmap> kind = standardPixmapOf(icon);
    const QIcon source = kind ? box.style()->standardIcon(*kind, nullptr, &box) : QIcon();
    if (source.isNull()) {
        return {};
    }
    QPixmap pixmap(iconSize * box.devicePixelRatioF());
    pixmap.setDevicePixelRatio(box.devicePixelRatioF());
    pixmap.fill(Qt::transparent);

    QPainter painter(&pixmap);
    paintIcon(&painter, source, QRect(QPoint(0, 0), iconSize), Qt::KeepAspectRatio, QIcon::Normal, QIcon::Off);
    return pixmap;
}

class CZyxMessageBox : public QMessageBox
{
public:
    CZyxMessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent);
    explicit CZyxMessageBox(QWidget *parent);

    /*! In place of QMessageBox's own, which takes a pixmap of the style's size. */
    void setIcon(Icon icon);

    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    int exec() override;

private:
    void setUp();
    void setupIconMinHeightFilter();
    void adjustLook();
    void adjustLayout();
    void showIcon();

    QBrush m_stripBrush;
    QPointer<QLabel> m_iconLabel;
};

/*! The box now in exec(), in the whole process. */
QPointer<CZyxMessageBox> &openBox()
{
    static QPointer<CZyxMessageBox> box;
    return box;
}

/*! Waits until the box that is open by now, if any, is gone; for that one only. False: it stays, the program ends. */
bool waitForOpenBox()
{
    const QPointer<CZyxMessageBox> box = openBox();
    // One that is out of sight has its answer. Its exec() may still be below this one on the stack, and would never
    // end.
    if (box.isNull() || !box->isVisible()) {
        return true;
    }
    QEventLoop loop;
    QObject::connect(box, &QDialog::finished, &loop, &QEventLoop::quit);
    QObject::connect(box, &QObject::destroyed, &loop, &QEventLoop::quit);
    // hide() ends a box without a signal of its own
    QObject::connect(box->windowHandle(), &QWindow::visibleChanged, &loop, &QEventLoop::quit);
    loop.exec();
    return box.isNull() || !box->isVisible();
}

CZyxMessageBox::CZyxMessageBox(Icon icon, const QString &title, const QString &text, QWidget *parent)
    : QMessageBox(icon, title, text, NoButton, parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint)
{
    setUp();
    setIcon(icon);
}

CZyxMessageBox::CZyxMessageBox(QWidget *parent)
    : QMessageBox(parent)
{
    setUp();
}

void CZyxMessageBox::setUp()
{
    m_stripBrush = QBrush(QColor(u"#1b1b1b"_qs));
    if (parentWidget() == nullptr) { // no sheet to inherit
        setCustomStyleSheet(this, QFlags<QssLoadOption>(QssLoadBaseSheets) | QssSkipAdditionalSheet, QString());
    }
    setupIconMinHeightFilter();
}

void CZyxMessageBox::setupIconMinHeightFilter()
{
    if (m_iconLabel != nullptr) {
        return;
    }
    m_iconLabel = findChild<QLabel *>(u"qt_msgboxex_icon_label"_qs);
    ASSERT_X_RETURN(m_iconLabel != nullptr, "message box without an icon label");
    m_iconLabel->setFixedSize(iconSize);

    auto *textLabel = findChild<QLabel *>(u"qt_msgbox_label"_qs);
    ASSERT_X_RETURN(textLabel != nullptr, "message box without a text label");
    textLabel->installEventFilter(this);
    textLabel->setMinimumHeight(std::max(textLabel->minimumSizeHint().height(), m_iconLabel->height()));
}

void CZyxMessageBox::setIcon(Icon icon)
{
    QMessageBox::setIcon(icon); // so that icon() tells it: the system's alert sound goes by that
    showIcon();
}

void CZyxMessageBox::showIcon()
{
    if (m_iconLabel != nullptr) {
        m_iconLabel->setPixmap(iconPixmapOf(icon(), *this));
    }
}

bool CZyxMessageBox::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest) {
        setMinimumSize(minimumSizeHint());
        return true;
    }
    const bool isHandled = QMessageBox::event(event);
    if (event->type() == QEvent::StyleChange) {
        showIcon(); // QMessageBox has put its own in place, and laid the box out anew
        if (openBox() == this) {
            adjustLook();
        }
    }
    return isHandled;
}

// NOLINTBEGIN(bugprone-parent-virtual-call): what QMessageBox would do in between is not wanted

bool CZyxMessageBox::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::Resize && object->parent() == this && m_iconLabel != nullptr) {
        m_iconLabel->setMinimumHeight(static_cast<QResizeEvent *>(event)->size().height());
    }
    return QDialog::eventFilter(object, event);
}

void CZyxMessageBox::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!rect().isValid()) {
        return;
    }
    QPainter painter(this);
    painter.fillRect(rect().left(), rect().bottom() - stripHeight + 1, rect().width(), stripHeight, m_stripBrush);
}

void CZyxMessageBox::showEvent(QShowEvent *event)
{
    setUpdatesEnabled(false);
    QMessageBox::showEvent(event);
    setMinimumSize(minimumSizeHint());
    setUpdatesEnabled(true);
}

int CZyxMessageBox::exec()
{
    const QPointer<CZyxMessageBox> self = this; // it may go with its parent
    if (!waitForOpenBox() || self.isNull()) {
        return Rejected;
    }
    adjustLook();
    openBox() = this;
    const auto clear = qScopeGuard([] { openBox() = nullptr; });
    try {
        return QDialog::exec();
    } catch (...) {
        if (!self.isNull()) {
            QWidget::setVisible(false); // QDialog's own would end its event loop, which is gone by now
        }
        throw;
    }
}

// NOLINTEND(bugprone-parent-virtual-call)

void CZyxMessageBox::adjustLook()
{
    for (QAbstractButton *button : buttons()) {
        button->setFixedHeight(buttonHeight);
        button->setMinimumWidth(buttonWidth);
    }
    adjustLayout();
    auto *buttonBox = findChild<QDialogButtonBox *>();
    if (buttonBox == nullptr) {
        return;
    }
    if (QLayout *layout = buttonBox->layout()) {
        layout->setSpacing(buttonSpacing);
    }
    buttonBox->setCenterButtons(false);
    buttonBox->setMinimumWidth(buttonBoxWidth);
}

void CZyxMessageBox::adjustLayout()
{
    if (layout() == nullptr) {
        return;
    }
    QMargins margins = layout()->contentsMargins();
    margins.setLeft(leftMargin);
    margins.setBottom(bottomMargin);
    layout()->setContentsMargins(margins);
    if (auto *grid = qobject_cast<QGridLayout *>(layout())) {
        grid->setRowMinimumHeight(0, textRowHeight);
        grid->setRowMinimumHeight(1, lowerRowHeight);
    }
}

} // namespace

// NOLINTEND(misc-definitions-in-headers)

} // namespace ZYX_zglv6
