// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "FilesTour.h"

#include "PhotoFiles.h"

#include "utilsDll/files/FileUtils.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

using namespace ZYX_zglv6;

namespace {

/*! That of the photograph, which another system may have given it, or a plain one. */
QString validName(const QString &photo)
{
    const QString name = QFileInfo(photo).fileName();
    return validateFileName(name, false) ? name : u"photograph.jpg"_qs;
}

QString quotedName(const QString &path)
{
    return path.isEmpty() ? u"nothing"_qs : QString(u'"' + QFileInfo(path).fileName() + u'"');
}

QString walk(const QString &first)
{
    const QString second = getNextFilePath(first);
    return u"next %1, then %2, back %3"_qs.arg(quotedName(second), quotedName(getNextFilePath(second)),
                                               quotedName(getPreviouseFilePath(second)));
}

QString verdictsOnNames()
{
    QStringList verdicts;
    for (const QString &name : {u"NUL.jpg"_qs, u"NUL"_qs, u"a:b.jpg"_qs}) {
        verdicts += u"%1 \"%2\""_qs.arg(validateFileName(name, false) ? u"valid"_qs : u"not valid"_qs, name);
    }
    return verdicts.join(u", "_qs);
}

} // namespace

QString tourFiles(const QString &photo, QSize size, const QString &workFolder)
{
    QTemporaryDir folder(QDir(workFolder).filePath(u"files-XXXXXX"_qs));
    const QString name = validName(photo);
    const QString copy = folder.filePath(CPhotoFiles::nameOfCopy(name));
    if (!folder.isValid() || !copyRecursively(photo, folder.filePath(name)) || !copyRecursively(photo, copy)) {
        return u"%1 could not be copied to %2"_qs.arg(quotedName(photo), QDir::toNativeSeparators(workFolder));
    }
    const QString told = u"%1, %2, %3; %4; %5"_qs.arg(
        quotedName(copy), sizeToString(size), fileSizeToString(QFileInfo(copy).size()), walk(copy), verdictsOnNames());
    const bool isGone = removeDirectoryContent(QDir(folder.path())) && QDir().rmdir(folder.path());
    return told + (isGone ? u"; emptied and removed"_qs : u"; could not be removed"_qs);
}
