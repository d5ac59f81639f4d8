// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Archives.h"
#include "CrashReport.h"
#include "Programs.h"
#include "ReportContents.h"
#include "ReportDelivery.h"
#include "Requests.h"
#include "SenderWindow.h"

#include "soap/server/SoapExchange.h"
#include "support/Sandbox.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUrl>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace CrashTest;
using namespace SoapTest;

namespace {

/*! The window with all that it needs. */
struct Sender
{
    explicit Sender(int port = 1, const QString &email = QString())
        : report(u"Zyx Grainlab 6"_qs, email, QString())
        , delivery(QUrl(u"http://127.0.0.1:%1"_qs.arg(port)))
        , window(report, delivery, u"Zyx Grainlab 6"_qs, u"127.0.0.1"_qs)
    {
    }

    bool show()
    {
        window.show();
        window.activateWindow();
        return QTest::qWaitForWindowActive(&window);
    }

    template <typename Widget>
    Widget *find(const QString &name) const
    {
        return window.findChild<Widget *>(name);
    }

    QPushButton *sendButton() const
    {
        return find<QPushButton>(u"sendButton"_qs);
    }

    QPushButton *closeButton() const
    {
        return find<QPushButton>(u"closeButton"_qs);
    }

    QLineEdit *email() const
    {
        return find<QLineEdit>(u"emailField"_qs);
    }

    QPlainTextEdit *comment() const
    {
        return find<QPlainTextEdit>(u"commentField"_qs);
    }

    QString preview() const
    {
        return find<QPlainTextEdit>(u"preview"_qs)->toPlainText();
    }

    QString status() const
    {
        return find<QLabel>(u"statusLabel"_qs)->text();
    }

    void select(const QString &file) const
    {
        auto *list = find<QTreeWidget>(u"fileList"_qs);
        list->setCurrentItem(list->findItems(file, Qt::MatchExactly).value(0));
    }

    CCrashReport report;
    CReportDelivery delivery;
    CSenderWindow window;
};

/*! Presses a key where the focus is. */
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void type(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

QString focusName()
{
    const QWidget *widget = QApplication::focusWidget();
    return widget != nullptr ? widget->objectName() : QString();
}

bool isInFile(const QString &archive, const QByteArray &text)
{
    return entriesOf(archive).value(u"report.xml"_qs).contains(text);
}

} // namespace

class tst_CrashSenderWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void window_hasItsNameAndShowsTheFiles();
    void preview_showsTheSelectedFile();
    void preview_isLimited_data();
    void preview_isLimited();
    void withoutATemporaryFolder_nothingIsUnpacked();
    void folders_areInTheNames();
    void foldersInFolders_areInTheNames();
    void secondCrash_inTheSameSecond_isANewReport();
    void keys_typeAndSend();
    void tab_goesThroughTheWindow();
    void mnemonics_leadToTheFields();
    void ctrlEnter_sendsFromTheComment();
    void acceptedReport_isNotSentAgain();
    void whileSending_nothingCanBeChanged();
    void escape_cancelsTheSending();
    void closing_cancelsTheSending();
    void failure_keepsTheReportForAnotherAttempt();
    void silence_endsAtTheTimeLimit();
    void missingArchive_isTold();
    void textsThatCannotBeBroughtIn_areTold();
    void reportThatHasLostAFile_isNotSent();
    void withoutAService_nothingIsSent();
    void editedTexts_areInTheCopy();
    void unchangedTexts_leaveTheArchiveAlone();
    void earlierReport_isSentAsItIs();
    void nothing_isTold();
    void escape_closesTheWindow();
    void eachWidgetWithKeys_hasAName();

private:
    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<WorkFolder> m_folder;
};

void tst_CrashSenderWindow::initTestCase()
{
    useNoProxies();
    m_folder = std::make_unique<WorkFolder>(m_sandbox.filePath(u"work"_qs));
    ZYX_zglv6::CStorageLocation::setDataDirectory(m_folder->path() + u"/data");
    QVERIFY(QDir().mkpath(m_folder->logs()));
    QVERIFY(writeFile(m_folder->logs() + u"lightbox.txt", "all was well\n"));
}

void tst_CrashSenderWindow::init()
{
    QDir(m_folder->crashFiles()).removeRecursively();
    QVERIFY(m_folder->writeDump(u"any.dmp"_qs, QByteArray("MDMP\x00\x01 abc\xff", 11) + QByteArray(3000, '\x02')));
}

void tst_CrashSenderWindow::window_hasItsNameAndShowsTheFiles()
{
    Sender sender;
    QCOMPARE(sender.window.objectName(), u"CrashSenderMainWindow"_qs);
    QCOMPARE(sender.find<QLabel>(u"heading"_qs)->text(), u"Zyx Grainlab 6 has closed unexpectedly"_qs);
    QVERIFY(sender.find<QLabel>(u"explanation"_qs)->text().endsWith(u"then it goes to 127.0.0.1."));
    const auto *list = sender.find<QTreeWidget>(u"fileList"_qs);
    QCOMPARE(list->topLevelItemCount(), 3);
    QCOMPARE(list->topLevelItem(0)->text(0), u"any.dmp"_qs);
    QCOMPARE(list->topLevelItem(1)->text(0), u"lightbox.txt"_qs);
    QCOMPARE(list->topLevelItem(2)->text(0), u"report.xml"_qs);
    QCOMPARE(list->topLevelItem(1)->text(1), QLocale().formattedDataSize(13));
    QCOMPARE(sender.preview().toUtf8(), entriesOf(sender.report.archive()).value(u"report.xml"_qs));
    QVERIFY(sender.status().contains(QDir::toNativeSeparators(sender.report.archive())));
}

void tst_CrashSenderWindow::preview_showsTheSelectedFile()
{
    Sender sender;
    sender.select(u"lightbox.txt"_qs);
    QCOMPARE(sender.preview(), u"all was well\n"_qs);
    sender.select(u"any.dmp"_qs);
    const QStringList lines = sender.preview().split(u'\n');
    QCOMPARE(lines.at(0), u"00000000  4d 44 4d 50 00 01 20 61 62 63 ff 02 02 02 02 02  MDMP.. abc......"_qs);
    QCOMPARE(lines.at(1), u"00000010  02 02 02 02 02 02 02 02 02 02 02 02 02 02 02 02  ................"_qs);
    QVERIFY(lines.at(63).startsWith(u"000003f0  "));
    QCOMPARE(lines.last(), u"(the first 1024 bytes)"_qs);
}

void tst_CrashSenderWindow::preview_isLimited_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<QString>("end");

    constexpr qsizetype mebibyte = 1 << 20;
    const QString note = u"x\n(the first 1048576 bytes)"_qs;
    QTest::newRow("empty") << QByteArray() << qsizetype(19) << u"This file is empty."_qs;
    QTest::newRow("short") << QByteArray("ab") << qsizetype(2) << u"ab"_qs;
    QTest::newRow("UTF-8") << QByteArray("\xd0\xbf!") << qsizetype(2) << u"\u043f!"_qs;
    QTest::newRow("no UTF-8") << QByteArray("\xbf!") << qsizetype(10 + 48 + 1 + 2 + 1) << u"bf 21"_qs;
    QTest::newRow("1 MiB") << QByteArray(mebibyte, 'x') << mebibyte << u"xx"_qs;
    QTest::newRow("more than 1 MiB") << QByteArray(mebibyte + 1, 'x') << mebibyte + note.size() - 1 << note;
    QTest::newRow("character cut at 1 MiB")
        << QByteArray(QByteArray(mebibyte - 1, 'x') + "\xd0\xbf") << qsizetype(-1) << u"(the first 1048576 bytes)"_qs;
    QTest::newRow("1 KiB of bytes") << QByteArray(1024, '\0') << qsizetype(64 * 76) << u" ................\n"_qs;
}

void tst_CrashSenderWindow::preview_isLimited()
{
    QFETCH(const QByteArray, content);
    QFETCH(const qsizetype, size);
    QFETCH(const QString, end);

    const QString path = m_sandbox.filePath(u"previewed"_qs);
    QVERIFY(writeFile(path, content));
    const QString preview = CReportContents::preview(path);
    if (size >= 0) {
        QCOMPARE(preview.size(), size);
    }
    QVERIFY(!content.isEmpty() || preview == end);
    QVERIFY2(preview.contains(end), qPrintable(preview.right(100)));
}

void tst_CrashSenderWindow::withoutATemporaryFolder_nothingIsUnpacked()
{
    const QString current = QDir::currentPath();
    const QString empty = m_sandbox.filePath(u"current"_qs);
    const QString file = m_sandbox.filePath(u"no folder"_qs);
    QVERIFY(writeFile(file, "a file"));
    const QByteArray noFolder = QFile::encodeName(file);
    QMap<const char *, QByteArray> saved;
    for (const char *name : {"TMPDIR", "TMP", "TEMP"}) {
        saved.insert(name, qgetenv(name));
        qputenv(name, noFolder);
    }
    const auto restore = qScopeGuard([&] {
        QDir::setCurrent(current);
        for (auto variable = saved.begin(); variable != saved.end(); ++variable) {
            variable->isNull() ? qunsetenv(variable.key()) : qputenv(variable.key(), *variable);
        }
    });
    QVERIFY(QDir().mkpath(empty) && QDir::setCurrent(empty));
    if (QTemporaryDir().isValid()) {
        QSKIP("The system has another temporary folder.");
    }
    Sender sender;
    QCOMPARE(sender.find<QTreeWidget>(u"fileList"_qs)->topLevelItemCount(), 0);
    QCOMPARE(sender.preview(), u"What the archive holds can't be shown."_qs);
    QCOMPARE(QDir(empty).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void tst_CrashSenderWindow::folders_areInTheNames()
{
    QVERIFY(m_folder->writeDump(u"threads/second.txt"_qs, "a thread"));
    Sender sender;
    QCOMPARE(sender.find<QTreeWidget>(u"fileList"_qs)->topLevelItemCount(), 4);
    sender.select(u"threads/second.txt"_qs);
    QCOMPARE(sender.preview(), u"a thread"_qs);
}

void tst_CrashSenderWindow::foldersInFolders_areInTheNames()
{
    QVERIFY(m_folder->writeDump(u"threads/one/two/second.txt"_qs, "a thread"));
    QVERIFY(m_folder->writeDump(u"threads/one/three/third.txt"_qs, "another"));
    Sender sender;
    QCOMPARE(sender.find<QTreeWidget>(u"fileList"_qs)->topLevelItemCount(), 5);
    sender.select(u"threads/one/two/second.txt"_qs);
    QCOMPARE(sender.preview(), u"a thread"_qs);
    sender.select(u"threads/one/three/third.txt"_qs);
    QCOMPARE(sender.preview(), u"another"_qs);
}

void tst_CrashSenderWindow::secondCrash_inTheSameSecond_isANewReport()
{
    QString archive = Sender().report.archive();
    bool isSameSecond = false;
    for (int attempt = 0; attempt < 10 && !isSameSecond; ++attempt) {
        QVERIFY(m_folder->writeDump(u"second.dmp"_qs, QByteArray(100 + attempt, 'x')));
        const CCrashReport second(u"Zyx Grainlab 6"_qs, QString(), QString());
        QVERIFY(second.origin() == CCrashReport::Origin::New);
        QVERIFY(entriesOf(second.archive()).contains(u"second.dmp"_qs));
        isSameSecond = second.archive() == archive;
        archive = second.archive();
    }
    QVERIFY(isSameSecond);
}

void tst_CrashSenderWindow::keys_typeAndSend()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    Sender sender(server.port());
    QVERIFY(sender.show());
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);

    QCOMPARE(focusName(), u"emailField"_qs);
    type(u"a@b.example"_qs);
    press(Qt::Key_Return);
    QCOMPARE(focusName(), u"commentField"_qs);
    type(u"I turned"_qs);
    press(Qt::Key_Return);
    type(u"it round"_qs);
    press(Qt::Key_Tab);
    QCOMPARE(focusName(), u"sendButton"_qs);
    press(Qt::Key_Return);
    QVERIFY(delivered.wait(watchdogMs));

    QCOMPARE(server.requests().size(), 1);
    const QByteArray received = operationOf(server.requests().front()).archive();
    QVERIFY(received == contentOf(sender.report.archive()));
    const Entries entries = entriesOfBytes(received);
    QCOMPARE(entries.keys(), (QStringList{u"any.dmp"_qs, u"lightbox.txt"_qs, u"report.xml"_qs}));
    QVERIFY(entries.value(u"report.xml"_qs)
                .contains("<Email>a@b.example</Email>\n<Comments>I turned\nit round</Comments>"));
    QCOMPARE(sender.preview().toUtf8(), entries.value(u"report.xml"_qs)); // what is shown is what is sent
    QCOMPARE(delivered.size(), 1);
    QVERIFY2(sender.status().endsWith(u"Its identifier is R-17"), qPrintable(sender.status()));
}

void tst_CrashSenderWindow::tab_goesThroughTheWindow()
{
    Sender sender;
    QVERIFY(sender.show());
    QStringList visited;
    for (int i = 0; i < 7; ++i) {
        visited += focusName();
        press(Qt::Key_Tab);
    }
    QCOMPARE(visited,
             (QStringList{u"emailField"_qs, u"commentField"_qs, u"sendButton"_qs, u"closeButton"_qs, u"saveButton"_qs,
                          u"fileList"_qs, u"preview"_qs}));
    QCOMPARE(focusName(), u"emailField"_qs);
}

void tst_CrashSenderWindow::mnemonics_leadToTheFields()
{
    Sender sender;
    QVERIFY(sender.show());
    press(Qt::Key_D, Qt::AltModifier);
    QCOMPARE(focusName(), u"commentField"_qs);
    press(Qt::Key_T, Qt::AltModifier);
    QCOMPARE(focusName(), u"fileList"_qs);
    press(Qt::Key_E, Qt::AltModifier);
    QCOMPARE(focusName(), u"emailField"_qs);
}

void tst_CrashSenderWindow::ctrlEnter_sendsFromTheComment()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    Sender sender(server.port());
    QVERIFY(sender.show());
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    sender.comment()->setFocus();
    type(u"late"_qs);
    press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(delivered.wait(watchdogMs));
    QVERIFY(isInFile(sender.report.archive(), "<Comments>late</Comments>"));
}

void tst_CrashSenderWindow::acceptedReport_isNotSentAgain()
{
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    Sender sender(server.port());
    QVERIFY(sender.show());
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    press(Qt::Key_S, Qt::AltModifier);
    QVERIFY(delivered.wait(watchdogMs));
    QVERIFY(!sender.sendButton()->isEnabled());
    QVERIFY(!sender.email()->isEnabled());
    QVERIFY(!sender.comment()->isEnabled());
    QVERIFY(sender.find<QPushButton>(u"saveButton"_qs)->isEnabled());
    QVERIFY(QFile::exists(sender.report.archive()));
    sender.window.send(); // as by Ctrl+Enter
    QVERIFY(!sender.delivery.isSending());
    QCOMPARE(server.requests().size(), 1);
}

void tst_CrashSenderWindow::whileSending_nothingCanBeChanged()
{
    SoapServer server(keepSilent());
    Sender sender(server.port());
    QVERIFY(sender.show());
    press(Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, watchdogMs);
    QVERIFY(sender.delivery.isSending());
    QVERIFY(!sender.email()->isEnabled());
    QVERIFY(!sender.comment()->isEnabled());
    QVERIFY(!sender.sendButton()->isEnabled());
    QVERIFY(!sender.find<QPushButton>(u"saveButton"_qs)->isEnabled());
    QVERIFY(sender.find<QProgressBar>(u"progressBar"_qs)->isVisible());
    QVERIFY2(sender.status().startsWith(u"Sending "), qPrintable(sender.status()));
    QCOMPARE(sender.closeButton()->text(), u"&Cancel"_qs);
    QCOMPARE(focusName(), u"closeButton"_qs);
}

void tst_CrashSenderWindow::escape_cancelsTheSending()
{
    SoapServer server(keepSilent());
    Sender sender(server.port());
    QVERIFY(sender.show());
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    press(Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, watchdogMs);
    press(Qt::Key_Escape);
    QTRY_COMPARE_WITH_TIMEOUT(delivered.size(), 1, watchdogMs);
    QTRY_COMPARE_WITH_TIMEOUT(server.connectionCount(), 0, watchdogMs);
    QVERIFY(sender.window.isVisible());
    QVERIFY2(sender.status().startsWith(u"The sending was cancelled.\nIt stays in "), qPrintable(sender.status()));
    QVERIFY(sender.sendButton()->isEnabled());
    QVERIFY(sender.email()->isEnabled());
    QVERIFY(!sender.find<QProgressBar>(u"progressBar"_qs)->isVisible());
    QCOMPARE(sender.closeButton()->text(), u"&Close"_qs);
    QVERIFY(QFile::exists(sender.report.archive()));
}

void tst_CrashSenderWindow::closing_cancelsTheSending()
{
    SoapServer server(keepSilent());
    Sender sender(server.port());
    QVERIFY(sender.show());
    sender.window.send();
    QTRY_COMPARE_WITH_TIMEOUT(server.requests().size(), 1, watchdogMs);
    sender.window.close();
    QVERIFY(!sender.delivery.isSending());
    QTRY_COMPARE_WITH_TIMEOUT(server.connectionCount(), 0, watchdogMs);
}

void tst_CrashSenderWindow::failure_keepsTheReportForAnotherAttempt()
{
    int count = 0;
    SoapServer server([&count](QTcpSocket &connection, const ReceivedRequest & /*request*/) {
        const bool isFirst = ++count == 1;
        connection.write(isFirst
                             ? httpAnswer("500 Internal Server Error", faultAnswer("soap:Server", "The disk is full"))
                             : httpAnswer("200 OK", verdictAnswer("NoError", "R-18")));
    });
    Sender sender(server.port());
    QVERIFY(sender.show());
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    type(u"first@b.example"_qs);
    press(Qt::Key_S, Qt::AltModifier);
    QVERIFY(delivered.wait(watchdogMs));
    QCOMPARE(sender.status(),
             u"The report was not sent: The disk is full.\nIt stays in "_qs
                 + QDir::toNativeSeparators(sender.report.archive()));
    QVERIFY(isInFile(sender.report.archive(), "<Email>first@b.example</Email>"));
    QVERIFY(sender.email()->isEnabled());

    sender.email()->setFocus();
    sender.email()->selectAll();
    type(u"second@b.example"_qs);
    press(Qt::Key_S, Qt::AltModifier);
    QVERIFY(delivered.wait(watchdogMs));
    QVERIFY2(sender.status().endsWith(u"R-18"), qPrintable(sender.status()));
    QCOMPARE(server.requests().size(), 2);
    const Entries second = entriesOfBytes(operationOf(server.requests().last()).archive());
    QVERIFY(second.value(u"report.xml"_qs).contains("<Email>second@b.example</Email>"));
    QVERIFY(second.contains(u"any.dmp"_qs));
}

void tst_CrashSenderWindow::silence_endsAtTheTimeLimit()
{
    SoapServer server(keepSilent());
    Sender sender(server.port());
    sender.delivery.setTimeLimit(300);
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    sender.window.send();
    QVERIFY(delivered.wait(watchdogMs));
    QVERIFY2(sender.status().startsWith(u"The report was not sent: The service does not answer."),
             qPrintable(sender.status()));
}

void tst_CrashSenderWindow::missingArchive_isTold()
{
    Sender sender;
    QVERIFY(QFile::remove(sender.report.archive()));
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    sender.window.send();
    QCOMPARE(delivered.size(), 1);
    QVERIFY(!sender.delivery.isSending());
    QVERIFY2(sender.status().startsWith(u"The report was not sent: the report can't be read."),
             qPrintable(sender.status()));
}

void tst_CrashSenderWindow::textsThatCannotBeBroughtIn_areTold()
{
    Sender sender;
    QVERIFY(QFile::remove(sender.report.archive()));
    sender.email()->setText(u"a@b.example"_qs);
    sender.window.send();
    QVERIFY2(sender.status().startsWith(
                 u"The report was not sent: e-mail and comment could not be brought into the report."),
             qPrintable(sender.status()));
    QVERIFY(!QFile::exists(sender.report.archive())); // not made anew, without the dump
    QVERIFY(!sender.window.saveCopy(m_sandbox.filePath(u"copy without texts.zip"_qs)));
    QCOMPARE(sender.status(), u"No copy was saved: e-mail and comment could not be brought into the report"_qs);
}

void tst_CrashSenderWindow::reportThatHasLostAFile_isNotSent()
{
    Sender sender;
    QVERIFY(QDir().mkpath(m_folder->crashTempFiles() + u"any.dmp")); // where it would be unpacked
    sender.email()->setText(u"a@b.example"_qs);
    sender.window.send();
    QVERIFY(!sender.delivery.isSending());
    QVERIFY2(sender.status().startsWith(
                 u"The report was not sent: e-mail and comment could not be brought into the report."),
             qPrintable(sender.status()));
    QVERIFY(QFile::exists(sender.report.archive()));
    QVERIFY(!entriesOf(sender.report.archive()).contains(u"any.dmp"_qs));
}

void tst_CrashSenderWindow::withoutAService_nothingIsSent()
{
    Sender sender;
    CSenderWindow window(sender.report, sender.delivery, u"Zyx Grainlab 6"_qs, QString());
    QVERIFY(window.findChild<QLabel *>(u"explanation"_qs)
                ->text()
                .endsWith(u"It can't be sent: the preferences name no host that could be a service."));
    window.send();
    QVERIFY(!sender.delivery.isSending());
    QVERIFY(window.findChild<QLabel *>(u"statusLabel"_qs)
                ->text()
                .startsWith(u"The report was not sent: the preferences name no host that could be a service."));
}

void tst_CrashSenderWindow::editedTexts_areInTheCopy()
{
    Sender sender;
    QVERIFY(sender.show());
    const QString archive = sender.report.archive();
    type(u"x"_qs);
    const QString copy = m_sandbox.filePath(u"copy.zip"_qs);
    QSignalSpy copied(&sender.window, &CSenderWindow::copied);
    QVERIFY(sender.window.saveCopy(copy));
    QCOMPARE(copied.size(), 1);
    QCOMPARE(sender.report.archive(), archive);
    QVERIFY(isInFile(copy, "<Email>x</Email>"));
    QVERIFY(contentOf(copy) == contentOf(archive));
    QVERIFY(sender.preview().contains(u"<Email>x</Email>"));
    QVERIFY2(sender.status().startsWith(u"A copy was saved as "), qPrintable(sender.status()));
    QVERIFY(!sender.window.saveCopy(m_sandbox.filePath(u"no such folder/copy.zip"_qs)));
    QVERIFY2(sender.status().endsWith(u" could not be written"), qPrintable(sender.status()));
}

void tst_CrashSenderWindow::unchangedTexts_leaveTheArchiveAlone()
{
    Sender sender;
    QVERIFY(writeFile(sender.report.archive(), "a mark")); // a repack would make an archive of it
    QVERIFY(sender.window.saveCopy(m_sandbox.filePath(u"copy.zip"_qs)));
    QCOMPARE(contentOf(sender.report.archive()), QByteArray("a mark"));
}

void tst_CrashSenderWindow::earlierReport_isSentAsItIs()
{
    QString archive;
    QByteArray bytes;
    {
        const Sender first;
        archive = first.report.archive();
        bytes = contentOf(archive);
    }
    SoapServer server(answerWith("200 OK", verdictAnswer("NoError", "R-17")));
    Sender sender(server.port(), u"late@b.example"_qs);
    QVERIFY(sender.show());
    QVERIFY(sender.report.origin() == CCrashReport::Origin::Earlier);
    QCOMPARE(sender.report.archive(), archive);
    QVERIFY(!sender.email()->isVisible()); // their texts are not those of the archive
    QVERIFY(!sender.comment()->isVisible());
    QCOMPARE(sender.report.email(), QString());
    QCOMPARE(focusName(), u"sendButton"_qs);
    QVERIFY(sender.find<QLabel>(u"explanation"_qs)->text().contains(u"stay as they are"));
    QSignalSpy delivered(&sender.window, &CSenderWindow::delivered);
    press(Qt::Key_Space);
    QVERIFY(delivered.wait(watchdogMs));
    QCOMPARE(server.requests().size(), 1);
    QVERIFY(operationOf(server.requests().front()).archive() == bytes);
    QVERIFY(contentOf(archive) == bytes);
}

void tst_CrashSenderWindow::nothing_isTold()
{
    QDir(m_folder->crashFiles()).removeRecursively();
    Sender sender;
    QVERIFY(sender.show());
    QVERIFY(sender.report.origin() == CCrashReport::Origin::None);
    QCOMPARE(sender.find<QLabel>(u"heading"_qs)->text(), u"There is no crash report to send"_qs);
    QVERIFY(!sender.sendButton()->isEnabled());
    QVERIFY(!sender.find<QTreeWidget>(u"fileList"_qs)->isVisible());
    QCOMPARE(focusName(), u"closeButton"_qs);
    sender.window.send();
    QVERIFY(!sender.delivery.isSending());
    press(Qt::Key_Return);
    QVERIFY(!sender.window.isVisible());
}

void tst_CrashSenderWindow::escape_closesTheWindow()
{
    Sender sender;
    QVERIFY(sender.show());
    press(Qt::Key_Escape);
    QVERIFY(!sender.window.isVisible());
    QVERIFY(QFile::exists(sender.report.archive()));
}

void tst_CrashSenderWindow::eachWidgetWithKeys_hasAName()
{
    Sender sender;
    QVERIFY(sender.show());
    int count = 0;
    for (QWidget *widget = sender.window.nextInFocusChain(); widget != &sender.window;
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible()
            && !widget->objectName().startsWith(u"qt_")) {
            const auto *button = qobject_cast<QPushButton *>(widget);
            QVERIFY2(!widget->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty()),
                     qPrintable(widget->objectName()));
            ++count;
        }
    }
    QCOMPARE(count, 7);
}

QTEST_MAIN(tst_CrashSenderWindow)

#include "tst_CrashSenderWindow.moc"
