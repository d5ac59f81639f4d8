// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/SharedConstants.h"

#include <QtTest/QTest>

#include <algorithm>
#include <string_view>

using namespace ZYX_zglv6;

namespace {

constexpr std::string_view plain(QLatin1StringView text)
{
    return {text.data(), std::size_t(text.size())};
}

struct Row
{
    std::string_view value;
    std::string_view expected;
};

constexpr std::array settingsRows{
    Row{plain(appLaunchedKey), "app_launched"},
    Row{plain(presetsMigratedKey), "presets_migrated"},
    Row{plain(launchModeKey), "app_launchMode"},
    Row{plain(resellerIdKey), "resellerId"},
    Row{plain(loggerLevelKey), "loggerLevel"},
    Row{plain(loggerEnabledKey), "loggerEnabled"},
    Row{plain(sendStatisticKey), "ZyxSendStat"},
    Row{plain(sendCrashReportKey), "ZyxSentCrashReport"},
    Row{plain(imageSizeUnitsKey), "imageSizeUnits"},
    Row{plain(languageKey), "ZyxAppLanguage"},
    Row{plain(userIdKey), "UserID"},
    Row{plain(pluginFolderKey), "ZyxPSQtPlugInDllDir"},
    Row{plain(standaloneCrashFlagKey), "appStandaloneCrashFlag"},
    Row{plain(photoshopCrashFlagKey), "appPSCrashFlag"},
    Row{plain(lightroomCrashFlagKey), "appLRCrashFlag"},
    Row{plain(mainWindowScreenKey), "app_mwScreenNumber"},
    Row{plain(sceneBackgroundColorKey), "sceneBackgroundColor"},
    Row{plain(keepImageSettingsKey), "keepImgSettingsWhenNavigating"},
    Row{plain(applyDigitalRenderingKey), "automaticallyApplyFujiDigitalRendering"},
    Row{plain(separateJpegKey), "separateJPEG"},
    Row{plain(clearDiskCacheKey), "clearDiskCache"},
    Row{plain(gridCompositionModeKey), "gridOverlay.compositionMode"},
    Row{plain(gridColorKey), "gridOverlay.color"},
    Row{plain(gridSizeKey), "gridOverlay.size"},
    Row{plain(naturalIntensityKey), "natural.intensity"},
    Row{plain(showImageSizeKey), "showImageSize"},
    Row{plain(settingsFocusNumberKey), "settingsFocusNumber"},
};

constexpr std::array preferencesRows{
    Row{plain(dataDirectoryKey), "GlobalSettings/DataDirectory"},
    Row{plain(cafDbFilePathKey), "CAF/CafDbFilePath"},
    Row{plain(cafModulesPathKey), "CAF/CafModulesPath"},
    Row{plain(crashServiceHostKey), "CrashSender/HostName"},
};

constexpr std::array pluginRows{
    Row{PluginKeys::batchMode, "batchMode"},
    Row{PluginKeys::hostAppName, "HostAppName"},
    Row{PluginKeys::hostAppVersion, "HostAppVersion"},
    Row{PluginKeys::width, "width"},
    Row{PluginKeys::height, "height"},
    Row{PluginKeys::depth, "depth"},
    Row{PluginKeys::pluginData, "pPluginData"},
    Row{PluginKeys::exitCode, "exitCode"},
    Row{PluginKeys::exif, "exif"},
    Row{PluginKeys::iccProfile, "IccProfile"},
    Row{PluginKeys::showUi, "showUI"},
    Row{PluginKeys::originalImageFilePath, "originalImageFilePath"},
    Row{PluginKeys::serverProcessId, "serverPID"},
};

constexpr std::array textRows{
    Row{plain(productDisplayName), "Zyx Grainlab 6"},
    Row{plain(organizationName), "Zyx Labs"},
    Row{plain(imageFilter), "*.tiff *.tif *.jpeg *.jpg"},
    Row{plain(rawFilter),
        "*.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 *.rwl *.nrw *.srw *.cr2 *.cr3 *.nef *.dng *.zyx *.3fr"},
    Row{plain(imageAndRawFilter),
        "*.tiff *.tif *.jpeg *.jpg *.crw *.mrw *.arw *.raf *.pef *.orf *.ori *.rw2 *.rwl *.nrw *.srw *.cr2 *.cr3 *.nef "
        "*.dng *.zyx *.3fr"},
    Row{plain(launchModeStandalone), "Standalone"},
    Row{plain(launchModeLightroom), "LR"},
    Row{plain(launchModePhotoshop), "PS"},
    Row{plain(crashFlagStarted), "started"},
    Row{plain(crashFlagCrashed), "crashed"},
    Row{plain(crashFlagFinished), "finished"},
    Row{plain(crashServicePath), "/CollectDumpInfo/WSCollectDump.asmx"},
    Row{plain(crashServiceNamespacePath), "/CollectDump"},
};

constexpr std::array extensionRows{
    Row{plain(imageExtensions[0]), ".tiff"},
    Row{plain(imageExtensions[1]), ".tif"},
    Row{plain(imageExtensions[2]), ".jpeg"},
    Row{plain(imageExtensions[3]), ".jpg"},
};

// The compiler knows every value: none of them is made when the module is loaded.
constexpr auto nothing = [](const Row &row) { return row.value.empty(); };
static_assert(std::none_of(settingsRows.begin(), settingsRows.end(), nothing));
static_assert(std::none_of(preferencesRows.begin(), preferencesRows.end(), nothing));
static_assert(std::none_of(pluginRows.begin(), pluginRows.end(), nothing));
static_assert(std::none_of(textRows.begin(), textRows.end(), nothing));
static_assert(imageExtensions.size() == extensionRows.size());

template <std::size_t Count>
void addRows(const std::array<Row, Count> &rows)
{
    for (const Row &row : rows) {
        QTest::newRow(row.expected.data()) << QByteArray::fromStdString(std::string(row.value))
                                           << QByteArray::fromStdString(std::string(row.expected));
    }
}

template <std::size_t Count>
void verifyAllDiffer(const std::array<Row, Count> &rows)
{
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        QVERIFY2(std::none_of(row + 1, rows.end(), [row](const Row &other) { return other.value == row->value; }),
                 row->expected.data());
    }
}

} // namespace

class tst_SharedConstants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constant_hasItsValue_data();
    void constant_hasItsValue();
    void imageExtensions_areThoseOfTheFilterInItsOrder();
    void imageAndRawFilter_joinsTheTwoWithOneBlank();
    void keys_ofOneStore_differ();
};

void tst_SharedConstants::constant_hasItsValue_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QByteArray>("expected");

    addRows(textRows);
    addRows(extensionRows);
    addRows(settingsRows);
    addRows(preferencesRows);
    addRows(pluginRows);
}

void tst_SharedConstants::constant_hasItsValue()
{
    QFETCH(const QByteArray, value);
    QTEST(value, "expected");
}

void tst_SharedConstants::imageExtensions_areThoseOfTheFilterInItsOrder()
{
    QStringList patterns;
    for (const QLatin1StringView extension : imageExtensions) {
        patterns.append(u'*' + extension);
    }
    QCOMPARE(patterns.join(u' '), QString(imageFilter));
}

void tst_SharedConstants::imageAndRawFilter_joinsTheTwoWithOneBlank()
{
    QCOMPARE(QString(imageAndRawFilter), imageFilter + u' ' + rawFilter);
}

void tst_SharedConstants::keys_ofOneStore_differ()
{
    verifyAllDiffer(settingsRows);
    verifyAllDiffer(preferencesRows);
    verifyAllDiffer(pluginRows);
}

QTEST_APPLESS_MAIN(tst_SharedConstants)

#include "tst_SharedConstants.moc"
