// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxDesktop_unix.h"
#include "platform/ErrorBoxPrograms_unix.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "platform/ErrorBox.h"
#include "utilsDll/frame/ErrStrings.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryFile>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <atomic>
#include <climits>
#include <csignal>
#include <functional>
#include <limits>
#include <memory>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

using TestSupport::ErrorBoxDesktop;
using TestSupport::ErrorBoxPrograms;

namespace {

constexpr int watchdogMs = 60'000;

/*! While it lives, this process's standard error goes to a file. */
class CapturedStandardError
{
public:
    CapturedStandardError()
        : m_saved(dup(STDERR_FILENO))
    {
        if (m_saved == -1 || !m_file.open() || dup2(m_file.handle(), STDERR_FILENO) == -1) {
            qFatal("Standard error could not be captured.");
        }
    }

    ~CapturedStandardError()
    {
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
    }

    QString text()
    {
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    QTemporaryFile m_file;
    const int m_saved;
};

/*! Shows the box and returns what came on standard error. */
QString show(const QString &text = u"the text"_qs, const QString &title = u"the title"_qs, quintptr parent = 0)
{
    CapturedStandardError standardError;
    ZyxPlatform::showErrorBox(parent, text, title);
    return standardError.text();
}

QStringList namesOf(const QList<QStringList> &calls)
{
    QStringList names;
    for (const QStringList &call : calls) {
        names.append(call.first());
    }
    return names;
}

/*! Runs \a work on a thread of its own, and waits for its end when it goes out of scope. */
class Background
{
public:
    explicit Background(const std::function<void()> &work)
        : m_thread(QThread::create(work))
    {
        m_thread->start();
    }

    ~Background()
    {
        m_thread->wait();
    }

private:
    const std::unique_ptr<QThread> m_thread;
};

bool waitUntil(const std::function<bool()> &condition)
{
    const QDeadlineTimer watchdog(watchdogMs);
    while (!condition()) {
        if (watchdog.hasExpired()) {
            return false;
        }
        QThread::msleep(5);
    }
    return true;
}

std::atomic_int signalCount = 0;

void countSignal(int /*number*/)
{
    ++signalCount;
}

/*! Sends signals to \a thread, each after the one before was handled: all but the first meet it waiting. */
bool interrupt(pthread_t thread)
{
    for (int sent = 1; sent <= 10; ++sent) {
        pthread_kill(thread, SIGUSR1);
        if (!waitUntil([sent] { return signalCount == sent; })) {
            return false;
        }
    }
    return true;
}

} // namespace

class tst_ErrorBox_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void program_getsExactArguments_data();
    void program_getsExactArguments();
    void program_onWayland_getsNoParent();
    void programs_areTriedInOrder_data();
    void programs_areTriedInOrder();
    void program_thatFails_isFollowedByTheNext_data();
    void program_thatFails_isFollowedByTheNext();
    void program_thatCannotRun_isFollowedByTheNext_data();
    void program_thatCannotRun_isFollowedByTheNext();
    void program_endingWithOne_isTheLastAndLeavesTheText();
    void noProgram_writesToStandardError();
    void noDisplay_writesToStandardError();
    void anyDisplay_isEnough_data();
    void anyDisplay_isEnough();
    void standardErrorClosed_isNoHarm();

    void text_reachesEachProgramUnchanged_data();
    void text_reachesEachProgramUnchanged();
    void longText_isCutBetweenCharacters_data();
    void longText_isCutBetweenCharacters();

    void path_isSearched_data();
    void path_isSearched();
    void path_folderNamedLikeTheProgram_isPassedOver();
    void path_withoutAProgram_leavesTheText();

    void showErrorBox_returnsWhenTheProgramEnds_data();
    void showErrorBox_returnsWhenTheProgramEnds();

    void realBox_blocksUntilItIsClosed_data();
    void realBox_blocksUntilItIsClosed();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ErrorBox_unix::program_getsExactArguments_data()
{
    QTest::addColumn<quintptr>("parent");
    QTest::addColumn<QStringList>("call");

    QTest::newRow("zenity") << quintptr(0)
                            << QStringList{u"zenity"_qs,  u"--error"_qs, u"--no-markup"_qs, u"--title"_qs,
                                           u"a title"_qs, u"--text"_qs,  u"a text"_qs};
    QTest::newRow("zenity, parent") << quintptr(
        4'711) << QStringList{u"zenity"_qs, u"--error"_qs, u"--no-markup"_qs, u"--title"_qs,  u"a title"_qs,
                              u"--text"_qs, u"a text"_qs,  u"--modal"_qs,     u"--attach"_qs, u"4711"_qs};
    QTest::newRow("kdialog") << quintptr(0)
                             << QStringList{u"kdialog"_qs, u"--title"_qs, u"a title"_qs, u"--error"_qs, u"a text"_qs};
    QTest::newRow("kdialog, parent") << quintptr(4'711)
                                     << QStringList{u"kdialog"_qs, u"--title"_qs, u"a title"_qs, u"--attach"_qs,
                                                    u"4711"_qs,    u"--error"_qs, u"a text"_qs};
    const QStringList xmessage{u"xmessage"_qs, u"-center"_qs,  u"-title"_qs, u"a title"_qs, u"-buttons"_qs,
                               u"OK:0"_qs,     u"-default"_qs, u"OK"_qs,     u"a text"_qs};
    QTest::newRow("xmessage") << quintptr(0) << xmessage;
    QTest::newRow("xmessage, parent") << quintptr(4'711) << xmessage;
    QTest::newRow("zenity, greatest parent")
        << std::numeric_limits<quintptr>::max()
        << QStringList{u"zenity"_qs,      u"--error"_qs,
                       u"--no-markup"_qs, u"--title"_qs,
                       u"a title"_qs,     u"--text"_qs,
                       u"a text"_qs,      u"--modal"_qs,
                       u"--attach"_qs,    QString::number(std::numeric_limits<quintptr>::max())};
}

void tst_ErrorBox_unix::program_getsExactArguments()
{
    QFETCH(const quintptr, parent);
    QFETCH(const QStringList, call);
    const ErrorBoxPrograms programs;
    programs.add(call.first());

    QCOMPARE(show(u"a text"_qs, u"a title"_qs, parent), QString());
    QCOMPARE(programs.calls(), QList<QStringList>{call});
}

void tst_ErrorBox_unix::program_onWayland_getsNoParent()
{
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    qputenv("WAYLAND_DISPLAY", "wayland-0");

    QCOMPARE(show(u"a text"_qs, u"a title"_qs, 4'711), QString());
    QCOMPARE(programs.calls().size(), 1);
    QVERIFY(!programs.calls().first().contains(u"--attach"_qs));
    QVERIFY(!programs.calls().first().contains(u"--modal"_qs));
}

void tst_ErrorBox_unix::programs_areTriedInOrder_data()
{
    QTest::addColumn<QStringList>("present");
    QTest::addColumn<QString>("called");

    QTest::newRow("all") << QStringList{u"xmessage"_qs, u"kdialog"_qs, u"zenity"_qs} << u"zenity"_qs;
    QTest::newRow("no zenity") << QStringList{u"xmessage"_qs, u"kdialog"_qs} << u"kdialog"_qs;
    QTest::newRow("no kdialog") << QStringList{u"xmessage"_qs, u"zenity"_qs} << u"zenity"_qs;
    QTest::newRow("only xmessage") << QStringList{u"xmessage"_qs} << u"xmessage"_qs;
}

void tst_ErrorBox_unix::programs_areTriedInOrder()
{
    QFETCH(const QStringList, present);
    QFETCH(const QString, called);
    const ErrorBoxPrograms programs;
    for (const QString &name : present) {
        programs.add(name);
    }

    QCOMPARE(show(), QString());
    QCOMPARE(namesOf(programs.calls()), QStringList{called});
}

void tst_ErrorBox_unix::program_thatFails_isFollowedByTheNext_data()
{
    QTest::addColumn<QByteArray>("ending");

    QTest::newRow("exit status 2") << QByteArray("exit 2");
    QTest::newRow("exit status 5, as after a time limit") << QByteArray("exit 5");
    QTest::newRow("exit status 127, as without a library") << QByteArray("exit 127");
    QTest::newRow("exit status 255, as for an unknown option") << QByteArray("exit 255");
    QTest::newRow("killed") << QByteArray("kill -KILL $$");
    QTest::newRow("hung up") << QByteArray("kill -HUP $$");
}

void tst_ErrorBox_unix::program_thatFails_isFollowedByTheNext()
{
    QFETCH(const QByteArray, ending);
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs, ending);
    programs.add(u"kdialog"_qs, ending);
    programs.add(u"xmessage"_qs);

    QCOMPARE(show(), QString());
    QCOMPARE(namesOf(programs.calls()), (QStringList{u"zenity"_qs, u"kdialog"_qs, u"xmessage"_qs}));

    programs.add(u"xmessage"_qs, ending);
    QCOMPARE(show(), u"the title: the text\n"_qs);
    QCOMPARE(programs.calls().size(), 6);
}

void tst_ErrorBox_unix::program_thatCannotRun_isFollowedByTheNext_data()
{
    QTest::addColumn<std::function<bool(const QString &)>>("make");

    QTest::newRow("not executable") << std::function([](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("#!/bin/sh\n") > 0;
    });
    QTest::newRow("no program") << std::function([](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("\x01\x02\x03\x04") == 4
            && file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
    });
    QTest::newRow("interpreter missing") << std::function([](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write("#!/no/such/program\n") > 0
            && file.setPermissions(file.permissions() | QFileDevice::ExeOwner);
    });
    QTest::newRow("folder") << std::function([](const QString &path) { return QDir().mkdir(path); });
    QTest::newRow("dangling link") << std::function(
        [](const QString &path) { return QFile::link(u"/no/such/program"_qs, path); });
}

void tst_ErrorBox_unix::program_thatCannotRun_isFollowedByTheNext()
{
    QFETCH(const std::function<bool(const QString &)>, make);
    const ErrorBoxPrograms programs;
    QVERIFY(make(programs.filePath(u"zenity"_qs)));
    programs.add(u"kdialog"_qs);

    QCOMPARE(show(), QString());
    QCOMPARE(namesOf(programs.calls()), QStringList{u"kdialog"_qs});
}

void tst_ErrorBox_unix::program_endingWithOne_isTheLastAndLeavesTheText()
{
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs, "exit 1");
    programs.add(u"kdialog"_qs);

    QCOMPARE(show(), u"the title: the text\n"_qs);
    QCOMPARE(namesOf(programs.calls()), QStringList{u"zenity"_qs});
}

void tst_ErrorBox_unix::noProgram_writesToStandardError()
{
    const ErrorBoxPrograms programs;
    QCOMPARE(show(u"Größe <b>&\n--text"_qs, u"\u30a8\u30e9\u30fc"_qs), u"\u30a8\u30e9\u30fc: Größe <b>&\n--text\n"_qs);
}

void tst_ErrorBox_unix::noDisplay_writesToStandardError()
{
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    qunsetenv("DISPLAY");

    QCOMPARE(show(), u"the title: the text\n"_qs);
    QCOMPARE(programs.calls(), QList<QStringList>());
}

void tst_ErrorBox_unix::anyDisplay_isEnough_data()
{
    QTest::addColumn<QByteArray>("variable");

    QTest::newRow("X") << QByteArray("DISPLAY");
    QTest::newRow("Wayland") << QByteArray("WAYLAND_DISPLAY");
}

void tst_ErrorBox_unix::anyDisplay_isEnough()
{
    QFETCH(const QByteArray, variable);
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    qunsetenv("DISPLAY");
    qputenv(variable.constData(), "any");

    QCOMPARE(show(), QString());
    QCOMPARE(programs.calls().size(), 1);
}

void tst_ErrorBox_unix::standardErrorClosed_isNoHarm()
{
    const ErrorBoxPrograms programs;
    const CapturedStandardError keepsTheOriginal;
    close(STDERR_FILENO);
    ZyxPlatform::showErrorBox(0, u"text"_qs, u"title"_qs); // returns, though there is nowhere to write
    QCOMPARE(programs.calls(), QList<QStringList>());
}

void tst_ErrorBox_unix::text_reachesEachProgramUnchanged_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("text");

    for (const QString &program : {u"zenity"_qs, u"kdialog"_qs, u"xmessage"_qs}) {
        const auto row = [&program](const char *tag, const QString &text) {
            QTest::addRow("%s, %s", qPrintable(program), tag) << program << text;
        };
        row("empty", u""_qs);
        row("one dash", u"-"_qs);
        row("two dashes", u"--"_qs);
        row("an option", u"--title=other"_qs);
        row("another option", u"-help"_qs);
        row("markup", u"a & b &amp; <b>c</b> <a href='d'>"_qs);
        row("line feeds", u"one\ntwo\r\n\n three\n"_qs);
        row("backslashes", u"C:\\new\\t \\"_qs);
        row("shell characters", u"$HOME `id` \"a\" 'b' *; %s %1"_qs);
        row("other than ASCII", u"Größe \u4e0d\u8db3 \U0001f39e"_qs);
    }
}

void tst_ErrorBox_unix::text_reachesEachProgramUnchanged()
{
    QFETCH(const QString, program);
    QFETCH(const QString, text);
    const ErrorBoxPrograms programs;
    programs.add(program);

    QCOMPARE(show(text, u"-t "_qs + text), QString());
    QCOMPARE(programs.calls().size(), 1);
    QCOMPARE(programs.calls().first().count(text), 1);
    QCOMPARE(programs.calls().first().count(u"-t "_qs + text), 1);
}

void tst_ErrorBox_unix::longText_isCutBetweenCharacters_data()
{
    QTest::addColumn<QString>("text");

    const QString film = u"\U0001f39e"_qs; // two units of UTF-16, four bytes of UTF-8
    QTest::newRow("one byte each") << u"x"_qs.repeated(10'000);
    QTest::newRow("two bytes each") << u"ö"_qs.repeated(10'000);
    QTest::newRow("three bytes each") << u"\u4e0d"_qs.repeated(10'000);
    QTest::newRow("surrogates") << film.repeated(10'000);
    QTest::newRow("surrogates, one unit later") << QString(u'x' + film.repeated(10'000));
}

void tst_ErrorBox_unix::longText_isCutBetweenCharacters()
{
    QFETCH(const QString, text);
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);

    QCOMPARE(show(text, text), QString());

    QCOMPARE(programs.calls().size(), 1);
    const QStringList call = programs.calls().first();
    for (const QString &shown : {call.value(4), call.value(6)}) {
        QVERIFY(shown.size() > 1'000);
        QVERIFY(shown.size() < text.size());
        QVERIFY(text.startsWith(shown));
        QVERIFY(!shown.back().isHighSurrogate());
    }
}

void tst_ErrorBox_unix::path_isSearched_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("alone") << QByteArray() << QByteArray();
    QTest::newRow("missing folder before") << QByteArray("/no/such/folder:") << QByteArray();
    QTest::newRow("empty elements") << QByteArray("::") << QByteArray("::");
    QTest::newRow("element as long as a path") << '/' + QByteArray(PATH_MAX - 1, 'x') + ':' << QByteArray();
    QTest::newRow("element that just fits") << '/' + QByteArray(PATH_MAX - 9, 'x') + ':' << QByteArray();
    QTest::newRow("element one byte too long") << '/' + QByteArray(PATH_MAX - 8, 'x') + ':' << QByteArray();
    QTest::newRow("element far too long") << '/' + QByteArray(50'000, 'x') + ':' << ':' + QByteArray(50'000, 'x');
}

void tst_ErrorBox_unix::path_isSearched()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    qputenv("PATH", before + qgetenv("PATH") + after);

    QCOMPARE(show(), QString());
    QCOMPARE(programs.calls().size(), 1);

    qputenv("PATH", before + "/no/such/folder" + after);
    QCOMPARE(show(), u"the title: the text\n"_qs);
    QCOMPARE(programs.calls().size(), 1);
}

void tst_ErrorBox_unix::path_folderNamedLikeTheProgram_isPassedOver()
{
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    programs.add(u"kdialog"_qs);
    QVERIFY(QDir().mkpath(programs.filePath(u"before/zenity"_qs)));
    qputenv("PATH", QFile::encodeName(programs.filePath(u"before"_qs)) + ':' + qgetenv("PATH"));

    QCOMPARE(show(), QString());
    QCOMPARE(namesOf(programs.calls()), QStringList{u"zenity"_qs});
}

void tst_ErrorBox_unix::path_withoutAProgram_leavesTheText()
{
    const ErrorBoxPrograms programs;
    programs.add(u"zenity"_qs);
    qunsetenv("PATH");

    const QString shown = show(); // a program of the system finds no display, and may say so too
    QVERIFY2(shown.endsWith(u"the title: the text\n"), qPrintable(shown));
    QCOMPARE(programs.calls(), QList<QStringList>());

    qputenv("PATH", "");
    QCOMPARE(show(), u"the title: the text\n"_qs);
    QCOMPARE(programs.calls(), QList<QStringList>());
}

void tst_ErrorBox_unix::showErrorBox_returnsWhenTheProgramEnds_data()
{
    QTest::addColumn<bool>("isInterrupted");
    QTest::addColumn<bool>("isChildSignalIgnored");
    QTest::addColumn<QString>("standardError");

    QTest::newRow("plain") << false << false << QString();
    QTest::newRow("signals interrupt the wait") << true << false << QString();
    QTest::newRow("host ignores SIGCHLD, the outcome is lost") << false << true << u"the title: the text\n"_qs;
    QTest::newRow("both") << true << true << u"the title: the text\n"_qs;
}

void tst_ErrorBox_unix::showErrorBox_returnsWhenTheProgramEnds()
{
    RUN_IN_FRESH_PROCESS(); // changes what the process does at signals
    QFETCH(const bool, isInterrupted);
    QFETCH(const bool, isChildSignalIgnored);
    QFETCH(const QString, standardError);
    const ErrorBoxPrograms programs;
    const QByteArray gate = QFile::encodeName(programs.filePath(u"gate"_qs));
    QCOMPARE(mkfifo(gate.constData(), 0600), 0);
    programs.add(u"zenity"_qs, "read -r line <gate; exit 0");
    programs.add(u"kdialog"_qs);
    struct sigaction counting = {};
    counting.sa_handler = countSignal; // without SA_RESTART: it interrupts system calls
    QCOMPARE(sigaction(SIGUSR1, &counting, nullptr), 0);
    if (isChildSignalIgnored) {
        QVERIFY(std::signal(SIGCHLD, SIG_IGN) != SIG_ERR);
    }

    std::atomic_bool hasReturned = false;
    std::atomic_bool hasReturnedEarly = true;
    std::atomic_bool hasInterrupted = false;
    const pthread_t caller = pthread_self();
    QString written;
    {
        const Background user([&] {
            waitUntil([&] { return !programs.calls().isEmpty() || hasReturned; });
            hasInterrupted = isInterrupted && interrupt(caller);
            hasReturnedEarly = hasReturned.load();
            QFile writeEnd(QFile::decodeName(gate));
            if (writeEnd.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
                writeEnd.write("\n");
            }
        });
        written = show();
        hasReturned = true;
    }

    QVERIFY(!hasReturnedEarly);
    QCOMPARE(hasInterrupted.load(), isInterrupted);
    QCOMPARE(written, standardError);
    QCOMPARE(namesOf(programs.calls()), QStringList{u"zenity"_qs});
}

void tst_ErrorBox_unix::realBox_blocksUntilItIsClosed_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("leavesText");
    QTest::addColumn<bool>("hasPath");

    QTest::newRow("zenity, button") << u"zenity"_qs << u"Return"_qs << false << true;
    QTest::newRow("zenity, Esc") << u"zenity"_qs << u"Escape"_qs << true << true;
    QTest::newRow("zenity of the system, PATH unset") << u"zenity"_qs << u"Return"_qs << false << false;
    QTest::newRow("xmessage, button") << u"xmessage"_qs << u"Return"_qs << false << true;
}

void tst_ErrorBox_unix::realBox_blocksUntilItIsClosed()
{
    QFETCH(const QString, program);
    QFETCH(const QString, key);
    QFETCH(const bool, leavesText);
    QFETCH(const bool, hasPath);
    const QStringList anywhere;
    const QStringList systemFolders{u"/usr/bin"_qs, u"/bin"_qs};
    const QString realProgram = QStandardPaths::findExecutable(program, hasPath ? anywhere : systemFolders);
    if (realProgram.isEmpty()) {
        QSKIP(qPrintable(program + u" is not installed."));
    }
    const ErrorBoxDesktop desktop;
    if (!desktop.lack().isEmpty()) {
        QSKIP(qPrintable(desktop.lack()));
    }
    const ErrorBoxPrograms programs;
    QVERIFY(QFile::link(realProgram, programs.filePath(program)));
    qputenv("DISPLAY", desktop.display());
    if (!hasPath) {
        qunsetenv("PATH");
    }
    const ZYX_zglv6::CErrStrings strings;

    std::atomic_bool hasReturned = false;
    std::atomic_bool hasReturnedEarly = true;
    std::atomic_bool hasClosed = false;
    qsizetype windowCount = 0;
    QString written;
    {
        const Background user([&] {
            const QString window = desktop.waitForWindow(u"Error"_qs);
            windowCount = desktop.windowCount(u"Error"_qs);
            hasReturnedEarly = hasReturned.load();
            hasClosed = !window.isEmpty() && desktop.pressUntilClosed(key, window);
        });
        CapturedStandardError standardError;
        strings.ShowOutOfMemoryDialog(); // no event loop runs
        hasReturned = true;
        written = standardError.text();
    }

    QCOMPARE(windowCount, 1);
    QVERIFY(!hasReturnedEarly);
    QVERIFY(hasClosed);
    QCOMPARE(written.contains(u"Error: Out of memory. Program will be closed.\n"), leavesText);
}

QTEST_MAIN(tst_ErrorBox_unix)

#include "tst_ErrorBox_unix.moc"
