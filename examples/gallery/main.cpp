// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Exhibits.h"
#include "GalleryWindow.h"
#include "IndexPage.h"
#include "Options.h"
#include "PictureCounts.h"
#include "PictureName.h"
#include "SheetPage.h"

#include "common/Look.h"
#include "common/OwnStore.h"
#include "common/StartUp.h"

#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

/*! For the file dialogs, which paint no more of a photograph than its name. */
QString makePhotos(const QString &folder)
{
    const QDir photos(folder + u"/Photographs");
    bool areThere = photos.mkpath(u"."_qs);
    for (const QString &name : {u"lighthouse.jpg"_qs, u"mountain-lake.jpg"_qs, u"old-town.tiff"_qs}) {
        areThere = QFile(photos.filePath(name)).open(QIODevice::WriteOnly) && areThere;
    }
    return areThere ? photos.path() : folder;
}

QList<IndexEntry> entriesOf(const QList<ExhibitSection> &sections)
{
    QList<IndexEntry> entries;
    for (const ExhibitSection &section : sections) {
        for (const Exhibit &exhibit : section.exhibits) {
            entries.append({exhibit.name, exhibit.title});
        }
    }
    return entries;
}

/*! The sheets' pages only in one form: what they show of the look is the same in all. */
bool hasSheets(const GalleryOptions &options)
{
    const bool areWanted = sheetKind.startsWith(options.only) || options.only.startsWith(sheetKind);
    return options.output.isEmpty() || (areWanted && options.ratio == u"1" && !options.isRightToLeft);
}

int writePictures(CGalleryWindow &window, const GalleryOptions &options, const QList<IndexEntry> &entries)
{
    const QString language = CLanguageManager::getInstance().currentLanguageAbbrv();
    const PictureName name{language, *options.ratio, options.isRightToLeft ? u"rtl"_qs : u"ltr"_qs, QString()};
    if (window.devicePixelRatioF() != name.ratio.toDouble()) { // the screen's own is not Qt's to put aside everywhere
        QTextStream(stderr) << "gallery: this screen takes no ratio; QT_QPA_PLATFORM=offscreen does" << Qt::endl;
        return 1;
    }
    if (!QDir().mkpath(options.output)) {
        QTextStream(stderr) << "gallery: the folder can't be made" << Qt::endl;
        return 1;
    }
    PictureCounts counts = window.writeSheets(options.output, language, options.only);
    counts += window.writeExhibits(options.output, name, options.only);
    if (counts.wanted == 0) {
        QTextStream(stderr) << "gallery: no picture of this form has a name that begins with \"" << options.only << '"'
                            << Qt::endl;
        return 1;
    }
    const int failures = counts.failed + (writeIndexPage(options.output, entries) ? 0 : 1);
    QTextStream(stdout) << loadedLanguageName() << ", ratio " << name.ratio << ", " << name.direction << ": "
                        << failures << " failures; " << QDir::toNativeSeparators(options.output) << Qt::endl;
    return failures == 0 ? 0 : 1;
}

/*! One line, so that a control that is missing here is noticed. */
void printSelectors(const CGalleryWindow &window)
{
    int count = 0;
    QStringList without;
    for (const CSheetPage *page : window.sheetPages()) {
        count += page->selectorCount();
        without += page->withoutSpecimen();
    }
    QTextStream(stdout) << count
                        << " selectors, without a control: " << (without.isEmpty() ? u"none"_qs : without.join(u", "))
                        << Qt::endl;
}

/*! The language is a matter of the start: another gallery shows it. */
void showInstead(CGalleryWindow &window, const QStringList &arguments)
{
    if (QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments)) {
        window.close();
    } else {
        QTextStream(stderr) << "gallery: another one could not be started" << Qt::endl;
    }
}

/*! What is asked for, and no factor of the screen's or the user's besides. Before there is an application object. */
void scaleByRatio(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const std::optional<QString> ratio = ratioIn(arguments);
    if (!ratio) {
        return;
    }
    qputenv("QT_SCALE_FACTOR", ratio->toUtf8());
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0"); // the screen's factor
    qputenv("QT_FONT_DPI", "96"); // which else would still be in sizes in points
    qunsetenv("QT_SCREEN_SCALE_FACTORS");
}

GalleryOptions optionsOf(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows every box, dialog, widget and overlay of the library, and every control "
                                     u"that the product's style sheets are for."_qs);
    parser.addHelpOption();
    addGalleryOptions(parser);
    parser.process(application);
    refuseSurplusArguments(parser, 0);
    return readGalleryOptions(parser);
}

} // namespace

int main(int argc, char *argv[])
{
    scaleByRatio(argc, argv);
    const QApplication application(argc, argv);
    const GalleryOptions options = optionsOf(application);
    if (options.ratio && !isRatio(*options.ratio)) {
        QTextStream(stderr) << "gallery: a ratio is 1, 1.5 or 2" << Qt::endl;
        return 1;
    }

    const QTemporaryDir folder;
    useOwnStore(folder.path());
    noteInstallation();
    CTemporarySettings settings{QDir(folder.path())}; // the language of this run is no choice for others
    CSettings::setTemporarySettings(settings);
    putOnLook(options.language);
    if (options.isRightToLeft) {
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    }
    const QList<ExhibitSection> sections = exhibitSections(makePhotos(folder.path()));
    CGalleryWindow window(sections, hasSheets(options));
    if (hasSheets(options)) {
        printSelectors(window);
    }
    if (!options.output.isEmpty()) {
        return writePictures(window, options, entriesOf(sections));
    }
    QObject::connect(&window, &CGalleryWindow::languageWanted, &window, [&window, &options](const QString &wanted) {
        showInstead(window, argumentsFor(options, wanted));
    });
    window.show();
    return QApplication::exec();
}
