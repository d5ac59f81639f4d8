// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/FileNames.h"

#include <QtTest/QTest>

namespace {

#ifdef Q_OS_WIN
constexpr bool hasDevices = true;
#else
constexpr bool hasDevices = false;
#endif

} // namespace

class tst_FileNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesDevice_isTrueOfDevicesAndStreams_data();
    void namesDevice_isTrueOfDevicesAndStreams();
};

void tst_FileNames::namesDevice_isTrueOfDevicesAndStreams_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDevice");

    for (const char *name :
         {"CON",  "con",  "PRN",  "Aux",      "nul",      "COM0",   "COM1",    "com9",       "LPT0",      "lpt1",
          "LPT9", "com¹", "COM²", "lpt³",     "nul.txt",  "nul.",   "NUL..",   "con.tar.gz", "aux .x",    "aux  ",
          "a:b",  ":",    "a:",   "a::$DATA", "nul:data", "CONIN$", "conout$", "conin$.txt", "com1 .a b", "nul.\n"}) {
        QTest::newRow(name) << QString::fromUtf8(name) << true;
    }
    for (const char *name : {"",     "console", "com10", "nulx",  "xnul",    "com",   "lpt",  "com⁴",      "comx",
                             ".nul", " nul",    "nul_",  "n ul",  "nul a",   "conin", "con$", "COM1x.txt", "a.con",
                             "NULL", "COM-1",   "con-1", "clock", "auxfile", "a",     "a.b",  ".",         ".."}) {
        QTest::newRow(qPrintable(u"file: "_qs + QString::fromUtf8(name))) << QString::fromUtf8(name) << false;
    }
}

void tst_FileNames::namesDevice_isTrueOfDevicesAndStreams()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isDevice);
    QCOMPARE(ZyxPlatform::namesDevice(name), hasDevices && isDevice);
}

QTEST_GUILESS_MAIN(tst_FileNames)
#include "tst_FileNames.moc"
