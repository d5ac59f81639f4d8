// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "hostExchange/PhotoshopServerDataStructure.h"

#include "utilsDll/frame/PluginKeys.h"

#include <cstdio>

namespace ZYX_zglv6 {

namespace {

constexpr int failed = -1;

} // namespace

PhotoshopServerDataStructure::~PhotoshopServerDataStructure()
{
    removeImageFile();
}

bool PhotoshopServerDataStructure::load(char **imageData)
{
    if (PhotoshopDataStructure::load(imageData)) {
        return true;
    }
    setFailed();
    return false;
}

bool PhotoshopServerDataStructure::isImageExpected() const
{
    return exitCode() == 0;
}

int PhotoshopServerDataStructure::exitCode() const
{
    return intValue(PluginKeys::exitCode, failed);
}

void PhotoshopServerDataStructure::setFailed()
{
    setValue(PluginKeys::exitCode, failed);
}

void PhotoshopServerDataStructure::removeImageFile()
{
    std::remove(imageFilePath().c_str()); // there may be none: the result says nothing
}

} // namespace ZYX_zglv6
