// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utilsDll/frame/PluginKeys.h"

#include <QtCore/QString>

#include <array>

/*! Names, texts and keys that the library and its hosts share. */
namespace ZYX_zglv6 {

inline constexpr QLatin1StringView productDisplayName("Zyx Grainlab 6");
inline constexpr QLatin1StringView organizationName("Zyx Labs");

// Files of pictures

inline constexpr std::array<QLatin1StringView, 4> imageExtensions{
    QLatin1StringView(".tiff"), QLatin1StringView(".tif"), QLatin1StringView(".jpeg"), QLatin1StringView(".jpg")};

inline constexpr QLatin1StringView imageFilter("*.tiff *.tif *.jpeg *.jpg");
inline constexpr QLatin1StringView
    rawFilter("*.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 *.rwl *.nrw *.srw *.cr2 *.cr3 *.nef *.dng *.zyx *.3fr");
inline constexpr QLatin1StringView imageAndRawFilter( // the two with a blank between them
    "*.tiff *.tif *.jpeg *.jpg "
    "*.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 *.rwl *.nrw *.srw *.cr2 *.cr3 *.nef *.dng *.zyx *.3fr");

// Launch modes: values of launchModeKey

inline constexpr QLatin1StringView launchModeStandalone("Standalone");
inline constexpr QLatin1StringView launchModeLightroom("LR");
inline constexpr QLatin1StringView launchModePhotoshop("PS");

// Keys in the settings that the library reads or writes

inline constexpr QLatin1StringView appLaunchedKey("app_launched");
inline constexpr QLatin1StringView presetsMigratedKey("presets_migrated");
inline constexpr QLatin1StringView launchModeKey("app_launchMode");
inline constexpr QLatin1StringView resellerIdKey("resellerId");
inline constexpr QLatin1StringView loggerLevelKey("loggerLevel");
inline constexpr QLatin1StringView loggerEnabledKey("loggerEnabled");
inline constexpr QLatin1StringView sendStatisticKey("ZyxSendStat");
inline constexpr QLatin1StringView sendCrashReportKey("ZyxSentCrashReport");
inline constexpr QLatin1StringView imageSizeUnitsKey("imageSizeUnits");
inline constexpr QLatin1StringView languageKey("ZyxAppLanguage");
inline constexpr QLatin1StringView userIdKey("UserID"); // in a store apart from the product's settings
inline constexpr QLatin1StringView pluginFolderKey("ZyxPSQtPlugInDllDir"); // in the machine's store

// Keys in the settings that are the hosts' own: no code of the library reads or writes them

inline constexpr QLatin1StringView standaloneCrashFlagKey("appStandaloneCrashFlag");
inline constexpr QLatin1StringView photoshopCrashFlagKey("appPSCrashFlag");
inline constexpr QLatin1StringView lightroomCrashFlagKey("appLRCrashFlag");
inline constexpr QLatin1StringView crashFlagStarted("started");
inline constexpr QLatin1StringView crashFlagCrashed("crashed");
inline constexpr QLatin1StringView crashFlagFinished("finished");

inline constexpr QLatin1StringView mainWindowScreenKey("app_mwScreenNumber");
inline constexpr QLatin1StringView sceneBackgroundColorKey("sceneBackgroundColor");
inline constexpr QLatin1StringView keepImageSettingsKey("keepImgSettingsWhenNavigating");
inline constexpr QLatin1StringView applyDigitalRenderingKey("automaticallyApplyFujiDigitalRendering");
inline constexpr QLatin1StringView separateJpegKey("separateJPEG");
inline constexpr QLatin1StringView clearDiskCacheKey("clearDiskCache");
inline constexpr QLatin1StringView gridCompositionModeKey("gridOverlay.compositionMode");
inline constexpr QLatin1StringView gridColorKey("gridOverlay.color");
inline constexpr QLatin1StringView gridSizeKey("gridOverlay.size");
inline constexpr QLatin1StringView naturalIntensityKey("natural.intensity");
inline constexpr QLatin1StringView showImageSizeKey("showImageSize");
inline constexpr QLatin1StringView settingsFocusNumberKey("settingsFocusNumber");

// Keys in the preferences file

inline constexpr QLatin1StringView dataDirectoryKey("GlobalSettings/DataDirectory");
inline constexpr QLatin1StringView cafDbFilePathKey("CAF/CafDbFilePath");
inline constexpr QLatin1StringView cafModulesPathKey("CAF/CafModulesPath");
inline constexpr QLatin1StringView crashServiceHostKey("CrashSender/HostName");

// The crash collection service

inline constexpr QLatin1StringView crashServicePath("/CollectDumpInfo/WSCollectDump.asmx");
inline constexpr QLatin1StringView crashServiceNamespacePath("/CollectDump");

} // namespace ZYX_zglv6
