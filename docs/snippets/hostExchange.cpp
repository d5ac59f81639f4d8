// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "hostExchange/PhotoshopDataStructure.h"
#include "hostExchange/PhotoshopServerDataStructure.h"
#include "utilsDll/frame/PluginKeys.h"

#include <memory>

using namespace ZYX_zglv6;

namespace Snippets {

//! [handOver]
bool handOver(const std::string &path, const char *pixels, int width, int height)
{
    PhotoshopDataStructure record(path);
    record.setValue(PluginKeys::hostAppName, PhotoshopDataStructure::DataVariant::fromString("Darkroom"));
    return record.save(pixels, width, height, 8); // three bytes a pixel
}
//! [handOver]

//! [answer]
bool answer(const std::string &path, const std::function<bool(char *pixels, std::uint64_t size)> &develop)
{
    PhotoshopDataStructure record(path);
    char *pixels = nullptr;
    if (!record.load(&pixels)) {
        return false;
    }
    const std::unique_ptr<char, void (*)(void *)> owned(pixels, [](void *memory) { ::operator delete(memory); });
    const bool isDeveloped = pixels != nullptr && develop(pixels, record.imageSize());
    record.setValue(PluginKeys::exitCode, isDeveloped ? 0 : 1);
    return record.save(isDeveloped ? pixels : nullptr, record.width(), record.height(), record.depth());
}
//! [answer]

//! [readAnswer]
int readAnswer(const std::string &path, const std::function<void(const char *pixels, std::uint64_t size)> &use)
{
    PhotoshopServerDataStructure answer(path); // takes the image file with it
    char *pixels = nullptr;
    if (answer.load(&pixels) && pixels != nullptr) {
        use(pixels, answer.imageSize());
    }
    ::operator delete(pixels);
    return answer.exitCode();
}
//! [readAnswer]

} // namespace Snippets
