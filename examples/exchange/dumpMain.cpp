// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// Prints the record of a plug-in's call, and whether the image beside it fits.
#include "CommandLine.h"
#include "Frame.h"
#include "ImageFile.h"
#include "Output.h"
#include "RecordPaths.h"
#include "RecordText.h"

#include "hostExchange/PhotoshopDataStructure.h"
#include "utilsDll/frame/PluginKeys.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>

#include <cstdlib>
#include <optional>

using namespace ZYX_zglv6;

namespace {

bool printRecord(PhotoshopDataStructure &record, const QString &path)
{
    const bool isRead = record.load(nullptr);
    for (const QString &line : linesOf(record)) {
        printLine(line);
    }
    if (!isRead) {
        printError(u"the record can't be read whole"_qs);
        return false;
    }
    const qint64 surplus = surplusBytes(record, path);
    if (surplus != 0) {
        printError(u"the record can't be read whole: %1 of its bytes belong to no entry"_qs.arg(surplus));
    }
    return surplus == 0;
}

/*! The exit code of an answer, -1 for one that is no integer; none in a request. */
std::optional<int> exitCodeOf(const PhotoshopDataStructure &record)
{
    const auto entry = record.data().find(PluginKeys::exitCode);
    return entry == record.data().end() ? std::nullopt : std::optional(entry->second.toInt().value_or(-1));
}

FrameSize sizeOf(const PhotoshopDataStructure &record)
{
    return {record.width(), record.height(), record.depth()};
}

bool printMissingImage(const PhotoshopDataStructure &record)
{
    const std::optional<int> exitCode = exitCodeOf(record);
    if (exitCode.value_or(0) != 0) {
        printLine(u"image: none, as exit code %1 says"_qs.arg(*exitCode));
        return true;
    }
    if (record.imageSize() == 0) {
        printLine(u"image: none, as the record says"_qs);
        return true;
    }
    printLine(u"image: expected %1 bytes, missing"_qs.arg(record.imageSize()));
    return false;
}

bool printImage(const PhotoshopDataStructure &record, const QString &path)
{
    if (sizeOf(record).isBeyondCounting()) {
        printLine(u"image: of a size that can't be counted"_qs);
        return false;
    }
    const qint64 size = fileSize(path);
    if (size < 0) {
        return printMissingImage(record);
    }
    if (quint64(size) != record.imageSize()) {
        printLine(u"image: expected %1 bytes, has %2"_qs.arg(record.imageSize()).arg(size));
        return false;
    }
    printLine(u"image: %1, %2 bytes, as the record says"_qs.arg(QDir::toNativeSeparators(path), QString::number(size)));
    return true;
}

bool writePixels(PhotoshopDataStructure &record, const QString &pngPath)
{
    const FrameSize size = sizeOf(record);
    if (!size.refusal().isEmpty()) {
        printError(size.refusal());
        return false;
    }
    char *pixels = nullptr;
    static_cast<void>(record.load(&pixels)); // printed already how far it can be read
    const QImage image = imageOfFrame(Pixels(pixels), size);
    const QString failure = image.isNull() ? u"there are no pixels to write"_qs : writePng(image, pngPath);
    if (!failure.isEmpty()) {
        printError(failure);
        return false;
    }
    printLine(u"written: "_qs + QDir::toNativeSeparators(pngPath));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    nameProgram(u"exchange-dump"_qs);
    const QCommandLineOption png(u"png"_qs, u"Write the pixels as a PNG file."_qs, u"OUT"_qs);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Prints the record of a plug-in's call. "_qs + pixelOrder());
    parser.addOption(png);
    const QString path = parseCommandLine(parser, u"FILE"_qs, u"The record; its pixels lie in FILE-image."_qs);
    if (parser.isSet(png) && parser.value(png).isEmpty()) {
        refuseUsage(u"--png takes the name of a file"_qs);
    }

    if (fileSize(path) < 0) {
        printError(u"%1: there is no such file"_qs.arg(QDir::toNativeSeparators(path)));
        return EXIT_FAILURE;
    }
    PhotoshopDataStructure record(narrowPath(path)); // the base class: the other one would delete the image file
    const bool isWhole = printRecord(record, path);
    const bool imageFits = printImage(record, imagePath(path));
    const bool isWritten = !parser.isSet(png) || writePixels(record, parser.value(png));
    return isWhole && imageFits && isWritten ? EXIT_SUCCESS : EXIT_FAILURE;
}
