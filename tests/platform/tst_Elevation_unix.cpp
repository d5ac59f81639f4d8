// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Elevation.h"

#include "platform/FakePkexec_unix.h"
#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <sys/stat.h>

using namespace ZyxPlatform;
using TestSupport::FakePkexec;

namespace {

unsigned modeOf(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777u : ~0u;
}

} // namespace

/*! What the program that asks for the rights is told to do, and what its endings mean. */
class tst_Elevation_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void createFolderElevated_ending_decides_data();
    void createFolderElevated_ending_decides();
    void createFolderElevated_cannotStart_isRefused_data();
    void createFolderElevated_cannotStart_isRefused();
    void createFolderElevated_mode_isPassedOnIfItIsOne_data();
    void createFolderElevated_mode_isPassedOnIfItIsOne();
    void createFolderElevated_path_staysOneArgument_data();
    void createFolderElevated_path_staysOneArgument();
    void createFolderElevated_relativePath_isMadeAbsolute();
    void createFolderElevated_newFolder_hasTheMode();
    void createFolderElevated_belowASetGroupId_hasTheModeAlone();
    void createFolderElevated_realProgram_refuses();
    void prepareElevation_andBack_isAllowedAlways();

private:
    TestSupport::Sandbox m_sandbox;
    QString m_folder; // empty at the start of each function
};

void tst_Elevation_unix::init()
{
    m_folder = m_sandbox.filePath(u"work"_qs);
    QVERIFY(QDir(m_folder).removeRecursively());
    QVERIFY(QDir().mkpath(m_folder));
}

void tst_Elevation_unix::createFolderElevated_ending_decides_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("isStarted");

    QTest::newRow("succeeds") << QByteArray("exit 0") << true;
    QTest::newRow("the command fails") << QByteArray("exit 1") << true;
    QTest::newRow("just below a refusal") << QByteArray("exit 125") << true;
    QTest::newRow("the user dismisses the question") << QByteArray("exit 126") << false;
    QTest::newRow("not authorised") << QByteArray("exit 127") << false;
    QTest::newRow("just above a refusal") << QByteArray("exit 128") << true;
    QTest::newRow("as if killed") << QByteArray("exit 137") << true;
    QTest::newRow("largest") << QByteArray("exit 255") << true;
    QTest::newRow("killed") << QByteArray("kill -KILL $$") << false;
    QTest::newRow("ended") << QByteArray("kill -TERM $$") << false;
}

void tst_Elevation_unix::createFolderElevated_ending_decides()
{
    QFETCH(const QByteArray, script);
    QFETCH(const bool, isStarted);

    const FakePkexec pkexec(script);
    const ElevatedCommand command = createFolderElevated(u"/folder"_qs, u"755"_qs);
    QCOMPARE(command.isStarted, isStarted);
    QCOMPARE(command.arguments, u"/bin/mkdir -p -m 00755 -- \"/folder\""_qs);
    const QByteArrayList arguments{"/bin/mkdir", "-p", "-m", "00755", "--", "/folder"};
    QCOMPARE(pkexec.calls(), QList<QByteArrayList>{arguments});
}

void tst_Elevation_unix::createFolderElevated_cannotStart_isRefused_data()
{
    QTest::addColumn<bool>("isThere");

    QTest::newRow("no such program") << false;
    QTest::newRow("no program of this system") << true;
}

void tst_Elevation_unix::createFolderElevated_cannotStart_isRefused()
{
    QFETCH(const bool, isThere);

    const FakePkexec pkexec(isThere ? FakePkexec::Program::Damaged : FakePkexec::Program::Missing);
    const ElevatedCommand command = createFolderElevated(m_folder + u"/new", u"755"_qs);
    QVERIFY(!command.isStarted);
    QCOMPARE(command.arguments, QString(u"/bin/mkdir -p -m 00755 -- \"" + m_folder + u"/new\""));
    QVERIFY(!QFileInfo::exists(m_folder + u"/new"));
}

void tst_Elevation_unix::createFolderElevated_mode_isPassedOnIfItIsOne_data()
{
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<QString>("mode"); // empty: is not passed on

    QTest::newRow("one digit") << u"7"_qs << u"00007"_qs;
    QTest::newRow("two digits") << u"70"_qs << u"00070"_qs;
    QTest::newRow("three digits") << u"755"_qs << u"00755"_qs;
    QTest::newRow("four digits") << u"0755"_qs << u"00755"_qs;
    QTest::newRow("four digits with a sticky bit") << u"1777"_qs << u"01777"_qs;
    QTest::newRow("five digits") << u"00700"_qs << u"00700"_qs;
    QTest::newRow("more than a mode") << u"4012755"_qs << u"02755"_qs;
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("no octal digit behind") << u"758"_qs << u"00075"_qs;
    QTest::newRow("no octal digit") << u"8"_qs << QString();
    QTest::newRow("leading blank") << u" 755"_qs << u"00755"_qs;
    QTest::newRow("line end") << u"755\n"_qs << u"00755"_qs;
    QTest::newRow("plus") << u"+755"_qs << u"00755"_qs;
    QTest::newRow("minus") << u"-1"_qs << QString();
    QTest::newRow("symbolic") << u"u+s"_qs << QString();
    QTest::newRow("option") << u"--help"_qs << QString();
    QTest::newRow("letters behind") << u"755abc"_qs << u"00755"_qs;
    QTest::newRow("beyond an int") << u"777777777777"_qs << QString();
    QTest::newRow("digits of another script") << u"\u0667\u0665\u0665"_qs << QString();
}

void tst_Elevation_unix::createFolderElevated_mode_isPassedOnIfItIsOne()
{
    QFETCH(const QString, permissions);
    QFETCH(const QString, mode);

    const FakePkexec pkexec("exit 0");
    const ElevatedCommand command = createFolderElevated(u"/folder"_qs, permissions);
    const QByteArrayList with{"/bin/mkdir", "-p", "-m", mode.toUtf8(), "--", "/folder"};
    const QByteArrayList without{"/bin/mkdir", "-p", "--", "/folder"};
    QCOMPARE(pkexec.calls(), QList<QByteArrayList>{mode.isEmpty() ? without : with});
    QCOMPARE(command.arguments,
             mode.isEmpty() ? u"/bin/mkdir -p -- \"/folder\""_qs
                            : QString(u"/bin/mkdir -p -m " + mode + u" -- \"/folder\""));
}

void tst_Elevation_unix::createFolderElevated_path_staysOneArgument_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"folder"_qs;
    QTest::newRow("blanks") << u" two  words "_qs;
    QTest::newRow("double quotation marks") << u"a\" \"b\""_qs;
    QTest::newRow("single quotation marks") << u"it's 'so'"_qs;
    QTest::newRow("other than Latin") << u"gr\u00fc\u00df \u043f\u0443\u0442\u044c \u65e5"_qs;
    QTest::newRow("minus in front") << u"-rf"_qs;
    QTest::newRow("for a shell") << u"$(touch x); `id` | & * ? \\ ~"_qs;
    QTest::newRow("line end") << u"two\nlines"_qs;
    QTest::newRow("three folders") << u"a/b/c"_qs;
}

void tst_Elevation_unix::createFolderElevated_path_staysOneArgument()
{
    QFETCH(const QString, name);

    const QString path = m_folder + u'/' + name;
    const FakePkexec pkexec("exec \"$@\"");
    const ElevatedCommand command = createFolderElevated(path, u"700"_qs);
    QVERIFY(command.isStarted);
    QCOMPARE(command.arguments, QString(u"/bin/mkdir -p -m 00700 -- \"" + path + u'"'));
    const QByteArrayList arguments{"/bin/mkdir", "-p", "-m", "00700", "--", QFile::encodeName(path)};
    QCOMPARE(pkexec.calls(), QList<QByteArrayList>{arguments});
    QVERIFY(QFileInfo(path).isDir()); // nothing had to be waited for
    QCOMPARE(QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{name.section(u'/', 0, 0)});
}

void tst_Elevation_unix::createFolderElevated_relativePath_isMadeAbsolute()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder));
    const QString current = QDir::currentPath();
    ElevatedCommand command;
    {
        const FakePkexec pkexec("exec \"$@\"");
        command = createFolderElevated(u"-m 1/relative"_qs, u"755"_qs);
    }
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(command.isStarted);
    QCOMPARE(command.arguments, QString(u"/bin/mkdir -p -m 00755 -- \"" + current + u"/-m 1/relative\""));
    QVERIFY(QFileInfo(m_folder + u"/-m 1/relative").isDir());
}

void tst_Elevation_unix::createFolderElevated_newFolder_hasTheMode()
{
    const FakePkexec pkexec("umask 022; exec \"$@\"");
    QVERIFY(createFolderElevated(m_folder + u"/above/new", u"1730"_qs).isStarted);
    QCOMPARE(modeOf(m_folder + u"/above/new"), 01730u); // whatever the mask
    QCOMPARE(modeOf(m_folder + u"/above"), 0755u);

    QVERIFY(createFolderElevated(m_folder + u"/above/new", u"700"_qs).isStarted);
    QCOMPARE(modeOf(m_folder + u"/above/new"), 01730u); // one that is there keeps its own
}

void tst_Elevation_unix::createFolderElevated_belowASetGroupId_hasTheModeAlone()
{
    QCOMPARE(chmod(QFile::encodeName(m_folder).constData(), 02775), 0);
    const FakePkexec pkexec("exec \"$@\"");
    QVERIFY(createFolderElevated(m_folder + u"/new", u"755"_qs).isStarted);
    QCOMPARE(modeOf(m_folder + u"/new"), 0755u);
    QVERIFY(createFolderElevated(m_folder + u"/kept", u"2750"_qs).isStarted);
    QCOMPARE(modeOf(m_folder + u"/kept"), 02750u);
}

void tst_Elevation_unix::createFolderElevated_realProgram_refuses()
{
    const QByteArray shellBefore = qgetenv("SHELL");
    qputenv("SHELL", "/none"); // with one that the system doesn't know it refuses before it asks
    const ElevatedCommand command = createFolderElevated(m_folder + u"/new", u"755"_qs);
    shellBefore.isNull() ? qunsetenv("SHELL") : qputenv("SHELL", shellBefore);
    QVERIFY(!command.isStarted); // also where it is not installed
    QVERIFY(!QFileInfo::exists(m_folder + u"/new"));
}

void tst_Elevation_unix::prepareElevation_andBack_isAllowedAlways()
{
    prepareElevation();
    prepareElevation();
    endElevation();
    endElevation();
    const FakePkexec pkexec("exit 0");
    QVERIFY(createFolderElevated(u"/folder"_qs, u"755"_qs).isStarted);
}

QTEST_GUILESS_MAIN(tst_Elevation_unix)

#include "tst_Elevation_unix.moc"
