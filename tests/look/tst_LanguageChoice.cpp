// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/LanguageManagerParts.h"
#include "look/LanguageRows.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"
#include "utilsDll/settings/TemporarySettings.h"

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;
using namespace LanguageManagerParts;
using namespace LanguageRows;

class tst_LanguageChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void settingsAbbrv_beforeLoadLanguages_followsTheSettings_data();
    void settingsAbbrv_beforeLoadLanguages_followsTheSettings();
    void loadLanguageForApp_installsTheChosenLanguage_data();
    void loadLanguageForApp_installsTheChosenLanguage();
    void loadLanguageForApp_ofAMissingFile_isTheLanguageAllTheSame();
    void loadLanguageForApp_withoutAChoice_isEnglish();
    void loadLanguageForApp_ofANumberWithoutFile_leavesAll_data();
    void loadLanguageForApp_ofANumberWithoutFile_leavesAll();
    void loadLanguageForApp_ofALanguageUnknownToQt_installsItsFileOnly();
    void storedValue_decides_data();
    void storedValue_decides();
    void storedValue_ofTemporarySettings_decides();
    void storedValue_changedElsewhere_isFollowedAtOnce();
    void changeLanguage_toTheCurrentRow_isRefused_data();
    void changeLanguage_toTheCurrentRow_isRefused();
    void changeLanguage_toAnotherRow_waitsForTheNextStart();
    void changeLanguage_storesBeforeItTells();
    void changeLanguage_beyondTheModel_storesZero_data();
    void changeLanguage_beyondTheModel_storesZero();
    void resetToEnglish_fromAnotherLanguage_storesEnglish_data();
    void resetToEnglish_fromAnotherLanguage_storesEnglish();
    void resetToEnglish_inEnglish_writesNothing_data();
    void resetToEnglish_inEnglish_writesNothing();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_LanguageChoice::init()
{
    CSettings().remove(languageKey);
}

void tst_LanguageChoice::settingsAbbrv_beforeLoadLanguages_followsTheSettings_data()
{
    addLanguageRows();
}

void tst_LanguageChoice::settingsAbbrv_beforeLoadLanguages_followsTheSettings()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, number);
    QFETCH(const QString, webAbbreviation);

    choose(number);
    QCOMPARE(manager().settingsAbbrv(), webAbbreviation);
    QCOMPARE(manager().model()->columnCount(), 0);
}

void tst_LanguageChoice::loadLanguageForApp_installsTheChosenLanguage_data()
{
    addLanguageRows();
}

void tst_LanguageChoice::loadLanguageForApp_installsTheChosenLanguage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, number);
    QFETCH(const QString, name);
    QFETCH(const QString, file);
    QFETCH(const QString, abbreviation);
    QFETCH(const QString, qtFile);

    choose(number);
    manager().loadLanguageForApp();

    QCOMPARE(manager().langCount(), 5);
    QCOMPARE(installedFiles(), qtFile.isEmpty() ? QStringList{file} : QStringList({file, qtFile}));
    QCOMPARE(translatorOf(manager())->filePath(), qtFile.isEmpty() ? file : qtFile);
    QCOMPARE(translatorOf(manager())->parent(), qApp);
    QCOMPARE(manager().loadedLanguageID(), unsigned(number));
    QCOMPARE(QLocale().name(), QLocale(abbreviation).name());
    QCOMPARE(QLocale(), QLocale(abbreviation));
    QCOMPARE(QCoreApplication::translate("CLanguageManager", "language name"), name); // so it is installed
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    QCOMPARE(cancel == u"Cancel", qtFile.isEmpty());
}

/*! Nobody looks whether the file was loaded. */
void tst_LanguageChoice::loadLanguageForApp_ofAMissingFile_isTheLanguageAllTheSame()
{
    RUN_IN_FRESH_PROCESS();
    createModel(manager(), {u"none"_qs}, {u"7"_qs}, {u":/translations/none.qm"_qs}, {u"it"_qs});
    choose(7);
    manager().loadLanguageForApp();
    QVERIFY(translatorOf(manager()));
    QCOMPARE(translatorOf(manager())->filePath(), QString());
    QCOMPARE(manager().loadedLanguageID(), 7U);
    QCOMPARE(QLocale(), QLocale(u"it"_qs));
}

void tst_LanguageChoice::loadLanguageForApp_withoutAChoice_isEnglish()
{
    RUN_IN_FRESH_PROCESS();
    manager().loadLanguageForApp();
    QCOMPARE(manager().loadedLanguageID(), 1033U);
    QCOMPARE(installedFiles(), QStringList{u":/translations/zyx_en.qm"_qs});
    QVERIFY(!CSettings().contains(languageKey));
}

void tst_LanguageChoice::loadLanguageForApp_ofANumberWithoutFile_leavesAll_data()
{
    QTest::addColumn<QVariant>("number");

    QTest::newRow("0") << QVariant(0);
    QTest::newRow("Italian") << QVariant(1040);
    QTest::newRow("largest") << QVariant(0xFFFFFFFFU);
}

void tst_LanguageChoice::loadLanguageForApp_ofANumberWithoutFile_leavesAll()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QVariant, number);
    QLocale::setDefault(QLocale(u"sv_SE"_qs));

    choose(number);
    manager().loadLanguageForApp();

    QCOMPARE(manager().langCount(), 5);
    QCOMPARE(manager().loadedLanguageID(), 0xFFFFFFFFU);
    QCOMPARE(translatorOf(manager()), nullptr);
    QCOMPARE(installedFiles(), QStringList());
    QCOMPARE(QLocale().name(), u"sv_SE"_qs);
    QCOMPARE(manager().currentLanguageIndex(), -1);
    QCOMPARE(manager().currentLanguageAbbrv(), QString());
    QCOMPARE(manager().settingsAbbrv(), u"en"_qs);
    QCOMPARE(QCoreApplication::translate("CLanguageManager", "language name"), u"language name"_qs);
}

void tst_LanguageChoice::loadLanguageForApp_ofALanguageUnknownToQt_installsItsFileOnly()
{
    RUN_IN_FRESH_PROCESS();
    const MoreCatalogues more;
    QVERIFY(more.isRegistered());
    choose(1167);
    manager().loadLanguageForApp();
    QCOMPARE(installedFiles(), QStringList{u":/translations/zyx_eo.qm"_qs});
    QCOMPARE(translatorOf(manager())->filePath(), u":/translations/zyx_eo.qm"_qs);
    QCOMPARE(manager().loadedLanguageID(), 1167U);
    QCOMPARE(manager().currentLanguageAbbrv(), u"eo"_qs);
    QCOMPARE(manager().settingsAbbrv(), u"en"_qs); // it has no address of its own
    QCOMPARE(QLocale().language(), QLocale::Esperanto);
}

void tst_LanguageChoice::storedValue_decides_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<unsigned int>("number");
    QTest::addColumn<QString>("abbreviation");
    QTest::addColumn<QString>("webAbbreviation");

    QTest::newRow("absent") << QVariant() << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("text abc") << QVariant(u"abc"_qs) << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("empty text") << QVariant(u""_qs) << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("negative text") << QVariant(u"-1031"_qs) << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("text of a fraction") << QVariant(u"1031.5"_qs) << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("list") << QVariant(QStringList{u"a"_qs, u"b"_qs}) << 1033U << u"en"_qs << u"en"_qs;
    QTest::newRow("text of a number") << QVariant(u"1031"_qs) << 1031U << u"de"_qs << u"de"_qs;
    QTest::newRow("number") << QVariant(2052) << 2052U << u"zh_CN"_qs << u"zh-CN"_qs;
    QTest::newRow("unsigned number") << QVariant(1041U) << 1041U << u"ja"_qs << u"ja"_qs;
    QTest::newRow("0") << QVariant(0) << 0U << QString() << u"en"_qs;
    QTest::newRow("no language") << QVariant(1040) << 1040U << QString() << u"en"_qs;
    QTest::newRow("largest") << QVariant(u"4294967295"_qs) << 0xFFFFFFFFU << QString() << u"en"_qs;
}

void tst_LanguageChoice::storedValue_decides()
{
    QFETCH(const QVariant, value);
    QFETCH(const unsigned int, number);
    QFETCH(const QString, abbreviation);
    QFETCH(const QString, webAbbreviation);

    manager().loadLanguages();
    if (value.isValid()) {
        choose(value);
    }
    QCOMPARE(currentNumberOf(manager()), number);
    QCOMPARE(manager().currentLanguageIndex(), column(1).indexOf(QString::number(number)));
    QCOMPARE(manager().currentLanguageAbbrv(), abbreviation);
    QCOMPARE(manager().settingsAbbrv(), webAbbreviation);
}

void tst_LanguageChoice::storedValue_ofTemporarySettings_decides()
{
    choose(1031);
    CTemporarySettings temporary{QDir(m_sandbox.filePath(QString()))};
    CSettings::setTemporarySettings(temporary);
    QCOMPARE(currentNumberOf(manager()), 1033U);
    choose(u"1036"_qs);
    QCOMPARE(currentNumberOf(manager()), 1036U);
    CSettings::endTemporarySettings();
    QCOMPARE(currentNumberOf(manager()), 1031U);
}

void tst_LanguageChoice::storedValue_changedElsewhere_isFollowedAtOnce()
{
    RUN_IN_FRESH_PROCESS();
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);
    choose(1036);
    manager().loadLanguageForApp();
    const QStringList files = installedFiles();
    choose(2052);
    QCOMPARE(manager().currentLanguageAbbrv(), u"zh_CN"_qs);
    QCOMPARE(manager().settingsAbbrv(), u"zh-CN"_qs);
    QCOMPARE(manager().currentLanguageIndex(), manager().getLanguageIndexFromId(2052));
    QCOMPARE(manager().loadedLanguageID(), 1036U); // that of the start
    QCOMPARE(installedFiles(), files);
    QCOMPARE(signalsSeen.size(), 0);
}

void tst_LanguageChoice::changeLanguage_toTheCurrentRow_isRefused_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("absent, so English") << QVariant();
    QTest::newRow("abc, so English") << QVariant(u"abc"_qs);
    QTest::newRow("English") << QVariant(u"1033"_qs);
    QTest::newRow("French") << QVariant(u"1036"_qs);
}

void tst_LanguageChoice::changeLanguage_toTheCurrentRow_isRefused()
{
    QFETCH(const QVariant, value);
    manager().loadLanguages();
    if (value.isValid()) {
        choose(value);
    }
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);
    const int row = manager().currentLanguageIndex();
    QVERIFY(row >= 0);
    QVERIFY(!manager().changeLanguage(row));
    QCOMPARE(signalsSeen.size(), 0);
    QCOMPARE(stored(), value); // not even written again
}

void tst_LanguageChoice::changeLanguage_toAnotherRow_waitsForTheNextStart()
{
    RUN_IN_FRESH_PROCESS();
    choose(1036);
    manager().loadLanguageForApp();
    const QStringList files = installedFiles();
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);

    QVERIFY(manager().changeLanguage(manager().getLanguageIndexFromId(2052)));

    QCOMPARE(signalsSeen.size(), 1);
    QCOMPARE(signalsSeen[0].size(), 0);
    QCOMPARE(stored().toString(), u"2052"_qs);
    QCOMPARE(currentNumberOf(manager()), 2052U);
    QCOMPARE(manager().currentLanguageAbbrv(), u"zh_CN"_qs);
    QCOMPARE(manager().settingsAbbrv(), u"zh-CN"_qs);
    QCOMPARE(manager().loadedLanguageID(), 1036U);
    QCOMPARE(installedFiles(), files);
    QCOMPARE(QLocale(), QLocale(u"fr"_qs));

    QVERIFY(!manager().changeLanguage(manager().getLanguageIndexFromId(2052)));
    QVERIFY(manager().changeLanguage(manager().getLanguageIndexFromId(1036)));
    QCOMPARE(signalsSeen.size(), 2);
}

void tst_LanguageChoice::changeLanguage_storesBeforeItTells()
{
    manager().loadLanguages();
    unsigned int seen = 0;
    const QObject context;
    connect(&manager(), &CLanguageManager::languageChanged, &context, [&seen] { seen = currentNumberOf(manager()); });
    QVERIFY(manager().changeLanguage(manager().getLanguageIndexFromId(1041)));
    QCOMPARE(seen, 1041U);
    manager().resetToEnglish();
    QCOMPARE(seen, 1033U);
}

void tst_LanguageChoice::changeLanguage_beyondTheModel_storesZero_data()
{
    QTest::addColumn<int>("row");

    QTest::newRow("one beyond") << 5;
    QTest::newRow("far beyond") << 1000;
    QTest::newRow("below") << -1;
}

void tst_LanguageChoice::changeLanguage_beyondTheModel_storesZero()
{
    QFETCH(const int, row);
    manager().loadLanguages();
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);

    QVERIFY(manager().changeLanguage(row));
    QCOMPARE(signalsSeen.size(), 1);
    QCOMPARE(stored().toString(), u"0"_qs);
    QCOMPARE(manager().currentLanguageIndex(), -1);
    QCOMPARE(manager().settingsAbbrv(), u"en"_qs);

    QVERIFY(!manager().changeLanguage(row)); // 0 is the choice by now
    QCOMPARE(signalsSeen.size(), 1);
}

void tst_LanguageChoice::resetToEnglish_fromAnotherLanguage_storesEnglish_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("German") << 1031;
    QTest::newRow("none") << 0;
}

void tst_LanguageChoice::resetToEnglish_fromAnotherLanguage_storesEnglish()
{
    QFETCH(const int, number);
    choose(number);
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);
    manager().resetToEnglish();
    QCOMPARE(signalsSeen.size(), 1);
    QCOMPARE(stored().toString(), u"1033"_qs);
    manager().resetToEnglish();
    QCOMPARE(signalsSeen.size(), 1);
}

void tst_LanguageChoice::resetToEnglish_inEnglish_writesNothing_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("absent") << QVariant();
    QTest::newRow("abc") << QVariant(u"abc"_qs);
    QTest::newRow("1033") << QVariant(u"1033"_qs);
}

void tst_LanguageChoice::resetToEnglish_inEnglish_writesNothing()
{
    QFETCH(const QVariant, value);
    if (value.isValid()) {
        choose(value);
    }
    const QSignalSpy signalsSeen(&manager(), &CLanguageManager::languageChanged);
    const QSignalSpy writes(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    QVERIFY(writes.isValid());
    manager().resetToEnglish();
    QCOMPARE(signalsSeen.size(), 0);
    QCOMPARE(writes.size(), 0);
    QCOMPARE(stored(), value);
}

QTEST_MAIN(tst_LanguageChoice)

#include "tst_LanguageChoice.moc"
