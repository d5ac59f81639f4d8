// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Trash.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

using ZyxPlatform::moveToTrash;

class tst_TrashService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void moveToTrash_file_isGone_data();
    void moveToTrash_file_isGone();
    void moveToTrash_folder_goesWithItsContent();
    void moveToTrash_missing_isFalse();

private:
    QString at(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
};

QString tst_TrashService::at(const QString &name) const
{
    return QDir::toNativeSeparators(m_sandbox.filePath(name));
}

void tst_TrashService::initTestCase()
{
    // Where the home folder has a place for a trash, nothing goes to one outside the sandbox.
    QVERIFY(QDir().mkpath(m_sandbox.filePath(u".local/share"_qs)));
}

void tst_TrashService::moveToTrash_file_isGone_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("plain") << u"file"_qs;
    QTest::newRow("the same name again") << u"file"_qs;
    QTest::newRow("blanks") << u"two  words"_qs;
    QTest::newRow("other than Latin") << u"gr\u00fc\u00df \u043f\u0443\u0442\u044c"_qs;
}

void tst_TrashService::moveToTrash_file_isGone()
{
    QFETCH(const QString, name);

    for (const QString &path : {at(name), at(name + u" neighbour")}) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("content") == 7);
    }
    QVERIFY(moveToTrash(at(name)));
    QVERIFY(!QFileInfo::exists(at(name)));
    QVERIFY(QFileInfo::exists(at(name + u" neighbour")));
}

void tst_TrashService::moveToTrash_folder_goesWithItsContent()
{
    QVERIFY(QDir().mkpath(at(u"folder/within"_qs)));
    QVERIFY(moveToTrash(at(u"folder"_qs)));
    QVERIFY(!QFileInfo::exists(at(u"folder"_qs)));
}

void tst_TrashService::moveToTrash_missing_isFalse()
{
    QVERIFY(!moveToTrash(at(u"none"_qs)));
}

QTEST_GUILESS_MAIN(tst_TrashService)

#include "tst_TrashService.moc"
