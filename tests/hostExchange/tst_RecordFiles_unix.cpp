// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/RecordFiles.h"

#include "hostExchange/PhotoshopServerDataStructure.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <array>
#include <fcntl.h>
#include <memory>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace TestSupport;
using ZYX_zglv6::PhotoshopDataStructure;
using ZYX_zglv6::PhotoshopServerDataStructure;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

/*! Sees when a file is opened, by whomever. */
class OpenWatch
{
public:
    explicit OpenWatch(const QString &path)
        : m_notifier(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
        , m_isValid(inotify_add_watch(m_notifier, QFile::encodeName(path).constData(), IN_OPEN) >= 0)
    {
    }

    ~OpenWatch()
    {
        close(m_notifier);
    }

    OpenWatch(const OpenWatch &) = delete;
    OpenWatch &operator=(const OpenWatch &) = delete;

    bool isValid() const
    {
        return m_isValid;
    }

    /*! Since the last call. */
    bool wasOpened() const
    {
        std::array<char, 4096> events{};
        bool wasOpened = false;
        while (read(m_notifier, events.data(), events.size()) > 0) {
            wasOpened = true;
        }
        return wasOpened;
    }

private:
    const int m_notifier;
    const bool m_isValid;
};

bool makeFullDisk(const QString &path)
{
    return QFile::link(u"/dev/full"_qs, path);
}

} // namespace

class tst_RecordFiles_unix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void save_dataFileOnAFullDisk_isFalse_data();
    void save_dataFileOnAFullDisk_isFalse();
    void save_imageFileOnAFullDisk_isFalse_data();
    void save_imageFileOnAFullDisk_isFalse();
    void save_nullImageData_neverOpensTheImageFile();
    void save_sizeOf0_neverOpensTheImageFile();

    void load_nullImageData_neverOpensTheImageFile();
    void load_serverRun_opensTheImageFileAfterSuccessOnly_data();
    void load_serverRun_opensTheImageFileAfterSuccessOnly();
    void load_imageIsAPipe_isTrueWithoutPixels();
    void load_imageThatEndsTooSoon_isTrueWithoutPixels();
    void path_isBytes();
};

void tst_RecordFiles_unix::save_dataFileOnAFullDisk_isFalse_data()
{
    QTest::addColumn<int>("extra");

    QTest::newRow("less than a buffer") << 0;
    QTest::newRow("more than a buffer") << 100'000;
}

void tst_RecordFiles_unix::save_dataFileOnAFullDisk_isFalse()
{
    QFETCH(int, extra);
    if (!QFile::exists(u"/dev/full"_qs)) {
        QSKIP("no /dev/full here");
    }

    const RecordFiles files;
    QVERIFY(makeFullDisk(files.dataFile()));
    PhotoshopDataStructure record(files.path());
    record.setValue("extra", DataVariant::fromString(std::string(std::size_t(extra), 'x')));
    QVERIFY(!record.writeToFile(files.path()));
    QVERIFY(!record.save("abc", 1, 1, 8));
    QVERIFY(!record.save(nullptr, 1, 1, 8));
    QVERIFY(!QFile::exists(files.imageFile()));
}

void tst_RecordFiles_unix::save_imageFileOnAFullDisk_isFalse_data()
{
    QTest::addColumn<int>("pixels");

    QTest::newRow("less than a buffer") << 1;
    QTest::newRow("more than a buffer") << 100'000;
}

void tst_RecordFiles_unix::save_imageFileOnAFullDisk_isFalse()
{
    QFETCH(int, pixels);
    if (!QFile::exists(u"/dev/full"_qs)) {
        QSKIP("no /dev/full here");
    }

    const RecordFiles files;
    QVERIFY(makeFullDisk(files.imageFile()));
    PhotoshopDataStructure record(files.path());
    const QByteArray image = pixelBytes(qsizetype{3} * pixels);
    QVERIFY(!record.save(image.constData(), pixels, 1, 8));
    PhotoshopDataStructure reader;
    QVERIFY(reader.readFromFile(files.path())); // the data file was written before
    QCOMPARE(reader.width(), pixels);

    QVERIFY(record.save(nullptr, pixels, 1, 8));
    QVERIFY(record.save(image.constData(), pixels, 0, 8));
}

void tst_RecordFiles_unix::save_nullImageData_neverOpensTheImageFile()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.imageFile(), "abc"));
    const OpenWatch watch(files.imageFile());
    QVERIFY(watch.isValid());
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.save(nullptr, 1, 1, 8));
    QVERIFY(!watch.wasOpened());
    QVERIFY(record.save("abc", 1, 1, 8));
    QVERIFY(watch.wasOpened());
}

void tst_RecordFiles_unix::save_sizeOf0_neverOpensTheImageFile()
{
    const RecordFiles files;
    QVERIFY(writeFile(files.imageFile(), "abc"));
    const OpenWatch watch(files.imageFile());
    QVERIFY(watch.isValid());
    QVERIFY(PhotoshopDataStructure(files.path()).save("abc", 0, 1, 8));
    QVERIFY(!watch.wasOpened());
}

void tst_RecordFiles_unix::load_nullImageData_neverOpensTheImageFile()
{
    const RecordFiles files;
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.save("abc", 1, 1, 8));
    const OpenWatch watch(files.imageFile());
    QVERIFY(watch.isValid());
    QVERIFY(record.load(nullptr));
    QVERIFY(!watch.wasOpened());
    QVERIFY(loaded(record).pixels);
    QVERIFY(watch.wasOpened());
}

void tst_RecordFiles_unix::load_serverRun_opensTheImageFileAfterSuccessOnly_data()
{
    QTest::addColumn<std::shared_ptr<DataVariant>>("exitCode");
    QTest::addColumn<bool>("wasOpened");

    const auto row = [](const char *name, const DataVariant &exitCode, bool wasOpened) {
        QTest::newRow(name) << std::make_shared<DataVariant>(exitCode) << wasOpened;
    };
    row("0", DataVariant::fromInt(0), true);
    row("3", DataVariant::fromInt(3), false);
    row("-1", DataVariant::fromInt(-1), false);
    row("of another tag", DataVariant::fromBits32(0), false);
    row("none", DataVariant(), false);
}

void tst_RecordFiles_unix::load_serverRun_opensTheImageFileAfterSuccessOnly()
{
    QFETCH(std::shared_ptr<DataVariant>, exitCode);
    QFETCH(bool, wasOpened);

    const RecordFiles files;
    PhotoshopDataStructure answer(files.path());
    if (exitCode->holder()) {
        answer.setValue("exitCode", *exitCode);
    }
    QVERIFY(answer.save("abc", 1, 1, 8));
    const OpenWatch watch(files.imageFile());
    QVERIFY(watch.isValid());
    PhotoshopServerDataStructure record(files.path());
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QCOMPARE(bool(loading.pixels), wasOpened);
    QCOMPARE(watch.wasOpened(), wasOpened);
}

void tst_RecordFiles_unix::load_imageIsAPipe_isTrueWithoutPixels()
{
    const RecordFiles files;
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.save(nullptr, 1, 1, 8));
    const QByteArray pipe = QFile::encodeName(files.imageFile());
    QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
    const int otherEnd = open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC); // else nobody gets it open
    QVERIFY(otherEnd >= 0);
    QCOMPARE(write(otherEnd, "abc", 3), ssize_t{3});
    const Loading loading = loaded(record);
    close(otherEnd);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
}

void tst_RecordFiles_unix::load_imageThatEndsTooSoon_isTrueWithoutPixels()
{
    const QString shorterThanItSays = u"/sys/devices/system/cpu/online"_qs;
    if (QFileInfo(shorterThanItSays).size() != 4096 || readFile(shorterThanItSays).size() >= 4096) {
        QSKIP("no file here is shorter than the system says");
    }
    const RecordFiles files;
    QVERIFY(QFile::link(shorterThanItSays, files.imageFile()));
    PhotoshopDataStructure record(files.path());
    QVERIFY(record.save(nullptr, 10923, 1, 1));
    QCOMPARE(record.imageSize(), 4096U);
    const Loading loading = loaded(record);
    QVERIFY(loading.result);
    QVERIFY(!loading.pixels);
}

void tst_RecordFiles_unix::path_isBytes()
{
    const RecordFiles files;
    const std::string path = files.path() + " \xd0\xb7\xff"; // no UTF-8 at its end
    PhotoshopDataStructure record(path);
    QVERIFY(record.save("abc", 1, 1, 8));
    QCOMPARE(access(path.c_str(), F_OK), 0);
    QCOMPARE(access((path + "-image").c_str(), F_OK), 0);
    QCOMPARE(loaded(record).bytes(3), QByteArray("abc"));
    QCOMPARE(unlink(path.c_str()), 0); // Qt does not see such names
    QCOMPARE(unlink((path + "-image").c_str()), 0);
}

QTEST_GUILESS_MAIN(tst_RecordFiles_unix)
#include "tst_RecordFiles_unix.moc"
