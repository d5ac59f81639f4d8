// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/Presets.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QSet>
#include <QtGui/QTextDocument>
#include <QtTest/QTest>

#include <algorithm>

namespace {

const QString notesPath = u":/presets/presetInfo.xml"_qs;
const QStringList languages{u"en"_qs, u"fr"_qs, u"ja"_qs, u"de"_qs, u"zh_CN"_qs}; // in the order of the file

const XmlElement &notes()
{
    static const XmlElement root = readXml(notesPath);
    return root;
}

XmlElement note(const QString &id)
{
    const QList<XmlElement> &all = notes().children;
    const auto found = std::find_if(all.cbegin(), all.cend(), [&id](const XmlElement &element) {
        return element.attributes.value(u"id"_qs) == id;
    });
    return found == all.cend() ? XmlElement() : *found;
}

QString title(const XmlElement &note, const QString &language)
{
    return note.child(u"title_"_qs + language).text;
}

/*! Null if the element holds no Base64. */
QString description(const XmlElement &note, const QString &language)
{
    const QByteArray text = note.child(u"description_"_qs + language).text.toLatin1();
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? QString::fromUtf8(*decoded) : QString();
}

QList<XmlElement> realNotes()
{
    return notes().children.mid(3);
}

} // namespace

class tst_PresetNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void file_isUtf8WithoutADeclaration();
    void notes_are139OfPresets();
    void presetsWithoutNote_areTheHistoryAndTwelveMore();
    void fields_standInTheirOrder();
    void leftovers_stayAsTheyWere_data();
    void leftovers_stayAsTheyWere();
    void names_areThoseOfThePresets();
    void names_holdTheTrademarkSign();
    void pastel_isTheNameOfTwo();
    void head_hasItsLabels_data();
    void head_hasItsLabels();
    void filmHeads_tellTheProduction();
    void dates_areOnOneNoteAlone();
    void description_isRichTextInEachLanguage();
};

/*! Without a call the program would not load the library. */
void tst_PresetNotes::initTestCase()
{
    ZYX_zglv6::initQtResources();
    QVERIFY(presets().children.size() > 3); // or the tests would read beyond it
    QVERIFY(notes().children.size() > 3);
}

void tst_PresetNotes::file_isUtf8WithoutADeclaration()
{
    const QByteArray text = content(notesPath);
    QVERIFY(text.startsWith("<presets>\n"));
    QVERIFY(!text.contains("<?xml"));
    QCOMPARE(QString::fromUtf8(text).toUtf8(), text);
}

void tst_PresetNotes::notes_are139OfPresets()
{
    QCOMPARE(notes().name, u"presets"_qs);
    QCOMPARE(notes().childNames(), QStringList(139, u"preset"_qs));
    const QStringList ids = notes().values(u"id"_qs);
    QCOMPARE(QSet<QString>(ids.cbegin(), ids.cend()).size(), 139);
    const QStringList presetIds = presets().values(u"id"_qs);
    for (const QString &id : ids) {
        QVERIFY2(presetIds.contains(id), qPrintable(id));
    }
    QCOMPARE(ids.first(3), presetIds.first(3));
}

void tst_PresetNotes::presetsWithoutNote_areTheHistoryAndTwelveMore()
{
    QStringList without = presets().values(u"id"_qs);
    const QStringList ids = notes().values(u"id"_qs);
    without.removeIf([&ids](const QString &id) { return ids.contains(id); });
    QCOMPARE(without.size(), 90);
    QCOMPARE(without.first(12),
             (QStringList{u"FujiProvia"_qs, u"FujiVelviaVivid"_qs, u"FujiEternaBleachBypass"_qs, u"DigitalFujiAcros"_qs,
                          u"DigitalFujiAcrosYellowFilter"_qs, u"DigitalFujiAcrosRedFilter"_qs,
                          u"DigitalFujiAcrosGreenFilter"_qs, u"DigitalFujiMonochrome"_qs,
                          u"DigitalFujiMonochromeYellowFilter"_qs, u"DigitalFujiMonochromeRedFilter"_qs,
                          u"DigitalFujiMonochromeGreenFilter"_qs, u"DigitalFujiSepia"_qs}));
    QCOMPARE(without.mid(12), presets().values(u"id"_qs).mid(151));
}

void tst_PresetNotes::fields_standInTheirOrder()
{
    const QStringList fields{u"title_en"_qs,       u"title_fr"_qs,         u"title_ja"_qs,       u"title_de"_qs,
                             u"title_zh_CN"_qs,    u"description_en"_qs,   u"description_fr"_qs, u"description_ja"_qs,
                             u"description_de"_qs, u"description_zh_CN"_qs};
    for (const XmlElement &note : notes().children) {
        QCOMPARE(note.attributes.keys(), (QStringList{u"id"_qs, u"name"_qs}));
        QCOMPARE(note.childNames(), fields);
    }
}

void tst_PresetNotes::leftovers_stayAsTheyWere_data()
{
    QTest::addColumn<QString>("expectedTitle");
    QTest::addColumn<QString>("expectedDescription");

    QTest::newRow("default") << u"11"_qs << u"not bold <b> bold <\\b>"_qs;
    QTest::newRow("autoCorrection") << u"22"_qs << u"222"_qs;
    QTest::newRow("noCorrection") << QString() << QString();
}

void tst_PresetNotes::leftovers_stayAsTheyWere()
{
    QFETCH(const QString, expectedTitle);
    QFETCH(const QString, expectedDescription);
    const XmlElement leftover = note(QString::fromLatin1(QTest::currentDataTag()));
    for (const QString &language : languages) {
        QCOMPARE(title(leftover, language), expectedTitle);
        QCOMPARE(description(leftover, language), expectedDescription);
        // what is no Base64 would be empty, too
        QCOMPARE(leftover.child(u"description_"_qs + language).text.isEmpty(), expectedDescription.isEmpty());
    }
}

void tst_PresetNotes::names_areThoseOfThePresets()
{
    for (const XmlElement &note : realNotes()) {
        const XmlElement look = preset(note.attributes.value(u"id"_qs));
        QCOMPARE(note.attributes.value(u"name"_qs), look.attributes.value(u"name_en"_qs));
        for (const QString &language : languages) {
            QCOMPARE(title(note, language), look.attributes.value(u"name_"_qs + language));
        }
    }
}

void tst_PresetNotes::names_holdTheTrademarkSign()
{
    QCOMPARE(note(u"FujiAstia100"_qs).attributes.value(u"name"_qs), u"Fuji Astia\u2122 100F"_qs);
}

void tst_PresetNotes::pastel_isTheNameOfTwo()
{
    const QStringList names = notes().values(u"name"_qs);
    QCOMPARE(names.count(u"Pastel"_qs), 2);
    QCOMPARE(QSet<QString>(names.cbegin(), names.cend()).size(), 138); // no other is shared
    QCOMPARE(note(u"Pastel"_qs).attributes.value(u"name"_qs), u"Pastel"_qs);
    QCOMPARE(note(u"CinePastel"_qs).attributes.value(u"name"_qs), u"Pastel"_qs);
}

void tst_PresetNotes::head_hasItsLabels_data()
{
    QTest::addColumn<QString>("start");

    QTest::newRow("FujiAstia100") << u"<b>Creator:</b> Fuji<br/><b>Type:</b> Slide color film<br/>"
                                     "<b>First produced: </b>2003<br/><b>End of production: </b>"_qs;
    QTest::newRow("PureGold") << u"<b>Creator:</b> Zyx Labs<br/><b>Type:</b> Designer look, toned black and white<br/>"
                                 "<b>Creation year:</b> 2008<br/><b>Year discontinued:</b> "_qs;
    QTest::newRow("Cyanotype") << u"<b>Creator:</b> John Herschel<br/><b>Type:</b> "_qs;
}

void tst_PresetNotes::head_hasItsLabels()
{
    QFETCH(const QString, start);
    const QString text = description(note(QString::fromLatin1(QTest::currentDataTag())), u"en"_qs);
    QVERIFY2(text.startsWith(start), qPrintable(text));
}

void tst_PresetNotes::filmHeads_tellTheProduction()
{
    for (const XmlElement &note : realNotes()) {
        const QString id = note.attributes.value(u"id"_qs);
        const QStringList kinds = tags(preset(id));
        const bool isFilm = kinds.contains(u"Film"_qs) || kinds.contains(u"Digital"_qs);
        const QString text = description(note, u"en"_qs);
        QVERIFY2(text.startsWith(u"<b>Creator:</b> "), qPrintable(id));
        QVERIFY2(text.contains(u"<br/><b>Type:</b> "), qPrintable(id));
        QCOMPARE(text.contains(u"<br/><b>First produced: </b>"), isFilm);
        QCOMPARE(text.contains(u"<br/><b>End of production: </b>"), isFilm);
        QCOMPARE(text.contains(u"<b>Creation year:</b> "), !isFilm && id != u"Cyanotype");
        QCOMPARE(text.contains(u"<b>Year discontinued:</b> "), !isFilm && id != u"Cyanotype");
    }
}

void tst_PresetNotes::dates_areOnOneNoteAlone()
{
    QStringList ids;
    for (const XmlElement &note : realNotes()) {
        const QString text = description(note, u"en"_qs);
        if (text.contains(u"<b>Creation date:</b> ") && text.contains(u"<b>Date discontinued:</b> ")) {
            ids.append(note.attributes.value(u"id"_qs));
        }
    }
    QCOMPARE(ids, QStringList(u"Cyanotype"_qs));
}

/*! As a text browser shows it: the head's lines, then at least one paragraph, no markup left over. */
void tst_PresetNotes::description_isRichTextInEachLanguage()
{
    for (const XmlElement &note : realNotes()) {
        for (const QString &language : languages) {
            const QString html = description(note, language);
            QVERIFY2(html.contains(u"<p>") && html.endsWith(u"</p>"), qPrintable(html));
            QTextDocument document;
            document.setHtml(html);
            const QString text = document.toPlainText();
            QVERIFY2(!text.contains(u'<') && !text.contains(u"&amp;"), qPrintable(text));
            QVERIFY2(text.count(u'\n') >= 4, qPrintable(text)); // four lines of the head, a paragraph
        }
    }
}

QTEST_MAIN(tst_PresetNotes)
#include "tst_PresetNotes.moc"
