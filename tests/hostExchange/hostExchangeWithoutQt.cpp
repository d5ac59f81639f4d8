// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// Both sides of an exchange, as a plug-in's module without Qt builds them: saves, loads, and compares. Takes the path
// of the data file; returns 0 if all was as it should be, else prints what was not.
#include "hostExchange/PhotoshopDataStructure.h"
#include "hostExchange/PhotoshopServerDataStructure.h"
#include "utilsDll/frame/PluginKeys.h"

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <new>
#include <string>

#ifdef QT_VERSION
#error "a header of Qt was included"
#endif

using namespace ZYX_zglv6;
using DataVariant = PhotoshopDataStructure::DataVariant;

namespace {

constexpr std::array<char, 12> image{'\0', '\n', '\r', '\x1a', 4, 5, 6, 7, 8, 9, 10, '\xff'};

int failures = 0;

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "failed: %s\n", what);
        ++failures;
    }
}

bool isFile(const std::string &path)
{
    return std::ifstream(path).is_open();
}

struct PixelDeleter
{
    void operator()(char *pixels) const
    {
        ::operator delete(pixels);
    }
};

void sendAnswer(const std::string &path, int exitCode)
{
    PhotoshopDataStructure answer(path);
    answer.setValue(PluginKeys::exitCode, exitCode);
    answer.setValue(PluginKeys::hostAppName, DataVariant::fromString("host"));
    check(answer.save(image.data(), 2, 2, 8), "save");
}

void readSuccess(const std::string &path)
{
    PhotoshopServerDataStructure answer(path);
    char *read = nullptr;
    check(answer.load(&read), "load of a success");
    const std::unique_ptr<char, PixelDeleter> pixels(read);
    check(answer.exitCode() == 0, "exit code of a success");
    check(answer.width() == 2 && answer.height() == 2 && answer.depth() == 8, "dimensions");
    check(answer.data().at(PluginKeys::hostAppName).toString() == "host", "text");
    check(pixels && std::string(pixels.get(), image.size()) == std::string(image.data(), image.size()), "pixels");
}

void readFailure(const std::string &path)
{
    PhotoshopServerDataStructure answer(path);
    char *pixels = nullptr;
    check(answer.load(&pixels), "load of a failure");
    check(!pixels, "no pixels of a failure");
    check(answer.exitCode() == 3, "exit code of a failure");
}

void readNothing(const std::string &path)
{
    PhotoshopServerDataStructure answer(path);
    check(!answer.load(nullptr), "load without a data file");
    check(answer.exitCode() == -1, "exit code without a data file");
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const std::string path = argumentCount == 2 ? arguments[1] : "";
    const std::string imagePath = path + "-image";
    sendAnswer(path, 0);
    check(isFile(imagePath), "image file is there");
    readSuccess(path);
    check(!isFile(imagePath), "image file is gone");
    check(isFile(path), "data file stays");
    sendAnswer(path, 3);
    readFailure(path);
    std::remove(path.c_str());
    readNothing(path);
    return failures == 0 ? 0 : 1;
}
