// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// The plug-in's side of a call: hands an image to the application and writes what comes back.
#include "CommandLine.h"
#include "ImageFile.h"
#include "Output.h"
#include "PluginSide.h"
#include "RecordPaths.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColorSpace>

#include <cstdlib>
#include <utility>

namespace {

constexpr int longestTimeLimit = 86'400; // s, a day

struct Options
{
    QString image;
    QString output;
    QString folder; // empty: a temporary one
    OtherSide otherSide;
};

int timeLimit(const QString &value)
{
    bool isNumber = false;
    const int seconds = value.toInt(&isNumber);
    if (!isNumber || seconds < 1 || seconds > longestTimeLimit) {
        refuseUsage(u"--time-limit takes a number from 1 to %1"_qs.arg(longestTimeLimit));
    }
    return seconds;
}

QString chosenOutput(const QCommandLineParser &parser, const QCommandLineOption &option, const QString &image)
{
    if (!parser.isSet(option)) {
        return QFileInfo(image).completeBaseName() + u"-toned.png";
    }
    if (parser.value(option).isEmpty()) {
        refuseUsage(u"--output takes the name of a file"_qs);
    }
    return parser.value(option);
}

Options parseOptions()
{
    const QCommandLineOption output(
        u"output"_qs, u"The PNG file to write; IMAGE-toned.png in this folder by itself."_qs, u"FILE.png"_qs);
    const QCommandLineOption fail(u"fail"_qs, u"Ask the other side to fail."_qs);
    const QCommandLineOption app(u"app"_qs, u"The other side; exchange-app beside this program by itself."_qs,
                                 u"PROGRAM"_qs,
                                 QDir(QCoreApplication::applicationDirPath()).filePath(u"exchange-app"_qs));
    const QCommandLineOption folder(
        u"folder"_qs, u"Put the record here, where it stays; by itself into a temporary folder."_qs, u"DIR"_qs);
    const QCommandLineOption limit(u"time-limit"_qs, u"Seconds after which the other side is killed; 300 by itself."_qs,
                                   u"S"_qs, u"300"_qs);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Hands an image to another process, as a plug-in does, and writes what comes back. "_qs + pixelOrder());
    parser.addOptions({output, fail, app, folder, limit});
    Options options;
    options.image = parseCommandLine(parser, u"IMAGE"_qs, u"The image file."_qs);
    options.output = chosenOutput(parser, output, options.image);
    options.folder = parser.value(folder);
    options.otherSide.program = parser.value(app);
    options.otherSide.timeLimitSeconds = timeLimit(parser.value(limit));
    if (parser.isSet(fail)) {
        options.otherSide.arguments += u"--fail"_qs;
    }
    return options;
}

/*! Where the record goes; empty if it can go nowhere. */
QString recordPath(const QString &folder, const QTemporaryDir &temporaryFolder)
{
    const QString name = u"record"_qs;
    if (!folder.isEmpty() && !narrowPath(folder).empty()) {
        return QDir().mkpath(folder) ? QFileInfo(QDir(folder).filePath(name)).absoluteFilePath() : QString();
    }
    if (!folder.isEmpty()) {
        printLine(QLatin1StringView("folder"),
                  u"%1 has characters outside the system's code page: a temporary folder takes its place"_qs.arg(
                      QDir::toNativeSeparators(folder)));
    }
    const QString path = temporaryFolder.filePath(name);
    return temporaryFolder.isValid() && !narrowPath(path).empty() ? path : QString();
}

/*! From the frame to the image that came back; null if it has not. */
QImage exchange(QImage image, const QString &path, const Options &options)
{
    CPluginSide side(path);
    {
        const QByteArray iccProfile = image.colorSpace().iccProfile();
        const CPackedFrame frame(std::move(image)); // goes before the answer comes: one frame in memory, not two
        if (frame.isNull()) {
            printError(u"the image does not fit into memory"_qs);
            return QImage();
        }
        if (!side.send(frame, QFileInfo(options.image).absoluteFilePath(), iccProfile)) {
            return QImage();
        }
    }
    if (!side.run(options.otherSide)) {
        return QImage();
    }
    QImage result = side.receive();
    if (!result.isNull()) {
        side.printTimes();
    }
    return result;
}

bool run(const Options &options)
{
    QString failure;
    QImage image = readImageFile(options.image, failure);
    if (image.isNull()) {
        printError(failure);
        return false;
    }
    const QTemporaryDir temporaryFolder;
    const QString path = recordPath(options.folder, temporaryFolder);
    if (path.isEmpty()) {
        printError(u"there is no folder for the record"_qs);
        return false;
    }
    if (QFileInfo(options.image) == QFileInfo(path) || QFileInfo(options.image) == QFileInfo(imagePath(path))) {
        printError(u"%1 would be overwritten by the record"_qs.arg(QDir::toNativeSeparators(options.image)));
        return false;
    }
    const QImage result = exchange(std::move(image), path, options);
    if (result.isNull()) {
        return false;
    }
    failure = writePng(result, options.output);
    if (!failure.isEmpty()) {
        printError(failure);
        return false;
    }
    printLine(QLatin1StringView("written"), QDir::toNativeSeparators(options.output));
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    nameProgram(u"exchange-plugin"_qs);
    const Options options = parseOptions();
    return run(options) ? EXIT_SUCCESS : EXIT_FAILURE;
}
