// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/IconViewer.h"

#include "uiControls/AccessibleViewer_p.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/look/GuiUtils.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <utility>

namespace {

/*! The image of a viewer, of one kind or another. */
class IImageHolder
{
public:
    IImageHolder() = default;
    virtual ~IImageHolder() = default;
    IImageHolder(const IImageHolder &) = delete;
    IImageHolder &operator=(const IImageHolder &) = delete;

    virtual void paint(QPainter *painter, const QRectF &rect, bool enabled) = 0;
    virtual QSize size() const = 0; // with negative numbers if there is none
    virtual QIcon icon() const = 0;
    virtual QPixmap pixmap() const = 0;
};

class CPixmapImageHolder final : public IImageHolder
{
public:
    explicit CPixmapImageHolder(QPixmap pixmap)
        : m_normal(std::move(pixmap))
    {
    }

    void paint(QPainter *painter, const QRectF &rect, bool enabled) override
    {
        if (!painter || m_normal.isNull() || rect.isEmpty()) {
            return;
        }
        if (!enabled && m_disabled.isNull()) {
            m_disabled = grayed(m_normal);
        }
        const QPixmap &pixmap = enabled ? m_normal : m_disabled;
        ASSERT(!pixmap.isNull());
        const QPainter::RenderHints formerHints = painter->renderHints();
        painter->setRenderHints(QPainter::SmoothPixmapTransform | QPainter::Antialiasing);
        painter->drawPixmap(rect, pixmap, pixmap.rect());
        painter->setRenderHints(formerHints, true); // switches nothing off: what is painted next is smooth, too
    }

    QSize size() const override
    {
        return m_normal.size();
    }

    QIcon icon() const override
    {
        return {};
    }

    QPixmap pixmap() const override
    {
        return m_normal;
    }

private:
    static QPixmap grayed(const QPixmap &pixmap)
    {
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(QIcon::Disabled, pixmap, &option);
    }

    QPixmap m_normal;
    QPixmap m_disabled; // null until needed
};

class CIconImageHolder final : public IImageHolder
{
public:
    explicit CIconImageHolder(QIcon icon)
        : m_icon(std::move(icon))
    {
    }

    void paint(QPainter *painter, const QRectF &rect, bool enabled) override
    {
        if (!painter || m_icon.isNull() || rect.isEmpty()) {
            return;
        }
        m_icon.paint(painter, rect.toRect(), Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled, QIcon::Off);
    }

    /*! Not sizeOfIcon(): an icon without a size has none here, where that one says (0, 0). */
    QSize size() const override
    {
        QSize largest(-1, -1);
        const QList<QSize> sizes = m_icon.availableSizes(QIcon::Normal, QIcon::Off);
        for (const QSize &size : sizes) {
            largest = largest.expandedTo(size);
        }
        return largest;
    }

    QIcon icon() const override
    {
        return m_icon;
    }

    QPixmap pixmap() const override
    {
        return {};
    }

private:
    QIcon m_icon;
};

bool isGiven(const QSize &size)
{
    return size.width() >= 0 && size.height() >= 0;
}

} // namespace

class CIconViewer::Pimpl
{
public:
    QSize imageSize() const
    {
        if (isGiven(mandatoryImageSize)) {
            return mandatoryImageSize;
        }
        return holder ? holder->size() : QSize(-1, -1);
    }

    QRectF outputRect(const QRectF &viewport) const
    {
        if (viewport.width() <= 0 || viewport.height() <= 0) {
            return {};
        }
        if (aspectRatio == Qt::IgnoreAspectRatio) {
            return viewport;
        }
        QSizeF size = imageSize();
        if (size.width() < 0 || size.height() < 0) {
            return {};
        }
        if (expandContent || size.width() > viewport.width() || size.height() > viewport.height()) {
            size.scale(viewport.size(), aspectRatio);
        }
        return {QPointF(viewport.x() + (viewport.width() - size.width()) * 0.5,
                        viewport.y() + (viewport.height() - size.height()) * 0.5),
                size};
    }

    bool showDisableState = true;
    bool showShadow = true;
    Qt::AspectRatioMode aspectRatio = Qt::KeepAspectRatio;
    std::unique_ptr<IImageHolder> holder; // null: no image
    QSize mandatoryImageSize{-1, -1};
    QString text;
    bool expandContent = false;
};

CIconViewer::CIconViewer(QWidget *parent)
    : QWidget(parent)
    , pimpl(std::make_unique<Pimpl>())
{
    makeViewersAccessible();
    if (parent) {
        parent->installEventFilter(this);
    }
}

CIconViewer::~CIconViewer() = default;

bool CIconViewer::isEmpty() const
{
    return !pimpl->holder;
}

bool CIconViewer::showShadow() const
{
    return pimpl->showShadow;
}

bool CIconViewer::showDisableState() const
{
    return pimpl->showDisableState;
}

Qt::AspectRatioMode CIconViewer::aspectRatio() const
{
    return pimpl->aspectRatio;
}

QString CIconViewer::text() const
{
    return pimpl->text;
}

bool CIconViewer::contentIsExpanded() const
{
    return pimpl->expandContent;
}

QSize CIconViewer::mandatoryImageSize() const
{
    return pimpl->mandatoryImageSize;
}

QIcon CIconViewer::icon() const
{
    return pimpl->holder ? pimpl->holder->icon() : QIcon();
}

QPixmap CIconViewer::pixmap() const
{
    return pimpl->holder ? pimpl->holder->pixmap() : QPixmap();
}

QRect CIconViewer::outputRect() const
{
    return pimpl->outputRect(viewportRect()).toRect();
}

QRect CIconViewer::viewportRect() const
{
    return contentsRect();
}

QSize CIconViewer::sizeHint() const
{
    const QSize size = pimpl->imageSize();
    return isGiven(size) ? size : minimumSizeHint();
}

QSize CIconViewer::minimumSizeHint() const
{
    return {100, 100};
}

void CIconViewer::clear()
{
    pimpl->holder.reset();
    updateGeometry(); // no update(): the caller decides when the image vanishes
}

void CIconViewer::setIcon(const QIcon &i)
{
    pimpl->holder = i.isNull() ? nullptr : std::make_unique<CIconImageHolder>(i);
    updateGeometry();
    update();
}

void CIconViewer::setIcon(const QString &strFile)
{
    setIcon(QIcon(strFile));
}

void CIconViewer::setPixmap(const QPixmap &p)
{
    pimpl->holder = p.isNull() ? nullptr : std::make_unique<CPixmapImageHolder>(p);
    updateGeometry();
    update();
}

void CIconViewer::setPixmap(const QString &strFile)
{
    setPixmap(QPixmap(strFile));
}

void CIconViewer::setShowDisableState(bool bSet)
{
    if (pimpl->showDisableState == bSet) {
        return;
    }
    pimpl->showDisableState = bSet;
    if (!isEnabled()) {
        update();
    }
}

void CIconViewer::setShowShadow(bool bSet)
{
    if (pimpl->showShadow == bSet) {
        return;
    }
    pimpl->showShadow = bSet;
    QWidget *parent = parentWidget();
    if (!parent) {
        return;
    }
    if (bSet) {
        parent->installEventFilter(this);
    } else {
        parent->removeEventFilter(this);
    }
    parent->update();
}

void CIconViewer::setAspectRatio(Qt::AspectRatioMode t)
{
    if (pimpl->aspectRatio == t) {
        return;
    }
    pimpl->aspectRatio = t;
    update();
}

void CIconViewer::setExpandContent(bool bSet)
{
    if (pimpl->expandContent == bSet) {
        return;
    }
    pimpl->expandContent = bSet;
    update();
}

void CIconViewer::setMandatoryImageSize(const QSize &s)
{
    if (pimpl->mandatoryImageSize == s) {
        return;
    }
    pimpl->mandatoryImageSize = s;
    updateGeometry();
    update();
}

void CIconViewer::setText(const QString &s)
{
    if (pimpl->text == s) {
        return;
    }
    pimpl->text = s;
    update();
}

bool CIconViewer::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && pimpl->showShadow && parentWidget()) {
        parentWidget()->removeEventFilter(this);
    }
    const bool isHandled = QWidget::event(event);
    if (event->type() == QEvent::ParentChange && pimpl->showShadow && parentWidget()) {
        parentWidget()->installEventFilter(this);
    }
    return isHandled;
}

bool CIconViewer::eventFilter(QObject *object, QEvent *event)
{
    QWidget *parent = parentWidget();
    if (event->type() != QEvent::Paint || !parent || object != parent || !pimpl->showShadow) {
        return QWidget::eventFilter(object, event);
    }
    const QRect output = outputRect();
    if (output.isEmpty()) {
        return QWidget::eventFilter(object, event);
    }
    const QPointer<CIconViewer> self(this);
    parent->removeEventFilter(this);
    QCoreApplication::sendEvent(parent, event); // the parent first, and once more after the shadow
    if (!self || parentWidget() != parent || !pimpl->showShadow) {
        return false;
    }
    parent->installEventFilter(this);
    QPainter painter(parent);
    drawShadowRect(&painter, QRect(mapToParent(output.topLeft()), mapToParent(output.bottomRight())));
    return QWidget::eventFilter(object, event);
}

void CIconViewer::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const QRectF output = pimpl->outputRect(viewportRect());
    if (!pimpl->holder || output.isEmpty()) {
        return;
    }
    pimpl->holder->paint(&painter, output, isEnabled() || !pimpl->showDisableState);
    if (pimpl->text.isEmpty()) {
        return;
    }
    const QPen formerPen = painter.pen();
    painter.setPen(palette().text().color());
    painter.drawText(output, Qt::AlignCenter, pimpl->text);
    painter.setPen(formerPen);
}
