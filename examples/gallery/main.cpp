// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "GalleryWindow.h"
#include "SheetPage.h"

#include "common/Look.h"
#include "common/OwnStore.h"
#include "common/StartUp.h"

#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

int writePages(const CGalleryWindow &window, const QString &folder)
{
    const QStringList written = window.writePages(folder, CLanguageManager::getInstance().currentLanguageAbbrv());
    QTextStream(stdout) << loadedLanguageName() << ": " << written.size() << " of " << window.pages().size()
                        << " pictures in " << QDir::toNativeSeparators(folder) << Qt::endl;
    return written.size() == window.pages().size() ? 0 : 1;
}

/*! One line, so that a control that is missing here is noticed. */
void printSelectors(const CGalleryWindow &window)
{
    int count = 0;
    QStringList without;
    for (const CSheetPage *page : window.pages()) {
        count += page->selectorCount();
        without += page->withoutSpecimen();
    }
    QTextStream(stdout) << count
                        << " selectors, without a control: " << (without.isEmpty() ? u"none"_qs : without.join(u", "))
                        << Qt::endl;
}

/*! The language is a matter of the start: another gallery shows it. */
void showInstead(CGalleryWindow &window, const QString &language)
{
    if (QProcess::startDetached(QCoreApplication::applicationFilePath(), {u"--language"_qs, language})) {
        window.close();
    } else {
        QTextStream(stderr) << "gallery: another one could not be started" << Qt::endl;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Shows every control that the product's style sheets are for."_qs);
    parser.addHelpOption();
    const QCommandLineOption language(u"language"_qs, u"Language, such as \"de\"."_qs, u"abbreviation"_qs);
    const QCommandLineOption output(u"output"_qs, u"Write the pages as pictures, and leave."_qs, u"folder"_qs);
    parser.addOptions({language, output});
    parser.process(application);
    refuseSurplusArguments(parser, 0);

    const QTemporaryDir folder;
    useOwnStore(folder.path());
    CTemporarySettings settings{QDir(folder.path())}; // the language of this run is no choice for others
    CSettings::setTemporarySettings(settings);
    putOnLook(parser.value(language));
    CGalleryWindow window;
    printSelectors(window);
    if (parser.isSet(output)) {
        return writePages(window, parser.value(output));
    }
    QObject::connect(&window, &CGalleryWindow::languageWanted, &window,
                     [&window](const QString &wanted) { showInstead(window, wanted); });
    window.show();
    return QApplication::exec();
}
