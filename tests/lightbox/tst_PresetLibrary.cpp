// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceParts.h"

#include "PresetLibrary.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

/*! The reader of the presets and their notes, on the embedded files and on broken ones. */
class tst_PresetLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presets_areThoseOfTheLibrary();
    void presets_threeFirstOnes_areNoLooks();
    void presets_ofTheExpertMode_areMarked();
    void presets_similarIds_areDifferent();
    void params_ofTheBase_haveTheNeutralValues();
    void params_emptyValue_isOne();
    void tagCounts_areThoseOfTheData_data();
    void tagCounts_areThoseOfTheData();
    void tagCounts_areSortedByUse();
    void displayName_fallsBack_data();
    void displayName_fallsBack();
    void notes_areThoseOfTheLibrary();
    void notes_areDecoded();
    void presetsWithoutANote_areThe90();
    void idWithAnAmpersand_isPlain();
    void brokenPresets_areToldAndGiveNothing_data();
    void brokenPresets_areToldAndGiveNothing();
    void brokenNotes_areToldAndGiveNothing_data();
    void brokenNotes_areToldAndGiveNothing();
    void missingFiles_areTold();
    void unknownElements_areSkippedAtAnyDepth();

private:
    QString fileOf(const QByteArray &content);

    const CPresetLibrary m_library;
    QTemporaryDir m_folder;
};

QString tst_PresetLibrary::fileOf(const QByteArray &content)
{
    return newFile(m_folder, u"data.xml"_qs, content);
}

void tst_PresetLibrary::presets_areThoseOfTheLibrary()
{
    QCOMPARE(m_library.error(), QString());
    QCOMPARE(m_library.presets().size(), 229);
    QSet<QString> ids;
    for (const Preset &preset : m_library.presets()) {
        ids.insert(preset.id);
        QCOMPARE(m_library.preset(preset.id), &preset);
        if (preset.isLook()) {
            QCOMPARE(preset.type, u"Buildin"_qs);
            QVERIFY2(languagesOf(preset.names) == 5, qPrintable(preset.id));
            QVERIFY2(preset.params.size() >= 6 && preset.params.size() <= 83, qPrintable(preset.id));
        }
    }
    QCOMPARE(ids.size(), 229);
    QCOMPARE(m_library.preset(u"NoSuchPreset"_qs), nullptr);
}

void tst_PresetLibrary::presets_threeFirstOnes_areNoLooks()
{
    const QList<Preset> &presets = m_library.presets();
    QCOMPARE(presets.at(0).id, u"default"_qs);
    QCOMPARE(presets.at(1).id, u"autoCorrection"_qs);
    QCOMPARE(presets.at(2).id, u"noCorrection"_qs);
    for (qsizetype i = 0; i < presets.size(); ++i) {
        QCOMPARE(presets.at(i).isLook(), i > 2);
    }
    QCOMPARE(presets.at(1).params.size(), 3);
    QCOMPARE(presets.at(1).params.at(1).name, u"NoiseCustomActive"_qs);
    QCOMPARE(presets.at(1).params.at(1).value, u"true"_qs);
    QCOMPARE(presets.at(2).params.at(1).value, u"false"_qs);
}

void tst_PresetLibrary::presets_ofTheExpertMode_areMarked()
{
    int experts = 0;
    QStringList secondVersions;
    for (const Preset &preset : m_library.presets()) {
        experts += preset.isExpert ? 1 : 0;
        if (preset.version == u"2") {
            secondVersions.append(preset.id);
        }
    }
    QCOMPARE(experts, 150);
    QCOMPARE(
        secondVersions,
        (QStringList{u"Arkadia"_qs, u"Delta"_qs, u"Glamour"_qs, u"NewSelenium"_qs, u"Photo70s"_qs, u"PureGold"_qs}));
}

void tst_PresetLibrary::presets_similarIds_areDifferent()
{
    const Preset *astia100 = m_library.preset(u"FujiAstia100"_qs);
    const Preset *astia = m_library.preset(u"Astia"_qs);
    QVERIFY(astia100 != nullptr && astia != nullptr && astia100 != astia);
}

void tst_PresetLibrary::params_ofTheBase_haveTheNeutralValues()
{
    QMap<QString, QString> values;
    for (const PresetParam &param : m_library.presets().constFirst().params) {
        values.insert(param.name, param.value);
    }
    QCOMPARE(values.size(), 93);
    QVERIFY(!values.contains(u"PresetType"_qs));
    QCOMPARE(values.value(u"GrainSize"_qs), u"1.0"_qs);
    QCOMPARE(values.value(u"GrainFilmFormat"_qs), u"24x36"_qs);
    QCOMPARE(values.value(u"VignettedBlurCenterPoint"_qs), u"value={0.5,0.5,}"_qs);
}

void tst_PresetLibrary::params_emptyValue_isOne()
{
    const CPresetLibrary library(
        fileOf("<Presets><Preset id='a'><Param value='' name='GrainSize'/></Preset></Presets>"),
        u":/presets/presetInfo.xml"_qs);
    QCOMPARE(library.presets().size(), 1);
    QCOMPARE(library.presets().constFirst().params.size(), 1);
    QCOMPARE(library.presets().constFirst().params.constFirst().name, u"GrainSize"_qs);
    QVERIFY(library.presets().constFirst().params.constFirst().value.isEmpty());
}

void tst_PresetLibrary::tagCounts_areThoseOfTheData_data()
{
    QTest::addColumn<int>("count");

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
}

void tst_PresetLibrary::tagCounts_areThoseOfTheData()
{
    QFETCH(const int, count);
    const QPair<QString, int> tag(QString::fromUtf8(QTest::currentDataTag()), count);
    QVERIFY(m_library.tagCounts().contains(tag));
}

void tst_PresetLibrary::tagCounts_areSortedByUse()
{
    const auto counts = m_library.tagCounts();
    QCOMPARE(counts.size(), 13);
    for (qsizetype i = 1; i < counts.size(); ++i) {
        QVERIFY(counts.at(i - 1).second >= counts.at(i).second);
    }
}

void tst_PresetLibrary::displayName_fallsBack_data()
{
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<QString>("name");

    QTest::newRow("its language") << QByteArray("name_en='English' name_de='Deutsch'") << u"Deutsch"_qs;
    QTest::newRow("English") << QByteArray("name_en='English' name_fr='Nom'") << u"English"_qs;
    QTest::newRow("empty") << QByteArray("name_en='English' name_de=''") << u"English"_qs;
    QTest::newRow("id") << QByteArray("name_fr='Nom' name_='x' name='y'") << u"a"_qs;
}

void tst_PresetLibrary::displayName_fallsBack()
{
    QFETCH(const QByteArray, names);
    const CPresetLibrary library(fileOf("<Presets><Preset id='a' " + names + "/></Presets>"),
                                 u":/presets/presetInfo.xml"_qs);
    QTEST(library.displayName(u"a"_qs, u"de"_qs), "name");
    QCOMPARE(library.displayName(u"unknown"_qs, u"de"_qs), u"unknown"_qs);
}

void tst_PresetLibrary::notes_areThoseOfTheLibrary()
{
    QCOMPARE(m_library.notes().size(), 139);
    for (const PresetNote &note : m_library.notes()) {
        QVERIFY2(m_library.preset(note.id) != nullptr, qPrintable(note.id));
        QVERIFY2(note.titles.size() == 5 && note.descriptions.size() == 5, qPrintable(note.id));
        QCOMPARE(m_library.note(note.id), &note);
    }
}

void tst_PresetLibrary::notes_areDecoded()
{
    QCOMPARE(m_library.note(u"default"_qs)->titles.value(u"en"_qs), u"11"_qs);
    QCOMPARE(m_library.note(u"default"_qs)->descriptions.value(u"ja"_qs), u"not bold <b> bold <\\b>"_qs);
    QCOMPARE(m_library.note(u"autoCorrection"_qs)->descriptions.value(u"de"_qs), u"222"_qs);
    QVERIFY(m_library.note(u"noCorrection"_qs)->descriptions.value(u"en"_qs).isEmpty());
    const PresetNote *astia = m_library.note(u"FujiAstia100"_qs);
    QCOMPARE(astia->name, u"Fuji Astia™ 100F"_qs);
    for (const QString &language : {u"en"_qs, u"fr"_qs, u"de"_qs, u"ja"_qs, u"zh_CN"_qs}) {
        QVERIFY2(textIn(astia->descriptions, language).contains(u"<p>"), qPrintable(language));
    }
    QVERIFY(astia->descriptions.value(u"en"_qs).startsWith(u"<b>Creator:</b> Fuji<br/>"));
}

void tst_PresetLibrary::presetsWithoutANote_areThe90()
{
    int history = 0;
    int others = 0;
    static const QRegularExpression year(u"^\\d{4} - "_qs);
    for (const Preset &preset : m_library.presets()) {
        if (m_library.note(preset.id) == nullptr) {
            ++(year.match(preset.id).hasMatch() ? history : others);
        }
    }
    QCOMPARE(history, 78);
    QCOMPARE(others, 12);
}

void tst_PresetLibrary::idWithAnAmpersand_isPlain()
{
    const CPresetLibrary library(fileOf("<Presets><Preset id='A &amp; B'/></Presets>"), u":/presets/presetInfo.xml"_qs);
    QCOMPARE(library.presets().size(), 1);
    QCOMPARE(library.presets().constFirst().id, u"A & B"_qs);
}

void tst_PresetLibrary::brokenPresets_areToldAndGiveNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error"); // its beginning

    QTest::newRow("empty") << QByteArray() << u"data.xml, line 1: "_qs;
    QTest::newRow("no XML") << QByteArray("\n\nPresets") << u"data.xml, line 3: "_qs;
    QTest::newRow("other root") << QByteArray("<presets/>")
                                << u"data.xml, line 1: “presets” stands where “Presets” is expected"_qs;
    QTest::newRow("truncated") << QByteArray("<Presets>\n<Preset id='a'/>\n<Preset id=") << u"data.xml, line 3: "_qs;
    QTest::newRow("no id") << QByteArray("<Presets>\n<Preset id='a'/>\n<Preset/></Presets>")
                           << u"data.xml, line 3: “Preset” has no “id”"_qs;
    QTest::newRow("empty id") << QByteArray("<Presets>\n<Preset id=''/></Presets>")
                              << u"data.xml, line 2: “Preset” has no “id”"_qs;
    QTest::newRow("parameter without a name")
        << QByteArray("<Presets><Preset id='a'>\n<Param value='1'/></Preset></Presets>")
        << u"data.xml, line 2: “Param” has no “name”"_qs;
    QTest::newRow("tag without a name") << QByteArray(
        "<Presets><Preset id='a'>\n<Tags>\n<Tag/></Tags></Preset></Presets>")
                                        << u"data.xml, line 3: “Tag” has no “name”"_qs;
    QTest::newRow("second root") << QByteArray("<Presets>\n</Presets>\n<Presets/>") << u"data.xml, line 3: "_qs;
    QTest::newRow("no UTF-8") << QByteArray("<Presets>\n<Preset id='\xff\xfe'/></Presets>") << u"data.xml, line "_qs;
    QTest::newRow("deep and open") << nested("<Presets>", "") << u"data.xml, line 1: "_qs;
    QTest::newRow("entities") << QByteArray("<!DOCTYPE Presets [<!ENTITY a 'aaaaaaaaaa'>"
                                            "<!ENTITY b '&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;'>"
                                            "<!ENTITY c '&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;'>"
                                            "<!ENTITY d '&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;'>]>"
                                            "<Presets><Preset id='&d;&d;'/></Presets>")
                              << u"data.xml, line 1: "_qs;
}

void tst_PresetLibrary::brokenPresets_areToldAndGiveNothing()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, error);
    const CPresetLibrary library(fileOf(content), u":/presets/presetInfo.xml"_qs);
    QVERIFY2(library.error().startsWith(error), qPrintable(library.error()));
    QVERIFY(library.presets().isEmpty());
    QCOMPARE(library.preset(u"a"_qs), nullptr);
    QVERIFY(library.tagCounts().isEmpty());
    QCOMPARE(library.notes().size(), 139); // of another file
}

void tst_PresetLibrary::brokenNotes_areToldAndGiveNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error"); // its beginning

    const QByteArray head("<presets><preset id='a'>\n");
    const QByteArray tail("</preset></presets>");
    const QString noText = u"data.xml, line 2: “description_de” is not Base64 of a text"_qs;
    QTest::newRow("empty") << QByteArray() << u"data.xml, line 1: "_qs;
    QTest::newRow("other root") << QByteArray("<Presets/>")
                                << u"data.xml, line 1: “Presets” stands where “presets” is expected"_qs;
    QTest::newRow("no Base64") << head + "<description_de>PGI+*</description_de>" + tail << noText;
    QTest::newRow("no Base64, of a whole length")
        << head + "<description_de>PGI+PGI*</description_de>" + tail << noText;
    QTest::newRow("Base64 cut short") << head + "<description_de>PGI+Q</description_de>" + tail << noText;
    QTest::newRow("no UTF-8") << head + "<description_de>//79</description_de>" + tail << noText;
    QTest::newRow("UTF-8 cut short") << head + "<description_de>YeI=</description_de>" + tail << noText;
    QTest::newRow("element in Base64") << head + "<description_de><b/></description_de>" + tail
                                       << u"data.xml, line 2: "_qs;
    QTest::newRow("truncated") << head + "<description_de>PGI+" << u"data.xml, line 2: "_qs;
    QTest::newRow("no id") << QByteArray("<presets>\n<preset/></presets>")
                           << u"data.xml, line 2: “preset” has no “id”"_qs;
    QTest::newRow("deep and open") << nested("<presets>", "") << u"data.xml, line 1: "_qs;
}

void tst_PresetLibrary::brokenNotes_areToldAndGiveNothing()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, error);
    const CPresetLibrary library(u":/presets/default.xml"_qs, fileOf(content));
    QVERIFY2(library.error().startsWith(error), qPrintable(library.error()));
    QVERIFY(library.notes().isEmpty());
    QCOMPARE(library.note(u"a"_qs), nullptr);
    QCOMPARE(library.presets().size(), 229);
}

void tst_PresetLibrary::missingFiles_areTold()
{
    const QString path = m_folder.filePath(u"none.xml"_qs);
    const CPresetLibrary library(path, path);
    QVERIFY2(library.error().startsWith(path + u" can't be read: "), qPrintable(library.error()));
    QCOMPARE(library.error().count(path), 2);
}

void tst_PresetLibrary::unknownElements_areSkippedAtAnyDepth()
{
    const CPresetLibrary library(fileOf(nested("<Presets><Preset id='a'>", "<Param name='b'/></Preset></Presets>")),
                                 u":/presets/presetInfo.xml"_qs);
    QCOMPARE(library.error(), QString());
    QCOMPARE(library.presets().size(), 1);
    QCOMPARE(library.presets().constFirst().params.size(), 1);
}

QTEST_MAIN(tst_PresetLibrary)

#include "tst_PresetLibrary.moc"
