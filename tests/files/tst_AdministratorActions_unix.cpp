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
#include <QtTest/QTest>

#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

using TestSupport::OrdinaryUser;
using TestSupport::TestLog;

namespace {

const QString permissionsLine
    = u"ERROR AdministratorActions::setPathPermissions: Cannot set permissions to folder %1 error: %2"_qs;

unsigned modeOf(const std::string &path)
{
    struct stat status
    {
    };
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777u : ~0u;
}

std::string octal(unsigned mode)
{
    return QByteArray::number(mode, 8).toStdString();
}

QByteArray contentOf(const char *path)
{
    QFile file(QFile::decodeName(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

/*! What happens to the files of a folder while it lives. */
class FolderEvents
{
public:
    explicit FolderEvents(const std::string &folder)
        : m_queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
        , m_watch(inotify_add_watch(m_queue, folder.c_str(), IN_CREATE | IN_ATTRIB | IN_MODIFY | IN_CLOSE_WRITE))
    {
    }
    ~FolderEvents()
    {
        close(m_queue);
    }
    FolderEvents(const FolderEvents &) = delete;
    FolderEvents &operator=(const FolderEvents &) = delete;

    bool isValid() const
    {
        return m_watch >= 0;
    }
    QList<unsigned> read() const
    {
        alignas(inotify_event) char bytes[4096];
        const ssize_t size = ::read(m_queue, bytes, sizeof(bytes));
        QList<unsigned> events;
        for (const char *at = bytes; at < bytes + size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(at);
            events.append(event->mask);
            at += sizeof(inotify_event) + event->len;
        }
        return events;
    }

private:
    int m_queue;
    int m_watch;
};

} // namespace

/*! Here a mode counts in full, and the system has files of its own to refuse what is asked of them. */
class tst_AdministratorActions_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setPathPermissions_mode_isSetInFull_data();
    void setPathPermissions_mode_isSetInFull();
    void setPathPermissions_link_isFollowed();
    void setPathPermissions_failure_hasTheSystemsMessage_data();
    void setPathPermissions_failure_hasTheSystemsMessage();
    void setPathPermissions_anothersFolder_mayHaveTheModeAlready();
    void writeFile_permissions_areSetBeforeTheData();
    void writeFile_modeOfNewFile_isWhatWasAsked();
    void writeFile_permissionsFail_nothingIsWritten();
    void writeFile_fullDisk_isFalse();
    void writeFile_link_leadsToTheFile();

private:
    TestSupport::Sandbox m_sandbox;
    std::string m_folder; // empty at the start of each function
    std::string m_path; // of a file in it that is not there yet
};

void tst_AdministratorActions_unix::init()
{
    const QString folder = m_sandbox.filePath(u"work"_qs);
    QVERIFY(QDir().mkpath(folder));
    m_folder = folder.toStdString();
    m_path = m_folder + "/file";
}

void tst_AdministratorActions_unix::cleanup()
{
    QVERIFY(QDir(QString::fromStdString(m_folder)).removeRecursively());
}

void tst_AdministratorActions_unix::setPathPermissions_mode_isSetInFull_data()
{
    QTest::addColumn<QString>("permissions");
    QTest::addColumn<unsigned>("mode");

    const auto row = [](const char *permissions, unsigned mode) {
        QTest::addRow("\"%s\"", permissions) << QString::fromUtf8(permissions) << mode;
    };
    row("444", 0444);
    row("644", 0644);
    row("755", 0755);
    row("600", 0600);
    row("0", 0);
    row("7", 07);
    row("70", 070);
    row("777", 0777);
    row("1777", 01777);
    row("2755", 02755);
    row("4755", 04755);
    row("7777", 07777);
    row("0755", 0755);
    row("00000000755", 0755);
    row(" 755", 0755);
    row("\n\t755", 0755);
    row("+755", 0755);
    row("755abc", 0755);
    row("7558", 0755);
    row("755 600", 0755);
    row("0x755", 0);
    row("-1", 07777);
    row("-755", 07023); // the lower bits of a negative number
    row("10000", 0); // above 7777 there is nothing
    row("17654", 07654);
    row("100644", 0644);
    row("17777777777", 07777);
    row("-20000000000", 0);
}

void tst_AdministratorActions_unix::setPathPermissions_mode_isSetInFull()
{
    QFETCH(const QString, permissions);
    QFETCH(const unsigned, mode);

    const std::string folder = m_folder + "/folder";
    QVERIFY(AdministratorActions().writeFile(m_path, "755", "content"));
    QCOMPARE(mkdir(folder.c_str(), 0755), 0);
    for (const std::string &path : {m_path, folder}) {
        QVERIFY(AdministratorActions().setPathPermissions(path, permissions.toStdString()));
        QCOMPARE(modeOf(path), mode);
        QVERIFY(AdministratorActions().setPathPermissions(path, permissions.toStdString())); // it has them already
        QCOMPARE(modeOf(path), mode);
    }
    QCOMPARE(chmod(folder.c_str(), 0755), 0); // else it could not be removed
}

void tst_AdministratorActions_unix::setPathPermissions_link_isFollowed()
{
    const std::string link = m_folder + "/link";
    const std::string linkToLink = m_folder + "/linkToLink";
    QVERIFY(AdministratorActions().writeFile(m_path, "644", "content"));
    QCOMPARE(symlink("file", link.c_str()), 0);
    QCOMPARE(symlink("link", linkToLink.c_str()), 0);
    QVERIFY(AdministratorActions().setPathPermissions(link, "444"));
    QCOMPARE(modeOf(m_path), 0444u);
    QVERIFY(AdministratorActions().setPathPermissions(linkToLink, "600"));
    QCOMPARE(modeOf(m_path), 0600u);
    QVERIFY(QFileInfo(QString::fromStdString(link)).isSymLink());
    QVERIFY(QFileInfo(QString::fromStdString(linkToLink)).isSymLink());
}

void tst_AdministratorActions_unix::setPathPermissions_failure_hasTheSystemsMessage_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("message");

    QTest::newRow("missing") << u"missing"_qs << u"No such file or directory"_qs;
    QTest::newRow("missing, other than Latin") << u"gr\u00fc\u00df \u0434"_qs << u"No such file or directory"_qs;
    QTest::newRow("missing folder") << u"missing/file"_qs << u"No such file or directory"_qs;
    QTest::newRow("dangling link") << u"dangling"_qs << u"No such file or directory"_qs;
    QTest::newRow("below a file") << u"file/below"_qs << u"Not a directory"_qs;
    QTest::newRow("link to itself") << u"loop"_qs << u"Too many levels of symbolic links"_qs;
    QTest::newRow("long name") << QString(300, u'n') << u"File name too long"_qs;
}

void tst_AdministratorActions_unix::setPathPermissions_failure_hasTheSystemsMessage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, name);
    QFETCH(const QString, message);

    QVERIFY(AdministratorActions().writeFile(m_path, "644", "content"));
    QCOMPARE(symlink("none", (m_folder + "/dangling").c_str()), 0);
    QCOMPARE(symlink("loop", (m_folder + "/loop").c_str()), 0);
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    const std::string path = m_folder + '/' + name.toStdString();
    for (const char *permissions : {"755", "0", "-1"}) {
        QVERIFY(!AdministratorActions().setPathPermissions(path, permissions));
    }
    const QString line = permissionsLine.arg(QString::fromStdString(path), message);
    QCOMPARE(log.records(), (QStringList{line, line, line}));
    QVERIFY(!QFileInfo::exists(m_sandbox.filePath(u"work/none"_qs)));
}

void tst_AdministratorActions_unix::setPathPermissions_anothersFolder_mayHaveTheModeAlready()
{
    RUN_IN_FRESH_PROCESS();
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    struct stat root
    {
    };
    QCOMPARE(stat("/", &root), 0);
    const unsigned mode = root.st_mode & 07777u;
    {
        const OrdinaryUser user;
        if (root.st_uid == geteuid()) {
            QSKIP("The root folder belongs to the user.");
        }
        QVERIFY(AdministratorActions().setPathPermissions("/", octal(mode)));
        QVERIFY(AdministratorActions().setPathPermissions("/", octal(mode + 0100000u))); // bits that no mode has
        QVERIFY(!AdministratorActions().setPathPermissions("/", octal(mode ^ 01u)));
    }
    QCOMPARE(log.records(), QStringList{permissionsLine.arg(u"/"_qs, u"Operation not permitted"_qs)});
    QCOMPARE(modeOf("/"), mode);
}

void tst_AdministratorActions_unix::writeFile_permissions_areSetBeforeTheData()
{
    const FolderEvents events(m_folder);
    if (!events.isValid()) {
        QSKIP("The system does not tell what happens in a folder.");
    }
    QVERIFY(AdministratorActions().writeFile(m_path, "440", "data"));
    QCOMPARE(events.read(), (QList<unsigned>{IN_CREATE, IN_ATTRIB, IN_MODIFY, IN_CLOSE_WRITE}));
    QCOMPARE(modeOf(m_path), 0440u);

    QVERIFY(AdministratorActions().setPathPermissions(m_path, "600"));
    QCOMPARE(events.read(), QList<unsigned>{IN_ATTRIB});
    QVERIFY(AdministratorActions().writeFile(m_path, "400", "next"));
    QCOMPARE(events.read(), (QList<unsigned>{IN_MODIFY, IN_ATTRIB, IN_MODIFY, IN_CLOSE_WRITE})); // first it is emptied
    QCOMPARE(contentOf(m_path.c_str()), QByteArray("next"));
}

void tst_AdministratorActions_unix::writeFile_modeOfNewFile_isWhatWasAsked()
{
    const mode_t before = umask(077);
    const bool isWritten = AdministratorActions().writeFile(m_path, "666", "data"); // the mask has no say
    umask(before);
    QVERIFY(isWritten);
    QCOMPARE(modeOf(m_path), 0666u);
}

void tst_AdministratorActions_unix::writeFile_permissionsFail_nothingIsWritten()
{
    RUN_IN_FRESH_PROCESS();
    const char *path = "/proc/self/comm"; // the process's name: to be written, but its mode stays whoever asks
    if (access(path, W_OK) != 0) {
        QSKIP("The process can't write its own name.");
    }
    const std::string mode = octal(modeOf(path));
    QVERIFY(AdministratorActions().writeFile(path, mode, "before"));
    QCOMPARE(contentOf(path), QByteArray("before\n"));

    const TestLog log(m_sandbox.filePath(u"data"_qs));
    QVERIFY(!AdministratorActions().writeFile(path, "600", "after"));
    QCOMPARE(contentOf(path), QByteArray("before\n"));
    const QString line = permissionsLine.arg(QString::fromUtf8(path), u"Operation not permitted"_qs);
    QCOMPARE(log.records(), QStringList{line}); // nothing more of the data
}

void tst_AdministratorActions_unix::writeFile_fullDisk_isFalse()
{
    const char *path = "/dev/full";
    const OrdinaryUser user; // who can't change the device
    if (access(path, W_OK) != 0) {
        QSKIP("There is no /dev/full.");
    }
    const std::string mode = octal(modeOf(path));
    QVERIFY(!AdministratorActions().writeFile(path, mode, "a")); // less than any buffer
    QVERIFY(!AdministratorActions().writeFile(path, mode, QByteArray(1'000'000, 'x')));
    QVERIFY(AdministratorActions().writeFile(path, mode, QByteArray())); // none of none was written
}

void tst_AdministratorActions_unix::writeFile_link_leadsToTheFile()
{
    const std::string link = m_folder + "/link";
    QCOMPARE(symlink("file", link.c_str()), 0);
    QVERIFY(AdministratorActions().writeFile(link, "640", "data"));
    QVERIFY(QFileInfo(QString::fromStdString(link)).isSymLink());
    QCOMPARE(contentOf(m_path.c_str()), QByteArray("data"));
    QCOMPARE(modeOf(m_path), 0640u);
}

QTEST_GUILESS_MAIN(tst_AdministratorActions_unix)

#include "tst_AdministratorActions_unix.moc"
