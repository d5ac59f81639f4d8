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
#include <cmath>

using namespace ZYX_zglv6;

namespace {

constexpr qsizetype longestText = 200; // a name of a camera or lens is shorter
constexpr long longestValue = 4096; // bytes; of a larger one no text is made

const Exiv2::Exifdatum *datum(const Exiv2::ExifData &data, const char *key)
{
    const auto found = data.findKey(Exiv2::ExifKey(key));
    return found == data.end() || found->count() == 0 || found->size() > longestValue ? nullptr : &*found;
}

QString textOf(const Exiv2::ExifData &data, const char *key)
{
    const Exiv2::Exifdatum *found = datum(data, key);
    return found == nullptr ? QString() : QString::fromStdString(found->toString()).simplified().left(longestText);
}

double focalLengthOf(const Exiv2::ExifData &data)
{
    const Exiv2::Exifdatum *found = datum(data, "Exif.Photo.FocalLength");
    if (found == nullptr) {
        return 0.0;
    }
    const Exiv2::Rational length = found->toRational();
    return length.second == 0 ? 0.0 : std::max(double(length.first) / length.second, 0.0);
}

/*! Such as "0A". Through its text: the number's type is another from version to version of the library. */
QString hexByte(const Exiv2::Exifdatum &datum)
{
    const int value = QString::fromStdString(datum.toString()).toInt() & 0xFF;
    return QString::number(value, 16).rightJustified(2, u'0').toUpper();
}

/*! Eight bytes that this maker's cameras tell a lens by, such as "7A 3C 1F 37 30 30 7E 06". */
QString nikonLensId(const Exiv2::ExifData &data)
{
    for (const QString &group : {u"Exif.NikonLd3."_qs, u"Exif.NikonLd2."_qs, u"Exif.NikonLd1."_qs}) {
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

QString lensIdOf(const Exiv2::ExifData &data)
{
    for (const char *key : {"Exif.CanonCs.LensType", "Exif.Sony2.LensID", "Exif.Sony1.LensID"}) {
        QString id = textOf(data, key);
        if (!id.isEmpty()) {
            return id;
        }
    }
    return nikonLensId(data);
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
    metadata.lens = textOf(data, "Exif.Photo.LensModel");
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

PhotoMetadata readPhotoMetadata(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(path, file.errorString());
    }
    const uchar *bytes = file.map(0, file.size()); // a name would be a path in the system's own letters, or an address
    if (bytes == nullptr) {
        return failure(path, file.errorString());
    }
    try {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute); // broken data are no message of this program
        Exiv2::enableBMFF(true); // Canon's newer RAW files
        const auto image = Exiv2::ImageFactory::open(bytes, file.size());
        image->readMetadata();
        PhotoMetadata metadata = metadataOf(image->exifData());
        metadata.isRaw = isRawFile(path);
        return metadata;
    } catch (const std::exception &error) {
        return failure(path, QString::fromLocal8Bit(error.what()));
    }
}
