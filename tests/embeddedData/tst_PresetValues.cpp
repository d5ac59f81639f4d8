// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/Presets.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>

#include <algorithm>

namespace {

constexpr qsizetype longestCurve = 5;

/*! All values that presets give \a name. */
QSet<QString> valuesSeen(const QString &name)
{
    QSet<QString> values;
    for (const XmlElement &preset : presets().children) {
        const QMap<QString, QString> all = params(preset);
        if (all.contains(name)) {
            values.insert(all.value(name));
        }
    }
    return values;
}

QStringList presetsWith(const QString &parameter)
{
    QStringList ids;
    for (const XmlElement &preset : presets().children) {
        if (params(preset).contains(parameter)) {
            ids.append(preset.attributes.value(u"id"_qs));
        }
    }
    return ids;
}

/*! Those without a range of their own. */
QStringList signedParameters()
{
    static const QRegularExpression signedOnes(
        u"^(HSL|ChannelMixer|ContrastEnhancement|ColorMode(Contrast|Saturation)$|"
        "Vibrancy|LightingV2|ArtisticVignetting\\w*(Attenuation|Transition)$|"
        "VignettedBlur(BlendFactor|Radius|Roundness|Transition)$|"
        "\\w+Opacity$|\\w+ToningIntensity$)"_qs);
    return parameterNames().filter(signedOnes);
}

/*! What is 0 in the neutral preset and has no other row. */
QStringList zeroParameters()
{
    QStringList names = signedParameters();
    names.removeOne(u"LightingV2LocalContrastAmount"_qs); // came with version 2: the neutral preset has none
    return names;
}

/*! The numbers between the braces of a table; none if it has another form. */
QList<double> numbers(const QString &table)
{
    static const QRegularExpression blanks(u"\\s"_qs);
    static const QRegularExpression form(u"^value=\\{((?:[0-9.]+,)+)\\}$"_qs);
    const QString list = form.match(QString(table).remove(blanks)).captured(1);
    QList<double> result;
    for (const QString &number : list.split(u',', Qt::SkipEmptyParts)) {
        result.append(number.toDouble());
    }
    return result;
}

} // namespace

class tst_PresetValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void default_has93ParametersWithoutAType();
    void default_isNeutral_data();
    void default_isNeutral();
    void parameters_areThe97();
    void looks_keepTheAutomaticColorIntent();
    void words_areThese_data();
    void words_areThese();
    void numbers_fillTheirRange_data();
    void numbers_fillTheirRange();
    void signedNumbers_areWithin100();
    void seeds_haveUpToFiveDigits();
    void references_areFilmPresets();
    void notCEControl_isOnSixPresets();
    void renderingSwitch_onOneFilm();
    void basicSwitches_inDefaultAlone();
    void curves_ascendWithinTheSquare();
    void curveOverSeveralLines_equalsItsOneLineForm();
    void numbers_keepAllDigits();
    void grainSize_mayBeEmpty();
};

/*! Without a call the program would not load the library. */
void tst_PresetValues::initTestCase()
{
    ZYX_zglv6::initQtResources();
    QVERIFY(presets().children.size() > 3); // or many tests would check nothing
}

void tst_PresetValues::default_has93ParametersWithoutAType()
{
    const QMap<QString, QString> neutral = params(preset(u"default"_qs));
    QCOMPARE(preset(u"default"_qs).children.size(), 93);
    QCOMPARE(neutral.size(), 93);
    for (const QString &name : {u"PresetType"_qs, u"NotCEControl"_qs, u"ColorRenderingActive"_qs}) {
        QVERIFY2(!neutral.contains(name), qPrintable(name));
    }
}

void tst_PresetValues::default_isNeutral_data()
{
    QTest::addColumn<QString>("value");

    const auto row = [](const char *name, const char *value) { QTest::newRow(name) << QString::fromLatin1(value); };
    row("ColorRenderingType", "");
    row("ColorRenderingIntensity", "100");
    row("GrainType", "");
    row("GrainIntensity", "100");
    row("GrainFilmFormat", "24x36");
    row("GrainSize", "1.0");
    row("ColorModeFilter", "");
    row("ColorModeFilterIntensity", "100");
    for (const char *part : {"Lowlight", "Highlight"}) {
        QTest::addRow("%sToningStyle", part) << QString();
        QTest::addRow("%sToningCustomHue", part) << u"180"_qs;
        QTest::addRow("%sToningCustomSaturation", part) << u"50"_qs;
    }
    row("HighlighsLowlightsSeparation", "0.5");
    row("ExposureBias", "0");
    row("ArtisticVignettingRoundness", "50");
    row("ArtisticVignettingCenterPoint", "value={0.5,0.5,}");
    row("VignettedBlurCenterPoint", "value={0.5,0.5,}");
    row("VignettedBlurMode", "Vignette");
    row("VignettedBlurVignetteSize", "100");
    row("TextureID", "");
    row("EdgeTextureID", "");
    row("EdgeTexturingPosition", "Random");
    row("FrameID", "");
    row("FramingOutside", "false");
    row("FramingScaleFactor", "0.25");
    row("TexturingSeed", "0");
    row("EdgeTexturingSeed", "0");
    row("FramingSeed", "0");
    row("ColorIntentAutoActive", "true");
    row("CropAuto", "true");
    row("KeystoningKeepOriginalSize", "false");
    for (const char *curve : {"Master", "Red", "Green", "Blue"}) {
        QTest::addRow("ToneCurve%sPoints", curve) << u"value = { 0, 0, 1, 1, }"_qs;
    }
    for (const char *flag : {"DCVCustomActive", "NoiseCustomActive", "TexturingApplyToning", "EdgeTexturingApplyToning",
                             "FramingApplyToning"}) {
        row(flag, "false");
    }
    for (const QString &other : zeroParameters()) {
        QTest::newRow(qPrintable(other)) << u"0"_qs;
    }
}

void tst_PresetValues::default_isNeutral()
{
    QFETCH(const QString, value);
    const QMap<QString, QString> neutral = params(preset(u"default"_qs));
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QVERIFY(neutral.contains(name));
    QCOMPARE(neutral.value(name), value);
}

void tst_PresetValues::parameters_areThe97()
{
    QSet<QString> used;
    for (const XmlElement &preset : presets().children) {
        const QStringList names = params(preset).keys();
        QCOMPARE(names.size(), preset.childrenOf(u"Param"_qs).size()); // none twice
        used.unite(QSet<QString>(names.cbegin(), names.cend()));
    }
    const QStringList known = parameterNames();
    QCOMPARE(known.size(), 97);
    QCOMPARE(used, QSet<QString>(known.cbegin(), known.cend()));
}

void tst_PresetValues::looks_keepTheAutomaticColorIntent()
{
    for (const XmlElement &look : looks()) {
        QCOMPARE(params(look).value(u"ColorIntentAutoActive"_qs), u"true"_qs);
    }
}

void tst_PresetValues::words_areThese_data()
{
    QTest::addColumn<QString>("words");

    const auto row = [](const char *name, const char *words) { QTest::newRow(name) << QString::fromLatin1(words); };
    row("PresetType", "BWPreset ColorPreset");
    row("GrainFilmFormat", "24x36 Medium Large Custom");
    row("ColorModeFilter", "none Blue CoolTone Cyan Green LightOrange Orange PurplishBlue Red WarmTone Yellow");
    row("LowlightToningStyle", "none Custom Gold Iron Selenium Sepia SepiaGold SepiaTerra");
    row("HighlightToningStyle", "none Custom Gold Iron Selenium Sepia SepiaGold SepiaTerra");
    row("VignettedBlurMode", "Vignette SoftFocus");
    row("TextureID", "none grain4b grain6 rayures tachesBW taches_2 texture02 texture04 texture18 texture19");
    row("EdgeTextureID", "none fuitelum1 fuitelum4dBW fuitelum5BW");
    row("EdgeTexturingPosition", "Random Right Bottom");
    row("FrameID", "none 1 9 11 11BW 12 13 14 14BW 15 20 27");
    row("FramingOutside", "true false");
    row("NotCEControl", "cyans magentas reds yellows");
    row("ColorRenderingActive", "true");
    row("CropAuto", "true");
    row("KeystoningKeepOriginalSize", "false");
}

void tst_PresetValues::words_areThese()
{
    QFETCH(const QString, words);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QSet<QString> seen = valuesSeen(name);
    if (seen.remove(QString())) {
        seen.insert(u"none"_qs);
    }
    const QStringList told = words.split(u' ');
    QCOMPARE(seen, QSet<QString>(told.cbegin(), told.cend()));
}

void tst_PresetValues::numbers_fillTheirRange_data()
{
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("most");

    QTest::newRow("ColorRenderingIntensity") << 18.0 << 200.0;
    QTest::newRow("GrainIntensity") << 25.0 << 200.0;
    QTest::newRow("GrainSize") << 1.0 << 10.0;
    QTest::newRow("ColorModeFilterIntensity") << 0.0 << 130.0;
    QTest::newRow("LowlightToningCustomHue") << 31.0 << 277.0;
    QTest::newRow("HighlightToningCustomHue") << 31.0 << 277.0;
    QTest::newRow("LowlightToningCustomSaturation") << 6.0 << 56.0;
    QTest::newRow("HighlightToningCustomSaturation") << 6.0 << 56.0;
    QTest::newRow("HighlighsLowlightsSeparation") << 0.25 << 0.53;
    QTest::newRow("ExposureBias") << -1.1 << 0.8;
    QTest::newRow("ArtisticVignettingRoundness") << 0.0 << 100.0;
    QTest::newRow("VignettedBlurVignetteSize") << 0.0 << 136.0;
    QTest::newRow("FramingScaleFactor") << 0.0 << 0.9;
}

void tst_PresetValues::numbers_fillTheirRange()
{
    QFETCH(const double, least);
    QFETCH(const double, most);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QList<double> values;
    for (const QString &text : valuesSeen(name)) {
        bool isNumber = false;
        const double value = text.toDouble(&isNumber);
        QVERIFY2(isNumber || (name == u"GrainSize" && text.isEmpty()), qPrintable(text));
        if (isNumber) {
            values.append(value);
        }
    }
    QVERIFY(!values.isEmpty());
    QCOMPARE(*std::min_element(values.cbegin(), values.cend()), least);
    QCOMPARE(*std::max_element(values.cbegin(), values.cend()), most);
}

void tst_PresetValues::signedNumbers_areWithin100()
{
    const QStringList names = signedParameters();
    QCOMPARE(names.size(), 52);
    for (const QString &name : names) {
        for (const QString &text : valuesSeen(name)) {
            bool isNumber = false;
            const double value = text.toDouble(&isNumber);
            QVERIFY2(isNumber && value >= -100 && value <= 100, qPrintable(name + u' ' + text));
        }
    }
}

void tst_PresetValues::seeds_haveUpToFiveDigits()
{
    qsizetype longest = 0;
    for (const QString &name : {u"TexturingSeed"_qs, u"EdgeTexturingSeed"_qs, u"FramingSeed"_qs}) {
        static const QRegularExpression fiveDigits(u"^[0-9]{1,5}$"_qs);
        const QSet<QString> seeds = valuesSeen(name);
        QVERIFY2(!seeds.isEmpty(), qPrintable(name));
        for (const QString &text : seeds) {
            QVERIFY2(fiveDigits.match(text).hasMatch(), qPrintable(text));
            longest = std::max(longest, text.size());
        }
    }
    QCOMPARE(longest, 5);
}

void tst_PresetValues::references_areFilmPresets()
{
    const auto isFilm = [](const QString &id) {
        const QStringList kinds = tags(preset(id));
        return kinds.contains(u"Film"_qs) || kinds.contains(u"Digital"_qs);
    };
    for (const QString &id : valuesSeen(u"ColorRenderingType"_qs)) {
        QVERIFY2(id.isEmpty() || isFilm(id), qPrintable(id));
    }
    QSet<QString> grains = valuesSeen(u"GrainType"_qs);
    QVERIFY(grains.remove(u"CurrentColorRendering"_qs));
    for (const QString &id : qAsConst(grains)) {
        QVERIFY2(id.isEmpty() || isFilm(id), qPrintable(id));
    }
}

void tst_PresetValues::notCEControl_isOnSixPresets()
{
    QStringList ids = presetsWith(u"NotCEControl"_qs);
    ids.sort();
    QCOMPARE(
        ids,
        (QStringList{u"CoolTV"_qs, u"Cyanotype"_qs, u"Dreamy"_qs, u"FoundInAttic"_qs, u"Pola"_qs, u"SoftFocus"_qs}));
}

void tst_PresetValues::renderingSwitch_onOneFilm()
{
    QCOMPARE(presetsWith(u"ColorRenderingActive"_qs), QStringList(u"FujiInstax210"_qs));
}

void tst_PresetValues::basicSwitches_inDefaultAlone()
{
    QCOMPARE(presetsWith(u"CropAuto"_qs), QStringList(u"default"_qs));
    QCOMPARE(presetsWith(u"KeystoningKeepOriginalSize"_qs), QStringList(u"default"_qs));
}

void tst_PresetValues::curves_ascendWithinTheSquare()
{
    qsizetype longest = 0;
    for (const char *channel : {"Master", "Red", "Green", "Blue"}) {
        const QSet<QString> curves = valuesSeen(u"ToneCurve%1Points"_qs.arg(QLatin1String(channel)));
        QVERIFY2(!curves.isEmpty(), channel);
        for (const QString &text : curves) {
            const QList<double> points = numbers(text);
            longest = std::max(longest, points.size());
            QVERIFY2(points.size() >= 4 && points.size() <= 2 * longestCurve && points.size() % 2 == 0,
                     qPrintable(text));
            for (qsizetype i = 0; i < points.size(); ++i) {
                QVERIFY2(points.at(i) >= 0 && points.at(i) <= 1, qPrintable(text));
                QVERIFY2(i % 2 == 1 || i == 0 || points.at(i) > points.at(i - 2), qPrintable(text));
            }
        }
    }
    QCOMPARE(longest, 2 * longestCurve);
    for (const QString &name : {u"ArtisticVignettingCenterPoint"_qs, u"VignettedBlurCenterPoint"_qs}) {
        const QSet<QString> points = valuesSeen(name);
        QVERIFY2(!points.isEmpty(), qPrintable(name));
        for (const QString &text : points) {
            QCOMPARE(numbers(text).size(), 2);
        }
    }
}

void tst_PresetValues::curveOverSeveralLines_equalsItsOneLineForm()
{
    const QString curve = params(preset(u"FujiVelvia50"_qs)).value(u"ToneCurveMasterPoints"_qs);
    QVERIFY(curve.count(u'\n') > 2);
    QVERIFY(curve.endsWith(u"}\n"));
    const QString oneLine = u"value = { 0, 0, 0.22, 0.16, 0.5, 0.49, 0.78, 0.84, 1, 1, }"_qs;
    QCOMPARE(numbers(curve), (QList<double>{0, 0, 0.22, 0.16, 0.5, 0.49, 0.78, 0.84, 1, 1}));
    QCOMPARE(numbers(curve), numbers(oneLine));
}

void tst_PresetValues::numbers_keepAllDigits()
{
    QCOMPARE(params(preset(u"PureGold"_qs)).value(u"GrainIntensity"_qs), u"63.333332062"_qs);
}

void tst_PresetValues::grainSize_mayBeEmpty()
{
    const QMap<QString, QString> instant = params(preset(u"FujiInstax210"_qs));
    QVERIFY(instant.contains(u"GrainSize"_qs));
    QCOMPARE(instant.value(u"GrainSize"_qs), QString());
    QCOMPARE(params(preset(u"default"_qs)).value(u"GrainSize"_qs), u"1.0"_qs);
}

QTEST_GUILESS_MAIN(tst_PresetValues)
#include "tst_PresetValues.moc"
