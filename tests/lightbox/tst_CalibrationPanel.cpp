// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "gallery/AccessibilityAudit.h"

#include "CalibrationPanel.h"
#include "LightboxApplication.h"
#include "MainWindow.h"
#include "PhotoFolder.h"
#include "PhotoMetadata.h"
#include "ReferenceMenu.h"
#include "ReferenceParts.h"
#include "ReferenceTour.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAction>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTableWidget>

#include <exiv2/exiv2.hpp>

namespace {

const QString sample = QStringLiteral(LIGHTBOX_SAMPLES "/lighthouse.jpg"); // clazy:exclude=non-pod-global-static

/*! A JPEG with these data. */
bool writePhoto(const QString &path, const Exiv2::ExifData &data)
{
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    if (!picture.save(path, "JPG")) {
        return false;
    }
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->setExifData(data);
    image->writeMetadata();
    return true;
}

void add(Exiv2::ExifData &data, const char *key, Exiv2::TypeId type, const std::string &bytes)
{
    Exiv2::DataValue value(type);
    value.read(bytes);
    data.add(Exiv2::ExifKey(key), &value);
}

Exiv2::ExifData canonData()
{
    Exiv2::ExifData data;
    data["Exif.Image.Make"] = "Canon";
    data["Exif.Image.Model"] = "Canon EOS 5D Mark IV";
    data["Exif.Photo.FocalLength"] = Exiv2::Rational(105, 2);
    return data;
}

} // namespace

/*! What photographs tell of their cameras, and the window of the modules that serve them. */
class tst_CalibrationPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metadata_ofTheSample();
    void metadata_ofAMakersNote_hasTheLensId();
    void metadata_ofANikon_hasTheBytesOfTheLens();
    void metadata_ofAnOlderCamera_hasTheNameOfItsMakersNote_data();
    void metadata_ofAnOlderCamera_hasTheNameOfItsMakersNote();
    void metadata_ofACanonRfLens_hasItsOwnId();
    void metadata_ofOtherMakers_hasTheLensId_data();
    void metadata_ofOtherMakers_hasTheLensId();
    void metadata_oddValues_data();
    void metadata_oddValues();
    void metadata_focalLengthOfAnotherType_isANumberOrNone();
    void metadata_hugeValue_isNone();
    void metadata_ofABrokenPhoto_isTold_data();
    void metadata_ofABrokenPhoto_isTold();
    void metadata_ofAHugeFile_areNotRead();
    void metadata_ofBrokenExif_isNone_data();
    void metadata_ofBrokenExif_isNone();
    void metadata_rawFiles_areToldByTheirNames();
    void panel_ofTheSample_showsItsModule();
    void panel_state_data();
    void panel_state();
    void panel_builtInLensOfUnknownRange_showsNoFocalLength();
    void panel_idOfManyLenses_isToldAsOne();
    void panel_parts_haveNames();
    void panel_brokenCatalogue_isTold();
    void panel_followsTheOpenPhotograph();
    void panel_ofAPhotographGivenUp_isEmpty();
    void panel_liveLanguage_isSpokenAtOnce();

private:
    QString path(const QString &name) const;

    TestSupport::Sandbox m_sandbox;
    QTemporaryDir m_folder;
};

QString tst_CalibrationPanel::path(const QString &name) const
{
    return m_folder.filePath(name);
}

void tst_CalibrationPanel::metadata_ofTheSample()
{
    const PhotoMetadata photo = readPhotoMetadata(sample);
    QCOMPARE(photo.error, QString());
    QVERIFY(photo.hasCamera());
    QCOMPARE(photo.make, u"Canon"_qs);
    QCOMPARE(photo.model, u"Canon EOS 5D Mark IV"_qs);
    QCOMPARE(photo.lens, u"EF24-70mm f/2.8L II USM"_qs);
    QCOMPARE(photo.lensId, QString());
    QCOMPARE(photo.focalLength, 35.0);
    QVERIFY(!photo.isRaw);
    const PhotoMetadata other = readPhotoMetadata(QStringLiteral(LIGHTBOX_SAMPLES "/mountain-lake.jpg"));
    QVERIFY(!other.hasCamera() && other.error.isEmpty());
}

void tst_CalibrationPanel::metadata_ofAMakersNote_hasTheLensId()
{
    Exiv2::ExifData data = canonData();
    data["Exif.CanonCs.LensType"] = uint16_t(495);
    QVERIFY(writePhoto(path(u"canon.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"canon.jpg"_qs)).lensId, u"495"_qs);
    QCOMPARE(readPhotoMetadata(path(u"canon.jpg"_qs)).focalLength, 52.5);
}

void tst_CalibrationPanel::metadata_ofANikon_hasTheBytesOfTheLens()
{
    Exiv2::ExifData data;
    data["Exif.Image.Make"] = "NIKON CORPORATION";
    add(data, "Exif.Nikon3.Version", Exiv2::undefined, "48 50 49 48");
    add(data, "Exif.Nikon3.LensType", Exiv2::unsignedByte, "6");
    add(data, "Exif.NikonLd1.Version", Exiv2::undefined, "48 49 48 48");
    add(data, "Exif.NikonLd1.LensIDNumber", Exiv2::unsignedByte, "122");
    add(data, "Exif.NikonLd1.LensFStops", Exiv2::unsignedByte, "60");
    add(data, "Exif.NikonLd1.MinFocalLength", Exiv2::unsignedByte, "31");
    add(data, "Exif.NikonLd1.MaxFocalLength", Exiv2::unsignedByte, "55");
    add(data, "Exif.NikonLd1.MaxApertureAtMinFocal", Exiv2::unsignedByte, "48");
    add(data, "Exif.NikonLd1.MaxApertureAtMaxFocal", Exiv2::unsignedByte, "48");
    add(data, "Exif.NikonLd1.MCUVersion", Exiv2::unsignedByte, "126");
    QVERIFY(writePhoto(path(u"nikon.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"nikon.jpg"_qs)).lensId, u"7A 3C 1F 37 30 30 7E 06"_qs);
}

void tst_CalibrationPanel::metadata_ofOtherMakers_hasTheLensId_data()
{
    QTest::addColumn<QByteArray>("maker");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("id");

    const auto row = [](const char *name, const char *maker, const char *key, Exiv2::TypeId type, const char *value,
                        const char *id) {
        QTest::newRow(name) << QByteArray(maker) << QByteArray(key) << int(type) << QByteArray(value)
                            << QString::fromLatin1(id);
    };
    row("Sony", "SONY", "Exif.Sony2.LensID", Exiv2::unsignedLong, "32789", "32789");
    row("Sony, older", "SONY", "Exif.Sony1.LensID", Exiv2::unsignedLong, "24", "24");
    row("Minolta", "KONICA MINOLTA", "Exif.Minolta.LensID", Exiv2::unsignedLong, "128", "128");
    row("Samsung", "SAMSUNG", "Exif.Samsung2.LensType", Exiv2::unsignedShort, "3", "3");
    row("Pentax", "PENTAX Corporation", "Exif.Pentax.LensType", Exiv2::unsignedByte, "8 200 0", "8 200");
    row("Pentax, one number", "PENTAX Corporation", "Exif.Pentax.LensType", Exiv2::unsignedByte, "8", "");
    row("Olympus", "OM Digital Solutions", "Exif.OlympusEq.LensType", Exiv2::unsignedByte, "0 0 33 16 0 0", "0 21 10");
    row("Olympus, cut short", "OM Digital Solutions", "Exif.OlympusEq.LensType", Exiv2::unsignedByte, "0 0 33", "");
}

void tst_CalibrationPanel::metadata_ofOtherMakers_hasTheLensId()
{
    QFETCH(const QByteArray, maker);
    QFETCH(const QByteArray, key);
    QFETCH(const int, type);
    QFETCH(const QByteArray, value);
    Exiv2::ExifData data;
    data["Exif.Image.Make"] = maker.toStdString();
    data["Exif.Image.Model"] = "any";
    const auto content = Exiv2::Value::create(Exiv2::TypeId(type));
    content->read(value.toStdString());
    data.add(Exiv2::ExifKey(key.toStdString()), content.get());
    QVERIFY(writePhoto(path(u"maker.jpg"_qs), data));
    QTEST(readPhotoMetadata(path(u"maker.jpg"_qs)).lensId, "id");
}

void tst_CalibrationPanel::metadata_ofAnOlderCamera_hasTheNameOfItsMakersNote_data()
{
    QTest::addColumn<QByteArray>("maker");
    QTest::addColumn<QByteArray>("key");

    QTest::newRow("Canon") << QByteArray("Canon") << QByteArray("Exif.Canon.LensModel");
    QTest::newRow("Olympus") << QByteArray("OM Digital Solutions") << QByteArray("Exif.OlympusEq.LensModel");
    QTest::newRow("Panasonic") << QByteArray("Panasonic") << QByteArray("Exif.Panasonic.LensType");
}

void tst_CalibrationPanel::metadata_ofAnOlderCamera_hasTheNameOfItsMakersNote()
{
    QFETCH(const QByteArray, maker);
    QFETCH(const QByteArray, key);
    Exiv2::ExifData data;
    data["Exif.Image.Make"] = maker.toStdString();
    data["Exif.Image.Model"] = "any";
    const std::string older = key.toStdString();
    data[older] = "a lens";
    QVERIFY(writePhoto(path(u"older.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"older.jpg"_qs)).lens, u"a lens"_qs);
    data["Exif.Photo.LensModel"] = "the lens";
    QVERIFY(writePhoto(path(u"older.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"older.jpg"_qs)).lens, u"the lens"_qs);
}

/*! An older tag is the same for all of them. */
void tst_CalibrationPanel::metadata_ofACanonRfLens_hasItsOwnId()
{
    Exiv2::ExifData data = canonData();
    data["Exif.CanonCs.LensType"] = uint16_t(61182);
    data["Exif.CanonFi.RFLensType"] = int16_t(258);
    data["Exif.Canon.LensModel"] = "RF24-105mm F4 L IS USM";
    QVERIFY(writePhoto(path(u"rf.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"rf.jpg"_qs)).lensId, u"258"_qs);
    QCOMPARE(readPhotoMetadata(path(u"rf.jpg"_qs)).lens, u"RF24-105mm F4 L IS USM"_qs);
}

void tst_CalibrationPanel::metadata_oddValues_data()
{
    QTest::addColumn<int>("above");
    QTest::addColumn<int>("below");
    QTest::addColumn<double>("focalLength");

    QTest::newRow("plain") << 35 << 1 << 35.0;
    QTest::newRow("no denominator") << 35 << 0 << 0.0;
    QTest::newRow("nothing at all") << 0 << 0 << 0.0;
    QTest::newRow("negative") << -35 << 1 << 0.0;
    QTest::newRow("negative by both") << -35 << -1 << 0.0;
}

void tst_CalibrationPanel::metadata_oddValues()
{
    QFETCH(const int, above);
    QFETCH(const int, below);
    Exiv2::ExifData data = canonData();
    Exiv2::RationalValue value;
    value.value_.emplace_back(above, below);
    data["Exif.Photo.FocalLength"].setValue(&value);
    data["Exif.Image.Model"] = "  two\nlines " + std::string(1000, 'x');
    QVERIFY(writePhoto(path(u"odd.jpg"_qs), data));
    const PhotoMetadata photo = readPhotoMetadata(path(u"odd.jpg"_qs));
    QTEST(photo.focalLength, "focalLength");
    QVERIFY2(photo.model.startsWith(u"two lines xxx"), qPrintable(photo.model));
    QCOMPARE(photo.model.size(), 200);
}

void tst_CalibrationPanel::metadata_focalLengthOfAnotherType_isANumberOrNone()
{
    Exiv2::ExifData data = canonData();
    const Exiv2::AsciiValue text("35 mm");
    data["Exif.Photo.FocalLength"].setValue(&text);
    QVERIFY(writePhoto(path(u"text.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"text.jpg"_qs)).focalLength, 0.0);

    const auto real = Exiv2::Value::create(Exiv2::tiffDouble); // some programs write it so
    real->read("35");
    data["Exif.Photo.FocalLength"].setValue(real.get());
    QVERIFY(writePhoto(path(u"real.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"real.jpg"_qs)).focalLength, 35.0);

    Exiv2::URationalValue huge;
    huge.value_.emplace_back(0xFFFFFFFFU, 0xFFFFFFFFU);
    data["Exif.Photo.FocalLength"].setValue(&huge);
    QVERIFY(writePhoto(path(u"huge.jpg"_qs), data));
    QCOMPARE(readPhotoMetadata(path(u"huge.jpg"_qs)).focalLength, 0.0);
}

/*! No text is made of it. */
void tst_CalibrationPanel::metadata_hugeValue_isNone()
{
    Exiv2::ExifData data = canonData();
    data["Exif.Image.Model"] = std::string(5000, 'x');
    QVERIFY(writePhoto(path(u"huge.jpg"_qs), data));
    QVERIFY(!readPhotoMetadata(path(u"huge.jpg"_qs)).hasCamera());
    QCOMPARE(readPhotoMetadata(path(u"huge.jpg"_qs)).make, u"Canon"_qs);
}

void tst_CalibrationPanel::metadata_ofABrokenPhoto_isTold_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a text") << QByteArray("no picture at all");
    QTest::newRow("head of a JPEG alone") << QByteArray("\xff\xd8\xff\xe1\xff\xff", 6);
}

void tst_CalibrationPanel::metadata_ofABrokenPhoto_isTold()
{
    QFETCH(const QByteArray, content);
    QFile file(path(u"broken.jpg"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    const PhotoMetadata photo = readPhotoMetadata(file.fileName());
    QVERIFY2(photo.error.startsWith(u"broken.jpg can't be read: ") && photo.error.size() > 26, qPrintable(photo.error));
    QVERIFY(!photo.hasCamera());
    QVERIFY(readPhotoMetadata(path(u"none.jpg"_qs)).error.startsWith(u"none.jpg can't be read: "));
}

void tst_CalibrationPanel::metadata_ofAHugeFile_areNotRead()
{
    QFile file(path(u"giant.jpg"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(512LL * 1024 * 1024 + 1)); // takes no room
    file.close();
    QCOMPARE(readPhotoMetadata(file.fileName()).error, u"giant.jpg can't be read: it is too large"_qs);
}

void tst_CalibrationPanel::metadata_ofBrokenExif_isNone_data()
{
    QTest::addColumn<QByteArray>("exif");

    const QByteArray head("II\x2a\0\x08\0\0\0", 8);
    QTest::newRow("noise") << QByteArray("noise instead of a head");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off behind the head") << head;
    QTest::newRow("more entries than bytes") << head + QByteArray("\xff\xff\x0f\x01\x02\0", 6);
    QTest::newRow("text outside of the data")
        << head + QByteArray("\x01\0\x10\x01\x02\0\xff\xff\xff\x7f\xff\xff\xff\x7f\0\0\0\0", 18);
    QTest::newRow("folder that leads to itself")
        << head + QByteArray("\x01\0\x69\x87\x04\0\x01\0\0\0\x08\0\0\0\x08\0\0\0", 18);
}

void tst_CalibrationPanel::metadata_ofBrokenExif_isNone()
{
    QFETCH(QByteArray, exif);
    exif.prepend("Exif\0\0", 6);
    const auto length = quint16(exif.size() + 2);
    const QByteArray segment = QByteArray("\xff\xe1", 2) + char(length >> 8) + char(length & 0xFF) + exif;
    QFile original(QStringLiteral(LIGHTBOX_SAMPLES "/mountain-lake.jpg"));
    QVERIFY(original.open(QIODevice::ReadOnly));
    QFile file(path(u"exif.jpg"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(original.readAll().insert(2, segment));
    file.close();
    const PhotoMetadata photo = readPhotoMetadata(file.fileName());
    QVERIFY(!photo.hasCamera());
    QCOMPARE(photo.focalLength, 0.0);
    QVERIFY2(photo.error.isEmpty() || photo.error.startsWith(u"exif.jpg can't be read: "), qPrintable(photo.error));

    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(file.fileName());
    QCOMPARE(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(),
             photo.error.isEmpty() ? u"The photograph does not tell its camera"_qs : photo.error);
}

void tst_CalibrationPanel::metadata_rawFiles_areToldByTheirNames()
{
    QVERIFY(writePhoto(path(u"one.jpg"_qs), canonData()));
    QVERIFY(QFile::copy(path(u"one.jpg"_qs), path(u"one.CR2"_qs)));
    QVERIFY(!readPhotoMetadata(path(u"one.jpg"_qs)).isRaw);
    QVERIFY(readPhotoMetadata(path(u"one.CR2"_qs)).isRaw);
}

void tst_CalibrationPanel::panel_ofTheSample_showsItsModule()
{
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(sample);
    QCOMPARE(panel.findChild<QLabel *>(u"headingLabel"_qs)->text(), u"lighthouse.jpg"_qs);
    QCOMPARE(panel.findChild<QLabel *>(u"profileLabel"_qs)->text(),
             u"Canon EOS 5D Mark IV, EF24-70mm f/2.8L II USM, 35 mm"_qs);
    QCOMPARE(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(), u"These modules serve it:"_qs);
    const auto *table = panel.findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 1);
    static const QRegularExpression fileName(u"^C\\d{3,5}[a-z]_\\d{3}\\.caf$"_qs);
    QVERIFY2(fileName.match(table->item(0, 0)->text()).hasMatch(), qPrintable(table->item(0, 0)->text()));
    const QStringList expected{u"Canon EF24-70mm f/2.8L II USM"_qs, u"24–70 mm"_qs, u"RAW and RGB"_qs};
    for (int column = 1; column < 4; ++column) {
        QCOMPARE(table->item(0, column)->text(), expected.at(column - 1));
    }
    QVERIFY(!panel.isModal());
}

void tst_CalibrationPanel::panel_state_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("lens");
    QTest::addColumn<int>("focalLength");
    QTest::addColumn<QString>("state");
    QTest::addColumn<bool>("hasModules");

    const QString body = u"Canon EOS 5D Mark IV"_qs;
    const QString unknown = u"a lens of nobody"_qs;
    QTest::newRow("prime") << body << u"Yongnuo YN 50mm f/1.8"_qs << 50 << u"These modules serve it:"_qs << true;
    QTest::newRow("unknown lens") << body << unknown << 50
                                  << u"No module was found for this lens. The camera has these:"_qs << true;
    QTest::newRow("no lens") << body << QString() << 50
                             << u"The photograph does not tell its lens. The camera has these:"_qs << true;
    QTest::newRow("far too long") << body << unknown << 5000 << u"No module of this camera serves the photograph"_qs
                                  << false;
    QTest::newRow("unknown camera") << u"camera of nobody"_qs << unknown << 50
                                    << u"The catalogue does not have this camera"_qs << false;
}

void tst_CalibrationPanel::panel_state()
{
    QFETCH(const QString, model);
    QFETCH(const QString, lens);
    QFETCH(const int, focalLength);
    Exiv2::ExifData data = canonData();
    data["Exif.Image.Model"] = model.toStdString();
    data["Exif.Photo.LensModel"] = lens.toStdString();
    data["Exif.Photo.FocalLength"] = Exiv2::Rational(focalLength, 1);
    QVERIFY(writePhoto(path(u"state.jpg"_qs), data));
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(path(u"state.jpg"_qs));
    QTEST(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(), "state");
    QTEST(panel.findChild<QTableWidget *>()->rowCount() > 0, "hasModules");

    panel.setPhoto(QString());
    QCOMPARE(panel.findChild<QLabel *>(u"headingLabel"_qs)->text(), u"No photograph is open"_qs);
    QCOMPARE(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(), QString());
    QCOMPARE(panel.findChild<QTableWidget *>()->rowCount(), 0);
}

void tst_CalibrationPanel::panel_builtInLensOfUnknownRange_showsNoFocalLength()
{
    Exiv2::ExifData data = canonData();
    data["Exif.Image.Make"] = "Nokia";
    data["Exif.Image.Model"] = "Lumia 930";
    QVERIFY(writePhoto(path(u"phone.jpg"_qs), data));
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(path(u"phone.jpg"_qs));
    const auto *table = panel.findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, 2)->text(), u"–"_qs);
}

void tst_CalibrationPanel::panel_idOfManyLenses_isToldAsOne()
{
    Exiv2::ExifData data = canonData();
    data["Exif.CanonCs.LensType"] = uint16_t(161);
    QVERIFY(writePhoto(path(u"many.jpg"_qs), data));
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(path(u"many.jpg"_qs));
    QCOMPARE(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(), u"One of these modules may serve it:"_qs);
    QVERIFY(panel.findChild<QTableWidget *>()->rowCount() > 1);
    const QString toldByTheTour = tourCalibration(path(u"many.jpg"_qs));
    QVERIFY2(toldByTheTour.contains(u" mm: one of C"), qPrintable(toldByTheTour));
    QVERIFY(!tourCalibration(sample).contains(u"one of"));
}

void tst_CalibrationPanel::panel_parts_haveNames()
{
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(sample);
    panel.show();
    QCOMPARE(accessibilityFaults(panel), QStringList());
}

void tst_CalibrationPanel::panel_brokenCatalogue_isTold()
{
    CCalibrationPanel panel(path(u"no such folder"_qs));
    panel.setPhoto(sample);
    const QString told = panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text();
    QVERIFY2(told.startsWith(u"The catalogue can't be copied to "), qPrintable(told));
}

void tst_CalibrationPanel::panel_followsTheOpenPhotograph()
{
    const PhotoFolder photos(m_folder.path());
    QVERIFY(QFile::copy(sample, photos.filePath(u"a.jpg"_qs)));
    QVERIFY(photos.addPhoto(u"b.jpg"_qs));
    CMainWindow window(photos.path());
    window.showCurrent();
    CReferenceMenu &menu = window.reference();
    menu.actions().at(2)->trigger();
    const auto *heading = menu.calibrationPanel()->findChild<QLabel *>(u"headingLabel"_qs);
    QCOMPARE(heading->text(), u"a.jpg"_qs);
    QVERIFY(menu.calibrationPanel()->isVisible());
    window.showNext();
    QCOMPARE(heading->text(), u"b.jpg"_qs);
    menu.calibrationPanel()->close();
    window.showPrevious();
    QCOMPARE(heading->text(), u"b.jpg"_qs); // nothing is read for a window that is closed
    menu.actions().at(2)->trigger();
    QCOMPARE(heading->text(), u"a.jpg"_qs);
}

/*! It would wait for the same slow drive, and without a limit. */
void tst_CalibrationPanel::panel_ofAPhotographGivenUp_isEmpty()
{
    const PhotoFolder photos(m_folder.path());
    QVERIFY(photos.addPhoto(u"a.jpg"_qs));
    QVERIFY(photos.addPhoto(u"b.jpg"_qs, QSize(6000, 4000))); // takes longer than the limit
    CMainWindow window(photos.path());
    window.showCurrent();
    CReferenceMenu &menu = window.reference();
    menu.actions().at(2)->trigger();
    const auto *heading = menu.calibrationPanel()->findChild<QLabel *>(u"headingLabel"_qs);
    QCOMPARE(heading->text(), u"a.jpg"_qs);
    window.setLoadTimeLimit(1);
    window.showNext();
    QCOMPARE(window.statusText(), u"b.jpg takes too long"_qs);
    QCOMPARE(heading->text(), u"No photograph is open"_qs);
}

void tst_CalibrationPanel::panel_liveLanguage_isSpokenAtOnce()
{
    RUN_IN_FRESH_PROCESS();
    CCalibrationPanel panel(m_folder.path());
    panel.setPhoto(sample);
    speakAtOnce(u"de"_qs);
    QCOMPARE(panel.windowTitle(), u"Kalibrierungsmodule"_qs);
    QCOMPARE(panel.findChild<QLabel *>(u"cafStateLabel"_qs)->text(), u"Diese Module passen dazu:"_qs);
    const auto *table = panel.findChild<QTableWidget *>();
    QCOMPARE(table->horizontalHeaderItem(2)->text(), u"Brennweite"_qs);
    QCOMPARE(table->item(0, 3)->text(), u"RAW und RGB"_qs);
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_CalibrationPanel test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_CalibrationPanel.moc"
