// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/DosTimes.h"

#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

using namespace ZyxPlatform;

namespace {

constexpr quint32 dosTime(int year, int month, int day, int hour, int minute, int second)
{
    return quint32((year - 1980) << 25 | month << 21 | day << 16 | hour << 11 | minute << 5 | second / 2);
}

bool setTimes(const QString &path, const QDateTime &written, const QDateTime &read)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.setFileTime(read, QFileDevice::FileAccessTime)
        && file.setFileTime(written, QFileDevice::FileModificationTime);
}

QDateTime utc(int year, int month, int day, int hour, int minute, int second)
{
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

} // namespace

class tst_DosTimes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void lastWriteDosTime_isLocal_data();
    void lastWriteDosTime_isLocal();
    void lastWriteDosTime_inAZone_data();
    void lastWriteDosTime_inAZone();
    void lastWriteDosTime_ofNothing_isZero();
    void setDosTime_keepsTheLastReading_data();
    void setDosTime_keepsTheLastReading();
    void setDosTime_inAZone_data();
    void setDosTime_inAZone();
    void setDosTime_thatIsNone_changesNothing_data();
    void setDosTime_thatIsNone_changesNothing();
    void setDosTime_ofNothing_makesNoFile();

private:
    QByteArray narrowPath() const
    {
        return QFile::encodeName(m_path);
    }

    TestSupport::Sandbox m_sandbox;
    QString m_path;
};

void tst_DosTimes::init()
{
    m_path = m_sandbox.filePath(u"file"_qs);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

void tst_DosTimes::lastWriteDosTime_isLocal_data()
{
    QTest::addColumn<QDateTime>("written");
    QTest::addColumn<quint32>("time");

    QTest::newRow("summer") << QDateTime(QDate(2021, 7, 14), QTime(12, 34, 56)) << dosTime(2021, 7, 14, 12, 34, 56);
    QTest::newRow("winter") << QDateTime(QDate(2021, 1, 2), QTime(3, 4, 6)) << dosTime(2021, 1, 2, 3, 4, 6);
    QTest::newRow("leap day") << QDateTime(QDate(2024, 2, 29), QTime(23, 59, 58)) << dosTime(2024, 2, 29, 23, 59, 58);
    QTest::newRow("odd second") << QDateTime(QDate(2021, 7, 14), QTime(12, 34, 57)) << dosTime(2021, 7, 14, 12, 34, 56);
    QTest::newRow("the first") << QDateTime(QDate(1980, 1, 1), QTime(0, 0, 0)) << dosTime(1980, 1, 1, 0, 0, 0);
    QTest::newRow("too early") << QDateTime(QDate(1979, 12, 31), QTime(23, 59, 58)) << 0u;
    QTest::newRow("long before") << QDateTime(QDate(1970, 1, 2), QTime(0, 0, 0)) << 0u;
    QTest::newRow("the last") << QDateTime(QDate(2107, 12, 31), QTime(23, 59, 58)) << dosTime(2107, 12, 31, 23, 59, 58);
#ifndef Q_OS_WIN // Wine begins anew there
    QTest::newRow("too late") << QDateTime(QDate(2108, 1, 1), QTime(0, 0, 0)) << 0u;
#endif
}

void tst_DosTimes::lastWriteDosTime_isLocal()
{
    QFETCH(const QDateTime, written);
    QVERIFY(setTimes(m_path, written, written));
    QTEST(lastWriteDosTime(narrowPath().constData()), "time");
}

void tst_DosTimes::lastWriteDosTime_inAZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QDateTime>("written");
    QTest::addColumn<quint32>("time");

    const QByteArray berlin("CET-1CEST,M3.5.0,M10.5.0/3");
    QTest::newRow("Greenwich") << QByteArray("UTC0") << utc(2021, 7, 14, 12, 0, 0) << dosTime(2021, 7, 14, 12, 0, 0);
    QTest::newRow("summer") << berlin << utc(2021, 7, 14, 12, 0, 0) << dosTime(2021, 7, 14, 14, 0, 0);
    QTest::newRow("winter") << berlin << utc(2021, 1, 14, 12, 0, 0) << dosTime(2021, 1, 14, 13, 0, 0);
    QTest::newRow("the next day") << QByteArray("JST-9") << utc(2021, 12, 31, 18, 0, 0) << dosTime(2022, 1, 1, 3, 0, 0);
    QTest::newRow("the day before") << QByteArray("EST5") << utc(2021, 3, 1, 1, 0, 0) << dosTime(2021, 2, 28, 20, 0, 0);
    QTest::newRow("half an hour") << QByteArray("IST-5:30") << utc(2021, 7, 14, 12, 0, 0)
                                  << dosTime(2021, 7, 14, 17, 30, 0);
    QTest::newRow("1979 there") << QByteArray("EST5") << utc(1980, 1, 1, 4, 59, 58) << 0u;
}

void tst_DosTimes::lastWriteDosTime_inAZone()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QDateTime, written);
#ifdef Q_OS_WIN
    QSKIP("The environment does not choose the time zone here.");
#endif
    RUN_IN_FRESH_PROCESS();
    qputenv("TZ", zone);
    QVERIFY(setTimes(m_path, written, written));
    QTEST(lastWriteDosTime(narrowPath().constData()), "time");
}

void tst_DosTimes::lastWriteDosTime_ofNothing_isZero()
{
    QCOMPARE(lastWriteDosTime(QFile::encodeName(m_sandbox.filePath(u"none"_qs)).constData()), 0u);
    QCOMPARE(lastWriteDosTime(""), 0u);
}

void tst_DosTimes::setDosTime_keepsTheLastReading_data()
{
    QTest::addColumn<quint32>("time");
    QTest::addColumn<QDateTime>("written");

    QTest::newRow("summer") << dosTime(2021, 7, 14, 12, 34, 56) << QDateTime(QDate(2021, 7, 14), QTime(12, 34, 56));
    QTest::newRow("winter") << dosTime(2021, 1, 2, 3, 4, 6) << QDateTime(QDate(2021, 1, 2), QTime(3, 4, 6));
    QTest::newRow("the first") << dosTime(1980, 1, 1, 0, 0, 0) << QDateTime(QDate(1980, 1, 1), QTime(0, 0, 0));
    QTest::newRow("the last") << dosTime(2107, 12, 31, 23, 59, 58) << QDateTime(QDate(2107, 12, 31), QTime(23, 59, 58));
}

void tst_DosTimes::setDosTime_keepsTheLastReading()
{
    QFETCH(const quint32, time);
    QFETCH(const QDateTime, written);
    const QDateTime before(QDate(2001, 2, 3), QTime(4, 5, 6));
    QVERIFY(setTimes(m_path, before, before));
    setDosTime(narrowPath().constData(), time);
    QCOMPARE(QFileInfo(m_path).lastModified(), written);
    QCOMPARE(QFileInfo(m_path).lastRead(), before);
    QCOMPARE(lastWriteDosTime(narrowPath().constData()), time);
}

void tst_DosTimes::setDosTime_inAZone_data()
{
    lastWriteDosTime_inAZone_data();
}

void tst_DosTimes::setDosTime_inAZone()
{
    QFETCH(const QByteArray, zone);
    QFETCH(const QDateTime, written);
    QFETCH(const quint32, time);
#ifdef Q_OS_WIN
    QSKIP("The environment does not choose the time zone here.");
#endif
    if (time == 0) {
        QSKIP("There is no such DOS time.");
    }
    RUN_IN_FRESH_PROCESS();
    qputenv("TZ", zone);
    setDosTime(narrowPath().constData(), time);
    QCOMPARE(QFileInfo(m_path).lastModified().toUTC(), written);
}

void tst_DosTimes::setDosTime_thatIsNone_changesNothing_data()
{
    QTest::addColumn<quint32>("time");

    QTest::newRow("zero") << 0u;
    QTest::newRow("all bits") << 0xffffffffu;
    QTest::newRow("month 0") << dosTime(2021, 0, 1, 0, 0, 0);
    QTest::newRow("month 13") << dosTime(2021, 13, 1, 0, 0, 0);
    QTest::newRow("day 0") << dosTime(2021, 1, 0, 0, 0, 0);
    QTest::newRow("30 February") << dosTime(2021, 2, 30, 0, 0, 0);
    QTest::newRow("31 April") << dosTime(2021, 4, 31, 0, 0, 0);
    QTest::newRow("hour 24") << dosTime(2021, 1, 1, 24, 0, 0);
    QTest::newRow("minute 60") << dosTime(2021, 1, 1, 0, 60, 0);
    QTest::newRow("second 60") << dosTime(2021, 1, 1, 0, 0, 60);
}

void tst_DosTimes::setDosTime_thatIsNone_changesNothing()
{
    QFETCH(const quint32, time);
    const QDateTime before(QDate(2001, 2, 3), QTime(4, 5, 6));
    QVERIFY(setTimes(m_path, before, before));
    setDosTime(narrowPath().constData(), time);
    QCOMPARE(QFileInfo(m_path).lastModified(), before);
}

void tst_DosTimes::setDosTime_ofNothing_makesNoFile()
{
    const QString path = m_sandbox.filePath(u"none"_qs);
    setDosTime(QFile::encodeName(path).constData(), dosTime(2021, 7, 14, 12, 34, 56));
    QVERIFY(!QFileInfo::exists(path));
}

QTEST_GUILESS_MAIN(tst_DosTimes)
#include "tst_DosTimes.moc"
