// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "utilsDll/files/AdministratorActions.h"
#include "utilsDll/files/FileUtils.h"

using namespace ZYX_zglv6;

namespace Snippets {

//! [copy]
QString saveCopy(const QString &photograph, const QString &name)
{
    const QFileInfo file(photograph);
    if (!validateFileName(name, false)) {
        return u"%1 can't be the name of a file"_qs.arg(name);
    }
    const long long room = availableDiskSpace(file.absolutePath()); // 0 where Windows can't tell
    if (room > 0 && room < file.size()) {
        return u"There is no room for %1"_qs.arg(fileSizeToString(file.size()));
    }
    return copyRecursively(photograph, file.dir().filePath(name)) ? QString() : u"It could not be copied"_qs;
}
//! [copy]

//! [walk]
QStringList photographsBehind(const QString &photograph)
{
    QStringList paths;
    for (QString path = getNextFilePath(photograph); !path.isEmpty(); path = getNextFilePath(path)) {
        if (path.endsWith(u".jpg", Qt::CaseInsensitive)) { // folders and hidden files are in the walk too
            paths.append(path);
        }
    }
    return paths;
}
//! [walk]

//! [protected]
bool installForAllUsers(const std::string &folder, const QByteArray &presets)
{
    const AdministratorActions actions;
    return actions.createFolder(folder, "755") && actions.writeFile(folder + "/presets.xml", "444", presets);
}
//! [protected]

} // namespace Snippets
