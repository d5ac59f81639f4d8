// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Permissions.h"

#include "support/Sandbox.h"

#include <QtCore/QFile>
#include <QtTest/QTest>

using ZyxPlatform::setPermissions;

/*! The result; what a mode does is tested with the class that takes one. */
class tst_Permissions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setPermissions_file_hasNoError();
    void setPermissions_missing_hasTheSystemsError();

private:
    std::filesystem::path at(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
};

std::filesystem::path tst_Permissions::at(const QString &name) const
{
    return m_sandbox.filePath(name).toStdU16String();
}

void tst_Permissions::setPermissions_file_hasNoError()
{
    const QString name = u"gr\u00fc\u00df \u043f\u0443\u0442\u044c"_qs;
    QFile file(m_sandbox.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    constexpr auto writing = std::filesystem::perms(0222);
    for (const int mode : {0444, 0444, 0666, 0666}) { // again what it has already
        QVERIFY(!setPermissions(at(name), mode));
        const auto permissions = std::filesystem::status(at(name)).permissions();
        QCOMPARE((permissions & writing) == std::filesystem::perms::none, mode == 0444);
    }
}

void tst_Permissions::setPermissions_missing_hasTheSystemsError()
{
    QVERIFY(setPermissions(at(u"none"_qs), 0444) == std::errc::no_such_file_or_directory);
    QVERIFY(setPermissions(at(u"none/below"_qs), 0444) == std::errc::no_such_file_or_directory);
    QVERIFY(setPermissions({}, 0444) == std::errc::no_such_file_or_directory);
    QVERIFY(!std::filesystem::exists(at(u"none"_qs)));
}

QTEST_GUILESS_MAIN(tst_Permissions)

#include "tst_Permissions.moc"
