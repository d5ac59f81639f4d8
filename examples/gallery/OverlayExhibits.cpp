// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"
#include "Stage.h"

#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/eventLoop/DelayedCall.h"

#include <QtGui/QShowEvent>

using namespace ZYX_zglv6;

namespace {

constexpr QSize photoSize(300, 190);
constexpr int frameCount = 3;

/*! Lets what is on the screen, or will be, stay as it is. */
void stop(QWidget *widget)
{
    Singleton<CDelayedCall>::instance().discard(widget, nullptr);
}

/*! A photograph on which the overlays stand still. */
class CStillPhoto final : public QLabel
{
public:
    CStillPhoto()
    {
        setFixedSize(photoSize);
        setPixmap(photograph(photoSize * devicePixelRatio()));
        setScaledContents(true);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QLabel::showEvent(event);
        const QList<QWidget *> children = findChildren<QWidget *>();
        for (QWidget *child : children) { // which have been shown before
            stop(child);
        }
    }
};

std::unique_ptr<QWidget> newProgress(int frame, const QString &text = QString())
{
    auto photo = std::make_unique<CStillPhoto>();
    auto *overlay = new ProgressPainter(photo.get(), photo.get());
    auto *animation = overlay->findChild<AnimatedLabel *>();
    for (int i = 0; i < frame; ++i) {
        QMetaObject::invokeMethod(animation, "changeImage");
    }
    overlay->setText(text);
    overlay->show();
    return photo;
}

std::unique_ptr<QWidget> newRunningProgress()
{
    auto photo = std::make_unique<QLabel>();
    photo->setFixedSize(photoSize);
    photo->setPixmap(photograph(photoSize));
    auto *overlay = new ProgressPainter(photo.get(), photo.get());
    overlay->show();
    return photo;
}

std::unique_ptr<QWidget> newZoom(const QString &percent)
{
    auto photo = std::make_unique<CStillPhoto>();
    auto *overlay = new ZoomPainter(photo.get(), photo.get());
    overlay->showZoom(percent, 0);
    stop(overlay); // its second may pass before the page is shown
    return photo;
}

} // namespace

QList<Exhibit> overlayExhibits()
{
    QList<Exhibit> exhibits;
    for (int frame = 0; frame < frameCount; ++frame) {
        const QString number = QString::number(frame + 1);
        exhibits.append({u"overlay-progress-"_qs + number,
                         u"Progress, frame "_qs + number,
                         [frame] { return newProgress(frame); },
                         {}});
    }
    exhibits += {
        {u"overlay-progress-text"_qs,
         u"Progress with a text of its own"_qs,
         [] { return newProgress(0, u"mountain-lake.jpg, 60 %"_qs); },
         {}},
        {u"overlay-progress-running"_qs, u"Progress, running"_qs, &newRunningProgress, {}, false},
        {u"overlay-zoom"_qs, u"Zoom, short text"_qs, [] { return newZoom(u"7"_qs); }, {}},
        {u"overlay-zoom-long"_qs, u"Zoom, long text"_qs, [] { return newZoom(u"1600"_qs); }, {}},
    };
    return exhibits;
}
