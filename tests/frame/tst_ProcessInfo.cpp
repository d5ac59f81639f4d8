// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ProcessListCount.h"
#include "frame/ProcessOrder.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/ProcessInfo.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <atomic>
#include <memory>
#include <thread>
#include <type_traits>

using UtilsDll::binaryFileVersionByProcessName;
using UtilsDll::BinaryVersion;

static_assert(!std::is_default_constructible_v<BinaryVersion>);
static_assert(std::is_same_v<decltype(BinaryVersion::major), quint32>);
static_assert(offsetof(BinaryVersion, name) == 0);
static_assert(offsetof(BinaryVersion, name) < offsetof(BinaryVersion, major));
static_assert(offsetof(BinaryVersion, major) < offsetof(BinaryVersion, minor));
static_assert(offsetof(BinaryVersion, minor) < offsetof(BinaryVersion, build));
static_assert(offsetof(BinaryVersion, build) < offsetof(BinaryVersion, revision));

namespace {

constexpr int watchdogMs = 120'000;

using Numbers = QList<quint32>;

// What the build file stamps into the helpers.
const Numbers firstVersion{1, 22, 333, 4444};
const Numbers secondVersion{65535, 0, 1, 65534};
const Numbers unknown{0, 0, 0, 0};

/*! ".exe" where programs have an extension. */
QString programExtension()
{
    const QString suffix = QFileInfo(QCoreApplication::applicationFilePath()).suffix();
    return suffix.isEmpty() ? QString() : QString(u'.' + suffix);
}

QString stampedName()
{
    return QStringLiteral(STAMPED_HELPER) + programExtension();
}

QString unstampedName()
{
    return QStringLiteral(UNSTAMPED_HELPER) + programExtension();
}

QString helperPath(const QString &folder, const QString &name)
{
    return QCoreApplication::applicationDirPath() + u'/' + folder + u'/' + name;
}

Numbers versionOf(const QString &processName)
{
    const BinaryVersion version = binaryFileVersionByProcessName(processName);
    return version.name.isNull() ? Numbers{version.major, version.minor, version.build, version.revision} : Numbers();
}

/*! A running helper; it ends with the object. */
class Helper
{
public:
    explicit Helper(const QString &path)
    {
        m_process.start(path, QStringList());
    }

    bool restart()
    {
        const bool isStopped = stop();
        m_process.start();
        return isStopped;
    }

    ~Helper()
    {
        stop();
    }

    /*! True once the helper itself has told so: from then on the system lists it under its own name. */
    bool isReady()
    {
        const QDeadlineTimer deadline(watchdogMs);
        while (!m_process.canReadLine()) {
            if (deadline.hasExpired() || !m_process.waitForReadyRead(int(deadline.remainingTime()))) {
                return m_process.canReadLine();
            }
        }
        return true;
    }

    bool stop()
    {
        if (m_process.state() == QProcess::NotRunning) {
            return true;
        }
        m_process.kill();
        return m_process.waitForFinished(watchdogMs);
    }

    qint64 processId() const
    {
        return m_process.processId();
    }

private:
    Q_DISABLE_COPY_MOVE(Helper)

    QProcess m_process;
};

} // namespace

class tst_ProcessInfo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void binaryVersion_takesItsNumbersInOrder();
    void currentProcessName_isTheProgramsFileName();
    void currentProcessName_keepsItsSpelling_data();
    void currentProcessName_keepsItsSpelling();

    void version_ofEmptyName_isUnknown();
    void version_ofEmptyName_asksForNoProcesses();
    void version_ofNameOfNoProcess_isUnknown_data();
    void version_ofNameOfNoProcess_isUnknown();
    void version_isFoundWhileTheProcessRuns();
    void version_isFoundWithoutRegardToCase();
    void version_ofUnstampedProgram_isUnknown();
    void version_ofTwoProcesses_isTheFirstOnes();
    void version_ofUnstampedProgramBeforeStampedOne_isUnknown();
    void version_ofVanishingProcess_isRightOrUnknown();
    void version_ofRunningProgramReplacedOnDisk_isTheRunningOnes();
    void version_ofRunningProgramRemovedFromDisk_isTheRunningOnes();
    void version_ofTheProgramItself_isUnknown();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ProcessInfo::binaryVersion_takesItsNumbersInOrder()
{
    const BinaryVersion version(1, 2, 3, 4'294'967'295);
    QVERIFY(version.name.isNull());
    QCOMPARE(version.major, 1U);
    QCOMPARE(version.minor, 2U);
    QCOMPARE(version.build, 3U);
    QCOMPARE(version.revision, 4'294'967'295U);
}

void tst_ProcessInfo::currentProcessName_isTheProgramsFileName()
{
    QCOMPARE(UtilsDll::currentProcessName(), QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    QCOMPARE(UtilsDll::currentProcessName(), u"tst_ProcessInfo"_qs + programExtension());
}

void tst_ProcessInfo::currentProcessName_keepsItsSpelling_data()
{
    QTest::addColumn<QString>("baseName");

    QTest::newRow("blank and umlaut") << u"Zyx Pr\u00f6be"_qs;
    QTest::newRow("several dots") << u"zyx.6.4"_qs;
    QTest::newRow("what the kernel says of removed files") << u"zyx (deleted)"_qs;
}

void tst_ProcessInfo::currentProcessName_keepsItsSpelling()
{
    QFETCH(const QString, baseName);

    // A copy of this program under another name tells its own.
    const QString number = QString::number(QCoreApplication::applicationPid());
    const QString name = number + baseName + programExtension();
    const QString path = QCoreApplication::applicationDirPath() + u'/' + name;
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), path));
    QProcess process;
    process.start(path, {u"--tellName"_qs});
    const bool isFinished = process.waitForFinished(watchdogMs);
    QVERIFY(QFile::remove(path));
    QVERIFY(isFinished);
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()), name);
}

void tst_ProcessInfo::version_ofEmptyName_isUnknown()
{
    QCOMPARE(versionOf(QString()), unknown);
    QCOMPARE(versionOf(u""_qs), unknown);
}

void tst_ProcessInfo::version_ofEmptyName_asksForNoProcesses()
{
    const int countBefore = TestSupport::processListCount();
    QCOMPARE(versionOf(QString()), unknown);
    QCOMPARE(versionOf(u""_qs), unknown);
    QCOMPARE(TestSupport::processListCount(), countBefore);
    QCOMPARE(versionOf(u" "_qs), unknown);
    QCOMPARE(TestSupport::processListCount(), countBefore + 1);
}

void tst_ProcessInfo::version_ofNameOfNoProcess_isUnknown_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("nobody's name") << u"no-such-process-5b1f"_qs + programExtension();
    QTest::newRow("blank") << u" "_qs;
    QTest::newRow("dot") << u"."_qs;
    QTest::newRow("separator") << u"/"_qs;
    QTest::newRow("wildcard") << u"*"_qs;
    QTest::newRow("part of the name") << stampedName().mid(1);
    QTest::newRow("start of the name") << QStringLiteral(STAMPED_HELPER).chopped(1) + programExtension();
    QTest::newRow("longer name") << stampedName() + u'x';
    QTest::newRow("path") << helperPath(u"first"_qs, stampedName());
    QTest::newRow("folder and name") << u"first/"_qs + stampedName();
    QTest::newRow("long") << QString(100'000, u'x');
}

void tst_ProcessInfo::version_ofNameOfNoProcess_isUnknown()
{
    QFETCH(const QString, name);

    Helper helper(helperPath(u"first"_qs, stampedName()));
    QVERIFY(helper.isReady());
    QCOMPARE(versionOf(name), unknown);
}

void tst_ProcessInfo::version_isFoundWhileTheProcessRuns()
{
    QCOMPARE(versionOf(stampedName()), unknown);
    Helper helper(helperPath(u"first"_qs, stampedName()));
    QVERIFY(helper.isReady());
    QCOMPARE(versionOf(stampedName()), firstVersion);
    QCOMPARE(versionOf(stampedName()), firstVersion);
    QVERIFY(helper.stop());
    QCOMPARE(versionOf(stampedName()), unknown);
}

void tst_ProcessInfo::version_isFoundWithoutRegardToCase()
{
    Helper helper(helperPath(u"second"_qs, stampedName()));
    QVERIFY(helper.isReady());
    QVERIFY(stampedName().toUpper() != stampedName() && stampedName().toLower() != stampedName());
    QCOMPARE(versionOf(stampedName().toUpper()), secondVersion);
    QCOMPARE(versionOf(stampedName().toLower()), secondVersion);
}

void tst_ProcessInfo::version_ofUnstampedProgram_isUnknown()
{
    Helper helper(helperPath(u"first"_qs, unstampedName()));
    QVERIFY(helper.isReady());
    QVERIFY(TestSupport::processesInSystemOrder().contains(helper.processId()));
    QCOMPARE(versionOf(unstampedName()), unknown);
}

void tst_ProcessInfo::version_ofTwoProcesses_isTheFirstOnes()
{
    const auto expected = [](const Helper &first, const Helper &second) {
        const QList<qint64> order = TestSupport::processesInSystemOrder();
        return order.indexOf(first.processId()) < order.indexOf(second.processId()) ? firstVersion : secondVersion;
    };
    auto first = std::make_unique<Helper>(helperPath(u"first"_qs, stampedName()));
    QVERIFY(first->isReady());
    Helper second(helperPath(u"second"_qs, stampedName()));
    QVERIFY(second.isReady());
    QCOMPARE(versionOf(stampedName()), expected(*first, second));

    QVERIFY(first->stop());
    QCOMPARE(versionOf(stampedName()), secondVersion);

    // Started later this time, it most likely comes behind the other.
    first = std::make_unique<Helper>(helperPath(u"first"_qs, stampedName()));
    QVERIFY(first->isReady());
    QCOMPARE(versionOf(stampedName()), expected(*first, second));
}

void tst_ProcessInfo::version_ofUnstampedProgramBeforeStampedOne_isUnknown()
{
    Helper stamped(helperPath(u"first"_qs, stampedName()));
    QVERIFY(stamped.isReady());
    const auto isBeforeStampedOne = [&stamped](const Helper &helper) {
        const QList<qint64> order = TestSupport::processesInSystemOrder();
        return order.indexOf(helper.processId()) < order.indexOf(stamped.processId());
    };
    // Which of the two the system lists first is its own affair: it is tried with the stamped one started later, too.
    auto plain = std::make_unique<Helper>(helperPath(u"unstamped"_qs, stampedName()));
    QVERIFY(plain->isReady());
    for (int i = 0; i < 10 && !isBeforeStampedOne(*plain); ++i) {
        QCOMPARE(versionOf(stampedName()), firstVersion);
        QVERIFY(stamped.restart());
        QVERIFY(stamped.isReady());
    }
    QVERIFY(isBeforeStampedOne(*plain));
    QCOMPARE(versionOf(stampedName()), unknown); // the search ends with the first of the name

    QVERIFY(plain->stop());
    QCOMPARE(versionOf(stampedName()), firstVersion);
}

void tst_ProcessInfo::version_ofVanishingProcess_isRightOrUnknown()
{
    constexpr int fewestRounds = 25;
    const QDeadlineTimer deadline(watchdogMs);
    std::atomic<bool> isEnough{false};
    std::atomic<int> rounds{0};
    const QString path = helperPath(u"first"_qs, stampedName());
    std::thread starter([&isEnough, &rounds, &deadline, path] {
        while (!deadline.hasExpired() && (rounds < fewestRounds || !isEnough)) {
            Helper helper(path);
            helper.isReady();
            ++rounds;
        }
    });

    int foundCount = 0;
    int unknownCount = 0;
    QList<Numbers> others;
    while (!deadline.hasExpired() && (rounds < fewestRounds || foundCount == 0 || unknownCount == 0)) {
        const Numbers version = versionOf(stampedName());
        foundCount += version == firstVersion ? 1 : 0;
        unknownCount += version == unknown ? 1 : 0;
        if (version != firstVersion && version != unknown) {
            others.append(version);
        }
    }
    isEnough = true;
    starter.join();
    QCOMPARE(others, QList<Numbers>());
    QVERIFY(foundCount > 0);
    QVERIFY(unknownCount > 0);
    QVERIFY(rounds >= fewestRounds);
}

void tst_ProcessInfo::version_ofRunningProgramReplacedOnDisk_isTheRunningOnes()
{
    const QString name = u"replaced-"_qs + stampedName();
    const QString path = m_sandbox.filePath(name);
    QVERIFY(QFile::copy(helperPath(u"first"_qs, stampedName()), path));
    Helper helper(path);
    QVERIFY(helper.isReady());
    if (!QFile::remove(path)) {
        QVERIFY(helper.stop());
        QVERIFY(QFile::remove(path));
        QSKIP("This system keeps the file of a running program.");
    }
    QVERIFY(QFile::copy(helperPath(u"second"_qs, stampedName()), path));
    QCOMPARE(versionOf(name), firstVersion);

    Helper newer(path);
    QVERIFY(newer.isReady());
    QVERIFY(helper.stop());
    QCOMPARE(versionOf(name), secondVersion);
}

void tst_ProcessInfo::version_ofRunningProgramRemovedFromDisk_isTheRunningOnes()
{
    const QString name = u"removed-"_qs + stampedName();
    const QString path = m_sandbox.filePath(name);
    QVERIFY(QFile::copy(helperPath(u"second"_qs, stampedName()), path));
    Helper helper(path);
    QVERIFY(helper.isReady());
    if (!QFile::remove(path)) {
        QVERIFY(helper.stop());
        QVERIFY(QFile::remove(path));
        QSKIP("This system keeps the file of a running program.");
    }
    QCOMPARE(versionOf(name), secondVersion);
    QCOMPARE(versionOf(name + u" (deleted)"), unknown);
}

void tst_ProcessInfo::version_ofTheProgramItself_isUnknown()
{
    QCOMPARE(versionOf(UtilsDll::currentProcessName()), unknown); // found, and not stamped
}

int main(int argc, char *argv[])
{
    if (argc > 1 && qstrcmp(argv[1], "--tellName") == 0) {
        QFile output;
        output.open(stdout, QIODevice::WriteOnly);
        output.write(UtilsDll::currentProcessName().toUtf8());
        return 0;
    }
    QCoreApplication application(argc, argv);
    tst_ProcessInfo test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ProcessInfo.moc"
