// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

/*! Keys of the record that plug-in and application exchange. Without Qt, as the exchange is. */
namespace ZYX_zglv6::PluginKeys {

inline constexpr char batchMode[] = "batchMode";
inline constexpr char hostAppName[] = "HostAppName";
inline constexpr char hostAppVersion[] = "HostAppVersion";
inline constexpr char width[] = "width";
inline constexpr char height[] = "height";
inline constexpr char depth[] = "depth";
inline constexpr char pluginData[] = "pPluginData";
inline constexpr char exitCode[] = "exitCode";
inline constexpr char exif[] = "exif";
inline constexpr char iccProfile[] = "IccProfile";
inline constexpr char showUi[] = "showUI";
inline constexpr char originalImageFilePath[] = "originalImageFilePath";
inline constexpr char serverProcessId[] = "serverPID";

} // namespace ZYX_zglv6::PluginKeys
