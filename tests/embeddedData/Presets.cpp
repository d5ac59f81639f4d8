// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/Presets.h"

#include <QtCore/QFile>

#include <algorithm>

namespace {

constexpr char lookList[]
    = "FujiInstax210 FujiAstia100 FujiFP100c FujiProvia100 FujiProvia400F FujiProvia400XRXP FujiVelvia50 "
      "KodakE100GXEktachrome100 KodakEkta100VS KodakEliteExtraColour100 KodakElitechrome200 KodakElitechrome400 "
      "KodakKodachrome25 KodakKodachrome64 KodakKodachrome200 Polaroid669 Polaroid690 PolaroidPolachrome Astia "
      "Provia Velvia Ekta100VS Kod64 ImpossiblePX600SilverShade KodakEIR AgfaPrecisa100 FujiSensia100 "
      "LomoXProSlide200 FujiSuperiaXtra400 AdoxColorImplosion KodakPortra400 AgfaUltraColor100 AgfaVista200 "
      "FujiPro400H FujiSuperiaReala100 FujiSuperia200 FujiSuperiaXtra800 FujiSuperiaHG1600 KodakEliteColor200 "
      "KodakEliteColor400 KodakEktar100 KodakPortra160NC KodakPortra160VC LomoRedScale100 FujiNeopan400 "
      "AdoxSilvermax21 AdoxCHS100II BerggerBRF400Plus AdoxCMS20 AgfaAPX25 AgfaScala200x FujiNeopanAcros100 "
      "FujiNeopan1600 FomaPan100 FomaPan100R FomaPan200Creative FomaPan400 IllfordDelta400 IlfordDelta3200 "
      "IlfordFP4Plus125 IllfordHP5Plus400 IllfordHPS800 IllfordPanFPlus50 IlfordPan100 IlfordPan400 IllfordXP2 "
      "KodakBW400CN KodakHIE KodakHIEFiltre KodakTmax100 KodakTmax400 KodakTMax3200 KodakTriX400 Polaroid664 "
      "Polaroid667 Polaroid672 RolleiIR400 IlfordDelta100 Rollei100Tonal RolleiRetro80S RolleiOrtho25 "
      "AgfaAPX100 FujiClassicChrome FujiClassicChromePlus FujiAstiaSoft FujiClassicNeg FujiProNegativeStd "
      "FujiProNegativeHigh FujiEterna FujiProvia FujiVelviaVivid FujiEternaBleachBypass DigitalFujiAcros "
      "DigitalFujiAcrosYellowFilter DigitalFujiAcrosRedFilter DigitalFujiAcrosGreenFilter DigitalFujiMonochrome "
      "DigitalFujiMonochromeYellowFilter DigitalFujiMonochromeRedFilter DigitalFujiMonochromeGreenFilter "
      "DigitalFujiSepia CineTealAndPink CineDesaturatedGreen CineAutumn CineMoodyDarkGreen CinePastel "
      "CineTealAndOrange KodakElite100C41 FujiSuperia200E6 Arkadia Delta Glamour NewSelenium Photo70s PureGold "
      "Cappuccino Darkroom CoolTV Cyanotype Emo Blurred Glacier Granular Grunge Infrared LoFi LunarGreen "
      "Nostalgia BlueTone Beauty Expresso Dreamy GlassPlate OldPostcard SoftFocus SilentMovie FoundInAttic "
      "RedTone Pastel Photo60s Photo1900 Pola Powdery PrussianRed Sepia Stenope Vintage Poetic";

constexpr char parameterList[]
    = "ArtisticVignettingCenterPoint ArtisticVignettingCornerAttenuation ArtisticVignettingMidFieldAttenuation "
      "ArtisticVignettingRoundness ArtisticVignettingTransition ChannelMixerBlue ChannelMixerCyan "
      "ChannelMixerGreen ChannelMixerMagenta ChannelMixerRed ChannelMixerYellow ColorIntentAutoActive "
      "ColorModeContrast ColorModeFilter ColorModeFilterIntensity ColorModeSaturation ColorRenderingActive "
      "ColorRenderingIntensity ColorRenderingType ContrastEnhancementGlobalIntensity "
      "ContrastEnhancementHighlightIntensity ContrastEnhancementLowlightIntensity "
      "ContrastEnhancementMidlightIntensity CropAuto DCVCustomActive EdgeTextureID EdgeTexturingApplyToning "
      "EdgeTexturingOpacity EdgeTexturingPosition EdgeTexturingSeed ExposureBias FrameID FramingApplyToning "
      "FramingOutside FramingScaleFactor FramingSeed GrainFilmFormat GrainIntensity GrainSize GrainType "
      "HSLBlueHue HSLBlueLuminance HSLBlueSaturation HSLCyanHue HSLCyanLuminance HSLCyanSaturation HSLGreenHue "
      "HSLGreenLuminance HSLGreenSaturation HSLMagentaHue HSLMagentaLuminance HSLMagentaSaturation HSLMasterHue "
      "HSLMasterLuminance HSLMasterSaturation HSLOrangeHue HSLOrangeLuminance HSLOrangeSaturation HSLPurpleHue "
      "HSLPurpleLuminance HSLPurpleSaturation HSLRedHue HSLRedLuminance HSLRedSaturation HSLYellowHue "
      "HSLYellowLuminance HSLYellowSaturation HighlighsLowlightsSeparation HighlightToningCustomHue "
      "HighlightToningCustomSaturation HighlightToningIntensity HighlightToningStyle KeystoningKeepOriginalSize "
      "LightingV2LocalContrastAmount LowlightToningCustomHue LowlightToningCustomSaturation "
      "LowlightToningIntensity LowlightToningStyle NoiseCustomActive NotCEControl PresetType TextureID "
      "TexturingApplyToning TexturingOpacity TexturingSeed ToneCurveBluePoints ToneCurveGreenPoints "
      "ToneCurveMasterPoints ToneCurveRedPoints VibrancyIntensity VignettedBlurBlendFactor "
      "VignettedBlurCenterPoint VignettedBlurMode VignettedBlurRadius VignettedBlurRoundness "
      "VignettedBlurTransition VignettedBlurVignetteSize";

QStringList split(const char *words)
{
    return QString::fromLatin1(words).split(u' ');
}

} // namespace

QStringList knownIds()
{
    return split(lookList);
}

QStringList parameterNames()
{
    return split(parameterList);
}

const XmlElement &presets()
{
    static const XmlElement root = readXml(presetsPath);
    return root;
}

QList<XmlElement> looks()
{
    return presets().children.mid(3);
}

XmlElement preset(const QString &id)
{
    const QList<XmlElement> &all = presets().children;
    const auto found = std::find_if(all.cbegin(), all.cend(), [&id](const XmlElement &element) {
        return element.attributes.value(u"id"_qs) == id;
    });
    return found == all.cend() ? XmlElement() : *found;
}

QMap<QString, QString> params(const XmlElement &preset)
{
    QMap<QString, QString> result;
    for (const XmlElement &param : preset.childrenOf(u"Param"_qs)) {
        result.insert(param.attributes.value(u"name"_qs), param.attributes.value(u"value"_qs));
    }
    return result;
}

QStringList tags(const XmlElement &preset)
{
    return preset.child(u"Tags"_qs).values(u"name"_qs);
}

bool areLooks(const QStringList &ids)
{
    const QStringList all = presets().values(u"id"_qs).mid(3);
    return std::all_of(ids.cbegin(), ids.cend(), [&all](const QString &id) { return all.contains(id); });
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
