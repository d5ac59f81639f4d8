// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/OnDisk.h"
#include "settings/SystemPlaces.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace ZYX_zglv6;
using TestSupport::openOrganizationStore;
using TestSupport::openProductStore;

namespace {

using Reader = QVariant (*)();
using Writer = void (*)();

void addReaderRow(const char *name, const QString &key, const QVariant &stored, Reader read, const QVariant &result)
{
    QTest::newRow(name) << key << stored << read << result;
}

/*! Rows for one of the switches that only exactly "0" turns off. */
void addSwitchRows(const QString &key, Reader read)
{
    const auto add = [&key, read](const char *what, const QVariant &stored, bool isOn) {
        QTest::addRow("%s, %s", qPrintable(key), what) << key << stored << read << QVariant(isOn);
    };
    add("absent", QVariant(), true);
    add("0", u"0"_qs, false);
    add("number 0", 0, false);
    add("1", u"1"_qs, true);
    add("false", u"false"_qs, true);
    add("boolean false", false, true);
    add("empty", u""_qs, true);
    add("00", u"00"_qs, true);
    add("0 with a blank", u" 0"_qs, true);
}

QVariant readFirstLaunch()
{
    return isFirstLaunch();
}

QVariant readMigrated()
{
    return arePresetsMigrated();
}

QVariant readLaunchMode()
{
    return getLastLaunchMode();
}

QVariant readReseller()
{
    return getResellerID();
}

QVariant readLogLevel()
{
    return getLogLevel();
}

QVariant readLoggerEnabled()
{
    return isLoggerEnabled();
}

QVariant readStatisticSent()
{
    return isStatisticSent();
}

QVariant readCrashReportSending()
{
    return crashReportSendingAllowed();
}

} // namespace

class tst_ApplicationState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void sharedConstant_data();
    void sharedConstant();

    void reader_data();
    void reader();
    void reader_isRedirected_data();
    void reader_isRedirected();
    void readers_writeNothing();
    void writer_data();
    void writer();
    void writer_isRedirected_data();
    void writer_isRedirected();

    void isFirstLaunch_isTrueUntilTheFirstOneIsOver();
    void isFirstLaunch_underTemporarySettings_isTrueOnAMachineLaunchedBefore();
    void isFirstLaunch_withNullStored_isTrue();
    void arePresetsMigrated_isTrueOnceTheyAre();
    void arePresetsMigrated_withNullStored_isFalse();
    void crashReportSendingAllowed_isWhatWasAllowed();
    void setLastLaunchMode_isReadBack();
    void setResellerID_isReadBack();
    void settingsValue_isOneAccessToTheKey();

    void getUserID_hasTheFormOfAUuid();
    void getUserID_isMadeOnceAndKept();
    void getUserID_returnsWhatIsStored();
    void getUserID_withEmptyText_makesANewOne();
    void getUserID_liesApartFromTheProductsSettings();
    void getUserID_isNotTakenFromTheMachinesStore();
    void getUserID_isNeverRedirected();
    void getUserID_notifiesNobody();

    void recallFilePath_liesInTheDocuments();
    void recallFilePath_makesTheFolderAndNotTheFile();
    void recallFilePath_withFolderInPlace_leavesItAlone();
    void recallFilePath_withoutFolder_isThePathAllTheSame();
    void recallFilePath_leavesTheSettingsAlone();

private:
    std::unique_ptr<CTemporarySettings> installTemporarySettings() const;

    TestSupport::Sandbox m_sandbox;
};

void tst_ApplicationState::cleanup()
{
    openProductStore()->clear();
    openOrganizationStore()->clear();
}

std::unique_ptr<CTemporarySettings> tst_ApplicationState::installTemporarySettings() const
{
    auto temporary = std::make_unique<CTemporarySettings>(QDir(m_sandbox.filePath(QString())));
    CSettings::setTemporarySettings(*temporary);
    return temporary;
}

void tst_ApplicationState::sharedConstant_data()
{
    QTest::addColumn<QString>("constant");
    QTest::addColumn<QString>("text");

    const auto add = [](QLatin1StringView constant, const char *text) {
        QTest::newRow(text) << QString(constant) << QString::fromUtf8(text);
    };
    add(appLaunchedKey, "app_launched");
    add(presetsMigratedKey, "presets_migrated");
    add(launchModeKey, "app_launchMode");
    add(resellerIdKey, "resellerId");
    add(loggerLevelKey, "loggerLevel");
    add(loggerEnabledKey, "loggerEnabled");
    add(sendStatisticKey, "ZyxSendStat");
    add(sendCrashReportKey, "ZyxSentCrashReport");
    add(imageSizeUnitsKey, "imageSizeUnits");
    add(languageKey, "ZyxAppLanguage");
    add(userIdKey, "UserID");
    add(pluginFolderKey, "ZyxPSQtPlugInDllDir");
    add(standaloneCrashFlagKey, "appStandaloneCrashFlag");
    add(photoshopCrashFlagKey, "appPSCrashFlag");
    add(lightroomCrashFlagKey, "appLRCrashFlag");
    add(crashFlagStarted, "started");
    add(crashFlagCrashed, "crashed");
    add(crashFlagFinished, "finished");
    add(launchModeStandalone, "Standalone");
    add(launchModeLightroom, "LR");
    add(launchModePhotoshop, "PS");
    add(mainWindowScreenKey, "app_mwScreenNumber");
    add(sceneBackgroundColorKey, "sceneBackgroundColor");
    add(keepImageSettingsKey, "keepImgSettingsWhenNavigating");
    add(applyDigitalRenderingKey, "automaticallyApplyFujiDigitalRendering");
    add(separateJpegKey, "separateJPEG");
    add(clearDiskCacheKey, "clearDiskCache");
    add(gridCompositionModeKey, "gridOverlay.compositionMode");
    add(gridColorKey, "gridOverlay.color");
    add(gridSizeKey, "gridOverlay.size");
    add(naturalIntensityKey, "natural.intensity");
    add(showImageSizeKey, "showImageSize");
    add(settingsFocusNumberKey, "settingsFocusNumber");
}

void tst_ApplicationState::sharedConstant()
{
    QFETCH(QString, constant);
    QTEST(constant, "text");
}

void tst_ApplicationState::reader_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored"); // invalid: the key is absent
    QTest::addColumn<Reader>("read");
    QTest::addColumn<QVariant>("result");

    const QString launched = u"app_launched"_qs;
    addReaderRow("first launch, absent", launched, QVariant(), readFirstLaunch, true);
    addReaderRow("first launch, 1", launched, 1, readFirstLaunch, false);
    addReaderRow("first launch, any number", launched, 0, readFirstLaunch, false);
    addReaderRow("first launch, empty text", launched, u""_qs, readFirstLaunch, false);

    const QString migrated = u"presets_migrated"_qs;
    addReaderRow("presets migrated, absent", migrated, QVariant(), readMigrated, false);
    addReaderRow("presets migrated, 1", migrated, 1, readMigrated, true);
    addReaderRow("presets migrated, any number", migrated, 0, readMigrated, true);
    addReaderRow("presets migrated, empty text", migrated, u""_qs, readMigrated, true);

    const QString mode = u"app_launchMode"_qs;
    addReaderRow("launch mode, absent", mode, QVariant(), readLaunchMode, QString());
    addReaderRow("launch mode, Photoshop", mode, u"PS"_qs, readLaunchMode, u"PS"_qs);
    addReaderRow("launch mode, any text", mode, u"other"_qs, readLaunchMode, u"other"_qs);

    const QString reseller = u"resellerId"_qs;
    addReaderRow("reseller, absent", reseller, QVariant(), readReseller, u"zyx"_qs);
    addReaderRow("reseller, placeholder", reseller, u"ZYX_RESELLER_ID_PLACEHOLDER"_qs, readReseller, u"zyx"_qs);
    addReaderRow("reseller, placeholder in lower case", reseller, u"zyx_reseller_id_placeholder"_qs, readReseller,
                 u"zyx_reseller_id_placeholder"_qs);
    addReaderRow("reseller, placeholder and more", reseller, u"ZYX_RESELLER_ID_PLACEHOLDER2"_qs, readReseller,
                 u"ZYX_RESELLER_ID_PLACEHOLDER2"_qs);
    addReaderRow("reseller, any text", reseller, u"Shop 1"_qs, readReseller, u"Shop 1"_qs);
    addReaderRow("reseller, empty", reseller, u""_qs, readReseller, u""_qs);

    const QString level = u"loggerLevel"_qs;
    addReaderRow("log level, absent", level, QVariant(), readLogLevel, u"D"_qs);
    addReaderRow("log level, letter", level, u"W"_qs, readLogLevel, u"W"_qs);
    addReaderRow("log level, word", level, u"error"_qs, readLogLevel, u"error"_qs);
    addReaderRow("log level, empty", level, u""_qs, readLogLevel, u""_qs);

    addSwitchRows(u"loggerEnabled"_qs, readLoggerEnabled);
    addSwitchRows(u"ZyxSendStat"_qs, readStatisticSent);
    addSwitchRows(u"ZyxSentCrashReport"_qs, readCrashReportSending);
}

void tst_ApplicationState::reader()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(Reader, read);

    if (stored.isValid()) {
        openProductStore()->setValue(key, stored);
    }
    QTEST(read(), "result");
}

void tst_ApplicationState::reader_isRedirected_data()
{
    reader_data();
}

void tst_ApplicationState::reader_isRedirected()
{
    QFETCH(QString, key);
    QFETCH(QVariant, stored);
    QFETCH(Reader, read);

    openProductStore()->setValue(key, stored == QVariant(u"0"_qs) ? u"1"_qs : u"0"_qs);
    const auto temporary = installTemporarySettings();
    if (stored.isValid()) {
        temporary->setValue(key, stored);
    }
    QTEST(read(), "result");
}

void tst_ApplicationState::readers_writeNothing()
{
    for (const Reader read : {readFirstLaunch, readMigrated, readLaunchMode, readReseller, readLogLevel,
                              readLoggerEnabled, readStatisticSent, readCrashReportSending}) {
        read();
    }
    getSettingsValue(u"k"_qs, 1);
    QCOMPARE(openProductStore()->allKeys(), QStringList());
    QCOMPARE(openOrganizationStore()->allKeys(), QStringList());
}

void tst_ApplicationState::writer_data()
{
    QTest::addColumn<Writer>("write");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("stored");

    const auto add = [](const char *name, Writer write, const QString &key, const QVariant &stored) {
        QTest::newRow(name) << write << key << stored;
    };
    add("setNotFirstLaunch", setNotFirstLaunch, u"app_launched"_qs, 1);
    add("setPresetsMigrated", setPresetsMigrated, u"presets_migrated"_qs, 1);
    add(
        "setLastLaunchMode", [] { setLastLaunchMode(u"LR"_qs); }, u"app_launchMode"_qs, u"LR"_qs);
    add(
        "setResellerID", [] { setResellerID(u"Shop 1"_qs); }, u"resellerId"_qs, u"Shop 1"_qs);
    add(
        "allow crash reports", [] { allowCrashReportSending(true); }, u"ZyxSentCrashReport"_qs, u"1"_qs);
    add(
        "forbid crash reports", [] { allowCrashReportSending(false); }, u"ZyxSentCrashReport"_qs, u"0"_qs);
    add(
        "setSettingsValue", [] { setSettingsValue(u"group/k"_qs, 7); }, u"group/k"_qs, 7);
}

void tst_ApplicationState::writer()
{
    QFETCH(Writer, write);
    QFETCH(QString, key);
    QFETCH(QVariant, stored);

    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    write();
    QCOMPARE(openProductStore()->allKeys(), QStringList(key));
    QCOMPARE(openProductStore()->value(key).typeId(), stored.typeId());
    QCOMPARE(openProductStore()->value(key), stored);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), QVariantList{key});
}

void tst_ApplicationState::writer_isRedirected_data()
{
    writer_data();
}

void tst_ApplicationState::writer_isRedirected()
{
    QFETCH(Writer, write);
    QFETCH(QString, key);

    const auto temporary = installTemporarySettings();
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    write();
    QTEST(temporary->value(key), "stored");
    QCOMPARE(openProductStore()->allKeys(), QStringList());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first(), QVariantList{key});
}

void tst_ApplicationState::isFirstLaunch_isTrueUntilTheFirstOneIsOver()
{
    QVERIFY(isFirstLaunch());
    QVERIFY(isFirstLaunch());
    setNotFirstLaunch();
    QVERIFY(!isFirstLaunch());
    QVERIFY(!arePresetsMigrated());
}

void tst_ApplicationState::isFirstLaunch_underTemporarySettings_isTrueOnAMachineLaunchedBefore()
{
    setNotFirstLaunch();
    auto temporary = installTemporarySettings();
    QVERIFY(isFirstLaunch());
    temporary.reset();
    QVERIFY(!isFirstLaunch());
}

void tst_ApplicationState::isFirstLaunch_withNullStored_isTrue()
{
    openProductStore()->setValue(u"app_launched"_qs,
                                 QVariant()); // what counts is the value read, not that there is one
    QVERIFY(openProductStore()->contains(u"app_launched"_qs));
    QVERIFY(isFirstLaunch());
}

void tst_ApplicationState::arePresetsMigrated_isTrueOnceTheyAre()
{
    QVERIFY(!arePresetsMigrated());
    setPresetsMigrated();
    QVERIFY(arePresetsMigrated());
    QVERIFY(isFirstLaunch());
}

void tst_ApplicationState::arePresetsMigrated_withNullStored_isFalse()
{
    openProductStore()->setValue(u"presets_migrated"_qs, QVariant());
    QVERIFY(openProductStore()->contains(u"presets_migrated"_qs));
    QVERIFY(!arePresetsMigrated());
}

void tst_ApplicationState::crashReportSendingAllowed_isWhatWasAllowed()
{
    allowCrashReportSending(false);
    QVERIFY(!crashReportSendingAllowed());
    QVERIFY(isStatisticSent());
    QVERIFY(isLoggerEnabled());
    allowCrashReportSending(true);
    QVERIFY(crashReportSendingAllowed());
}

void tst_ApplicationState::setLastLaunchMode_isReadBack()
{
    for (const auto mode : {launchModeStandalone, launchModeLightroom, launchModePhotoshop}) {
        setLastLaunchMode(mode);
        QCOMPARE(getLastLaunchMode(), QString(mode));
    }
}

void tst_ApplicationState::setResellerID_isReadBack()
{
    setResellerID(u"Shop 1"_qs);
    QCOMPARE(getResellerID(), u"Shop 1"_qs);
    setResellerID(u"ZYX_RESELLER_ID_PLACEHOLDER"_qs); // stored as it is, replaced when read
    QCOMPARE(getResellerID(), u"zyx"_qs);
    QCOMPARE(openProductStore()->value(u"resellerId"_qs).toString(), u"ZYX_RESELLER_ID_PLACEHOLDER"_qs);
}

void tst_ApplicationState::settingsValue_isOneAccessToTheKey()
{
    QCOMPARE(getSettingsValue(u"showImageSize"_qs, 5), QVariant(5));
    QCOMPARE(getSettingsValue(u"showImageSize"_qs, QVariant()), QVariant());
    setSettingsValue(u"showImageSize"_qs, 7);
    QCOMPARE(getSettingsValue(u"showImageSize"_qs, 5).toInt(), 7);
}

void tst_ApplicationState::getUserID_hasTheFormOfAUuid()
{
    static const QRegularExpression form(u"^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"_qs);
    const QString identity = getUserID();
    QCOMPARE(identity.size(), 36);
    QVERIFY2(form.match(identity).hasMatch(), qPrintable(identity));
}

void tst_ApplicationState::getUserID_isMadeOnceAndKept()
{
    QVERIFY(!openOrganizationStore()->contains(u"UserID"_qs));
    const QString identity = getUserID();
    QCOMPARE(openOrganizationStore()->value(u"UserID"_qs), QVariant(identity));
    QCOMPARE(getUserID(), identity);

    openOrganizationStore()->remove(u"UserID"_qs);
    QVERIFY(getUserID() != identity);
}

void tst_ApplicationState::getUserID_returnsWhatIsStored()
{
    openOrganizationStore()->setValue(u"UserID"_qs, u"{Any text}"_qs);
    QCOMPARE(getUserID(), u"{Any text}"_qs);
    QCOMPARE(openOrganizationStore()->value(u"UserID"_qs), QVariant(u"{Any text}"_qs));
}

void tst_ApplicationState::getUserID_withEmptyText_makesANewOne()
{
    openOrganizationStore()->setValue(u"UserID"_qs, u""_qs);
    const QString identity = getUserID();
    QCOMPARE(identity.size(), 36);
    QCOMPARE(openOrganizationStore()->value(u"UserID"_qs), QVariant(identity));
}

void tst_ApplicationState::getUserID_liesApartFromTheProductsSettings()
{
    setSettingsValue(u"UserID"_qs, u"not this one"_qs);
    QVERIFY(getUserID() != u"not this one"_qs);
    QCOMPARE(openProductStore()->allKeys(), QStringList(u"UserID"_qs));
    QCOMPARE(openProductStore()->value(u"UserID"_qs), QVariant(u"not this one"_qs));
    QVERIFY(!QSettings(u"Zyx Labs"_qs).contains(u"UserID"_qs));
    openProductStore()->clear();
    QVERIFY(!CSettings().contains(u"UserID"_qs));
}

void tst_ApplicationState::getUserID_isNotTakenFromTheMachinesStore()
{
    const auto machine = TestSupport::openOrganizationStoreOfAllUsers();
    if (machine == nullptr) {
        QSKIP("The store of all users is the machine's own.");
    }
    machine->setValue(u"UserID"_qs, u"of everybody"_qs);
    machine->sync();
    QCOMPARE(machine->status(), QSettings::NoError);
    const QString identity = getUserID();
    machine->remove(u"UserID"_qs);
    QCOMPARE(identity.size(), 36);
}

void tst_ApplicationState::getUserID_isNeverRedirected()
{
    const auto temporary = installTemporarySettings();
    const QString identity = getUserID(); // also the call that makes it
    QVERIFY(!temporary->contains(u"UserID"_qs));
    QCOMPARE(openOrganizationStore()->value(u"UserID"_qs), QVariant(identity));
    temporary->setValue(u"UserID"_qs, u"not this one"_qs);
    QCOMPARE(getUserID(), identity);
}

void tst_ApplicationState::getUserID_notifiesNobody()
{
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    getUserID();
    QCOMPARE(spy.size(), 0);
}

void tst_ApplicationState::recallFilePath_liesInTheDocuments()
{
    const QString documents = m_sandbox.filePath(u"documents"_qs);
    if (!TestSupport::keepDocumentsIn(documents)) {
        QSKIP("The documents can't be moved out of the user's way here.");
    }
    QCOMPARE(recallFilePath(),
             QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QDir::separator() + u"Zyx Grainlab 6"
                 + QDir::separator() + u"recall" + QDir::separator() + u"recall.bin");
    QCOMPARE(QFileInfo(recallFilePath()), QFileInfo(documents + u"/Zyx Grainlab 6/recall/recall.bin"));
}

void tst_ApplicationState::recallFilePath_makesTheFolderAndNotTheFile()
{
    const QString documents = m_sandbox.filePath(u"documentsYetToMake"_qs);
    if (!TestSupport::keepDocumentsIn(documents)) {
        QSKIP("The documents can't be moved out of the user's way here.");
    }
    const QString path = recallFilePath();
    QVERIFY(QDir(documents + u"/Zyx Grainlab 6/recall").exists());
    QVERIFY(!QFileInfo::exists(path));

    QVERIFY(QDir(documents).removeRecursively());
    QCOMPARE(recallFilePath(), path);
    QVERIFY(QFileInfo(path).dir().exists());
}

void tst_ApplicationState::recallFilePath_withFolderInPlace_leavesItAlone()
{
    const QString documents = m_sandbox.filePath(u"documentsInUse"_qs);
    if (!TestSupport::keepDocumentsIn(documents)) {
        QSKIP("The documents can't be moved out of the user's way here.");
    }
    const QString path = recallFilePath();
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("host's own"), 10);
    file.close();
    QCOMPARE(recallFilePath(), path);
    QCOMPARE(file.size(), 10);
}

void tst_ApplicationState::recallFilePath_withoutFolder_isThePathAllTheSame()
{
    const QString documents = m_sandbox.filePath(u"documentsWithFile"_qs);
    if (!TestSupport::keepDocumentsIn(documents)) {
        QSKIP("The documents can't be moved out of the user's way here.");
    }
    const QString inPlace = documents + u"/Zyx Grainlab 6";
    TestSupport::writeFile(inPlace, "a file in place of the folder");
    QCOMPARE(recallFilePath(),
             QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QDir::separator() + u"Zyx Grainlab 6"
                 + QDir::separator() + u"recall" + QDir::separator() + u"recall.bin");
    QVERIFY(QFileInfo(inPlace).isFile());
    QVERIFY(!QFileInfo::exists(recallFilePath()));
}

void tst_ApplicationState::recallFilePath_leavesTheSettingsAlone()
{
    if (!TestSupport::keepDocumentsIn(m_sandbox.filePath(u"documents"_qs))) {
        QSKIP("The documents can't be moved out of the user's way here.");
    }
    recallFilePath();
    QCOMPARE(openProductStore()->allKeys(), QStringList());
    QCOMPARE(openOrganizationStore()->allKeys(), QStringList());
}

QTEST_MAIN(tst_ApplicationState)

#include "tst_ApplicationState.moc"
