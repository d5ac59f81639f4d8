// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/ErrStrings.h"

#include "platform/ErrorBox.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace ZYX_zglv6 {

namespace {

/*! The drive of the temporary folder, such as "C:\". A path without a ":" counts as the drive as a whole. */
QString temporaryDrive()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return folder.section(u':', 0, 0) + u':' + QDir::separator();
}

quintptr activeWindowHandle()
{
    if (QCoreApplication::instance() == nullptr) {
        return 0;
    }
    const QWidget *window = QApplication::activeWindow();
    return window == nullptr ? 0 : window->winId();
}

} // namespace

CErrStrings::CErrStrings()
{
    Retranslate();
}

CErrStrings::CErrStrings(const CErrStrings &other) = default;
CErrStrings::CErrStrings(CErrStrings &&other) noexcept = default;
CErrStrings &CErrStrings::operator=(const CErrStrings &other) = default;
CErrStrings &CErrStrings::operator=(CErrStrings &&other) noexcept = default;
CErrStrings::~CErrStrings() = default;

void CErrStrings::Retranslate()
{
    const QString product(productDisplayName);
    m_title = QObject::tr("Error");
    m_smallFreeSpace = QObject::tr("Windows small space message on drive %1").arg(temporaryDrive());
    m_outOfMemory = QObject::tr("Out of memory. Program will be closed.");
    m_outOfMemoryInPhotoshop = QObject::tr("%1 has run out of memory. The application may now become unstable. Please "
                                           "close %2 and Photoshop, quit all other programs running, and try again.")
                                   .arg(product, product);
    m_unhandledException = QObject::tr("Unhandled exception. Program will be closed.");
    m_unsupportedImage = QObject::tr("Sorry, but this file type is not supported. Please, try again.");
    for (QString *text : {&m_title, &m_smallFreeSpace, &m_outOfMemory, &m_outOfMemoryInPhotoshop, &m_unhandledException,
                          &m_unsupportedImage}) {
        text->detach(); // a translator's literal would be copied when the system asks for its characters
    }
}

void CErrStrings::ShowSmallFreeSpaceDialog() const
{
    showDialog(m_smallFreeSpace);
}

void CErrStrings::ShowOutOfMemoryDialog() const
{
    showDialog(m_outOfMemory);
}

void CErrStrings::ShowOutOfMemoryInPhotoshopDialog() const
{
    showDialog(m_outOfMemoryInPhotoshop);
}

void CErrStrings::ShowUnhandledExceptionDialog() const
{
    showDialog(m_unhandledException);
}

void CErrStrings::ShowUnsupportedImageDialog() const
{
    showDialog(m_unsupportedImage);
}

void CErrStrings::showDialog(const QString &message) const
{
    if (!message.isEmpty()) {
        ZyxPlatform::showErrorBox(activeWindowHandle(), message, m_title);
    }
}

} // namespace ZYX_zglv6
