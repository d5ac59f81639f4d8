// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/files/AdministratorActions.h"

#include "files/FileRights.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <filesystem>
#include <stdexcept>
#include <thread>
#include <type_traits>

using TestSupport::isReadOnly;
using TestSupport::OrdinaryUser;
using TestSupport::TestLog;

static_assert(!std::is_copy_constructible_v<AdministratorActions> && !std::is_copy_assignable_v<AdministratorActions>);
static_assert(!std::is_move_constructible_v<AdministratorActions> && !std::is_move_assignable_v<AdministratorActions>);

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

bool makeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

std::string lineStart(const char *function)
{
    return std::string("ERROR AdministratorActions::") + function + ": ";
}

} // namespace

/*! Files and their permissions, as far as they are alike on every system. */
class tst_AdministratorActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setPathPermissions_writeBits_decideReadOnly_data();
    void setPathPermissions_writeBits_decideReadOnly();
    void setPathPermissions_malformed_throws_data();
    void setPathPermissions_malformed_throws();
    void setPathPermissions_missingPath_isLogged();
    void setPathPermissions_success_logsNothing();
    void writeFile_content_isExact_data();
    void writeFile_content_isExact();
    void writeFile_longerFile_isTruncated();
    void writeFile_missingFolder_isLogged();
    void writeFile_missingFolder_doesNotLookAtPermissions();
    void writeFile_ontoFolder_isLogged();
    void writeFile_readOnlyPermissions_areForTheNextWriter();
    void writeFile_malformedPermissions_leaveEmptyFile_data();
    void writeFile_malformedPermissions_leaveEmptyFile();
    void writeFile_otherThanLatinName_dependsOnTheNarrowEncoding();
    void failures_withoutLogger_areFalse();
    void object_onSecondThread_works();
    void object_severalAtOnce_work();

private:
    TestSupport::Sandbox m_sandbox;
    QString m_folder; // empty at the start of each function
    std::string m_path; // of a file in it that is not there yet
};

void tst_AdministratorActions::init()
{
    m_folder = QDir::toNativeSeparators(m_sandbox.filePath(u"work"_qs));
    m_path = QString(m_folder + QDir::separator() + u"file").toStdString();
    QVERIFY(QDir().mkpath(m_folder));
}

void tst_AdministratorActions::cleanup()
{
    const AdministratorActions actions;
    if (QFileInfo::exists(QString::fromStdString(m_path))) {
        QVERIFY(actions.setPathPermissions(m_path, "755")); // one that is read-only stays behind on Windows
    }
    QVERIFY(QDir(m_folder).removeRecursively());
}

void tst_AdministratorActions::setPathPermissions_writeBits_decideReadOnly_data()
{
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<bool>("isLocked");

    const auto row = [](const char *permissions, bool isLocked) {
        QTest::addRow("\"%s\"", permissions) << QString::fromUtf8(permissions) << isLocked;
    };
    row("444", true);
    row("644", false);
    row("755", false);
    row("555", true);
    row("000", true);
    row("0", true);
    row("200", false);
    row("020", false);
    row("002", false);
    row("222", false);
    row("5555", true); // no write bit is among the three above
    row("0444", true);
    row(" 444", true);
    row("\t444", true);
    row("+444", true);
    row("444abc", true); // what stands behind the number is not looked at
    row("4448", true);
    row("444 666", true);
    row("0x1ff", true); // zero, and then a letter
    row("-1", false);
    row("17777777777", false); // the largest that fits
    row("-20000000000", true); // the smallest
}

void tst_AdministratorActions::setPathPermissions_writeBits_decideReadOnly()
{
    QFETCH(const QString, permissions);
    QFETCH(const bool, isLocked);

    const QString folder = m_folder + QDir::separator() + u"folder";
    const std::string text = permissions.toStdString();
    const AdministratorActions actions;
    QVERIFY(makeFile(QString::fromStdString(m_path), "content"));
    QVERIFY(QDir().mkdir(folder));
    for (const std::string &path : {m_path, folder.toStdString()}) {
        if (path != m_path && !TestSupport::keepsReadOnlyFolders(folder)) {
            continue;
        }
        for (const char *before : {"444", "755"}) {
            QVERIFY(actions.setPathPermissions(path, before));
            QCOMPARE(isReadOnly(QString::fromStdString(path)), std::string(before) == "444");
            QVERIFY(actions.setPathPermissions(path, text));
            QCOMPARE(isReadOnly(QString::fromStdString(path)), isLocked);
        }
        QVERIFY(actions.setPathPermissions(path, "755"));
    }
    QCOMPARE(contentOf(QString::fromStdString(m_path)), QByteArray("content"));
}

void tst_AdministratorActions::setPathPermissions_malformed_throws_data()
{
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<bool>("isNumber");

    QTest::newRow("letters") << u"abc"_qs << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("blank") << u" "_qs << false;
    QTest::newRow("sign") << u"-"_qs << false;
    QTest::newRow("symbolic") << u"rwxr-xr-x"_qs << false;
    QTest::newRow("no octal digit") << u"9"_qs << false;
    QTest::newRow("beyond an int") << u"77777777777777"_qs << true;
    QTest::newRow("just beyond an int") << u"20000000000"_qs << true;
    QTest::newRow("below an int") << u"-20000000001"_qs << true;
}

void tst_AdministratorActions::setPathPermissions_malformed_throws()
{
    QFETCH(const QString, permissions);
    QFETCH(const bool, isNumber);

    const std::string text = permissions.toStdString();
    const AdministratorActions actions;
    QVERIFY(makeFile(QString::fromStdString(m_path), "content"));
    QVERIFY(actions.setPathPermissions(m_path, "444"));
    for (const std::string &path : {m_path, m_path + "-missing"}) { // the text is read first
        if (isNumber) {
            QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)actions.setPathPermissions(path, text));
        } else {
            QVERIFY_THROWS_EXCEPTION(std::invalid_argument, (void)actions.setPathPermissions(path, text));
        }
    }
    QVERIFY(isReadOnly(QString::fromStdString(m_path)));
}

void tst_AdministratorActions::setPathPermissions_missingPath_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const std::string missing = m_path + " missing";
    QVERIFY(!AdministratorActions().setPathPermissions(missing, "755"));
    const std::error_code error(2, std::system_category()); // alike on all systems
    const std::string line = lineStart("setPathPermissions") + "Cannot set permissions to folder " + missing
        + " error: " + error.message();
    QCOMPARE(log.records(), QStringList{QString::fromStdString(line)});
    QVERIFY(!QFileInfo::exists(QString::fromStdString(missing)));
}

void tst_AdministratorActions::setPathPermissions_success_logsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(AdministratorActions().writeFile(m_path, "444", "content"));
    QVERIFY(AdministratorActions().setPathPermissions(m_path, "644"));
    QCOMPARE(log.records(), QStringList());
}

void tst_AdministratorActions::writeFile_content_isExact_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("text") << QByteArray("some text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray("\0a\0\0b\0", 6);
    QTest::newRow("line ends stay as they are") << QByteArray("a\nb\r\nc\rd\x1a"
                                                              "e");
    QTest::newRow("every byte value") << [] {
        QByteArray all;
        for (int value = 0; value < 256; ++value) {
            all.append(char(value));
        }
        return all;
    }();
    QTest::newRow("three million bytes") << QByteArray(3'000'000, 'x');
}

void tst_AdministratorActions::writeFile_content_isExact()
{
    QFETCH(const QByteArray, content);

    QVERIFY(AdministratorActions().writeFile(m_path, "644", content));
    QVERIFY(contentOf(QString::fromStdString(m_path)) == content);
    QVERIFY(!isReadOnly(QString::fromStdString(m_path)));
}

void tst_AdministratorActions::writeFile_longerFile_isTruncated()
{
    QVERIFY(makeFile(QString::fromStdString(m_path), "something much longer"));
    QVERIFY(AdministratorActions().writeFile(m_path, "644", "short"));
    QCOMPARE(contentOf(QString::fromStdString(m_path)), QByteArray("short"));
    QVERIFY(AdministratorActions().writeFile(m_path, "644", QByteArray()));
    QCOMPARE(contentOf(QString::fromStdString(m_path)), QByteArray());
}

void tst_AdministratorActions::writeFile_missingFolder_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const QString path = m_folder + QDir::separator() + u"none" + QDir::separator() + u"file";
    QVERIFY(!AdministratorActions().writeFile(path.toStdString(), "444", "content"));
    const std::string line = lineStart("writeFile") + "Cannot create file for writing: " + path.toStdString();
    QCOMPARE(log.records(), QStringList{QString::fromStdString(line)}); // nothing of permissions
    QVERIFY(QDir(m_folder).isEmpty());
}

void tst_AdministratorActions::writeFile_missingFolder_doesNotLookAtPermissions()
{
    const std::string path = m_path + "/none";
    QVERIFY(!AdministratorActions().writeFile(path, "abc", "content")); // throws nothing
    QVERIFY(!AdministratorActions().writeFile(path, "77777777777777", "content"));
}

void tst_AdministratorActions::writeFile_ontoFolder_isLogged()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(!AdministratorActions().writeFile(m_folder.toStdString(), "444", "content"));
    const std::string line = lineStart("writeFile") + "Cannot create file for writing: " + m_folder.toStdString();
    QCOMPARE(log.records(), QStringList{QString::fromStdString(line)});
    QVERIFY(!isReadOnly(m_folder));
}

void tst_AdministratorActions::writeFile_readOnlyPermissions_areForTheNextWriter()
{
    const OrdinaryUser user;
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        QSKIP("Only an administrator may write into the temporary folder.");
    }
    const QString path = folder.filePath(u"file"_qs);
    const AdministratorActions actions;
    QVERIFY(actions.writeFile(path.toStdString(), "444", "through the open handle"));
    QCOMPARE(contentOf(path), QByteArray("through the open handle"));
    QVERIFY(isReadOnly(path));
    if (QFile(path).open(QIODevice::ReadWrite)) {
        QVERIFY(actions.setPathPermissions(path.toStdString(), "644"));
        QSKIP("The system lets the user write files that are read-only."); // as Wine does for an administrator
    }

    QVERIFY(!actions.writeFile(path.toStdString(), "644", "second"));
    QCOMPARE(contentOf(path), QByteArray("through the open handle"));
    QVERIFY(isReadOnly(path));
    QVERIFY(actions.setPathPermissions(path.toStdString(), "644"));
    QVERIFY(actions.writeFile(path.toStdString(), "644", "third"));
    QCOMPARE(contentOf(path), QByteArray("third"));
}

void tst_AdministratorActions::writeFile_malformedPermissions_leaveEmptyFile_data()
{
    QTest::addColumn<bool>("isThere");

    QTest::newRow("new file") << false;
    QTest::newRow("existing file") << true;
}

void tst_AdministratorActions::writeFile_malformedPermissions_leaveEmptyFile()
{
    QFETCH(const bool, isThere);

    const QString path = QString::fromStdString(m_path);
    const AdministratorActions actions;
    QVERIFY(!isThere || makeFile(path, "before"));
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, (void)actions.writeFile(m_path, "abc", "data"));
    QVERIFY(QFileInfo(path).isFile());
    QCOMPARE(contentOf(path), QByteArray()); // the permissions come before the data
    QVERIFY(!isThere || makeFile(path, "before"));
    QVERIFY_THROWS_EXCEPTION(std::out_of_range, (void)actions.writeFile(m_path, "77777777777777", "data"));
    QCOMPARE(contentOf(path), QByteArray());
}

void tst_AdministratorActions::writeFile_otherThanLatinName_dependsOnTheNarrowEncoding()
{
    const QString path = m_folder + QDir::separator() + u"gr\u00fc\u00df\u0434 file";
    const std::string narrow = path.toStdString();
    // The file's name is UTF-8 in any case, that of the permissions is what this constructor makes of it.
    const bool isSameName = std::filesystem::path(narrow) == std::filesystem::path(path.toStdU16String());
    QCOMPARE(AdministratorActions().writeFile(narrow, "644", "data"), isSameName);
    QCOMPARE(contentOf(path), isSameName ? QByteArray("data") : QByteArray());
}

void tst_AdministratorActions::failures_withoutLogger_areFalse()
{
    const AdministratorActions actions;
    QVERIFY(!actions.setPathPermissions(m_path, "755"));
    QVERIFY(!actions.writeFile(m_path + "/none", "755", "data"));
}

void tst_AdministratorActions::object_onSecondThread_works()
{
    bool isWritten = false;
    std::thread thread([this, &isWritten] {
        const AdministratorActions actions;
        isWritten = actions.writeFile(m_path, "444", "data") && actions.setPathPermissions(m_path, "644");
    });
    thread.join();
    QVERIFY(isWritten);
    QCOMPARE(contentOf(QString::fromStdString(m_path)), QByteArray("data"));
    QVERIFY(!isReadOnly(QString::fromStdString(m_path)));
}

void tst_AdministratorActions::object_severalAtOnce_work()
{
    const AdministratorActions first;
    {
        const AdministratorActions second;
        QVERIFY(second.writeFile(m_path, "644", "second"));
    }
    QVERIFY(first.writeFile(m_path, "644", "first"));
    QCOMPARE(contentOf(QString::fromStdString(m_path)), QByteArray("first"));
}

QTEST_GUILESS_MAIN(tst_AdministratorActions)

#include "tst_AdministratorActions.moc"
