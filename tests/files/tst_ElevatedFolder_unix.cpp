// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/AdministratorActions.h"

#include "platform/FakePkexec_unix.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtTest/QTest>

#include <stdexcept>
#include <thread>

#include <sys/stat.h>

using TestSupport::FakePkexec;
using TestSupport::TestLog;

namespace {

const QByteArray carryOut = "exec \"$@\"";

unsigned modeOf(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777u : ~0u;
}

QString refusedLine(const QString &arguments)
{
    return u"ERROR AdministratorActions::createFolder: Cannot run executable with elevated privileges: " + arguments;
}

QString permissionsLine(const QString &path)
{
    return u"ERROR AdministratorActions::setPathPermissions: Cannot set permissions to folder " + path
        + u" error: No such file or directory";
}

} // namespace

/*! createFolder(), with a program in front that grants or refuses the rights. */
class tst_ElevatedFolder_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void createFolder_granted_makesFolderWithMode_data();
    void createFolder_granted_makesFolderWithMode();
    void createFolder_existingFolder_getsTheMode();
    void createFolder_relativePath_isTheCallers();
    void createFolder_refused_isLogged_data();
    void createFolder_refused_isLogged();
    void createFolder_programMissing_isLogged_data();
    void createFolder_programMissing_isLogged();
    void createFolder_realProgramRefuses_isLogged();
    void createFolder_refused_doesNotLookAtPermissions();
    void createFolder_commandFails_goesOnToPermissions();
    void createFolder_commandFailsOnExistingFolder_setsPermissions();
    void createFolder_malformedPermissions_throwAfterTheFolder_data();
    void createFolder_malformedPermissions_throwAfterTheFolder();
    void createFolder_onSecondThread_works();

private:
    TestSupport::Sandbox m_sandbox;
    QString m_folder; // empty at the start of each function
};

void tst_ElevatedFolder_unix::init()
{
    m_folder = m_sandbox.filePath(u"work"_qs);
    QVERIFY(QDir(m_folder).removeRecursively());
    QVERIFY(QDir().mkpath(m_folder));
}

void tst_ElevatedFolder_unix::createFolder_granted_makesFolderWithMode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<unsigned>("mode");

    QTest::newRow("plain") << u"folder"_qs << u"755"_qs << 0755u;
    QTest::newRow("blanks") << u"two  words"_qs << u"700"_qs << 0700u;
    QTest::newRow("quotation marks") << u"it's \"so\""_qs << u"750"_qs << 0750u;
    QTest::newRow("other than Latin") << u"gr\u00fc\u00df \u043f\u0443\u0442\u044c"_qs << u"755"_qs << 0755u;
    QTest::newRow("minus in front") << u"-p"_qs << u"755"_qs << 0755u;
    QTest::newRow("nested") << u"a/b/c"_qs << u"711"_qs << 0711u;
    QTest::newRow("four digits") << u"folder"_qs << u"1777"_qs << 01777u;
    QTest::newRow("five digits") << u"folder"_qs << u"00700"_qs << 0700u;
    QTest::newRow("letters behind") << u"folder"_qs << u"710x"_qs << 0710u;
    QTest::newRow("blank in front") << u"folder"_qs << u" 755"_qs << 0755u;
}

void tst_ElevatedFolder_unix::createFolder_granted_makesFolderWithMode()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, name);
    QFETCH(const QString, permissions);
    QFETCH(const unsigned, mode);

    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_folder + u'/' + name;
    const FakePkexec pkexec(carryOut);
    QVERIFY(AdministratorActions().createFolder(path.toStdString(), permissions.toStdString()));
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(modeOf(path), mode);
    QCOMPARE(log.records(), QStringList());
    QCOMPARE(pkexec.calls().size(), 1);
    QCOMPARE(pkexec.calls().constFirst().constLast(), QFile::encodeName(path));
}

void tst_ElevatedFolder_unix::createFolder_existingFolder_getsTheMode()
{
    const FakePkexec pkexec(carryOut);
    QVERIFY(QDir().mkpath(m_folder + u"/there/within"));
    QVERIFY(AdministratorActions().createFolder(QString(m_folder + u"/there").toStdString(), "700"));
    QCOMPARE(modeOf(m_folder + u"/there"), 0700u);
    QVERIFY(AdministratorActions().createFolder(QString(m_folder + u"/there").toStdString(), "755"));
    QCOMPARE(modeOf(m_folder + u"/there"), 0755u);
    QVERIFY(QFileInfo(m_folder + u"/there/within").isDir());
}

void tst_ElevatedFolder_unix::createFolder_relativePath_isTheCallers()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder));
    bool isMade = false;
    {
        const FakePkexec pkexec(carryOut);
        isMade = AdministratorActions().createFolder("relative/folder", "750");
    }
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isMade);
    QCOMPARE(modeOf(m_folder + u"/relative/folder"), 0750u);
}

void tst_ElevatedFolder_unix::createFolder_refused_isLogged_data()
{
    QTest::addColumn<QByteArray>("script");

    QTest::newRow("dismissed") << QByteArray("exit 126");
    QTest::newRow("not authorised") << QByteArray("exit 127");
    QTest::newRow("killed") << QByteArray("kill -KILL $$");
}

void tst_ElevatedFolder_unix::createFolder_refused_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QByteArray, script);

    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_folder + u"/new gr\u00fcn";
    const FakePkexec pkexec(script);
    QVERIFY(!AdministratorActions().createFolder(path.toStdString(), "755"));
    QCOMPARE(log.records(), QStringList{refusedLine(u"/bin/mkdir -p -m 00755 -- \"" + path + u'"')});
    QVERIFY(!QFileInfo::exists(path));
    QCOMPARE(pkexec.calls().size(), 1); // nobody is asked twice
}

void tst_ElevatedFolder_unix::createFolder_programMissing_isLogged_data()
{
    QTest::addColumn<bool>("isThere");

    QTest::newRow("no such program") << false;
    QTest::newRow("no program of this system") << true;
}

void tst_ElevatedFolder_unix::createFolder_programMissing_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const bool, isThere);

    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const FakePkexec pkexec(isThere ? FakePkexec::Program::Damaged : FakePkexec::Program::Missing);
    QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/new").toStdString(), "abc"));
    QCOMPARE(log.records(), QStringList{refusedLine(u"/bin/mkdir -p -- \"" + m_folder + u"/new\"")});
    QVERIFY(!QFileInfo::exists(m_folder + u"/new"));
}

void tst_ElevatedFolder_unix::createFolder_realProgramRefuses_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    if (QStandardPaths::findExecutable(u"pkexec"_qs).isEmpty()) {
        QSKIP("pkexec is not installed.");
    }
    qputenv("SHELL", "/none"); // with one that the system doesn't know it refuses before it asks
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/new").toStdString(), "755"));
    QCOMPARE(log.records(), QStringList{refusedLine(u"/bin/mkdir -p -m 00755 -- \"" + m_folder + u"/new\"")});
    QVERIFY(!QFileInfo::exists(m_folder + u"/new"));
}

void tst_ElevatedFolder_unix::createFolder_refused_doesNotLookAtPermissions()
{
    const FakePkexec pkexec("exit 126");
    QVERIFY(QDir().mkpath(m_folder + u"/there"));
    const unsigned before = modeOf(m_folder + u"/there");
    QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/there").toStdString(), "111"));
    QCOMPARE(modeOf(m_folder + u"/there"), before);
    QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/there").toStdString(), "abc")); // throws nothing
}

void tst_ElevatedFolder_unix::createFolder_commandFails_goesOnToPermissions()
{
    RUN_IN_FRESH_PROCESS();
    QFile file(m_folder + u"/file");
    QVERIFY(file.open(QIODevice::WriteOnly));
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    {
        const FakePkexec pkexec("exit 1");
        QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/new").toStdString(), "755"));
        QCOMPARE(log.records(), QStringList{permissionsLine(m_folder + u"/new")});
    }
    const FakePkexec pkexec("\"$@\" 2>/dev/null"); // where a file is in the way the command itself fails
    QVERIFY(!AdministratorActions().createFolder(QString(m_folder + u"/file/new").toStdString(), "755"));
    QCOMPARE(log.records().size(), 2);
    QVERIFY2(log.records().constLast().endsWith(u"error: Not a directory"), qPrintable(log.records().constLast()));
}

void tst_ElevatedFolder_unix::createFolder_commandFailsOnExistingFolder_setsPermissions()
{
    const FakePkexec pkexec("exit 1");
    QVERIFY(QDir().mkpath(m_folder + u"/there"));
    QVERIFY(AdministratorActions().createFolder(QString(m_folder + u"/there").toStdString(), "710"));
    QCOMPARE(modeOf(m_folder + u"/there"), 0710u);
}

void tst_ElevatedFolder_unix::createFolder_malformedPermissions_throwAfterTheFolder_data()
{
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("letters") << u"abc"_qs << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("symbolic") << u"u+s"_qs << false;
    QTest::newRow("digits of another script") << u"\u0667\u0665\u0665"_qs << false;
    QTest::newRow("beyond an int") << u"77777777777777"_qs << true;
}

void tst_ElevatedFolder_unix::createFolder_malformedPermissions_throwAfterTheFolder()
{
    QFETCH(const QString, permissions);
    QFETCH(const bool, isNumber);

    const FakePkexec pkexec(carryOut);
    const std::string path = QString(m_folder + u"/new").toStdString();
    const AdministratorActions actions;
    if (isNumber) {
        QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)actions.createFolder(path, permissions.toStdString()));
    } else {
        QVERIFY_THROWS_EXCEPTION(std::invalid_argument, (void)actions.createFolder(path, permissions.toStdString()));
    }
    QVERIFY(QFileInfo(m_folder + u"/new").isDir());
}

void tst_ElevatedFolder_unix::createFolder_onSecondThread_works()
{
    const FakePkexec pkexec(carryOut);
    bool isMade = false;
    std::thread thread([this, &isMade] {
        isMade = AdministratorActions().createFolder(QString(m_folder + u"/new").toStdString(), "755");
    });
    thread.join();
    QVERIFY(isMade);
    QVERIFY(QFileInfo(m_folder + u"/new").isDir());
}

QTEST_GUILESS_MAIN(tst_ElevatedFolder_unix)

#include "tst_ElevatedFolder_unix.moc"
