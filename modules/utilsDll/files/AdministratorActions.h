// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/Export.h"

#include <memory>
#include <string>

class QByteArray;

/*!
    The few file operations that may need more rights than the user has. Paths are UTF-8, with one exception.

    To be made, used and destroyed on one thread: on Windows it takes part in that thread's COM. A failure is
    a false result and one line in the log; for bytes that could not be written, the result alone.

    Permissions are an octal mode, such as "755". On Windows only its write bits count: without any, the path
    becomes read-only. One that does not begin with an octal number throws std::invalid_argument, one beyond
    an int std::out_of_range.
*/
class UTILSDLL_EXPORT AdministratorActions
{
public:
    AdministratorActions();
    ~AdministratorActions();

    AdministratorActions(const AdministratorActions &) = delete;
    AdministratorActions &operator=(const AdministratorActions &) = delete;

    /*!
        Makes or empties the file, sets its permissions, and only then writes \a data: who opens it later,
        reads only what the permissions allow. False also if not all could be written.
    */
    [[nodiscard]] bool writeFile(const std::string &path, const std::string &permissions, const QByteArray &data) const;

    /*!
        Makes the folder, and those above it, after the system has asked the user for an administrator's
        rights; blocks while it asks. False if the user refuses, or on Windows the path has a quotation mark.
        Windows does not wait for the folder: then the permissions may come too early, which is false too,
        though the folder comes into being.
    */
    [[nodiscard]] bool createFolder(const std::string &path, const std::string &permissions) const;

    /*!
        Of what the path leads to, when it is a link. Other than above, the path is in the system's narrow encoding,
        which on Windows need not be UTF-8. The other two pass their path on as it is: beyond ASCII they may be false
        there, with the file or folder made; bytes that are nothing in that encoding may throw std::system_error.
    */
    [[nodiscard]] bool setPathPermissions(const std::string &path, const std::string &permissions) const;

private:
    class Pimpl;
    const std::unique_ptr<Pimpl> pimpl; // null: nothing has needed a state yet
};
