// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

struct TestFolder;
class QString;

// Copying with the bare calls of the system and zlib's checksum of each file, in pieces of the library's sizes: 16,384
// bytes on the way in, 8,192 bytes on the way out.

/*! Each source file into a file of its own. */
bool copyIn(const TestFolder &folder);
bool copyOut(const TestFolder &folder);

/*! All source files into the one file \a path, as an archive has them. */
bool appendFiles(const TestFolder &folder, const QString &path);

/*! The joined files into files of their own. */
bool cutFiles(const TestFolder &folder);
