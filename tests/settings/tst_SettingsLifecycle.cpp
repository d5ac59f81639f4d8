// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/OnDisk.h"
#include "settings/SystemPlaces.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QThread>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cstdio>
#include <optional>

using namespace ZYX_zglv6;
using TestSupport::openProductStore;
using TestSupport::valueOnDisk;

namespace {

constexpr int watchdogMs = 120'000;
constexpr char endingProcessVariable[] = "ZYX_TEST_ENDING_PROCESS";
constexpr char beforeTheEnd[] = "The temporary settings are about to die.";
constexpr char behindTheEnd[] = "The temporary settings have died.";

struct Ending
{
    bool isInTime = false;
    bool isNormal = false;
    QString output;
};

/*! Runs the current data row in a process that may end as it likes. What it leaves behind lies in \a folder. */
Ending runInEndingProcess(const QString &folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromUtf8(endingProcessVariable), u"1"_qs);
    environment.insert(u"QTEST_DISABLE_STACK_DUMP"_qs, u"1"_qs);
    for (const QString &variable : {u"TMPDIR"_qs, u"TMP"_qs, u"TEMP"_qs}) {
        environment.insert(variable, QDir::toNativeSeparators(folder));
    }
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(
        QCoreApplication::applicationFilePath(),
        {QString::fromUtf8(QTest::currentTestFunction()) + u':' + QString::fromUtf8(QTest::currentDataTag())});
    Ending ending;
    ending.isInTime = process.waitForFinished(watchdogMs);
    if (!ending.isInTime) {
        process.kill();
        process.waitForFinished();
    }
    ending.isNormal = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    ending.output = QString::fromLocal8Bit(process.readAll());
    return ending;
}

void say(const char *text)
{
    std::fputs(text, stdout);
    std::fflush(stdout);
}

enum class Made { Plainly, Ignoring, OnFile };

void addWaysOfMaking()
{
    QTest::addColumn<Made>("made");

    QTest::newRow("system store") << Made::Plainly;
    QTest::newRow("ignoring temporary settings") << Made::Ignoring;
    QTest::newRow("on a file") << Made::OnFile;
}

} // namespace

/*! What goes beyond one CSettings: temporary settings that come and go, and the listeners of the notifier. */
class tst_SettingsLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void notificator_isOneObjectOnTheMainThread();
    void setValue_notifiesOfTheBareKey_data();
    void setValue_notifiesOfTheBareKey();
    void setValue_notifiesWhenTheValueIsThere_data();
    void setValue_notifiesWhenTheValueIsThere();
    void setValue_notifiesOfAnUnchangedValueToo();
    void setValue_onTheMainThread_notifiesBeforeItReturns();
    void setValue_onAnotherThread_notifiesThroughTheEventLoop();
    void remove_notifiesNobody_data();
    void remove_notifiesNobody();
    void temporarySettings_writtenDirectly_notifyNobody();

    void setTemporarySettings_logsThePath();
    void endTemporarySettings_goesBackToTheSystemStore();
    void endTemporarySettings_logsIt();
    void setTemporarySettings_logsTheSharedPath();
    void setTemporarySettings_reachesObjectsMadeBefore();
    void setTemporarySettings_twice_lastOneWins();
    void setTemporarySettings_twice_firstOneMayDie();
    void deathOfTemporarySettings_endsTheRedirect();
    void deathOfTemporarySettings_clearsThePointerBeforeItIsTold();
    void deathOfTemporarySettings_inTheMiddleOfAGroup_endsTheRedirect();
    void deathOfTemporarySettings_inTheMiddleOfAnArray_endsTheRedirect();
    void groupOfTheSystemStore_isNotCarriedOver();

    void outlivingObject_withoutLogger_isHarmless_data();
    void outlivingObject_withoutLogger_isHarmless();
    void outlivingObject_withLogger_endsTheProcess_data();
    void outlivingObject_withLogger_endsTheProcess();
    void outlivingObject_withLogger_madeBeforeInstallation_isHarmless_data();
    void outlivingObject_withLogger_madeBeforeInstallation_isHarmless();
    void outlivingObject_withLogger_logsTheSettingsThatReplacedItsOwn_data();
    void outlivingObject_withLogger_logsTheSettingsThatReplacedItsOwn();
    void shortLivedObject_withLogger_logsNothing();

private:
    std::unique_ptr<CSettings> makeSettings() const;
    std::unique_ptr<CTemporarySettings> makeTemporarySettings() const;
    std::unique_ptr<CTemporarySettings> installTemporarySettings() const;
    QString folder(const QString &name) const;

    std::optional<TestSupport::Sandbox> m_sandbox{std::in_place};
};

void tst_SettingsLifecycle::cleanup()
{
    if (m_sandbox) {
        openProductStore()->clear();
    }
}

/*! As the current data row says. */
std::unique_ptr<CSettings> tst_SettingsLifecycle::makeSettings() const
{
    QFETCH(Made, made);

    if (made == Made::OnFile) {
        return std::make_unique<CSettings>(m_sandbox->filePath(u"settings.ini"_qs), QSettings::IniFormat);
    }
    return std::make_unique<CSettings>(nullptr, made == Made::Ignoring);
}

std::unique_ptr<CTemporarySettings> tst_SettingsLifecycle::makeTemporarySettings() const
{
    return std::make_unique<CTemporarySettings>(QDir(folder(u"parent"_qs)));
}

std::unique_ptr<CTemporarySettings> tst_SettingsLifecycle::installTemporarySettings() const
{
    auto temporary = makeTemporarySettings();
    CSettings::setTemporarySettings(*temporary);
    return temporary;
}

QString tst_SettingsLifecycle::folder(const QString &name) const
{
    const QString path = m_sandbox->filePath(name);
    QDir().mkpath(path);
    return path;
}

void tst_SettingsLifecycle::notificator_isOneObjectOnTheMainThread()
{
    QCOMPARE(CSettings::getNotificator(), static_cast<QObject *>(&CSettings::m_notificator));
    QCOMPARE(CSettings::getNotificator()->thread(), QCoreApplication::instance()->thread());
}

void tst_SettingsLifecycle::setValue_notifiesOfTheBareKey_data()
{
    QTest::addColumn<Made>("made");
    QTest::addColumn<bool>("isInstalled");

    QTest::newRow("system store") << Made::Plainly << false;
    QTest::newRow("redirected") << Made::Plainly << true;
    QTest::newRow("ignoring temporary settings") << Made::Ignoring << true;
    QTest::newRow("on a file") << Made::OnFile << false;
    QTest::newRow("on a file, redirected") << Made::OnFile << true;
}

void tst_SettingsLifecycle::setValue_notifiesOfTheBareKey()
{
    QFETCH(bool, isInstalled);

    const auto temporary = isInstalled ? installTemporarySettings() : nullptr;
    const auto settings = makeSettings();
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    settings->setValue(u"top"_qs, 1);
    settings->beginGroup(u"g"_qs);
    settings->setValue(u"k"_qs, 1);
    settings->setValue(u"a/k"_qs, 1);
    QCOMPARE(spy.size(), 3);
    QCOMPARE(spy.at(0), QVariantList{u"top"_qs});
    QCOMPARE(spy.at(1), QVariantList{u"k"_qs});
    QCOMPARE(spy.at(2), QVariantList{u"a/k"_qs});
}

void tst_SettingsLifecycle::setValue_notifiesWhenTheValueIsThere_data()
{
    setValue_notifiesOfTheBareKey_data();
}

void tst_SettingsLifecycle::setValue_notifiesWhenTheValueIsThere()
{
    QFETCH(bool, isInstalled);

    const auto temporary = isInstalled ? installTemporarySettings() : nullptr;
    const auto settings = makeSettings();
    QVariant seen;
    connect(&CSettings::m_notificator, &SettingsChangeNotificator::settingsValueChanged, settings.get(),
            [&seen, &settings](const QString &key) { seen = settings->value(key); });
    settings->setValue(u"k"_qs, u"new"_qs);
    QCOMPARE(seen, QVariant(u"new"_qs));
}

void tst_SettingsLifecycle::setValue_notifiesOfAnUnchangedValueToo()
{
    CSettings().setValue(u"k"_qs, 1);
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    CSettings().setValue(u"k"_qs, 1);
    QCOMPARE(spy.size(), 1);
}

void tst_SettingsLifecycle::setValue_onTheMainThread_notifiesBeforeItReturns()
{
    QList<QThread *> threads;
    QObject context;
    connect(&CSettings::m_notificator, &SettingsChangeNotificator::settingsValueChanged, &context,
            [&threads] { threads.append(QThread::currentThread()); });
    CSettings().setValue(u"k"_qs, 1);
    QCOMPARE(threads, QList<QThread *>{QThread::currentThread()});
}

void tst_SettingsLifecycle::setValue_onAnotherThread_notifiesThroughTheEventLoop()
{
    QList<QThread *> threads;
    QObject context;
    // A direct connection: the listener runs wherever the notifier itself was called.
    connect(
        &CSettings::m_notificator, &SettingsChangeNotificator::settingsValueChanged, &context,
        [&threads] { threads.append(QThread::currentThread()); }, Qt::DirectConnection);

    const std::unique_ptr<QThread> writer(QThread::create([] { CSettings().setValue(u"k"_qs, 1); }));
    writer->start();
    QVERIFY(writer->wait(watchdogMs));
    QCOMPARE(threads, QList<QThread *>());
    QCOMPARE(CSettings().value(u"k"_qs).toInt(), 1);

    QTRY_COMPARE(threads, QList<QThread *>{QThread::currentThread()});
}

void tst_SettingsLifecycle::remove_notifiesNobody_data()
{
    setValue_notifiesOfTheBareKey_data();
}

void tst_SettingsLifecycle::remove_notifiesNobody()
{
    QFETCH(bool, isInstalled);

    const auto temporary = isInstalled ? installTemporarySettings() : nullptr;
    const auto settings = makeSettings();
    settings->setValue(u"k"_qs, 1);
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    settings->remove(u"k"_qs);
    QCoreApplication::processEvents();
    QVERIFY(!settings->contains(u"k"_qs));
    QCOMPARE(spy.size(), 0);
}

void tst_SettingsLifecycle::temporarySettings_writtenDirectly_notifyNobody()
{
    const auto temporary = installTemporarySettings();
    const QSignalSpy spy(CSettings::getNotificator(), SIGNAL(settingsValueChanged(QString)));
    temporary->setValue(u"k"_qs, 1);
    temporary->remove(u"k"_qs);
    temporary->clear();
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
}

void tst_SettingsLifecycle::endTemporarySettings_goesBackToTheSystemStore()
{
    openProductStore()->setValue(u"k"_qs, u"system"_qs);
    const auto temporary = installTemporarySettings();
    CSettings().setValue(u"k"_qs, u"temporary"_qs);

    CSettings::endTemporarySettings();
    QVERIFY(!CSettings().usingTemporarySettings());
    QCOMPARE(CSettings().value(u"k"_qs).toString(), u"system"_qs);
    QCOMPARE(temporary->value(u"k"_qs).toString(), u"temporary"_qs);
}

void tst_SettingsLifecycle::endTemporarySettings_logsIt()
{
    RUN_IN_FRESH_PROCESS();
    const auto temporary = installTemporarySettings();
    const TestSupport::TestLog log(folder(u"data"_qs));
    CSettings::endTemporarySettings();
    QCOMPARE(
        log.records(),
        QStringList(u"DEBUG ZYX_zglv6::CSettings::setTemporarySettings: Info: settings are now stored in system"_qs));
}

void tst_SettingsLifecycle::setTemporarySettings_logsThePath()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(folder(u"data"_qs));
    const auto temporary = installTemporarySettings();
    QCOMPARE(log.records(),
             QStringList(u"DEBUG ZYX_zglv6::CSettings::setTemporarySettings: Info: settings are now stored in file: "
                         + temporary->tempSettingsPath()));
}

void tst_SettingsLifecycle::setTemporarySettings_logsTheSharedPath()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(folder(u"data"_qs));
    const auto temporary = makeTemporarySettings();
    temporary->setSharedSettingsPath(u"shared.ini"_qs);
    CSettings::setTemporarySettings(*temporary);
    QCOMPARE(
        log.records(),
        QStringList(
            u"DEBUG ZYX_zglv6::CSettings::setTemporarySettings: Info: settings are now stored in file: shared.ini"_qs));
}

void tst_SettingsLifecycle::setTemporarySettings_reachesObjectsMadeBefore()
{
    CSettings settings;
    settings.setValue(u"k"_qs, u"system"_qs);
    const auto temporary = installTemporarySettings();
    QVERIFY(!settings.contains(u"k"_qs));
    settings.setValue(u"k"_qs, u"temporary"_qs);
    QCOMPARE(temporary->value(u"k"_qs).toString(), u"temporary"_qs);
    QCOMPARE(openProductStore()->value(u"k"_qs).toString(), u"system"_qs);
}

void tst_SettingsLifecycle::setTemporarySettings_twice_lastOneWins()
{
    const auto first = installTemporarySettings();
    const QString firstPath = first->tempSettingsPath();
    CSettings().setValue(u"k"_qs, 1);

    const auto second = installTemporarySettings();
    QVERIFY(!CSettings().contains(u"k"_qs)); // nothing is copied
    CSettings().setValue(u"k"_qs, 2);
    CSettings().setValue(u"other"_qs, 3);
    QCOMPARE(valueOnDisk(second->tempSettingsPath(), u"k"_qs).toInt(), 2);

    QCOMPARE(valueOnDisk(firstPath, u"k"_qs).toInt(), 1); // lives on, idle
    QVERIFY(!first->contains(u"other"_qs));
    first->setValue(u"k"_qs, 4);
    QCOMPARE(CSettings().value(u"k"_qs).toInt(), 2);
}

void tst_SettingsLifecycle::setTemporarySettings_twice_firstOneMayDie()
{
    auto first = installTemporarySettings();
    const auto second = installTemporarySettings();
    first.reset();
    QVERIFY(CSettings().usingTemporarySettings());
    CSettings().setValue(u"k"_qs, 1);
    QCOMPARE(second->value(u"k"_qs).toInt(), 1);
}

void tst_SettingsLifecycle::deathOfTemporarySettings_endsTheRedirect()
{
    openProductStore()->setValue(u"k"_qs, u"system"_qs);
    auto first = installTemporarySettings();
    CSettings().setValue(u"k"_qs, u"temporary"_qs);
    {
        const auto second = installTemporarySettings();
    }
    // The first one does not come back.
    QCOMPARE(CSettings().value(u"k"_qs).toString(), u"system"_qs);
    QVERIFY(CSettings::m_tempSettings.isNull());
}

void tst_SettingsLifecycle::deathOfTemporarySettings_clearsThePointerBeforeItIsTold()
{
    auto temporary = installTemporarySettings();
    bool isClear = false;
    connect(temporary.get(), &QObject::destroyed, this, [&isClear] { isClear = CSettings::m_tempSettings.isNull(); });
    QVERIFY(!CSettings::m_tempSettings.isNull());
    temporary.reset();
    QVERIFY(isClear);
}

void tst_SettingsLifecycle::deathOfTemporarySettings_inTheMiddleOfAGroup_endsTheRedirect()
{
    CSettings settings; // from before the installation, and so free to outlive it
    auto temporary = installTemporarySettings();
    settings.beginGroup(u"g"_qs);
    settings.setValue(u"k"_qs, 1);
    QCOMPARE(temporary->value(u"g/k"_qs).toInt(), 1);

    temporary.reset();
    QVERIFY(!settings.usingTemporarySettings());
    QCOMPARE(settings.group(), QString());
    QVERIFY(!settings.contains(u"k"_qs));
    settings.setValue(u"k"_qs, 2);
    QCOMPARE(openProductStore()->allKeys(), QStringList(u"k"_qs));
}

void tst_SettingsLifecycle::deathOfTemporarySettings_inTheMiddleOfAnArray_endsTheRedirect()
{
    CSettings settings;
    auto temporary = installTemporarySettings();
    settings.beginWriteArray(u"array"_qs);
    settings.setArrayIndex(0);
    settings.setValue(u"k"_qs, 1);
    QVERIFY(QSettings(temporary->tempSettingsPath(), QSettings::IniFormat).contains(u"array/1/k"_qs));

    temporary.reset();
    settings.setValue(u"k"_qs, 2);
    QCOMPARE(openProductStore()->allKeys(), QStringList(u"k"_qs));
    QVERIFY(QDir(folder(u"parent"_qs)).isEmpty());
}

void tst_SettingsLifecycle::groupOfTheSystemStore_isNotCarriedOver()
{
    CSettings settings;
    settings.beginGroup(u"g"_qs);
    auto temporary = installTemporarySettings();
    QCOMPARE(settings.group(), QString());
    settings.setValue(u"k"_qs, 1);
    QCOMPARE(temporary->value(u"k"_qs).toInt(), 1);

    temporary.reset(); // in its own store the group is still open
    QCOMPARE(settings.group(), u"g"_qs);
}

void tst_SettingsLifecycle::outlivingObject_withoutLogger_isHarmless_data()
{
    addWaysOfMaking();
}

void tst_SettingsLifecycle::outlivingObject_withoutLogger_isHarmless()
{
    QVERIFY(loggerInstance() == nullptr);
    auto temporary = installTemporarySettings();
    const auto settings = makeSettings();
    settings->setValue(u"k"_qs, 1);
    temporary.reset();
    QVERIFY(!settings->usingTemporarySettings());
    settings->setValue(u"k"_qs, 2);
    QCOMPARE(settings->value(u"k"_qs).toInt(), 2);
}

void tst_SettingsLifecycle::outlivingObject_withLogger_endsTheProcess_data()
{
    addWaysOfMaking();
}

void tst_SettingsLifecycle::outlivingObject_withLogger_endsTheProcess()
{
#ifdef __clang__
    QSKIP("This compiler leaves the read through the cleared pointer out, as it may.");
#endif
    if (!qEnvironmentVariableIsSet(endingProcessVariable)) {
        const Ending ending = runInEndingProcess(folder(u"ending"_qs));
        QVERIFY2(ending.isInTime, qPrintable(ending.output));
        QVERIFY2(ending.output.contains(QString::fromUtf8(beforeTheEnd)), qPrintable(ending.output));
        QVERIFY2(!ending.output.contains(QString::fromUtf8(behindTheEnd)), qPrintable(ending.output));
        QVERIFY2(!ending.isNormal, qPrintable(ending.output));
        return;
    }
    const TestSupport::TestLog log(folder(u"data"_qs));
    auto temporary = std::make_unique<CTemporarySettings>(QDir::temp());
    CSettings::setTemporarySettings(*temporary);
    const auto settings = makeSettings();
    m_sandbox.reset(); // the process won't come to clean up
    say(beforeTheEnd);
    temporary.reset();
    say(behindTheEnd);
}

void tst_SettingsLifecycle::outlivingObject_withLogger_madeBeforeInstallation_isHarmless_data()
{
    addWaysOfMaking();
}

void tst_SettingsLifecycle::outlivingObject_withLogger_madeBeforeInstallation_isHarmless()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(folder(u"data"_qs));
    const auto settings = makeSettings();
    auto temporary = installTemporarySettings();
    const QStringList recordsBefore = log.records();
    QCOMPARE(recordsBefore.size(), 1); // of the installation
    settings->setValue(u"k"_qs, 1);
    temporary.reset();
    settings->setValue(u"k"_qs, 2);
    QCOMPARE(settings->value(u"k"_qs).toInt(), 2);
    QCOMPARE(log.records(), recordsBefore);
}

void tst_SettingsLifecycle::outlivingObject_withLogger_logsTheSettingsThatReplacedItsOwn_data()
{
    addWaysOfMaking();
}

void tst_SettingsLifecycle::outlivingObject_withLogger_logsTheSettingsThatReplacedItsOwn()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(folder(u"data"_qs));
    auto first = installTemporarySettings();
    const auto settings = makeSettings();
    const auto second = installTemporarySettings();
    const qsizetype countBefore = log.records().size();
    first.reset(); // what is read then is the pointer to the second
    const QString prefix = u"DEBUG ZYX_zglv6::CSettings::logWhenTempSettingsDeleted: "_qs;
    QCOMPARE(log.records().mid(countBefore),
             (QStringList{prefix + u"Temporary settings file is to be destoyed: " + second->tempSettingsPath(),
                          prefix + u"Persistent settings will be used"}));
}

void tst_SettingsLifecycle::shortLivedObject_withLogger_logsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(folder(u"data"_qs));
    auto temporary = installTemporarySettings();
    const QStringList recordsBefore = log.records();
    QCOMPARE(recordsBefore.size(), 1); // of the installation
    CSettings().setValue(u"k"_qs, 1);
    temporary.reset();
    QCOMPARE(log.records(), recordsBefore);
}

QTEST_MAIN(tst_SettingsLifecycle)

#include "tst_SettingsLifecycle.moc"
