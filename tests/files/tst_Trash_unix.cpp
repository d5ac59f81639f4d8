// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTraps_unix.h"
#include "files/FileTrees.h"
#include "support/Sandbox.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtTest/QTest>

using namespace ZYX_zglv6;
using FileTrees::treeOf;

namespace {

/*! What the info file of a thing in the trash says. */
struct TrashInfo
{
    QString path;
    QDateTime deletion;
};

TrashInfo readInfo(const QString &file)
{
    const QStringList lines = QString::fromUtf8(FileTrees::contentOf(file)).split(u'\n');
    if (lines.value(0) != u"[Trash Info]") {
        return {};
    }
    TrashInfo info;
    for (const QString &line : lines) {
        if (line.startsWith(u"Path=")) {
            info.path = QUrl::fromPercentEncoding(line.mid(5).toUtf8());
        } else if (line.startsWith(u"DeletionDate=")) {
            info.deletion = QDateTime::fromString(line.mid(13), u"yyyy-MM-ddThh:mm:ss"_qs);
        }
    }
    return info;
}

} // namespace

/*! The user's trash is a folder here, laid out as desktops agreed on. */
class tst_Trash_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void entry_liesInTheTrashWithItsOrigin_data();
    void entry_liesInTheTrashWithItsOrigin();
    void folder_takesItsContentAlong();
    void nameThatIsThereAlready_keepsBoth();
    void relativePath();
    void link_goesAndItsTargetStays();
    void brokenLink_fails();
    void fileThatMayNotBeMoved_failsAndStays();
    void trashThatCantBeMade_failsAndTheFileStays();
    void anotherProgram_listsAndRestoresIt();

private:
    QString at(const QString &name) const;
    QString trash(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
};

void tst_Trash_unix::init()
{
    for (const QString &folder : {at(QString()), trash(QString())}) {
        QVERIFY(!QFileInfo::exists(folder) || QDir(folder).removeRecursively());
    }
    QVERIFY(QDir().mkpath(at(QString())));
}

QString tst_Trash_unix::at(const QString &name) const
{
    return m_sandbox.filePath(u"pictures/"_qs + name);
}

QString tst_Trash_unix::trash(const QString &name) const
{
    return m_sandbox.filePath(u".local/share/Trash/"_qs + name);
}

void tst_Trash_unix::entry_liesInTheTrashWithItsOrigin_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << u"a.tif"_qs;
    QTest::newRow("blank, umlaut, emoji") << u"a \u00fc \U0001F39E.tif"_qs;
    QTest::newRow("percent") << u"100%25.tif"_qs;
    QTest::newRow("new line") << u"a\nDeletionDate=b.tif"_qs;
    QTest::newRow("hidden") << u".hidden"_qs;
    QTest::newRow("no extension") << u"a"_qs;
    QTest::newRow("pattern") << u"[a]*?.tif"_qs;
}

void tst_Trash_unix::entry_liesInTheTrashWithItsOrigin()
{
    QFETCH(const QString, name);
    QVERIFY(FileTrees::make(at(QString()), {name, u"other"_qs}));
    const QDateTime before = QDateTime::currentDateTime().addSecs(-1); // the date has no milliseconds
    QCOMPARE(moveFileToTrash(at(name)), FileManagement::FileOperationSucceeded);
    QCOMPARE(treeOf(at(QString())), QStringList{u"other=other"_qs});
    QCOMPARE(treeOf(trash(u"files"_qs)), QStringList{QString(name + u'=' + name)});
    const TrashInfo info = readInfo(trash(u"info/"_qs + name + u".trashinfo"));
    QCOMPARE(info.path, at(name));
    QVERIFY(info.deletion >= before && info.deletion <= QDateTime::currentDateTime());
}

void tst_Trash_unix::folder_takesItsContentAlong()
{
    QVERIFY(FileTrees::make(at(QString()), {u"f/a"_qs, u"f/sub/.b"_qs, u"f/empty/"_qs}));
    const QStringList content = treeOf(at(u"f"_qs));
    QCOMPARE(moveFileToTrash(at(u"f"_qs)), FileManagement::FileOperationSucceeded);
    QCOMPARE(treeOf(at(QString())), QStringList());
    QCOMPARE(treeOf(trash(u"files/f"_qs)), content);
    QCOMPARE(readInfo(trash(u"info/f.trashinfo"_qs)).path, at(u"f"_qs));
}

void tst_Trash_unix::nameThatIsThereAlready_keepsBoth()
{
    QStringList contents;
    for (const QByteArray &content : {QByteArray("first"), QByteArray("second"), QByteArray("third")}) {
        QVERIFY(FileTrees::write(at(u"a.tif"_qs), content));
        QCOMPARE(moveFileToTrash(at(u"a.tif"_qs)), FileManagement::FileOperationSucceeded);
        QCOMPARE(treeOf(at(QString())), QStringList());
    }
    for (const QFileInfo &file : QDir(trash(u"files"_qs)).entryInfoList(QDir::Files)) {
        contents.append(QString::fromUtf8(FileTrees::contentOf(file.filePath())));
        QCOMPARE(readInfo(trash(u"info/"_qs + file.fileName() + u".trashinfo")).path, at(u"a.tif"_qs));
    }
    contents.sort();
    QCOMPARE(contents, (QStringList{u"first"_qs, u"second"_qs, u"third"_qs}));
}

void tst_Trash_unix::relativePath()
{
    QVERIFY(FileTrees::make(at(QString()), {u"sub/a"_qs}));
    const QString before = QDir::currentPath();
    const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
    QVERIFY(QDir::setCurrent(at(QString())));
    QCOMPARE(moveFileToTrash(u"sub/a"_qs), FileManagement::FileOperationSucceeded);
    QCOMPARE(treeOf(at(QString())), QStringList{u"sub/"_qs});
    QCOMPARE(readInfo(trash(u"info/a.trashinfo"_qs)).path, at(u"sub/a"_qs));
}

void tst_Trash_unix::link_goesAndItsTargetStays()
{
    QVERIFY(FileTrees::make(at(QString()), {u"a"_qs}));
    QVERIFY(FileTraps::makeLink(at(u"a"_qs), at(u"link"_qs)));
    QCOMPARE(moveFileToTrash(at(u"link"_qs)), FileManagement::FileOperationSucceeded);
    QCOMPARE(treeOf(at(QString())), QStringList{u"a=a"_qs});
    QCOMPARE(treeOf(trash(u"files"_qs)), QStringList{u"link@"_qs});
}

void tst_Trash_unix::brokenLink_fails()
{
    QVERIFY(FileTraps::makeLink(u"none"_qs, at(u"broken"_qs))); // exists() follows it
    QCOMPARE(moveFileToTrash(at(u"broken"_qs)), FileManagement::FileOperationFailed);
    QCOMPARE(treeOf(at(QString())), QStringList{u"broken@"_qs});
}

void tst_Trash_unix::fileThatMayNotBeMoved_failsAndStays()
{
    QVERIFY(FileTrees::make(at(QString()), {u"sub/a"_qs}));
    QVERIFY(QDir().mkpath(trash(u"files"_qs)) && QDir().mkpath(trash(u"info"_qs)));
    for (const QString &folder :
         {m_sandbox.filePath(QString()), trash(QString()), trash(u"files"_qs), trash(u"info"_qs)}) {
        QVERIFY(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
    }
    QVERIFY(QFile::setPermissions(at(u"sub"_qs), QFile::Permissions(0x5555)));
    {
        const FileTraps::OrdinaryUser user;
        QCOMPARE(moveFileToTrash(at(u"sub/a"_qs)), FileManagement::FileOperationFailed);
    }
    QVERIFY(QFile::setPermissions(at(u"sub"_qs), QFile::Permissions(0x7755)));
    QCOMPARE(treeOf(at(QString())), (QStringList{u"sub/"_qs, u"sub/a=sub/a"_qs}));
}

void tst_Trash_unix::trashThatCantBeMade_failsAndTheFileStays()
{
    const QString inTheWay = QDir::cleanPath(trash(QString()));
    QVERIFY(FileTrees::make(at(QString()), {u"a"_qs}) && QDir().mkpath(QFileInfo(inTheWay).path()));
    QVERIFY(QFile(inTheWay).open(QIODevice::WriteOnly));
    QCOMPARE(moveFileToTrash(at(u"a"_qs)), FileManagement::FileOperationFailed);
    QVERIFY(QFile::remove(inTheWay));
    QCOMPARE(treeOf(at(QString())), QStringList{u"a=a"_qs});
}

void tst_Trash_unix::anotherProgram_listsAndRestoresIt()
{
    const QString bus = QStandardPaths::findExecutable(u"dbus-run-session"_qs);
    const QString gio = QStandardPaths::findExecutable(u"gio"_qs);
    if (bus.isEmpty() || gio.isEmpty()) {
        QSKIP("gio or dbus-run-session is missing");
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_RUNTIME_DIR"_qs, m_sandbox.filePath(u"run"_qs));
    environment.insert(u"GVFS_DISABLE_FUSE"_qs, u"1"_qs);
    QVERIFY(QDir().mkpath(m_sandbox.filePath(u"run"_qs)));
    const auto call = [&](const QStringList &arguments) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(bus, QStringList{u"--"_qs, gio, u"trash"_qs} + arguments);
        process.waitForFinished(60'000);
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    QVERIFY(FileTrees::make(at(QString()), {u"a b.tif"_qs}));
    QCOMPARE(moveFileToTrash(at(u"a b.tif"_qs)), FileManagement::FileOperationSucceeded);
    const QString listed = call({u"--list"_qs});
    if (listed.isEmpty()) {
        QSKIP("gio has no service that reads the trash");
    }
    QCOMPARE(listed, QString(u"trash:///a%20b.tif\t"_qs + at(u"a b.tif"_qs) + u'\n'));
    call({u"--restore"_qs, u"trash:///a%20b.tif"_qs});
    QCOMPARE(treeOf(at(QString())), QStringList{u"a b.tif=a b.tif"_qs});
    QCOMPARE(treeOf(trash(u"files"_qs)), QStringList());
}

QTEST_GUILESS_MAIN(tst_Trash_unix)
#include "tst_Trash_unix.moc"
