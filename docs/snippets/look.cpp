// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/look/GuiUtils.h"
#include "utilsDll/look/ImageComparison.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/RedirectionLinks.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QUrl>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>

using namespace ZYX_zglv6;

namespace Snippets {

//! [start]
/*! What a program does for the look when its QApplication is there and no window is. */
void startLook()
{
    addApplicationFonts();
    CLanguageManager::getInstance().loadLanguageForApp();
    setupApplicationIcon();
    QApplication::setStyle(new CustomZyxAppStyle); // the application takes it over
}
//! [start]

//! [window]
void dressWindow(QWidget &window)
{
    setCustomStyleSheet(&window, QssLoadBaseSheets, QString());
}
//! [window]

//! [still]
/*! Pressed, neither moves what is in it. */
void keepStill(CustomZyxAppStyle &style, QPushButton &shutter, QPushButton &zoom)
{
    shutter.setObjectName(u"shutter"_qs); // without a name neither way works
    style.disableButtonShift(&shutter, true); // follows the name, ends with the button
    zoom.setObjectName(u"zoom"_qs);
    zoom.setProperty(CustomZyxAppStyle::disableButtonShiftPropertyName(), true); // needs no style at hand
}
//! [still]

//! [languages]
/*! Lets the user choose the language of the next start. */
std::unique_ptr<QComboBox> newLanguageBox()
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    auto box = std::make_unique<QComboBox>();
    box->setModel(languages.model()); // of its columns the first is shown: the names
    box->setCurrentIndex(languages.currentLanguageIndex());
    QObject::connect(box.get(), &QComboBox::activated, &languages, &CLanguageManager::changeLanguage);
    return box;
}
//! [languages]

//! [link]
/*! The user's guide in the language that the program speaks. */
QUrl guideAddress()
{
    return QUrl(CRedirectionLinks::get(CRedirectionLinks::linkUserGuide, CLanguageManager::getInstance()));
}
//! [link]

//! [preview]
/*! Paints \a photograph with its shadow, and a groove to the right of it. */
void paintPreview(QPainter &painter, const QImage &photograph, const QPoint &place)
{
    const QRect rect(place, photograph.size());
    painter.drawImage(rect, photograph);
    drawShadowRect(&painter, rect);
    const QPointF groove = rect.topRight() + QPointF(20, 0);
    drawSeparatorLine(&painter, groove, rect.height(), Qt::Vertical, Qt::black, Qt::gray);
}
//! [preview]

//! [comparison]
/*! Whether a look changes \a before by more than a hundredth of what it could. */
bool isVisiblyChanged(const QImage &before, const QImage &after)
{
    const QImage::Format format = QImage::Format_RGB32;
    return compareImages(before.convertToFormat(format), after.convertToFormat(format), 1.0, nullptr)
        == imgCmpDifferent;
}
//! [comparison]

} // namespace Snippets
