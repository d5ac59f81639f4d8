// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/ProcessInfo.h"

#include "platform/Processes.h"

namespace UtilsDll {

namespace {

BinaryVersion unknownVersion()
{
    return {0, 0, 0, 0};
}

} // namespace

BinaryVersion::BinaryVersion(quint32 major_, quint32 minor_, quint32 build_, quint32 revision_)
    : major(major_)
    , minor(minor_)
    , build(build_)
    , revision(revision_)
{
}

BinaryVersion::BinaryVersion(const BinaryVersion &other) = default;
BinaryVersion::BinaryVersion(BinaryVersion &&other) noexcept = default;
BinaryVersion &BinaryVersion::operator=(const BinaryVersion &other) = default;
BinaryVersion &BinaryVersion::operator=(BinaryVersion &&other) noexcept = default;
BinaryVersion::~BinaryVersion() = default;

QString currentProcessName()
{
    return ZyxPlatform::currentProcessName();
}

BinaryVersion binaryFileVersionByProcessName(const QString &processName)
{
    if (processName.isEmpty()) {
        return unknownVersion();
    }
    const QString path = ZyxPlatform::pathOfFirstProcessNamed(processName);
    if (path.isEmpty()) {
        return unknownVersion();
    }
    const auto version = ZyxPlatform::fileVersion(path);
    return version ? BinaryVersion(version->at(0), version->at(1), version->at(2), version->at(3)) : unknownVersion();
}

} // namespace UtilsDll
