// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "SmallestHost.h"
#include "Snippets.h"

#include "storageLocation/storageLocation.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/dialogs/SettingsPushButton.h"
#include "utilsDll/eventLoop/DelayedCall.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/ProcessInfo.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <array>
#include <limits>
#include <memory>
#include <new>

using namespace ZYX_zglv6;

namespace {

/*! Leaves the event loop of the next application object as soon as it runs. */
void quitNextApplicationAtOnce()
{
    // Delivered by its exec().
    qAddPreRoutine([] { QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection); });
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/*! What the examples call by name. */
class Desk final : public QObject
{
    Q_OBJECT

public:
    QStringList calls;

public Q_SLOTS:
    void updateNow()
    {
        calls.append(u"updateNow"_qs);
    }

    void flash(int msec)
    {
        calls.append(u"flash %1"_qs.arg(msec));
    }

    void save()
    {
        calls.append(u"save"_qs);
    }

    void setGrain(bool isOn)
    {
        calls.append(isOn ? u"grain"_qs : u"no grain"_qs);
    }

    void setBorder(bool isOn)
    {
        calls.append(isOn ? u"border"_qs : u"no border"_qs);
    }
};

} // namespace

/*! Runs the examples of docs/ and looks at what they promise there. */
class tst_Snippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void smallestHost_comesUpAndRemembersTheLaunch();

    void readCurve_logsWhyTheFileCantBeRead();
    void exposureTimeMs_goesOnAfterAFailedAssertion();
    void numberOfNextFrame_comesFromOneObject();
    void mainWindowHandles_comeFromTheApplicationObject();
    void runGuarded_showsTheMessageWhenMemoryIsOut();
    void isOlderThan_readsTheStampOfTheProgram_data();
    void isOlderThan_readsTheStampOfTheProgram();

    void lastZoom_isWhatWasRemembered();
    void restoreZoomOnChange_hearsOfItsKeyAlone();
    void runWithThrowAwaySettings_leavesTheStoreUntouched();
    void redirectedKeys_areTheOnesInTheComments();
    void systemStoreKeys_areTheOnesInTheComments();
    void preferencesFile_comesFromTheCommandLine();
    void greeting_changesAfterTheFirstLaunch();

    void pointAtPreferences_setsTheDataDirectory();
    void contactSheetPath_liesInTheDataDirectory();
    void isStorageKnown_onlyWithADataDirectory();

    void startLog_writesTheRecordOfThePage();
    void startLog_honoursTheSwitch();
    void keepOnlyErrors_suppressesTheRest();

    void updateSoon_updatesOnceForManyCalls();
    void stopBlinking_endsTheRepetition();
    void develop_tellsOfSuccessAndOfTooLittleTime();
    void waitForExposure_endsWithTheLastFrame();
    void strengthAfterRestart_isTheStoredOne();
    void addRows_makesRowsThatKeepTheirState();
    void registerCommands_carriesThemOut();
    void runBusy_putsTheLastCommandOff();

    void versionText_isFoundInTheFile();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Snippets::init()
{
    QSettings(organizationName, productDisplayName).clear();
}

void tst_Snippets::smallestHost_comesUpAndRemembersTheLaunch()
{
#ifdef Q_OS_WIN
    QSKIP("The host makes its folder among the user's application data, which can't be moved on Windows.");
#endif
    RUN_IN_FRESH_PROCESS();
    QFile preferences(m_sandbox.filePath(u"Preferences.ini"_qs));
    QVERIFY(preferences.open(QIODevice::WriteOnly));
    preferences.write("[GlobalSettings]\nDataDirectory=" + m_sandbox.filePath(u"data"_qs).toUtf8() + '\n');
    preferences.close();
    quitNextApplicationAtOnce();

    QByteArray program("smallestHost");
    QByteArray option("--preferencesFile");
    QByteArray path = preferences.fileName().toUtf8();
    std::array<char *, 4> arguments{program.data(), option.data(), path.data(), nullptr};
    QVERIFY(isFirstLaunch());
    QCOMPARE(runSmallestHost(3, arguments.data()), 0);
    QVERIFY(!isFirstLaunch());
    QVERIFY(contentOf(m_sandbox.filePath(u"data/Logs/smallestHost.txt"_qs)).contains(u"ZYX_zglv6::initLogger: "));
}

void tst_Snippets::readCurve_logsWhyTheFileCantBeRead()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_sandbox.filePath(u"none.curve"_qs);
    QVERIFY(Snippets::readCurve(path).isEmpty());
    QCOMPARE(log.records().size(), 1);
    QVERIFY(log.records().first().startsWith(u"ERROR Snippets::readCurve: " + path + u": "));

    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("0 0 1 1");
    file.close();
    QCOMPARE(Snippets::readCurve(path), QByteArray("0 0 1 1"));
    QCOMPARE(log.records().size(), 1);
}

void tst_Snippets::exposureTimeMs_goesOnAfterAFailedAssertion()
{
    QCOMPARE(Snippets::exposureTimeMs(25), 40);
    const QRegularExpression report(
        u"^ASSERT_X_RETURN_VALUE in .*docs/snippets/frame\\.cpp line \\d+: The frame rate is not positive$"_qs);
    QTest::ignoreMessage(QtDebugMsg, report);
    QCOMPARE(Snippets::exposureTimeMs(0), 0);
}

void tst_Snippets::numberOfNextFrame_comesFromOneObject()
{
    QCOMPARE(Snippets::numberOfNextFrame(), 1);
    QCOMPARE(Snippets::numberOfNextFrame(), 2);
}

void tst_Snippets::mainWindowHandles_comeFromTheApplicationObject()
{
    RUN_IN_FRESH_PROCESS();
    QByteArray program("host");
    std::array<char *, 2> arguments{program.data(), nullptr};
    int count = 1;
    const Snippets::MainWindowHandles handles = Snippets::mainWindowHandles(count, arguments.data());
    QCOMPARE(handles.withoutWindow, quint64(0));
    QVERIFY(handles.windowsOwn != 0);
    QCOMPARE(handles.withWindow, handles.windowsOwn);
}

void tst_Snippets::runGuarded_showsTheMessageWhenMemoryIsOut()
{
    QCOMPARE(Snippets::runGuarded([] { return 7; }), 7);
#ifdef Q_OS_WIN
    QSKIP("The box would wait for somebody to close it.");
#endif
    qunsetenv("DISPLAY"); // without one the message goes to standard error
    qunsetenv("WAYLAND_DISPLAY");
    QCOMPARE(Snippets::runGuarded([]() -> int { throw std::bad_alloc(); }), 1);
}

void tst_Snippets::isOlderThan_readsTheStampOfTheProgram_data()
{
    QTest::addColumn<quint32>("major");
    QTest::addColumn<quint32>("minor");
    QTest::addColumn<bool>("isOlder");

    QTest::newRow("the version itself") << 6U << 4U << false;
    QTest::newRow("a later minor version") << 6U << 5U << true;
    QTest::newRow("a later major version") << 7U << 0U << true;
    QTest::newRow("an earlier version") << 5U << 9U << false;
}

void tst_Snippets::isOlderThan_readsTheStampOfTheProgram()
{
    QFETCH(const quint32, major);
    QFETCH(const quint32, minor);
    QTEST(Snippets::isOlderThan(UtilsDll::currentProcessName(), major, minor), "isOlder");
}

void tst_Snippets::lastZoom_isWhatWasRemembered()
{
    QCOMPARE(Snippets::lastZoom(), 100);
    Snippets::rememberZoom(250);
    QCOMPARE(Snippets::lastZoom(), 250);
}

void tst_Snippets::restoreZoomOnChange_hearsOfItsKeyAlone()
{
    QObject view;
    QList<int> applied;
    Snippets::restoreZoomOnChange(&view, [&applied](int percent) { applied.append(percent); });
    CSettings().setValue(u"lightbox/ground"_qs, u"dark"_qs);
    QCOMPARE(applied, QList<int>());
    Snippets::rememberZoom(50);
    QCOMPARE(applied, QList<int>{50});
}

void tst_Snippets::runWithThrowAwaySettings_leavesTheStoreUntouched()
{
    Snippets::rememberZoom(250);
    int zoomInside = 0;
    Snippets::runWithThrowAwaySettings([&zoomInside] {
        Snippets::rememberZoom(50);
        zoomInside = Snippets::lastZoom();
    });
    QCOMPARE(zoomInside, 50);
    QCOMPARE(Snippets::lastZoom(), 250);
}

void tst_Snippets::redirectedKeys_areTheOnesInTheComments()
{
    QStringList keys = Snippets::redirectedKeys(QDir(m_sandbox.filePath(QString())));
    keys.sort();
    QCOMPARE(keys, QStringList({u"curves/1/grain/slope"_qs, u"curves/size"_qs, u"grain/size"_qs}));
}

void tst_Snippets::systemStoreKeys_areTheOnesInTheComments()
{
    {
        CSettings settings;
        settings.beginGroup(u"film"_qs);
        settings.beginGroup(u"grain"_qs);
        settings.setValue(u"size"_qs, 3);
        settings.beginWriteArray(u"curves"_qs);
        settings.setArrayIndex(0);
        settings.setValue(u"slope"_qs, 7);
        settings.endArray();
    }
    const QSettings store(organizationName, productDisplayName);
    QVERIFY(store.contains(u"film/grain/size"_qs));
    QVERIFY(store.contains(u"film/grain/curves/1/slope"_qs));
}

void tst_Snippets::preferencesFile_comesFromTheCommandLine()
{
    QCOMPARE(Snippets::preferencesFile({u"host"_qs}), u"Preferences.ini"_qs);
    QCOMPARE(Snippets::preferencesFile({u"host"_qs, u"--preferencesFile"_qs, u"other.ini"_qs}), u"other.ini"_qs);
}

void tst_Snippets::greeting_changesAfterTheFirstLaunch()
{
    QCOMPARE(Snippets::greeting(), u"Welcome"_qs);
    QCOMPARE(Snippets::greeting(), u"Welcome back"_qs);
}

void tst_Snippets::pointAtPreferences_setsTheDataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    const QString path = m_sandbox.filePath(u"Preferences.ini"_qs);
    const QString data = m_sandbox.filePath(u"data"_qs);
    QSettings(path, QSettings::IniFormat).setValue(dataDirectoryKey, data);
    Snippets::pointAtPreferences(path);
    QCOMPARE(CStorageLocation::getCurrentDataDirectory(), QString(data + u'/'));
}

void tst_Snippets::contactSheetPath_liesInTheDataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    QCOMPARE(Snippets::contactSheetPath(u"1.png"_qs), m_sandbox.filePath(u"data/ContactSheets/1.png"_qs));
    QVERIFY(QDir(m_sandbox.filePath(u"data/ContactSheets"_qs)).exists());
}

void tst_Snippets::isStorageKnown_onlyWithADataDirectory()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(!Snippets::isStorageKnown());
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    QVERIFY(Snippets::isStorageKnown());
}

void tst_Snippets::startLog_writesTheRecordOfThePage()
{
    RUN_IN_FRESH_PROCESS();
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    Snippets::startLog(u"lamp"_qs);
    const QRegularExpression record(
        u"^\\d+ \\[[^\\]]+\\] INFO lamp\\.txt <> - Snippets::startLog: The lamp is on\\r?$"_qs,
        QRegularExpression::MultilineOption);
    const QString log = contentOf(m_sandbox.filePath(u"data/Logs/lamp.txt"_qs));
    QVERIFY2(record.match(log).hasMatch(), qPrintable(log));
}

void tst_Snippets::startLog_honoursTheSwitch()
{
    RUN_IN_FRESH_PROCESS();
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    setSettingsValue(loggerEnabledKey, u"0"_qs);
    Snippets::startLog(u"lamp"_qs);
    QCOMPARE(loggerInstance(), nullptr);
    setSettingsValue(loggerEnabledKey, u"1"_qs);
    Snippets::startLog(u"lamp"_qs);
    QVERIFY(loggerInstance() != nullptr);
}

void tst_Snippets::keepOnlyErrors_suppressesTheRest()
{
    RUN_IN_FRESH_PROCESS();
    CStorageLocation::setDataDirectory(m_sandbox.filePath(u"data"_qs));
    Snippets::keepOnlyErrors();
    Snippets::startLog(u"lamp"_qs);
    ZYX_LOG('E', "The lamp is broken");
    const QString log = contentOf(m_sandbox.filePath(u"data/Logs/lamp.txt"_qs));
    QVERIFY2(!log.contains(u"The lamp is on"), qPrintable(log));
    QVERIFY2(log.contains(u"The lamp is broken"), qPrintable(log));
}

void tst_Snippets::updateSoon_updatesOnceForManyCalls()
{
    Desk preview;
    for (int i = 0; i < 10; ++i) {
        Snippets::updateSoon(&preview);
    }
    QCOMPARE(preview.calls, QStringList());
    QTRY_COMPARE(preview.calls, QStringList(u"updateNow"_qs));
    QVERIFY(!Singleton<CDelayedCall>::instance().isActive(&preview, "updateNow"));
}

void tst_Snippets::stopBlinking_endsTheRepetition()
{
    Desk lamp;
    Snippets::blink(&lamp, 10);
    QTRY_COMPARE_GE(lamp.calls.size(), 3);
    Snippets::stopBlinking(&lamp);
    QCOMPARE(lamp.calls.count(u"flash 50"_qs), lamp.calls.size());
    QVERIFY(!Singleton<CDelayedCall>::instance().isActive(&lamp, "flash"));
}

void tst_Snippets::develop_tellsOfSuccessAndOfTooLittleTime()
{
    QVERIFY(Snippets::develop(5, -1));
    QVERIFY(!Snippets::develop(std::numeric_limits<int>::max(), 0));
}

void tst_Snippets::waitForExposure_endsWithTheLastFrame()
{
    QAtomicInt framesLeft(3);
    QTimer shutter;
    connect(&shutter, &QTimer::timeout, this, [&framesLeft] { framesLeft.deref(); });
    shutter.start(1);
    Snippets::waitForExposure(framesLeft);
    QCOMPARE(framesLeft.loadRelaxed(), 0);
}

void tst_Snippets::strengthAfterRestart_isTheStoredOne()
{
    QCOMPARE(Snippets::strengthAfterRestart(42), 42);
}

void tst_Snippets::addRows_makesRowsThatKeepTheirState()
{
    QWidget panel;
    Snippets::addRows(&panel, {{u"film.grain"_qs, u"Grain"_qs}, {u"film.border"_qs, u"Border"_qs}});
    const auto rows = panel.findChildren<CSettingsPushButton *>();
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.front()->labelText(), u"Grain"_qs);
    rows.front()->clickButton();
    rows.back()->deserialize(rows.front()->serialize(), false, QString());
    QVERIFY(!rows.back()->isButtonChecked()); // another identifier
    const QByteArray pressed = rows.front()->serialize();
    rows.front()->clickButton();
    rows.front()->deserialize(pressed, false, QString());
    QVERIFY(rows.front()->isButtonChecked());
}

void tst_Snippets::registerCommands_carriesThemOut()
{
    QAction save;
    QAction grain;
    grain.setCheckable(true);
    CSettingsPushButton border;
    border.setButtonCheckable(true);
    Desk document;
    Snippets::registerCommands(&save, &grain, &border, &document);
    save.trigger();
    grain.trigger();
    border.clickButton();
    QCOMPARE(document.calls, (QStringList{u"save"_qs, u"grain"_qs, u"border"_qs}));
    Singleton<CActionManager>::instance().clear();
}

void tst_Snippets::runBusy_putsTheLastCommandOff()
{
    QAction save;
    QAction grain;
    grain.setCheckable(true);
    CSettingsPushButton border;
    border.setButtonCheckable(true);
    Desk document;
    Snippets::registerCommands(&save, &grain, &border, &document);
    Snippets::runBusy([&] {
        save.trigger();
        grain.trigger();
        QVERIFY(!grain.isChecked());
    });
    QCOMPARE(document.calls, QStringList());
    QTRY_COMPARE(document.calls, QStringList(u"grain"_qs));
    QVERIFY(grain.isChecked());
    Singleton<CActionManager>::instance().clear();
}

void tst_Snippets::versionText_isFoundInTheFile()
{
    QCOMPARE(Snippets::versionText(QCoreApplication::applicationFilePath()), u"6.4.0.314"_qs);
    QCOMPARE(Snippets::versionText(m_sandbox.filePath(u"none"_qs)), u"unknown"_qs);
}

int main(int argc, char *argv[])
{
    // In a process of its own a function may make the application object that it is about.
    const auto application = TestSupport::isFreshProcess() ? nullptr : std::make_unique<QApplication>(argc, argv);
    tst_Snippets test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Snippets.moc"
