// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/dialogs/ProgressPainter.h"

#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/frame/Assertions.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QTextDocumentFragment>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>

namespace ZYX_zglv6 {

namespace {

constexpr int lowestHeight = 65;
constexpr int spaceBesideText = 100; // for the animation and the margins
constexpr int switchDelay = 300; // milliseconds; a shorter process or pause is not seen
constexpr QSize zoomSize(100, 41); // of any zoom text
constexpr int zoomDistance = 10;
constexpr int zoomTime = 1000; // milliseconds
constexpr int frameTime = 200; // milliseconds

CDelayedCall &delayedCall()
{
    return Singleton<CDelayedCall>::instance();
}

/*! The ground that a sheet gives to a widget: Qt leaves it to the paintEvent() of a subclass. */
void paintBySheet(QWidget *widget)
{
    QStylePainter painter(widget);
    QStyleOption option;
    option.initFrom(widget);
    painter.drawPrimitive(QStyle::PE_Widget, option);
}

QString withoutMarks(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

} // namespace

BaseProgressPainter::BaseProgressPainter(QWidget *parent, QWidget *referenceWidget, const QString &labelObjectName)
    : QWidget(parent)
    , m_referenceWidget(referenceWidget)
    , m_label(new QLabel(this))
    , m_defaultText(QCoreApplication::translate("ProgressPainter", "Processing"))
    , m_layout(new QHBoxLayout(this))
{
    setFocusPolicy(Qt::NoFocus);
    setMinimumHeight(lowestHeight);
    setObjectName(u"processingWidget"_qs);

    QSizePolicy policy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);

    m_label->setObjectName(labelObjectName);
    m_layout->addWidget(m_label);
    setText(QString());
    hide(); // or it would come up with its parent
}

BaseProgressPainter::~BaseProgressPainter()
{
    delayedCall().discard(this, nullptr);
}

void BaseProgressPainter::setText(const QString &text)
{
    const QString &shown = text.isEmpty() ? m_defaultText : text;
    m_label->setText(shown);
    setAccessibleName(withoutMarks(shown));
    updateSize(); // NOLINT(clang-analyzer-optin.cplusplus.VirtualCall): the constructor takes this class's own
}

void BaseProgressPainter::updateSize()
{
    setFixedWidth(QWIDGETSIZE_MAX); // no longer the former text's
    adjustSize(); // the label has the sheet's font from here on
    setFixedWidth(m_label->fontMetrics().horizontalAdvance(m_label->text()) + spaceBesideText);
}

QPoint BaseProgressPainter::referenceOrigin() const
{
    return m_referenceWidget->mapTo(parentWidget(), QPoint(0, 0));
}

int BaseProgressPainter::centredX() const
{
    return referenceOrigin().x() + (m_referenceWidget->width() - width()) / 2;
}

void BaseProgressPainter::moveToCenter(int /*y*/)
{
    if (!m_referenceWidget) {
        return;
    }
    move(centredX(), referenceOrigin().y() + (m_referenceWidget->height() - height()) / 4 * 3);
    m_referenceWidget->update();
}

void BaseProgressPainter::setVisible(bool bSet)
{
    QWidget::setVisible(bSet);
    if (!bSet) {
        delayedCall().discard(this, nullptr);
    }
}

void BaseProgressPainter::onHideTimer()
{
    delayedCall().discard(this, nullptr);
    hide();
    QCoreApplication::processEvents(); // whoever stops the progress may keep the main thread busy
}

void BaseProgressPainter::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    paintBySheet(this);
}

void BaseProgressPainter::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    moveToCenter(0);
}

ProgressPainter::ProgressPainter(QWidget *parent, QWidget *referenceWidget)
    : BaseProgressPainter(parent, referenceWidget, u"processLabel"_qs)
{
    auto *animation
        = new AnimatedLabel({u":/icons/processing/processing1.png"_qs, u":/icons/processing/processing2.png"_qs,
                             u":/icons/processing/processing3.png"_qs},
                            this);
    animation->setObjectName(u"AnimatedLabel"_qs);
    m_layout->addWidget(animation);
    setText(QString()); // the size anew, with the animation
}

ProgressPainter::~ProgressPainter() = default;

void ProgressPainter::onStartProgress(bool delayed)
{
    delayedCall().discard(this, "onHideTimer");
    if (delayed) {
        delayedCall().invoke(switchDelay, this, "show", true);
        return;
    }
    show();
    QCoreApplication::processEvents(); // before the caller's long work begins
}

void ProgressPainter::onStopProgress(bool delayed)
{
    delayedCall().discard(this, nullptr);
    if (delayed) {
        delayedCall().invoke(switchDelay, this, "onHideTimer", true);
        return;
    }
    onHideTimer();
}

ZoomPainter::ZoomPainter(QWidget *parent, QWidget *referenceWidget)
    : BaseProgressPainter(parent, referenceWidget, u"zoomLabel"_qs)
{
    setObjectName(u"zoomWidget"_qs);
    m_label->setAlignment(Qt::AlignCenter);
    m_layout->setContentsMargins(0, 0, 0, 0);
}

ZoomPainter::~ZoomPainter() = default;

void ZoomPainter::showZoom(const QString &percent, int y)
{
    if (percent.isEmpty()) {
        return;
    }
    setText(u"%1 %"_qs.arg(percent));
    delayedCall().discard(this, nullptr);
    moveToCenter(y);
    show();
    delayedCall().invoke(zoomTime, this, "onHideTimer", true);
}

void ZoomPainter::updateZoomPos(int y)
{
    if (isVisible()) {
        moveToCenter(y);
    }
}

void ZoomPainter::moveToCenter(int y)
{
    if (!m_referenceWidget) {
        return;
    }
    move(centredX(), y + zoomDistance); // y is the caller's, who knows what else lies over the preview
    m_referenceWidget->update();
}

void ZoomPainter::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event); // NOLINT(bugprone-parent-virtual-call): showZoom() has moved it already
}

void ZoomPainter::updateSize()
{
    setFixedSize(zoomSize);
}

AnimatedLabel::AnimatedLabel(const QList<QString> &imageFiles, QWidget *parent)
    : QLabel(parent)
{
    ASSERT(!imageFiles.isEmpty());
    for (const QString &file : imageFiles) {
        m_frames.append(QPixmap(file));
    }
    changeImage();
}

AnimatedLabel::~AnimatedLabel()
{
    delayedCall().discard(this, nullptr); // no hideEvent() comes to a label that dies while visible
}

void AnimatedLabel::changeImage()
{
    if (m_frames.isEmpty()) {
        return;
    }
    if (m_nextFrame >= m_frames.size()) {
        m_nextFrame = 0;
    }
    setPixmap(m_frames[m_nextFrame]);
    ++m_nextFrame;
}

void AnimatedLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    paintBySheet(this);
}

void AnimatedLabel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    delayedCall().invoke(frameTime, this, "changeImage", false);
}

void AnimatedLabel::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    delayedCall().discard(this, nullptr);
}

} // namespace ZYX_zglv6
