// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/Presets.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>

#include <algorithm>

namespace {

const QString userPath = u":/presets/agfaZPreset.preset"_qs;

} // namespace

class tst_PresetFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void file_hasMarkDeclarationAndWindowsLineEnds();
    void presets_are229InThisOrder();
    void historyPresets_areNamedByYearAndLabel();
    void historyPresets_holdTheKnownOnes();
    void firstThree_haveNoAttributeButTheirId();
    void corrections_setTheThreeSwitches();
    void looks_haveTheirAttributes();
    void looks_have6To83Parameters();
    void tags_areUsed_data();
    void tags_areUsed();
    void cinematicLooks_areThese();
    void ampersand_isEscapedAndReadPlain();
    void astia_isTwoPresets();
    void makersTwoSpellings_standSideBySide();
    void userPreset_hasItsForm();
    void userPreset_isNoBuiltInOne();
};

/*! Without a call the program would not load the library. */
void tst_PresetFiles::initTestCase()
{
    ZYX_zglv6::initQtResources();
    QVERIFY(presets().children.size() > 3); // or the tests would read beyond it
    QVERIFY(!readXml(userPath).children.isEmpty());
}

void tst_PresetFiles::file_hasMarkDeclarationAndWindowsLineEnds()
{
    const QByteArray text = content(presetsPath);
    QVERIFY(text.startsWith("\xef\xbb\xbf<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\r\n<Presets>\r\n"));
    QCOMPARE(text.count('\n'), text.count("\r\n"));
    QVERIFY(text.endsWith("</Presets>\r\n"));
}

void tst_PresetFiles::presets_are229InThisOrder()
{
    QCOMPARE(presets().name, u"Presets"_qs);
    const QStringList ids = presets().values(u"id"_qs);
    QCOMPARE(ids.size(), 229);
    QCOMPARE(presets().childrenOf(u"Preset"_qs).size(), 229);
    QCOMPARE(QSet<QString>(ids.cbegin(), ids.cend()).size(), 229);
    QCOMPARE(ids.first(3), (QStringList{u"default"_qs, u"autoCorrection"_qs, u"noCorrection"_qs}));
    QCOMPARE(knownIds().size(), 148);
    QCOMPARE(ids.mid(3, 148), knownIds());
}

void tst_PresetFiles::historyPresets_areNamedByYearAndLabel()
{
    static const QRegularExpression form(u"^[12][0-9]{3} - \\S.*$"_qs);
    for (const QString &id : presets().values(u"id"_qs).mid(151)) {
        QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
    }
}

void tst_PresetFiles::historyPresets_holdTheKnownOnes()
{
    const QStringList history = presets().values(u"id"_qs).mid(151);
    QVERIFY(history.contains(u"1907 - Autochrome II"_qs));
    QVERIFY(history.contains(u"1970 - Concorde II"_qs));
    QVERIFY(history.contains(u"2019 - ND Paris"_qs));
    QVERIFY(history.contains(u"1895 - Cin\u00e9matographe"_qs)); // beyond ASCII
}

void tst_PresetFiles::firstThree_haveNoAttributeButTheirId()
{
    for (const XmlElement &preset : presets().children.first(3)) {
        QCOMPARE(preset.attributes.keys(), QStringList(u"id"_qs));
        QVERIFY(tags(preset).isEmpty());
    }
}

void tst_PresetFiles::corrections_setTheThreeSwitches()
{
    const QStringList switches{u"ColorIntentAutoActive"_qs, u"DCVCustomActive"_qs, u"NoiseCustomActive"_qs};
    const QString on = u"true"_qs;
    const QString off = u"false"_qs;
    QCOMPARE(params(preset(u"autoCorrection"_qs)).keys(), switches);
    QCOMPARE(params(preset(u"autoCorrection"_qs)).values(), (QStringList{on, on, on}));
    QCOMPARE(params(preset(u"noCorrection"_qs)).keys(), switches);
    QCOMPARE(params(preset(u"noCorrection"_qs)).values(), (QStringList{off, off, off}));
}

void tst_PresetFiles::looks_haveTheirAttributes()
{
    int experts = 0;
    QStringList second;
    for (const XmlElement &look : looks()) {
        const QString id = look.attributes.value(u"id"_qs);
        QCOMPARE(look.attributes.value(u"name"_qs), id);
        QCOMPARE(look.attributes.value(u"type"_qs), u"Buildin"_qs); // spelled so
        for (const char *language : {"name_en", "name_fr", "name_de", "name_ja", "name_zh_CN"}) {
            QVERIFY2(!look.attributes.value(QString::fromLatin1(language)).isEmpty(), qPrintable(id));
        }
        experts += look.attributes.value(u"expert"_qs) == u"true" ? 1 : 0;
        if (look.attributes.value(u"version"_qs) == u"2") {
            second.append(id);
        }
    }
    QCOMPARE(experts, 150);
    QCOMPARE(
        second,
        (QStringList{u"Arkadia"_qs, u"Delta"_qs, u"Glamour"_qs, u"NewSelenium"_qs, u"Photo70s"_qs, u"PureGold"_qs}));
}

void tst_PresetFiles::looks_have6To83Parameters()
{
    qsizetype fewest = 97;
    qsizetype most = 0;
    for (const XmlElement &look : looks()) {
        fewest = std::min(fewest, params(look).size());
        most = std::max(most, params(look).size());
    }
    QCOMPARE(fewest, 6);
    QCOMPARE(most, 83);
}

void tst_PresetFiles::tags_areUsed_data()
{
    QTest::addColumn<int>("uses");

    QTest::newRow("Film") << 84;
    QTest::newRow("Color") << 84;
    QTest::newRow("TimeMachine") << 78;
    QTest::newRow("B&W") << 64;
    QTest::newRow("Negative") << 53;
    QTest::newRow("Designer") << 39;
    QTest::newRow("Slide") << 31;
    QTest::newRow("Digital") << 19;
    QTest::newRow("Toned") << 17;
    QTest::newRow("Vignette") << 13;
    QTest::newRow("Grain") << 12;
    QTest::newRow("Cinematic") << 6;
    QTest::newRow("Frame") << 6;
    QTest::newRow("any") << 506;
}

void tst_PresetFiles::tags_areUsed()
{
    QFETCH(const int, uses);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    qsizetype count = 0;
    for (const XmlElement &preset : presets().children) {
        count += name == u"any" ? tags(preset).size() : tags(preset).count(name);
    }
    QCOMPARE(count, uses);
}

void tst_PresetFiles::cinematicLooks_areThese()
{
    QStringList ids;
    for (const XmlElement &preset : presets().children) {
        if (tags(preset).contains(u"Cinematic"_qs)) {
            ids.append(preset.attributes.value(u"id"_qs));
        }
    }
    QCOMPARE(ids,
             (QStringList{u"CineTealAndPink"_qs, u"CineDesaturatedGreen"_qs, u"CineAutumn"_qs, u"CineMoodyDarkGreen"_qs,
                          u"CinePastel"_qs, u"CineTealAndOrange"_qs}));
}

void tst_PresetFiles::ampersand_isEscapedAndReadPlain()
{
    QVERIFY(content(presetsPath).contains("<Preset id=\"1917 - Light &amp; Shadow\""));
    QVERIFY(presets().values(u"id"_qs).contains(u"1917 - Light & Shadow"_qs));
    QVERIFY(content(presetsPath).contains("<Tag name=\"B&amp;W\" />"));
}

void tst_PresetFiles::astia_isTwoPresets()
{
    const XmlElement roll = preset(u"FujiAstia100"_qs);
    const XmlElement generic = preset(u"Astia"_qs);
    QCOMPARE(params(roll).value(u"ColorRenderingType"_qs), u"FujiAstia100"_qs);
    QCOMPARE(params(generic).value(u"ColorRenderingType"_qs), u"Astia"_qs);
    QVERIFY(roll.attributes.value(u"name_en"_qs) != generic.attributes.value(u"name_en"_qs));
}

void tst_PresetFiles::makersTwoSpellings_standSideBySide()
{
    const QStringList ids = presets().values(u"id"_qs);
    QCOMPARE(ids.filter(QRegularExpression(u"^Illford"_qs)).size(), 5);
    QCOMPARE(ids.filter(QRegularExpression(u"^Ilford"_qs)).size(), 5);
    QVERIFY(preset(u"IllfordHP5Plus400"_qs).attributes.value(u"name_en"_qs).startsWith(u"Ilford ")); // shown as it is
}

void tst_PresetFiles::userPreset_hasItsForm()
{
    const QByteArray text = content(userPath);
    QVERIFY(text.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?><!DOCTYPE Zyx_Preset>\n<Presets>\n"));
    static const QRegularExpression valueFirst(u"<Param value=\"[^\"]*\" name=\"[A-Za-z0-9]+\"/>"_qs);
    auto params = valueFirst.globalMatch(QString::fromUtf8(text));
    int count = 0;
    for (; params.hasNext(); params.next()) {
        ++count;
    }
    QCOMPARE(count, 34);

    const XmlElement root = readXml(userPath);
    QCOMPARE(root.name, u"Presets"_qs);
    QCOMPARE(root.childNames(), QStringList(u"Preset"_qs));
    const XmlElement user = root.children.first();
    QCOMPARE(user.childNames(), QStringList(34, u"Param"_qs));
    QCOMPARE(user.values(u"name"_qs).first(), u"PresetType"_qs);
    const QStringList names = user.values(u"name"_qs);
    QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), 34);
    const QStringList known = parameterNames();
    for (const QString &name : user.values(u"name"_qs)) {
        QVERIFY2(known.contains(name), qPrintable(name));
    }
}

void tst_PresetFiles::userPreset_isNoBuiltInOne()
{
    const QMap<QString, QString> attributes = readXml(userPath).children.first().attributes;
    QCOMPARE(attributes.keys(), (QStringList{u"id"_qs, u"name"_qs}));
    QCOMPARE(attributes.value(u"id"_qs), u"{0e9fbf2c-ee8d-4c96-8783-e256a984339b}"_qs);
    QCOMPARE(attributes.value(u"name"_qs), u"agfaZPreset"_qs);
}

QTEST_GUILESS_MAIN(tst_PresetFiles)
#include "tst_PresetFiles.moc"
