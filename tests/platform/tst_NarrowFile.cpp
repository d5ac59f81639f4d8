// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/NarrowFile.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <random>

using ZyxPlatform::NarrowFile;
using Mode = NarrowFile::Mode;
using Origin = NarrowFile::Origin;

Q_DECLARE_METATYPE(ZyxPlatform::NarrowFile::Mode)

class tst_NarrowFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void open_byMode_data();
    void open_byMode();
    void open_ofAFolder_isNull_data();
    void open_ofAFolder_isNull();
    void open_byANarrowPath();
    void create_emptiesTheFile();
    void readAndWrite_keepsTheContent();

    void read_atTheEnd_isShortWithoutAnError();
    void write_toAFileOpenedForReading_changesNothing();
    void write_isThereAfterClosing();
    void write_withoutClosing_isThereToo();
    void seek_fromEachOrigin();
    void seek_toNowhere_isFalse();
    void offsets_have64Bits();
    void close_twice_isTrue();
    void anySequence_isThatOfAPlainFile_data();
    void anySequence_isThatOfAPlainFile();

private:
    QByteArray path(const QString &name) const
    {
        return QFile::encodeName(m_sandbox.filePath(name));
    }

    void writeFile(const QString &name, const QByteArray &content) const
    {
        QFile file(m_sandbox.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }

    QByteArray contentOf(const QString &name) const
    {
        QFile file(m_sandbox.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TestSupport::Sandbox m_sandbox;
};

void tst_NarrowFile::init()
{
    writeFile(u"file"_qs, "0123456789");
    QFile::remove(m_sandbox.filePath(u"none"_qs));
}

void tst_NarrowFile::open_byMode_data()
{
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isOpened");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("read") << Mode::Read << u"file"_qs << true << QByteArray("0123456789");
    QTest::newRow("read and write") << Mode::ReadAndWrite << u"file"_qs << true << QByteArray("0123456789");
    QTest::newRow("create") << Mode::Create << u"file"_qs << true << QByteArray();
    QTest::newRow("read, missing") << Mode::Read << u"none"_qs << false << QByteArray();
    QTest::newRow("read and write, missing") << Mode::ReadAndWrite << u"none"_qs << false << QByteArray();
    QTest::newRow("create, missing") << Mode::Create << u"none"_qs << true << QByteArray();
    QTest::newRow("create, missing folder") << Mode::Create << u"nowhere/none"_qs << false << QByteArray();
}

void tst_NarrowFile::open_byMode()
{
    QFETCH(const Mode, mode);
    QFETCH(const QString, name);
    QFETCH(const bool, isOpened);
    const bool existed = QFileInfo::exists(m_sandbox.filePath(name));
    QCOMPARE(NarrowFile::open(path(name).constData(), mode) != nullptr, isOpened);
    QTEST(contentOf(name), "content");
    QCOMPARE(QFileInfo::exists(m_sandbox.filePath(name)), existed || isOpened);
}

void tst_NarrowFile::open_ofAFolder_isNull_data()
{
    QTest::addColumn<Mode>("mode");

    QTest::newRow("read") << Mode::Read;
    QTest::newRow("read and write") << Mode::ReadAndWrite;
    QTest::newRow("create") << Mode::Create;
}

void tst_NarrowFile::open_ofAFolder_isNull()
{
    QFETCH(const Mode, mode);
    QDir(m_sandbox.filePath(QString())).mkdir(u"folder"_qs);
    QVERIFY(NarrowFile::open(path(u"folder"_qs).constData(), mode) == nullptr);
}

void tst_NarrowFile::open_byANarrowPath()
{
    const QString name = u"with blank \u00fc"_qs;
    const auto file = NarrowFile::open(path(name).constData(), Mode::Create);
    QVERIFY(file != nullptr);
    QCOMPARE(file->write("1", 1), std::size_t(1));
    QVERIFY(file->close());
    QCOMPARE(contentOf(QFile::decodeName(QFile::encodeName(name))), QByteArray("1"));
}

void tst_NarrowFile::create_emptiesTheFile()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Create);
    QCOMPARE(file->write("ab", 2), std::size_t(2));
    QVERIFY(file->seek(0, Origin::Start)); // it may be read too
    std::array<char, 4> bytes{};
    QCOMPARE(file->read(bytes.data(), bytes.size()), std::size_t(2));
    QCOMPARE(QByteArray(bytes.data()), QByteArray("ab"));
    QVERIFY(file->close());
    QCOMPARE(contentOf(u"file"_qs), QByteArray("ab"));
}

void tst_NarrowFile::readAndWrite_keepsTheContent()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::ReadAndWrite);
    std::array<char, 2> bytes{};
    QCOMPARE(file->read(bytes.data(), bytes.size()), bytes.size());
    QCOMPARE(QByteArray(bytes.data(), 2), QByteArray("01"));
    QVERIFY(file->seek(4, Origin::Start));
    QCOMPARE(file->write("ab", 2), std::size_t(2));
    QVERIFY(file->close());
    QCOMPARE(contentOf(u"file"_qs), QByteArray("0123ab6789"));
}

void tst_NarrowFile::read_atTheEnd_isShortWithoutAnError()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Read);
    std::array<char, 16> bytes{};
    QCOMPARE(file->read(bytes.data(), bytes.size()), std::size_t(10));
    QCOMPARE(QByteArray(bytes.data()), QByteArray("0123456789"));
    QCOMPARE(file->read(bytes.data(), bytes.size()), std::size_t(0));
    QCOMPARE(file->error(), 0);
}

void tst_NarrowFile::write_toAFileOpenedForReading_changesNothing()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Read);
    const std::size_t count = file->write("ab", 2);
    const bool isClosed = file->close(); // with a buffer between, only closing tells
    QVERIFY(count == 0 || !isClosed);
    QCOMPARE(contentOf(u"file"_qs), QByteArray("0123456789"));
}

void tst_NarrowFile::write_isThereAfterClosing()
{
    const QByteArray content(1'000'000, 'x');
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Create);
    QCOMPARE(file->write(content.constData(), std::size_t(content.size())), std::size_t(content.size()));
    QCOMPARE(file->tell(), std::uint64_t(content.size()));
    QCOMPARE(file->error(), 0);
    QVERIFY(file->close());
    QVERIFY(contentOf(u"file"_qs) == content);
}

void tst_NarrowFile::write_withoutClosing_isThereToo()
{
    QCOMPARE(NarrowFile::open(path(u"file"_qs).constData(), Mode::Create)->write("ab", 2), std::size_t(2));
    QCOMPARE(contentOf(u"file"_qs), QByteArray("ab"));
}

void tst_NarrowFile::seek_fromEachOrigin()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Read);
    QCOMPARE(file->tell(), std::uint64_t(0));
    QVERIFY(file->seek(4, Origin::Start));
    QCOMPARE(file->tell(), std::uint64_t(4));
    QVERIFY(file->seek(3, Origin::Current));
    QCOMPARE(file->tell(), std::uint64_t(7));
    char byte = 0;
    QCOMPARE(file->read(&byte, 1), std::size_t(1));
    QCOMPARE(byte, '7');
    QVERIFY(file->seek(0, Origin::End));
    QCOMPARE(file->tell(), std::uint64_t(10));
    QVERIFY(file->seek(std::uint64_t(-2), Origin::Current)); // back
    QCOMPARE(file->tell(), std::uint64_t(8));
    QVERIFY(file->seek(std::uint64_t(-10), Origin::End));
    QCOMPARE(file->tell(), std::uint64_t(0));
}

void tst_NarrowFile::seek_toNowhere_isFalse()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Read);
    QVERIFY(file->seek(4, Origin::Start));
    QVERIFY(!file->seek(std::uint64_t(-5), Origin::Current));
    QVERIFY(!file->seek(std::uint64_t(-1), Origin::Start));
    QCOMPARE(file->tell(), std::uint64_t(4));
}

void tst_NarrowFile::offsets_have64Bits()
{
    constexpr std::uint64_t far = 0x1'0000'0001;
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Create);
    QVERIFY(file->seek(far, Origin::Start)); // a hole in the file: it takes no room
    QCOMPARE(file->tell(), far);
    QCOMPARE(file->write("x", 1), std::size_t(1));
    QCOMPARE(file->tell(), far + 1);
    QVERIFY(file->seek(0, Origin::Start));
    QVERIFY(file->seek(std::uint64_t(-1), Origin::End));
    QCOMPARE(file->tell(), far);
    char byte = 0;
    QCOMPARE(file->read(&byte, 1), std::size_t(1));
    QCOMPARE(byte, 'x');
    QVERIFY(file->close());
    QCOMPARE(QFileInfo(m_sandbox.filePath(u"file"_qs)).size(), qint64(far + 1));
    QVERIFY(QFile::remove(m_sandbox.filePath(u"file"_qs)));
}

void tst_NarrowFile::close_twice_isTrue()
{
    const auto file = NarrowFile::open(path(u"file"_qs).constData(), Mode::Read);
    QVERIFY(file->close());
    QVERIFY(file->close());
}

void tst_NarrowFile::anySequence_isThatOfAPlainFile_data()
{
    QTest::addColumn<unsigned>("seed");

    for (unsigned seed = 1; seed <= 40; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

/*! Sizes and places lie around those of the buffers, 4,096 and 65,536. */
void tst_NarrowFile::anySequence_isThatOfAPlainFile()
{
    QFETCH(const unsigned, seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](int limit) { return int(random() % unsigned(limit)); };
    const auto size = [&] {
        return std::array{upTo(50), 4090 + upTo(12), 65530 + upTo(12), upTo(100'000)}[random() % 4];
    };
    const auto bytes = [&](int count) {
        QByteArray made(count, Qt::Uninitialized);
        std::generate(made.begin(), made.end(), [&random] { return char(random()); });
        return made;
    };

    writeFile(u"plain"_qs, bytes(200'000));
    QFile::remove(m_sandbox.filePath(u"tested"_qs));
    QVERIFY(QFile::copy(m_sandbox.filePath(u"plain"_qs), m_sandbox.filePath(u"tested"_qs)));
    QFile plain(m_sandbox.filePath(u"plain"_qs));
    QVERIFY(plain.open(QIODevice::ReadWrite | QIODevice::Unbuffered));
    const auto tested = NarrowFile::open(path(u"tested"_qs).constData(), Mode::ReadAndWrite);
    QVERIFY(tested);
    for (int step = 0; step < 200; ++step) {
        const int count = size();
        switch (upTo(4)) {
        case 0: {
            const int place = size() * upTo(4);
            QVERIFY(plain.seek(place) && tested->seek(std::uint64_t(place), Origin::Start));
            break;
        }
        case 1: {
            const qint64 place = std::max(qint64(0), plain.pos() + upTo(200) - 100);
            QVERIFY(tested->seek(std::uint64_t(place - plain.pos()), Origin::Current) && plain.seek(place));
            break;
        }
        case 2: {
            const QByteArray written = bytes(count);
            QCOMPARE(plain.write(written), qint64(count));
            QCOMPARE(tested->write(written.constData(), std::size_t(count)), std::size_t(count));
            break;
        }
        default: {
            const QByteArray expected = plain.read(count);
            QByteArray read(count, '\0');
            read.truncate(qsizetype(tested->read(read.data(), std::size_t(count))));
            QVERIFY(read == expected);
            break;
        }
        }
        QCOMPARE(tested->tell(), std::uint64_t(plain.pos()));
    }
    QVERIFY(tested->close());
    plain.close();
    QVERIFY(contentOf(u"tested"_qs) == contentOf(u"plain"_qs));
}

QTEST_GUILESS_MAIN(tst_NarrowFile)
#include "tst_NarrowFile.moc"
