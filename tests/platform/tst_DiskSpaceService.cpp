// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DiskSpace.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtTest/QTest>

#include <filesystem>

using ZyxPlatform::availableDiskSpace;

class tst_DiskSpaceService : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void availableDiskSpace_folder_isWhatTheUserMayWrite();
    void availableDiskSpace_currentFolder_isThatOfItsVolume();
    void availableDiskSpace_missingPath_isZero_data();
    void availableDiskSpace_missingPath_isZero();

private:
    TestSupport::Sandbox m_sandbox;
};

namespace {

/*! Others write meanwhile. */
bool isNearby(qint64 bytes, qint64 otherBytes)
{
    return qAbs(bytes - otherBytes) < qint64(1) << 30;
}

qint64 expectedSpace(const QString &folder)
{
    return qint64(std::filesystem::space(std::filesystem::path(folder.toStdU16String())).available);
}

} // namespace

void tst_DiskSpaceService::availableDiskSpace_folder_isWhatTheUserMayWrite()
{
    const QString folder = QDir::toNativeSeparators(m_sandbox.filePath(QString()));
    const qint64 space = availableDiskSpace(folder);
    QVERIFY(space > 0);
    QVERIFY2(isNearby(space, expectedSpace(folder)), qPrintable(QString::number(space)));
}

void tst_DiskSpaceService::availableDiskSpace_currentFolder_isThatOfItsVolume()
{
    QVERIFY(isNearby(availableDiskSpace(u"."_qs), expectedSpace(u"."_qs)));
}

void tst_DiskSpaceService::availableDiskSpace_missingPath_isZero_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("missing") << u"none"_qs;
    QTest::newRow("missing, with blanks") << u"none of them"_qs;
    QTest::newRow("below a missing one") << u"none/below"_qs;
}

void tst_DiskSpaceService::availableDiskSpace_missingPath_isZero()
{
    QFETCH(const QString, name);

    QCOMPARE(availableDiskSpace(QDir::toNativeSeparators(m_sandbox.filePath(name))), 0);
}

QTEST_GUILESS_MAIN(tst_DiskSpaceService)

#include "tst_DiskSpaceService.moc"
