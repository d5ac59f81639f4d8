// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "crashReport/ArchiveFiles.h"

#include "utilsDll/crashReport/ZipFileFunctions_p.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QOperatingSystemVersion>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <cerrno>
#include <memory>
#include <utility>

using namespace TestSupport;

namespace {

// As minizip asks for them.
constexpr int reading = ZLIB_FILEFUNC_MODE_READ | ZLIB_FILEFUNC_MODE_EXISTING;
constexpr int changing = ZLIB_FILEFUNC_MODE_READ | ZLIB_FILEFUNC_MODE_WRITE | ZLIB_FILEFUNC_MODE_EXISTING;
constexpr int creating = ZLIB_FILEFUNC_MODE_READ | ZLIB_FILEFUNC_MODE_WRITE | ZLIB_FILEFUNC_MODE_CREATE;

bool isWindows()
{
    return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

/*! What the system says of writing to a file that was opened for reading. */
int numberOfRefusedWriting()
{
    constexpr int accessDenied = 5;
    return isWindows() ? accessDenied : EBADF;
}

/*! A stream of minizip's, by its table of functions. */
class Stream
{
public:
    Stream(const QString &path, int mode)
        : m_stream(m_functions.zopen64_file(m_functions.opaque, QFile::encodeName(path).constData(), mode))
    {
    }

    ~Stream()
    {
        if (m_stream != nullptr) {
            close();
        }
    }

    Stream(const Stream &) = delete;
    Stream &operator=(const Stream &) = delete;

    bool isOpen() const
    {
        return m_stream != nullptr;
    }

    QByteArray read(qsizetype size) const
    {
        QByteArray bytes(size, '\0');
        bytes.truncate(qsizetype(m_functions.zread_file(m_functions.opaque, m_stream, bytes.data(), uLong(size))));
        return bytes;
    }

    uLong write(const QByteArray &bytes) const
    {
        return m_functions.zwrite_file(m_functions.opaque, m_stream, bytes.constData(), uLong(bytes.size()));
    }

    quint64 tell() const
    {
        return m_functions.ztell64_file(m_functions.opaque, m_stream);
    }

    long seek(quint64 offset, int origin) const
    {
        return m_functions.zseek64_file(m_functions.opaque, m_stream, offset, origin);
    }

    int close()
    {
        return m_functions.zclose_file(m_functions.opaque, std::exchange(m_stream, nullptr));
    }

    int error() const
    {
        return m_functions.zerror_file(m_functions.opaque, m_stream);
    }

private:
    const zlib_filefunc64_def m_functions = ZYX_zglv6::zipFileFunctions();
    voidpf m_stream;
};

} // namespace

/*! The functions by which minizip gets at files, called as minizip does. */
class tst_ZipFileFunctions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void table_isFullWithoutAnOpaquePointer();
    void open_byMode_data();
    void open_byMode();
    void open_withoutAFile_data();
    void open_withoutAFile();
    void open_byANarrowPath();
    void open_whileItIsOpen_data();
    void open_whileItIsOpen();

    void create_isForReadingToo();
    void read_atTheEnd_isShortWithoutAnError();
    void error_isRemembered();
    void seek_fromEachOrigin_data();
    void seek_fromEachOrigin();
    void seek_toNowhere_isAFailure_data();
    void seek_toNowhere_isAFailure();
    void offsets_have64Bits();
    void close_leavesTheFileToOthers();

private:
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ZipFileFunctions::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFile(path(u"file"_qs), "0123456789");
}

void tst_ZipFileFunctions::table_isFullWithoutAnOpaquePointer()
{
    const zlib_filefunc64_def functions = ZYX_zglv6::zipFileFunctions();
    QVERIFY(functions.zopen64_file != nullptr);
    QVERIFY(functions.zread_file != nullptr);
    QVERIFY(functions.zwrite_file != nullptr);
    QVERIFY(functions.ztell64_file != nullptr);
    QVERIFY(functions.zseek64_file != nullptr);
    QVERIFY(functions.zclose_file != nullptr);
    QVERIFY(functions.zerror_file != nullptr);
    QVERIFY(functions.opaque == nullptr);
}

void tst_ZipFileFunctions::open_byMode_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QByteArray>("read");
    QTest::addColumn<QByteArray>("left"); // after writing

    QTest::newRow("read") << reading << QByteArray("0123456789") << QByteArray("0123456789");
    QTest::newRow("read alone") << ZLIB_FILEFUNC_MODE_READ << QByteArray("0123456789") << QByteArray("0123456789");
    QTest::newRow("existing file") << changing << QByteArray("0123456789") << QByteArray("ab23456789");
    QTest::newRow("create") << creating << QByteArray() << QByteArray("ab");
}

void tst_ZipFileFunctions::open_byMode()
{
    QFETCH(const int, mode);
    {
        Stream stream(path(u"file"_qs), mode);
        QVERIFY(stream.isOpen());
        QCOMPARE(stream.error(), 0);
        QTEST(stream.read(100), "read");
        QCOMPARE(stream.seek(0, ZLIB_FILEFUNC_SEEK_SET), 0L);
        const uLong count = stream.write("ab");
        const bool isClosed = stream.close() == 0; // with a buffer between, only closing tells of a refusal
        QCOMPARE(count == 2 && isClosed, mode == changing || mode == creating);
    }
    QTEST(contentOf(path(u"file"_qs)), "left");
}

void tst_ZipFileFunctions::open_withoutAFile_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOpen");

    QTest::newRow("read") << reading << u"none"_qs << false;
    QTest::newRow("existing file") << changing << u"none"_qs << false;
    QTest::newRow("create") << creating << u"none"_qs << true;
    QTest::newRow("create, without its folder") << creating << u"none/none"_qs << false;
}

void tst_ZipFileFunctions::open_withoutAFile()
{
    QFETCH(const int, mode);
    QFETCH(const QString, name);
    QFETCH(const bool, isOpen);
    QCOMPARE(Stream(path(name), mode).isOpen(), isOpen);
    QCOMPARE(QFileInfo::exists(path(name)), isOpen);
}

void tst_ZipFileFunctions::open_byANarrowPath()
{
    const QString name = u"with blank \u00fc"_qs;
    Stream stream(path(name), creating);
    QVERIFY(stream.isOpen());
    QCOMPARE(stream.write("1"), uLong(1));
    QCOMPARE(stream.close(), 0);
    QCOMPARE(contentOf(path(QFile::decodeName(QFile::encodeName(name)))), QByteArray("1"));
}

void tst_ZipFileFunctions::open_whileItIsOpen_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::addColumn<bool>("isShared"); // on Windows; elsewhere nobody is kept out

    QTest::newRow("read, read") << reading << reading << true;
    QTest::newRow("read, existing file") << reading << changing << false;
    QTest::newRow("read, create") << reading << creating << false;
    QTest::newRow("existing file, read") << changing << reading << false;
    QTest::newRow("existing file, existing file") << changing << changing << false;
    QTest::newRow("create, read") << creating << reading << false;
    QTest::newRow("create, create") << creating << creating << false;
}

void tst_ZipFileFunctions::open_whileItIsOpen()
{
    QFETCH(const int, first);
    QFETCH(const int, second);
    QFETCH(const bool, isShared);
    const Stream one(path(u"file"_qs), first);
    QVERIFY(one.isOpen());
    QCOMPARE(Stream(path(u"file"_qs), second).isOpen(), isShared || !isWindows());
}

void tst_ZipFileFunctions::create_isForReadingToo()
{
    const Stream stream(path(u"file"_qs), creating);
    QCOMPARE(stream.write("abc"), uLong(3));
    QCOMPARE(stream.tell(), quint64(3));
    QCOMPARE(stream.seek(1, ZLIB_FILEFUNC_SEEK_SET), 0L);
    QCOMPARE(stream.read(100), QByteArray("bc"));
    QCOMPARE(stream.error(), 0);
}

void tst_ZipFileFunctions::read_atTheEnd_isShortWithoutAnError()
{
    const Stream stream(path(u"file"_qs), reading);
    QCOMPARE(stream.read(16), QByteArray("0123456789"));
    QCOMPARE(stream.tell(), quint64(10));
    QCOMPARE(stream.read(16), QByteArray());
    QCOMPARE(stream.error(), 0);
}

void tst_ZipFileFunctions::error_isRemembered()
{
    Stream stream(path(u"file"_qs), reading);
    QCOMPARE(stream.write(bytesOf(100'000)), uLong(0)); // more than is held back
    QCOMPARE(stream.error(), numberOfRefusedWriting());
    QCOMPARE(stream.seek(4, ZLIB_FILEFUNC_SEEK_SET), 0L);
    QCOMPARE(stream.read(3), QByteArray("456"));
    QCOMPARE(stream.error(), numberOfRefusedWriting());
    QCOMPARE(stream.close(), isWindows() ? 0 : -1); // where bytes may be held back, closing tells of lost ones
}

void tst_ZipFileFunctions::seek_fromEachOrigin_data()
{
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<int>("origin");
    QTest::addColumn<quint64>("position");
    QTest::addColumn<QByteArray>("next");

    QTest::newRow("start") << qint64(3) << ZLIB_FILEFUNC_SEEK_SET << quint64(3) << QByteArray("3");
    QTest::newRow("here, on") << qint64(3) << ZLIB_FILEFUNC_SEEK_CUR << quint64(7) << QByteArray("7");
    QTest::newRow("here, back") << qint64(-3) << ZLIB_FILEFUNC_SEEK_CUR << quint64(1) << QByteArray("1");
    QTest::newRow("end") << qint64(0) << ZLIB_FILEFUNC_SEEK_END << quint64(10) << QByteArray();
    QTest::newRow("end, back") << qint64(-1) << ZLIB_FILEFUNC_SEEK_END << quint64(9) << QByteArray("9");
    QTest::newRow("behind the end") << qint64(0x1'0000'0002) << ZLIB_FILEFUNC_SEEK_END << quint64(0x1'0000'000c)
                                    << QByteArray();
}

void tst_ZipFileFunctions::seek_fromEachOrigin()
{
    QFETCH(const qint64, offset);
    QFETCH(const int, origin);
    const Stream stream(path(u"file"_qs), reading);
    QCOMPARE(stream.read(4), QByteArray("0123"));
    QCOMPARE(stream.seek(quint64(offset), origin), 0L);
    QTEST(stream.tell(), "position");
    QTEST(stream.read(1), "next");
}

void tst_ZipFileFunctions::seek_toNowhere_isAFailure_data()
{
    QTest::addColumn<qint64>("offset");
    QTest::addColumn<int>("origin");

    QTest::newRow("in front of the start") << qint64(-5) << ZLIB_FILEFUNC_SEEK_CUR;
    QTest::newRow("in front of the start, from the end") << qint64(-11) << ZLIB_FILEFUNC_SEEK_END;
    QTest::newRow("no such origin") << qint64(1) << 3;
    QTest::newRow("no such origin, negative") << qint64(1) << -1;
}

void tst_ZipFileFunctions::seek_toNowhere_isAFailure()
{
    QFETCH(const qint64, offset);
    QFETCH(const int, origin);
    const Stream stream(path(u"file"_qs), reading);
    QCOMPARE(stream.seek(4, ZLIB_FILEFUNC_SEEK_SET), 0L);
    QCOMPARE(stream.seek(quint64(offset), origin), -1L);
    QCOMPARE(stream.tell(), quint64(4));
}

void tst_ZipFileFunctions::offsets_have64Bits()
{
    constexpr quint64 far = 0x1'0000'0001;
    Stream stream(path(u"file"_qs), changing);
    QCOMPARE(stream.seek(far, ZLIB_FILEFUNC_SEEK_SET), 0L); // a hole in the file takes no room
    QCOMPARE(stream.write("x"), uLong(1));
    QCOMPARE(stream.tell(), far + 1);
    QCOMPARE(stream.seek(0, ZLIB_FILEFUNC_SEEK_SET), 0L);
    QCOMPARE(stream.read(2), QByteArray("01"));
    QCOMPARE(stream.seek(far - 2, ZLIB_FILEFUNC_SEEK_CUR), 0L);
    QCOMPARE(stream.read(2), QByteArray("x"));
    QCOMPARE(stream.close(), 0);
    QCOMPARE(QFileInfo(path(u"file"_qs)).size(), qint64(far + 1));
}

void tst_ZipFileFunctions::close_leavesTheFileToOthers()
{
    Stream stream(path(u"file"_qs), changing);
    QCOMPARE(stream.write("ab"), uLong(2));
    QCOMPARE(stream.close(), 0);
    QCOMPARE(Stream(path(u"file"_qs), reading).read(100), QByteArray("ab23456789"));
    QVERIFY(QFile::remove(path(u"file"_qs)));
}

QTEST_GUILESS_MAIN(tst_ZipFileFunctions)
#include "tst_ZipFileFunctions.moc"
