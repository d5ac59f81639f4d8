// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PluginSide.h"

#include "Output.h"
#include "RecordPaths.h"

#include "utilsDll/frame/PluginKeys.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtGui/QColorSpace>

using namespace ZYX_zglv6;

namespace {

using DataVariant = PhotoshopDataStructure::DataVariant;

DataVariant text(const QString &value)
{
    return DataVariant::fromString(value.toStdString()); // UTF-8
}

DataVariant bytes(const QByteArray &value)
{
    return DataVariant::fromBytes({reinterpret_cast<const unsigned char *>(value.constData()), size_t(value.size())});
}

QColorSpace profileOf(const PhotoshopDataStructure &record)
{
    const auto entry = record.data().find(PluginKeys::iccProfile);
    const auto profile = entry == record.data().end() ? std::nullopt : entry->second.toBytes();
    if (!profile) {
        return QColorSpace();
    }
    return QColorSpace::fromIccProfile(
        QByteArray(reinterpret_cast<const char *>(profile->data()), qsizetype(profile->size())));
}

QString processIn(const PhotoshopDataStructure &record)
{
    const auto entry = record.data().find(PluginKeys::serverProcessId);
    const auto id = entry == record.data().end() ? std::nullopt : entry->second.toUInt64();
    return id ? QString(u" from process "_qs + QString::number(*id)) : QString();
}

/*! False, after saying why. */
bool failed(const QString &reason)
{
    printError(reason);
    return false;
}

/*! Why \a process, which has been started, has come to no end of its own; empty if it has. */
QString waitForEnd(QProcess &process, const OtherSide &otherSide)
{
    const QString program = QDir::toNativeSeparators(otherSide.program);
    if (!process.waitForStarted()) {
        return u"%1 can't be started: %2"_qs.arg(program, process.errorString());
    }
    if (!process.waitForFinished(otherSide.timeLimitSeconds * 1000)) {
        process.kill();
        process.waitForFinished();
        return u"%1 was killed: it had not ended after %2 s"_qs.arg(program).arg(otherSide.timeLimitSeconds);
    }
    return process.exitStatus() == QProcess::NormalExit ? QString() : QString(program + u" has crashed");
}

} // namespace

CPluginSide::CPluginSide(const QString &recordPath)
    : m_recordPath(recordPath)
    , m_narrowPath(narrowPath(recordPath))
    , m_answer(m_narrowPath)
{
    m_timer.start();
}

bool CPluginSide::send(const CPackedFrame &frame, const QString &imageFile, const QByteArray &iccProfile)
{
    m_sentSize = frame.size();
    PhotoshopDataStructure request(m_narrowPath);
    request.setValue(PluginKeys::hostAppName, text(QCoreApplication::applicationName()));
    request.setValue(PluginKeys::hostAppVersion, text(QCoreApplication::applicationVersion()));
    request.setValue(PluginKeys::batchMode, DataVariant::fromBool(true));
    request.setValue(PluginKeys::showUi, DataVariant::fromBool(false));
    request.setValue(PluginKeys::originalImageFilePath, text(imageFile));
    if (!iccProfile.isEmpty()) {
        request.setValue(PluginKeys::iccProfile, bytes(iccProfile));
    }
    QFile::remove(imagePath(m_recordPath)); // one of an earlier frame must not pass for this one
    const qint64 start = m_timer.elapsed();
    const bool isSaved = request.save(frame.pixels(), m_sentSize.width, m_sentSize.height, m_sentSize.depth);
    m_sentAt = m_timer.elapsed() - start;
    // save() is true also where the image file could not be opened.
    if (!isSaved || fileSize(imagePath(m_recordPath)) != qint64(request.imageSize())) {
        return failed(u"%1 or its image can't be written"_qs.arg(QDir::toNativeSeparators(m_recordPath)));
    }
    printLine(QLatin1StringView("sent"),
              u"%1: %2 bytes, and a record of %3 entries, %4 bytes"_qs.arg(
                  m_sentSize.toString(), QString::number(request.imageSize()), QString::number(request.data().size()),
                  QString::number(fileSize(m_recordPath))));
    return true;
}

bool CPluginSide::run(const OtherSide &otherSide)
{
    const qint64 start = m_timer.elapsed();
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels); // its lines are seen among these
    process.start(otherSide.program, QStringList{QDir::toNativeSeparators(m_recordPath)} + otherSide.arguments);
    const QString failure = waitForEnd(process, otherSide);
    m_runAt = m_timer.elapsed() - start;
    if (!failure.isEmpty()) {
        return failed(failure);
    }
    m_exitStatus = process.exitCode();
    printLine(QLatin1StringView("ended"),
              u"%1 with status %2"_qs.arg(QDir::toNativeSeparators(otherSide.program)).arg(m_exitStatus));
    return true;
}

QImage CPluginSide::receive()
{
    const qint64 start = m_timer.elapsed();
    char *pixels = nullptr;
    const bool isRead = m_answer.load(&pixels);
    Pixels owned(pixels);
    m_receivedAt = m_timer.elapsed() - start;
    if (!isRead) {
        const QString reason = fileSize(m_recordPath) < 0 ? u"there is no record any more: %1"_qs
                                                          : u"the record can't be read whole: %1"_qs;
        printError(reason.arg(QDir::toNativeSeparators(m_recordPath)));
        return QImage();
    }
    return isAnswered() ? takeImage(std::move(owned)) : QImage();
}

bool CPluginSide::isAnswered()
{
    if (!m_answer.data().contains(PluginKeys::exitCode)) { // the request still lies there
        return failed(u"the other side has left no answer"_qs);
    }
    printLine(QLatin1StringView("answer"),
              u"exit code %1%2"_qs.arg(QString::number(m_answer.exitCode()), processIn(m_answer)));
    if (m_answer.exitCode() != 0) {
        return failed(u"the other side has failed with exit code %1"_qs.arg(m_answer.exitCode()));
    }
    if (m_exitStatus != 0) {
        return failed(u"the other side has ended with status %1"_qs.arg(m_exitStatus));
    }
    return true;
}

QImage CPluginSide::takeImage(Pixels pixels)
{
    const FrameSize size{m_answer.width(), m_answer.height(), m_answer.depth()};
    if (size != m_sentSize) {
        printError(u"the answer is of another size: %1"_qs.arg(size.toString()));
        return QImage();
    }
    if (!pixels) {
        printError(whyNoPixels());
        return QImage();
    }
    QImage image = imageOfFrame(std::move(pixels), size);
    if (image.isNull()) {
        printError(u"the image that came back does not fit into memory"_qs);
        return QImage();
    }
    image.setColorSpace(profileOf(m_answer));
    printLine(QLatin1StringView("received"), u"%1: %2 bytes"_qs.arg(size.toString()).arg(m_answer.imageSize()));
    return image;
}

QString CPluginSide::whyNoPixels() const
{
    const qint64 size = fileSize(imagePath(m_recordPath));
    if (size < 0) {
        return u"the answer has no image file"_qs;
    }
    return quint64(size) == m_answer.imageSize()
        ? u"the image that came back can't be read"_qs
        : u"the answer's image file has %1 bytes, not %2"_qs.arg(size).arg(m_answer.imageSize());
}

void CPluginSide::printTimes() const
{
    printLine(QLatin1StringView("time"),
              u"%1 ms: save %2, other side %3, load %4"_qs.arg(m_sentAt + m_runAt + m_receivedAt)
                  .arg(m_sentAt)
                  .arg(m_runAt)
                  .arg(m_receivedAt));
}
