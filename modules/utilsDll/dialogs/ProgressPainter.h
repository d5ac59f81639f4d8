// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtGui/QPixmap>
#include <QtWidgets/QLabel>
#include <QtWidgets/QWidget>

class QHBoxLayout;

/*
    Overlays that float over a preview without being in its layout. They are hidden at first, and their calls that come
    later run in the main thread's event loop, on which all of them live.
*/

namespace ZYX_zglv6 {

/*!
    A dark pill with a text, in the middle of its reference widget and three quarters of the way down. Style sheets find
    the pill by the object name "processingWidget", and its label by the name that the constructor gets.

    The reference widget must be the parent or lie within it; it may die first, and the overlay then stays where it is.
    The overlay is not kept within its parent. Its accessible name is its text.
*/
class UTILSDLL_EXPORT BaseProgressPainter : public QWidget
{
    Q_OBJECT

public:
    BaseProgressPainter(QWidget *parent, QWidget *referenceWidget, const QString &labelObjectName);
    ~BaseProgressPainter() override;

    /*! Shows \a text and fits the width to it. An empty one: "Processing", in the language of the construction. */
    void setText(const QString &text);

    /*! Moves the overlay to its place over the reference widget. Not used here: \a y, which subclasses may. */
    virtual void moveToCenter(int y);

public Q_SLOTS:
    /*! Hiding also cancels every delayed call of the overlay, so that nothing brings it back. */
    void setVisible(bool bSet) override;

protected Q_SLOTS:
    /*! Hides the overlay and brings that to the screen at once: handles events, the user's input among them. */
    void onHideTimer();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

    /*! Called for each new text, by the constructor as well: a subclass's own is not there yet. */
    virtual void updateSize();

    QPoint referenceOrigin() const; // in the parent's coordinates
    int centredX() const;

    QPointer<QWidget> m_referenceWidget;
    QLabel *m_label;
    QString m_defaultText;
    QHBoxLayout *m_layout;
};

/*! Tells, by its text and by an animation, that the image is being computed. */
class UTILSDLL_EXPORT ProgressPainter : public BaseProgressPainter
{
    Q_OBJECT

public:
    ProgressPainter(QWidget *parent, QWidget *referenceWidget);
    ~ProgressPainter() override;

    /*!
        Shows the overlay and brings it to the screen before it returns, for which it handles events; or, if \a delayed,
        shows it after 300 milliseconds unless the process has stopped by then. A hiding that is due is cancelled.
    */
    void onStartProgress(bool delayed);

    /*!
        Hides the overlay at once, and handles events; or, if \a delayed, after 300 milliseconds unless another process
        has started by then. A showing that is due is cancelled.
    */
    void onStopProgress(bool delayed);
};

/*! Shows the zoom for a second. Style sheets know it as "zoomWidget", and its label as "zoomLabel". */
class UTILSDLL_EXPORT ZoomPainter : public BaseProgressPainter
{
    Q_OBJECT

public:
    ZoomPainter(QWidget *parent, QWidget *referenceWidget);
    ~ZoomPainter() override;

    /*!
        Shows \a percent, a number without its sign, at \a y of the parent's coordinates; the second starts anew.
        Nothing happens if \a percent is empty.
    */
    void showZoom(const QString &percent, int y);

    /*! Moves the overlay if it is visible. */
    void updateZoomPos(int y);

    /*! To the middle of the reference widget, 10 pixels below \a y of the parent's coordinates. */
    void moveToCenter(int y) override;

protected:
    void showEvent(QShowEvent *event) override;
    void updateSize() override;
};

/*!
    Shows one image after the other, each for 200 milliseconds, in a circle; hidden, it stands still. Shown again, it
    goes on with the next image. A ground that a style sheet gives it covers the image.
*/
class UTILSDLL_EXPORT AnimatedLabel : public QLabel
{
    Q_OBJECT

public:
    /*! The files are read here. One that can't be read is an empty image; none at all is a failed assertion. */
    AnimatedLabel(const QList<QString> &imageFiles, QWidget *parent);
    ~AnimatedLabel() override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void changeImage();

private:
    QList<QPixmap> m_frames;
    int m_nextFrame = 0;
};

} // namespace ZYX_zglv6
