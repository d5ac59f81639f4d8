// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Toning.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace {

template <typename Channel>
using Color = std::array<Channel, 3>;

/*! The tone of each grey. */
template <typename Channel>
std::vector<Color<Channel>> tones()
{
    constexpr std::uint64_t most = std::numeric_limits<Channel>::max();
    std::vector<Color<Channel>> result(most + 1);
    for (std::uint64_t grey = 0; grey <= most; ++grey) {
        const std::uint64_t curved = (3 * most * grey * grey - 2 * grey * grey * grey) / (most * most);
        const std::uint64_t warmth = 3 * (curved * (most - curved) / most) / 8;
        result[grey] = {Channel(curved + warmth), Channel(curved), Channel(curved - warmth)};
    }
    return result;
}

template <typename Channel>
void darken(Color<Channel> &color)
{
    for (Channel &channel : color) {
        channel = Channel(channel / 4);
    }
}

template <typename Channel>
void darkenFrame(Color<Channel> *colors, std::size_t width, std::size_t height)
{
    for (std::size_t y = 0; y < height; ++y) {
        const bool isOuter = y == 0 || y == height - 1;
        const std::size_t step = isOuter || width == 1 ? 1 : width - 1; // inside: the first and the last one
        for (std::size_t x = 0; x < width; x += step) {
            darken(colors[y * width + x]);
        }
    }
}

template <typename Channel>
void tone(char *pixels, std::size_t width, std::size_t height)
{
    auto *colors = reinterpret_cast<Color<Channel> *>(pixels); // from the allocator, so aligned for both
    const std::vector<Color<Channel>> table = tones<Channel>();
    for (std::size_t i = 0; i < width * height; ++i) {
        const Color<Channel> &color = colors[i];
        colors[i] = table[(299U * color[0] + 587U * color[1] + 114U * color[2] + 500U) / 1000U];
    }
    darkenFrame(colors, width, height);
}

} // namespace

void toneWarm(char *pixels, const FrameSize &size)
{
    const auto width = std::size_t(size.width);
    const auto height = std::size_t(size.height);
    if (size.depth == 8) {
        tone<std::uint8_t>(pixels, width, height);
    } else if (size.depth == 16) {
        tone<std::uint16_t>(pixels, width, height);
    }
}
