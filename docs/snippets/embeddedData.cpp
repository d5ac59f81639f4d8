// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

using namespace ZYX_zglv6;

namespace Snippets {

//! [note]
/*! What is told of a preset in a language, as HTML for a text browser; empty if there is nothing. */
QString note(const QString &presetId, const QString &language)
{
    QFile file(u":/presets/presetInfo.xml"_qs);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QString element = u"description_"_qs + language;
    bool isOfPreset = false;
    for (QXmlStreamReader reader(&file); !reader.atEnd(); reader.readNext()) {
        if (reader.isStartElement() && reader.name() == u"preset") {
            isOfPreset = reader.attributes().value(u"id"_qs) == presetId;
        } else if (isOfPreset && reader.isStartElement() && reader.name() == element) {
            return QString::fromUtf8(QByteArray::fromBase64(reader.readElementText().toLatin1()));
        }
    }
    return {};
}
//! [note]

//! [catalogue]
/*! Puts the catalogue into \a folder, where SQLite can read it, and tells its path; empty if it can't be written. */
QString unpackCatalogue(const QDir &folder)
{
    const QString name = CStorageLocation::getCafDbFileNameDefault();
    const QString path = folder.filePath(name);
    QFile::remove(path); // it may be that of an older release
    const bool isThere = QFile::copy(u":/calibration/db/"_qs + name, path)
        && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner); // or Windows never removes it
    return isThere ? path : QString();
}
//! [catalogue]

} // namespace Snippets
