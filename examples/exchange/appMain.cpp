// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// The application's side of a plug-in's call: reads a record and its pixels, tones them, leaves its answer in their
// place.
#include "CommandLine.h"
#include "Frame.h"
#include "Output.h"
#include "RecordPaths.h"
#include "Toning.h"

#include "hostExchange/PhotoshopDataStructure.h"
#include "utilsDll/frame/PluginKeys.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdlib>

using namespace ZYX_zglv6;

namespace {

using DataVariant = PhotoshopDataStructure::DataVariant;

constexpr int succeeded = 0;
constexpr int badInput = -1;
constexpr int failedOnRequest = 3;

/*!
    The answer takes the request's place, both files of it. That is safe because of the order in which the two sides
    run: the plug-in has ended its save() before it starts this process, and reads again when this one has ended.
*/
bool answer(PhotoshopDataStructure &record, int exitCode, const char *pixels)
{
    // An image file that can't be opened is no failure of save(): the pixels that came must not stand for an answer.
    QFile::remove(QFile::decodeName(QByteArray::fromStdString(record.imageFilePath())));
    record.setValue(PluginKeys::exitCode, exitCode);
    record.setValue(PluginKeys::serverProcessId, DataVariant::fromUInt64(quint64(QCoreApplication::applicationPid())));
    if (record.save(pixels, record.width(), record.height(), record.depth())) {
        return true;
    }
    printError(u"the answer can't be written"_qs);
    return false;
}

/*! A file in which no entry was found may be anything: it is left alone. */
int refuse(PhotoshopDataStructure &record, const QString &reason)
{
    printError(reason);
    if (!record.data().empty()) {
        static_cast<void>(answer(record, badInput, nullptr));
    }
    return EXIT_FAILURE;
}

int refusePixels(PhotoshopDataStructure &record, const QString &path)
{
    const qint64 size = fileSize(path);
    const QString wanted = QString::number(record.imageSize());
    if (size < 0) {
        return refuse(record, u"there is no image file: %1"_qs.arg(QDir::toNativeSeparators(path)));
    }
    if (quint64(size) != record.imageSize()) {
        return refuse(record, u"the image file has %1 bytes, not %2"_qs.arg(QString::number(size), wanted));
    }
    return refuse(record, u"the image of %1 bytes can't be read"_qs.arg(wanted));
}

int work(const QString &path, bool isToFail)
{
    PhotoshopDataStructure record(narrowPath(path));
    if (!record.load(nullptr) || record.data().empty()) {
        return refuse(record, u"%1 is no record that can be read whole"_qs.arg(QDir::toNativeSeparators(path)));
    }
    const FrameSize size{record.width(), record.height(), record.depth()};
    if (!size.refusal().isEmpty()) {
        return refuse(record, size.refusal());
    }
    if (isToFail) {
        printLine(u"exchange-app fails as asked, with exit code %1"_qs.arg(failedOnRequest));
        return answer(record, failedOnRequest, nullptr) ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    char *loaded = nullptr;
    static_cast<void>(record.load(&loaded)); // read just now; what counts is the pixels
    const Pixels pixels(loaded);
    if (!pixels) {
        return refusePixels(record, imagePath(path));
    }
    toneWarm(pixels.get(), size);
    return answer(record, succeeded, pixels.get()) ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    nameProgram(u"exchange-app"_qs);
    const QCommandLineOption fail(u"fail"_qs, u"Answer with exit code 3 and without pixels."_qs);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Tones the frame of a plug-in's record and leaves the answer in its place. "_qs
                                     + pixelOrder());
    parser.addOption(fail);
    const QString path = parseCommandLine(parser, u"RECORD"_qs, u"The record; its pixels lie in RECORD-image."_qs);
    return work(path, parser.isSet(fail));
}
