// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/NarrowFile.h"

#include "support/Sandbox.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using ZyxPlatform::NarrowFile;
using Mode = NarrowFile::Mode;

/*! Files that are none, and the system's own error numbers. */
class tst_NarrowFile_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void read_ofAPipe_isRefusedAtOnce();
    void read_ofADevice_isRefused();
    void write_ontoAFullDevice_hasItsErrorNumber();
    void read_thatFails_hasItsErrorNumber();
    void descriptors_areNotInherited();
    void permissions_areThoseOfTheMask();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_NarrowFile_unix::read_ofAPipe_isRefusedAtOnce()
{
    const QByteArray pipe = QFile::encodeName(m_sandbox.filePath(u"pipe"_qs));
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    QVERIFY(NarrowFile::open(pipe.constData(), Mode::Read) == nullptr); // with nobody at its other end
}

void tst_NarrowFile_unix::read_ofADevice_isRefused()
{
    QVERIFY(NarrowFile::open("/dev/null", Mode::Read) == nullptr);
    QVERIFY(NarrowFile::open("/dev/zero", Mode::Read) == nullptr);
}

void tst_NarrowFile_unix::write_ontoAFullDevice_hasItsErrorNumber()
{
    if (!QFileInfo::exists(u"/dev/full"_qs)) {
        QSKIP("There is no /dev/full.");
    }
    const auto file = NarrowFile::open("/dev/full", Mode::ReadAndWrite);
    QVERIFY(file != nullptr);
    const QByteArray content(1'000'000, 'x'); // more than any buffer
    QVERIFY(file->write(content.constData(), std::size_t(content.size())) < std::size_t(content.size()));
    QCOMPARE(file->error(), ENOSPC);

    const auto other = NarrowFile::open("/dev/full", Mode::ReadAndWrite);
    QCOMPARE(other->write("x", 1), std::size_t(1)); // only closing tells
    QVERIFY(!other->close());
}

void tst_NarrowFile_unix::read_thatFails_hasItsErrorNumber()
{
    if (!QFileInfo::exists(u"/proc/self/mem"_qs)) {
        QSKIP("There is no /proc/self/mem.");
    }
    const auto file = NarrowFile::open("/proc/self/mem", Mode::Read); // nothing is there at its beginning
    QVERIFY(file != nullptr);
    char byte = 0;
    QCOMPARE(file->read(&byte, 1), std::size_t(0));
    QCOMPARE(file->error(), EIO);
}

void tst_NarrowFile_unix::descriptors_areNotInherited()
{
    const QByteArray path = QFile::encodeName(m_sandbox.filePath(u"file"_qs));
    for (const Mode mode : {Mode::Create, Mode::Read, Mode::ReadAndWrite}) {
        const int next = dup(0);
        ::close(next);
        const auto file = NarrowFile::open(path.constData(), mode);
        QVERIFY(file != nullptr);
        QCOMPARE(fcntl(next, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
    }
}

void tst_NarrowFile_unix::permissions_areThoseOfTheMask()
{
    const QByteArray path = QFile::encodeName(m_sandbox.filePath(u"made"_qs));
    const mode_t before = umask(027);
    const bool isMade = NarrowFile::open(path.constData(), Mode::Create) != nullptr;
    umask(before);
    QVERIFY(isMade);
    struct stat status
    {
    };
    QCOMPARE(stat(path.constData(), &status), 0);
    QCOMPARE(status.st_mode & 0777u, 0640u);
}

QTEST_GUILESS_MAIN(tst_NarrowFile_unix)
#include "tst_NarrowFile_unix.moc"
