// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "files/FileTrees.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>

#include <windows.h>

using namespace ZYX_zglv6;
using FileTrees::treeOf;

namespace {

bool setAttributes(const QString &path, DWORD attributes)
{
    return SetFileAttributesW(reinterpret_cast<const wchar_t *>(path.utf16()), attributes) != 0;
}

QString missingDrive()
{
    const QFileInfoList drives = QDir::drives();
    for (char16_t letter = u'D'; letter <= u'Z'; ++letter) {
        const QString root = QChar(letter) + u":/"_qs;
        const auto isThis = [&root](const QFileInfo &drive) { return drive.filePath() == root; };
        if (std::none_of(drives.begin(), drives.end(), isThis)) {
            return root;
        }
    }
    return {};
}

} // namespace

class tst_FileUtils_win : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void copyRecursively_leavesHiddenAndSystemEntriesOut();
    void copyRecursively_intoItselfInOtherLetters_isRefused();
    void copyRecursively_ontoMissingDrive_isRefused();
    void removeDirectoryContent_removesHiddenAndSystemFiles();
    void moveFileToTrash_takesTheFile();
    void neighbours_areAlsoHiddenAndSystemFiles();

private:
    QString at(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_FileUtils_win::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(FileTrees::make(at(u"source"_qs), {u"a"_qs, u"hidden"_qs, u"sub/b"_qs, u"system"_qs}));
    QVERIFY(setAttributes(at(u"source/hidden"_qs), FILE_ATTRIBUTE_HIDDEN));
    QVERIFY(setAttributes(at(u"source/system"_qs), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
}

void tst_FileUtils_win::copyRecursively_leavesHiddenAndSystemEntriesOut()
{
    QVERIFY(copyRecursively(at(u"source"_qs), at(u"target"_qs)));
    QCOMPARE(treeOf(at(u"target"_qs)), (QStringList{u"a=a"_qs, u"sub/"_qs, u"sub/b=sub/b"_qs}));
}

void tst_FileUtils_win::copyRecursively_intoItselfInOtherLetters_isRefused()
{
    QVERIFY(!copyRecursively(at(u"source"_qs), at(u"SOURCE/new"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"source/new"_qs)));
}

void tst_FileUtils_win::copyRecursively_ontoMissingDrive_isRefused()
{
    const QString drive = missingDrive();
    if (drive.isEmpty()) {
        QSKIP("there is a drive for each letter");
    }
    QVERIFY(!copyRecursively(at(u"source"_qs), drive));
    QVERIFY(!copyRecursively(at(u"source"_qs), drive + u"backup/photos"_qs));
    QVERIFY(!copyRecursively(at(u"source/a"_qs), drive + u"a"_qs));
}

void tst_FileUtils_win::removeDirectoryContent_removesHiddenAndSystemFiles()
{
    QVERIFY(removeDirectoryContent(QDir(at(u"source"_qs))));
    QCOMPARE(treeOf(at(u"source"_qs)), QStringList{u"sub/"_qs});
}

void tst_FileUtils_win::moveFileToTrash_takesTheFile()
{
    QCOMPARE(moveFileToTrash(QDir::toNativeSeparators(at(u"source/a"_qs))), FileManagement::FileOperationSucceeded);
    QVERIFY(!QFileInfo::exists(at(u"source/a"_qs)));
    QVERIFY(QFileInfo::exists(at(u"source/sub/b"_qs)));
}

void tst_FileUtils_win::neighbours_areAlsoHiddenAndSystemFiles()
{
    const QStringList names{u"a"_qs, u"hidden"_qs, u"sub"_qs, u"system"_qs};
    for (qsizetype i = 0; i + 1 < names.size(); ++i) {
        const QString path = at(u"source/"_qs + names.at(i));
        QCOMPARE(QFileInfo(getNextFilePath(path)).fileName(), names.at(i + 1));
    }
}

QTEST_GUILESS_MAIN(tst_FileUtils_win)
#include "tst_FileUtils_win.moc"
