// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/CatalogueEntries.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "LanguageMenu.h"
#include "LightboxApplication.h"
#include "MainWindow.h"
#include "PhotoFiles.h"
#include "PhotoView.h"
#include "SettingsPanel.h"
#include "Texts.h"

#include "common/Look.h"

#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtTest/QTest>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolButton>

using namespace ZYX_zglv6;

namespace {

constexpr int german = 1031;
constexpr int french = 1036;

/*! As main() does. */
void speak(const QString &language)
{
    putOnLook(language);
    speakLoadedLanguage();
}

QStringList ownCatalogues()
{
    QStringList paths;
    for (const QTranslator *translator : qApp->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly)) {
        if (translator->filePath().startsWith(u":/lightbox/")) {
            paths.append(translator->filePath());
        }
    }
    return paths;
}

/*! \a entries without what separates them, and those of the menus below them. */
QList<QList<QAction *>> menusOf(QList<QAction *> entries)
{
    entries.removeIf([](const QAction *action) { return action->isSeparator(); });
    QList<QList<QAction *>> menus{entries};
    for (const QAction *action : entries) {
        const auto *menu = action->menu<QMenu *>();
        if (menu && !qobject_cast<const CLanguageMenu *>(menu)) { // languages are called by their own names
            menus += menusOf(menu->actions());
        }
    }
    return menus;
}

QStringList textsShownBy(const CMainWindow &window)
{
    QStringList texts{window.windowTitle(), window.statusText(), window.findChild<CPhotoView *>()->accessibleName()};
    for (const QList<QAction *> &menu : menusOf(window.menuBar()->actions())) {
        for (const QAction *action : menu) {
            texts.append(action->text());
        }
    }
    for (const CSettingsPushButton *row : window.panel().findChildren<CSettingsPushButton *>()) {
        texts << row->labelText() << row->findChild<QToolButton *>()->toolTip();
    }
    return texts;
}

QStringList translationsOf(const QString &language)
{
    QStringList translations;
    for (const CatalogueEntry &entry :
         catalogueEntriesOf(QString::fromUtf8(LIGHTBOX_FOLDER) + u"/translations/lightbox_" + language + u".ts")) {
        translations += entry.translations;
    }
    return translations;
}

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"de", "fr", "ja", "zh_CN"}) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

void addLanguageRowsWithEnglish()
{
    addLanguageRows();
    QTest::newRow("en") << u"en"_qs;
}

} // namespace

/*! The window and its texts in the languages of the program. */
class tst_WindowTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void speakLoadedLanguage_installsTheCatalogue_data();
    void speakLoadedLanguage_installsTheCatalogue();
    void speakLoadedLanguage_ofEnglish_installsNothing();
    void speakLoadedLanguage_ofAnUnknownLanguage_installsNothing();
    void speakLoadedLanguage_afterAnotherChoice_speaksTheLoadedOne();
    void window_speaksTheLanguage_data();
    void window_speaksTheLanguage();
    void window_showsTextsOfTheCatalogueOnly_data();
    void window_showsTextsOfTheCatalogueOnly();
    void acceleratorsOfAMenu_areDistinct_data();
    void acceleratorsOfAMenu_areDistinct();
    void namesOfNewFiles_areValid_data();
    void namesOfNewFiles_areValid();

private:
    TestSupport::Sandbox m_sandbox;
    QTemporaryDir m_empty;
};

void tst_WindowTexts::speakLoadedLanguage_installsTheCatalogue_data()
{
    addLanguageRows();
}

void tst_WindowTexts::speakLoadedLanguage_installsTheCatalogue()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    speak(language);
    QCOMPARE(ownCatalogues(), QStringList(u":/lightbox/translations/lightbox_%1.qm"_qs.arg(language)));
}

void tst_WindowTexts::speakLoadedLanguage_ofEnglish_installsNothing()
{
    RUN_IN_FRESH_PROCESS();
    speak(u"en"_qs);
    QCOMPARE(loadedLanguageName(), u"English"_qs);
    QCOMPARE(ownCatalogues(), QStringList());
}

void tst_WindowTexts::speakLoadedLanguage_ofAnUnknownLanguage_installsNothing()
{
    RUN_IN_FRESH_PROCESS();
    CSettings().setValue(languageKey, 1);
    speak(QString());
    QCOMPARE(CLanguageManager::getInstance().loadedLanguageID(), 0xFFFFFFFFU);
    QCOMPARE(ownCatalogues(), QStringList());
}

void tst_WindowTexts::speakLoadedLanguage_afterAnotherChoice_speaksTheLoadedOne()
{
    RUN_IN_FRESH_PROCESS();
    CSettings().setValue(languageKey, german);
    putOnLook(QString());
    CSettings().setValue(languageKey, french); // for the next start
    speakLoadedLanguage();
    QCOMPARE(ownCatalogues(), QStringList(u":/lightbox/translations/lightbox_de.qm"_qs));
}

void tst_WindowTexts::window_speaksTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("status");

    QTest::newRow("en") << u"en"_qs << u"Lightbox"_qs << u"&Photograph"_qs << u"Black and white"_qs
                        << u"No photographs in this folder"_qs;
    QTest::newRow("de") << u"de"_qs << u"Leuchttisch"_qs << u"&Foto"_qs << u"Schwarzweiß"_qs
                        << u"Keine Fotos in diesem Ordner"_qs;
    QTest::newRow("fr") << u"fr"_qs << u"Table lumineuse"_qs << u"&Photographie"_qs << u"Noir et blanc"_qs
                        << u"Aucune photographie dans ce dossier"_qs;
    QTest::newRow("ja") << u"ja"_qs << u"ライトボックス"_qs << u"写真(&P)"_qs << u"白黒"_qs
                        << u"このフォルダーには写真がありません"_qs;
    QTest::newRow("zh_CN") << u"zh_CN"_qs << u"灯箱"_qs << u"照片(&P)"_qs << u"黑白"_qs << u"此文件夹中没有照片"_qs;
}

void tst_WindowTexts::window_speaksTheLanguage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    speak(language);
    CMainWindow window(m_empty.path());
    window.showCurrent();

    QTEST(window.windowTitle(), "title");
    QTEST(window.menuBar()->actions().constFirst()->text(), "menu");
    QTEST(window.panel().blackAndWhite()->labelText(), "caption");
    QTEST(window.statusText(), "status");
}

void tst_WindowTexts::window_showsTextsOfTheCatalogueOnly_data()
{
    addLanguageRows();
}

void tst_WindowTexts::window_showsTextsOfTheCatalogueOnly()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    speak(language);
    CMainWindow window(m_empty.path());
    window.showCurrent();

    const QStringList translations = translationsOf(language);
    for (const QString &text : textsShownBy(window)) {
        QVERIFY2(translations.contains(text), qPrintable(text));
    }
}

void tst_WindowTexts::acceleratorsOfAMenu_areDistinct_data()
{
    addLanguageRowsWithEnglish();
}

void tst_WindowTexts::acceleratorsOfAMenu_areDistinct()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    speak(language);
    const CMainWindow window(m_empty.path());
    const QList<QList<QAction *>> menus = menusOf(window.menuBar()->actions());
    QCOMPARE(menus.size(), 6); // the bar, photograph, view, units, reference, help
    for (const QList<QAction *> &menu : menus) {
        QList<QKeySequence> accelerators;
        for (const QAction *action : menu) {
            const QKeySequence accelerator = QKeySequence::mnemonic(action->text());
            QVERIFY2(!accelerator.isEmpty(), qPrintable(action->text()));
            QVERIFY2(!accelerators.contains(accelerator), qPrintable(action->text()));
            accelerators.append(accelerator);
        }
        QVERIFY(accelerators.size() > 1);
    }
}

void tst_WindowTexts::namesOfNewFiles_areValid_data()
{
    addLanguageRowsWithEnglish();
}

void tst_WindowTexts::namesOfNewFiles_areValid()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    speak(language);
    const QStringList names{CPhotoFiles::nameOfCopy(u"a.jpg"_qs), CPhotoFiles::nameOfPrint(u"a.jpg"_qs)};
    QVERIFY(names.front() != names.back());
    for (const QString &name : names) {
        QVERIFY2(validateFileName(name, false), qPrintable(name));
        QVERIFY2(name.startsWith(u'a') && name.endsWith(u".jpg"), qPrintable(name));
    }
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_WindowTexts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_WindowTexts.moc"
