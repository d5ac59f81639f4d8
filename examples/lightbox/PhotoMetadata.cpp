// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoMetadata.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <array>

using namespace ZYX_zglv6;

namespace {

constexpr qsizetype longestText = 200; // a name of a camera or lens is shorter
constexpr long longestValue = 4096; // bytes; of a larger one no text is made
constexpr qint64 largestFile = 512LL * 1024 * 1024; // bytes; RAW files have half of that at most
constexpr QLatin1StringView anyRfLens("61182"); // what an older tag says of each of these lenses of Canon

const Exiv2::Exifdatum *datum(const Exiv2::ExifData &data, const char *key)
{
    try {
        const auto found = data.findKey(Exiv2::ExifKey(key));
        return found == data.end() || found->count() == 0 || found->size() > longestValue ? nullptr : &*found;
    } catch (const std::exception &) {
        return nullptr; // a key that came with a later version of the library
    }
}

QString textOf(const Exiv2::ExifData &data, const char *key)
{
    const Exiv2::Exifdatum *found = datum(data, key);
    return found == nullptr ? QString() : QString::fromStdString(found->toString()).simplified().left(longestText);
}

/*! What another type holds would be taken for its first byte. */
bool isNumber(Exiv2::TypeId type)
{
    constexpr std::array numbers{Exiv2::unsignedShort, Exiv2::unsignedLong, Exiv2::unsignedRational,
                                 Exiv2::signedShort,   Exiv2::signedLong,   Exiv2::signedRational,
                                 Exiv2::tiffFloat,     Exiv2::tiffDouble};
    return std::find(numbers.begin(), numbers.end(), type) != numbers.end();
}

double focalLengthOf(const Exiv2::ExifData &data)
{
    const Exiv2::Exifdatum *found = datum(data, "Exif.Photo.FocalLength");
    if (found == nullptr || !isNumber(found->typeId())) {
        return 0.0;
    }
    const Exiv2::Rational length = found->toRational();
    return length.first <= 0 || length.second <= 0 ? 0.0 : double(length.first) / length.second;
}

/*! Such as "0A". Through its text: the number's type is another from version to version of the library. */
QString hexByte(const Exiv2::Exifdatum &datum)
{
    const int value = QString::fromStdString(datum.toString()).toInt() & 0xFF;
    return QString::number(value, 16).rightJustified(2, u'0').toUpper();
}

QString canonLensId(const Exiv2::ExifData &data)
{
    const QString id = textOf(data, "Exif.CanonCs.LensType");
    return id == anyRfLens ? textOf(data, "Exif.CanonFi.RFLensType") : id;
}

/*! A number of a newer lens, or the eight bytes of an older one, such as "7A 3C 1F 37 30 30 7E 06". */
QString nikonLensId(const Exiv2::ExifData &data)
{
    const QString number = textOf(data, "Exif.NikonLd4.LensID");
    if (!number.isEmpty() && number != u"0") {
        return number;
    }
    for (const QString &group :
         {u"Exif.NikonLd4."_qs, u"Exif.NikonLd3."_qs, u"Exif.NikonLd2."_qs, u"Exif.NikonLd1."_qs}) {
        QStringList bytes;
        for (const QString &name : {u"LensIDNumber"_qs, u"LensFStops"_qs, u"MinFocalLength"_qs, u"MaxFocalLength"_qs,
                                    u"MaxApertureAtMinFocal"_qs, u"MaxApertureAtMaxFocal"_qs, u"MCUVersion"_qs}) {
            const QByteArray key = QString(group + name).toLatin1();
            if (const Exiv2::Exifdatum *found = datum(data, key.constData())) {
                bytes.append(hexByte(*found));
            }
        }
        const Exiv2::Exifdatum *type = datum(data, "Exif.Nikon3.LensType");
        if (bytes.size() == 7 && type != nullptr) {
            bytes.append(hexByte(*type));
            return bytes.join(u' ');
        }
    }
    return {};
}

/*! Two numbers, such as "8 200". */
QString pentaxLensId(const Exiv2::ExifData &data)
{
    for (const char *key : {"Exif.Pentax.LensType", "Exif.PentaxDng.LensType"}) {
        const QStringList numbers = textOf(data, key).split(u' ', Qt::SkipEmptyParts);
        if (numbers.size() >= 2) {
            return QStringList(numbers.first(2)).join(u' ');
        }
    }
    return {};
}

/*! Of six numbers the maker, the model and its version, in hexadecimal: "0 21 10". */
QString olympusLensId(const Exiv2::ExifData &data)
{
    const QStringList numbers = textOf(data, "Exif.OlympusEq.LensType").split(u' ', Qt::SkipEmptyParts);
    if (numbers.size() < 4) {
        return {};
    }
    const auto hex = [&numbers](qsizetype place, qsizetype width) {
        return QString::number(numbers.at(place).toInt(), 16).rightJustified(width, u'0');
    };
    return QStringList{hex(0, 1), hex(2, 2), hex(3, 2)}.join(u' ');
}

QString lensIdOf(const Exiv2::ExifData &data)
{
    QStringList ids{canonLensId(data)};
    for (const char *key :
         {"Exif.Sony2.LensID", "Exif.Sony1.LensID", "Exif.Minolta.LensID", "Exif.Samsung2.LensType"}) {
        ids.append(textOf(data, key));
    }
    ids << nikonLensId(data) << pentaxLensId(data) << olympusLensId(data);
    ids.removeAll(QString());
    return ids.value(0);
}

bool isRawFile(const QString &path)
{
    return QDir::match(QString(rawFilter).split(u' '), QFileInfo(path).fileName());
}

PhotoMetadata metadataOf(const Exiv2::ExifData &data)
{
    PhotoMetadata metadata;
    metadata.make = textOf(data, "Exif.Image.Make");
    metadata.model = textOf(data, "Exif.Image.Model");
    for (const char *key : {"Exif.Photo.LensModel", "Exif.Canon.LensModel", "Exif.OlympusEq.LensModel",
                            "Exif.Panasonic.LensType"}) { // older cameras write their maker's alone
        if (metadata.lens.isEmpty()) {
            metadata.lens = textOf(data, key);
        }
    }
    metadata.lensId = lensIdOf(data);
    metadata.focalLength = focalLengthOf(data);
    return metadata;
}

PhotoMetadata failure(const QString &path, const QString &reason)
{
    PhotoMetadata metadata;
    metadata.error = QCoreApplication::translate("CPhotoMetadata", "%1 can't be read: %2")
                         .arg(QFileInfo(path).fileName(), reason.simplified());
    return metadata;
}

} // namespace

bool PhotoMetadata::hasCamera() const
{
    return !model.isEmpty();
}

bool PhotoMetadata::hasLens() const
{
    return !lens.isEmpty() || !lensId.isEmpty();
}

PhotoMetadata readPhotoMetadata(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(path, file.errorString());
    }
    if (file.size() > largestFile) {
        return failure(path, QCoreApplication::translate("CPhotoMetadata", "it is too large"));
    }
    // Not by its name, which would be a path in the system's own letters, or an address. Not mapped: the program would
    // die if the file were cut short or its drive went meanwhile.
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return failure(path, file.errorString());
    }
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute); // broken data are no message of this program
        Exiv2::enableBMFF(true); // Canon's newer RAW files
        const auto image
            = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte *>(bytes.constData()), bytes.size());
        image->readMetadata();
        PhotoMetadata metadata = metadataOf(image->exifData());
        metadata.isRaw = isRawFile(path);
        return metadata;
    } catch (const std::exception &error) {
        return failure(path, QString::fromLocal8Bit(error.what()));
    }
}
