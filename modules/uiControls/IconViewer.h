// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <memory>

/*!
    Shows one image, a pixmap or an icon, in the middle of its area, no larger than it is unless told so.
    A shadow around it is painted on the parent, over what the parent's first painting left there: the parent
    paints itself once before the shadow and once after it. Several viewers with a shadow on one parent multiply
    that painting: give each its own parent.

    An icon from a vector file may tell no size of its own, and is then seen only with a mandatory size. The size of an
    image is that in its own pixels, whatever its device pixel ratio. The text is what assistive programs read of it,
    unless it has an accessible name. Main thread only.
*/
class UTILSDLL_EXPORT CIconViewer : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QPixmap pixmap READ pixmap WRITE setPixmap)
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon)
    Q_PROPERTY(bool expandContent READ contentIsExpanded WRITE setExpandContent)
    Q_PROPERTY(bool showShadow READ showShadow WRITE setShowShadow)
    Q_PROPERTY(bool showDisableState READ showDisableState WRITE setShowDisableState)
    Q_PROPERTY(Qt::AspectRatioMode aspectRatio READ aspectRatio WRITE setAspectRatio)
    Q_PROPERTY(QSize mandatoryImageSize READ mandatoryImageSize WRITE setMandatoryImageSize)
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit CIconViewer(QWidget *parent = nullptr);
    ~CIconViewer() override;

    /*! True without an image. A file of an icon that can't be read may count as one, without a size. */
    bool isEmpty() const;

    bool showShadow() const;
    bool showDisableState() const;
    Qt::AspectRatioMode aspectRatio() const;
    QString text() const;
    bool contentIsExpanded() const;
    QSize mandatoryImageSize() const;

    /*! Null if there is none, or the image is of the other kind. */
    QIcon icon() const;
    QPixmap pixmap() const;

    /*! Where the image is painted, in this widget's coordinates; empty if nowhere. */
    QRect outputRect() const;

    bool eventFilter(QObject *object, QEvent *event) override;

    /*! The mandatory size if there is one, else that of the image, else minimumSizeHint(). */
    QSize sizeHint() const override;

    /*! Always 100 by 100. */
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /*! Takes the image away. What is on the screen stays until the next painting. */
    void clear();

    /*! Whether the image is grayed while the widget is disabled. At first true. */
    void setShowDisableState(bool bSet);

    /*! At first true. */
    void setShowShadow(bool bSet);

    /*! How the image is scaled, if it is. Qt::IgnoreAspectRatio fills the whole area. At first Qt::KeepAspectRatio. */
    void setAspectRatio(Qt::AspectRatioMode t);

    /*! Takes the place of the former image, of either kind. A null one leaves the viewer empty. */
    void setIcon(const QIcon &i);
    void setIcon(const QString &strFile);
    void setPixmap(const QPixmap &p);
    void setPixmap(const QString &strFile);

    /*! The size to show the image in, instead of its own. A negative number in it: its own again. */
    void setMandatoryImageSize(const QSize &s = QSize());

    /*! A text in the middle of the image; without an image it is not seen. */
    void setText(const QString &s = QString());

    /*! Whether a small image is enlarged to the area. At first false. */
    void setExpandContent(bool bSet);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    /*! The area for the image, contentsRect(). A subclass may narrow it. */
    virtual QRect viewportRect() const;

private:
    class Pimpl;
    const std::unique_ptr<Pimpl> pimpl;
};
