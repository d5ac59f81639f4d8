// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/Trash.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>

namespace ZyxPlatform {

namespace {

/*! Qt puts the file into the working folder, and is content, where it finds no trash and can't make one. */
bool isHomeTrashThere()
{
    const QDir home(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (!home.mkpath(QStringLiteral("."))) {
        return false;
    }
    constexpr QFile::Permissions ownersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    for (const QString &folder :
         {QStringLiteral("Trash"), QStringLiteral("Trash/files"), QStringLiteral("Trash/info")}) {
        if (!QDir(home.filePath(folder)).exists() && !home.mkdir(folder, ownersAlone)) {
            return false;
        }
    }
    return true;
}

/*!
    Percent-encodes the origin of what lies in the trash, which some versions of Qt write as it is: "100%25.tif"
    would come back as "100%.tif". A note that can't be written stays as it was.
*/
void encodeOrigin(const QFileInfo &inTrash, const QByteArray &origin)
{
    const QString name
        = inTrash.path() + QStringLiteral("/../info/") + inTrash.fileName() + QStringLiteral(".trashinfo");
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    QByteArray note = file.readAll();
    file.close();
    const QByteArray key("\nPath=");
    const qsizetype start = note.indexOf(key) + key.size();
    const qsizetype length = note.lastIndexOf("\nDeletionDate=") - start;
    const QByteArray path = note.mid(start, length);
    if (start < key.size() || length <= 0 || !origin.endsWith(path)) {
        return; // encoded already
    }
    note.replace(start, length, path.toPercentEncoding("/"));
    QSaveFile anew(name);
    if (anew.open(QIODevice::WriteOnly) && anew.write(note) == note.size()) {
        anew.commit();
    }
}

} // namespace

bool moveToTrash(const QString &path)
{
    const QByteArray origin = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    QString inTrash;
    if (!isHomeTrashThere() || !QFile::moveToTrash(path, &inTrash)) {
        return false;
    }
    encodeOrigin(QFileInfo(inTrash), origin);
    return true;
}

} // namespace ZyxPlatform
