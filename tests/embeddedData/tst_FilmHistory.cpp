// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "embeddedData/Presets.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>

#include <algorithm>

namespace {

const QString historyPath = u":/timeMachine/decadesInfo.xml"_qs;
const QStringList languages{u"fr"_qs, u"en"_qs, u"de"_qs, u"ja"_qs, u"zh_CN"_qs}; // in the order of the file

const XmlElement &decades()
{
    static const XmlElement root = readXml(historyPath);
    return root;
}

QList<XmlElement> events()
{
    QList<XmlElement> all;
    for (const XmlElement &decade : decades().children) {
        all += decade.child(u"events"_qs).children;
    }
    return all;
}

QStringList filmsOfDecades()
{
    QStringList names;
    for (const XmlElement &decade : decades().children) {
        names += decade.child(u"decade_films"_qs).values(u"name"_qs);
    }
    return names;
}

QStringList filmsOfEvents()
{
    QStringList names;
    for (const XmlElement &event : events()) {
        names += event.child(u"event_films"_qs).values(u"name"_qs);
    }
    return names;
}

} // namespace

class tst_FilmHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void file_hasItsDeclaration();
    void decade_hasItsFilmsAndEvents_data();
    void decade_hasItsFilmsAndEvents();
    void decades_haveFilmsThenEvents();
    void labels_areTranslatedInTheFirstDecadeAlone();
    void films_are214OfOneDecadeEach();
    void presetsInNoDecade_areTwelve();
    void lastDecade_hasItsFilms();
    void decades_mixHistoryPresetsWithOtherFilms();
    void events_ascendFrom1To73();
    void pictures_skipOneNumber_data();
    void pictures_skipOneNumber();
    void eventFilms_are92Presets();
    void event73_hasNoFilms();
    void fields_standInTheirOrder();
    void credits_haveTheCopyrightSign();
    void oneCredit_keepsItsLeadingTab();
    void titles_tellSubjectAndYear();
    void stories_haveTheirLength();
    void texts_arePlainAndStoriesDiffer();
    void punctuation_isKept();
};

/*! Without a call the program would not load the library. */
void tst_FilmHistory::initTestCase()
{
    ZYX_zglv6::initQtResources();
    QCOMPARE(decades().children.size(), 14); // or the tests would read beyond them
    QCOMPARE(events().size(), 73);
}

void tst_FilmHistory::file_hasItsDeclaration()
{
    QVERIFY(content(historyPath).startsWith("<?xml version='1.0' encoding='utf-8'?>\n<decades>\n"));
    QCOMPARE(decades().name, u"decades"_qs);
    QCOMPARE(decades().childNames(), QStringList(14, u"decade"_qs));
}

void tst_FilmHistory::decade_hasItsFilmsAndEvents_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("films");
    QTest::addColumn<int>("events");

    QTest::newRow("1") << u"19 Century"_qs << 20 << 9;
    QTest::newRow("2") << u"1900's"_qs << 10 << 4;
    QTest::newRow("3") << u"1910's"_qs << 10 << 5;
    QTest::newRow("4") << u"1920's"_qs << 11 << 5;
    QTest::newRow("5") << u"1930's"_qs << 11 << 5;
    QTest::newRow("6") << u"1940's"_qs << 12 << 5;
    QTest::newRow("7") << u"1950's"_qs << 6 << 5;
    QTest::newRow("8") << u"1960's"_qs << 14 << 5;
    QTest::newRow("9") << u"1970's"_qs << 17 << 5;
    QTest::newRow("10") << u"1980's"_qs << 9 << 5;
    QTest::newRow("11") << u"1990 - 1994"_qs << 27 << 5;
    QTest::newRow("12") << u"1995 - 1999"_qs << 12 << 4;
    QTest::newRow("13") << u"2000's"_qs << 32 << 5;
    QTest::newRow("14") << u"2010 - 2020"_qs << 23 << 6;
}

void tst_FilmHistory::decade_hasItsFilmsAndEvents()
{
    QFETCH(const QString, name);
    QFETCH(const int, films);
    QFETCH(const int, events);
    const QString id = QString::fromLatin1(QTest::currentDataTag());
    const XmlElement decade = decades().children.value(id.toInt() - 1);
    QCOMPARE(decade.attributes.value(u"id"_qs), id);
    QCOMPARE(decade.attributes.value(u"name"_qs), name);
    QCOMPARE(decade.child(u"decade_films"_qs).childNames(), QStringList(films, u"film"_qs));
    QCOMPARE(decade.child(u"events"_qs).childNames(), QStringList(events, u"event"_qs));
}

void tst_FilmHistory::decades_haveFilmsThenEvents()
{
    for (const XmlElement &decade : decades().children) {
        QCOMPARE(decade.childNames(), (QStringList{u"decade_films"_qs, u"events"_qs}));
    }
}

void tst_FilmHistory::labels_areTranslatedInTheFirstDecadeAlone()
{
    QMap<QString, QString> labels = decades().children.first().attributes;
    QCOMPARE(labels.value(u"name_de"_qs), u"19. Jahrhundert"_qs);
    QCOMPARE(labels.value(u"name_fr"_qs), u"19\u00e8me Si\u00e8cle"_qs);
    QCOMPARE(labels.value(u"name_ja"_qs), u"19\u4e16\u7d00"_qs);
    QCOMPARE(labels.value(u"name_zh_CN"_qs), u"19\u4e16\u7eaa"_qs);
    QCOMPARE(labels.size(), 6);
    for (const XmlElement &decade : decades().children.mid(1)) { // a reader falls back to the name
        QCOMPARE(decade.attributes.keys(), (QStringList{u"id"_qs, u"name"_qs}));
    }
}

void tst_FilmHistory::films_are214OfOneDecadeEach()
{
    const QStringList films = filmsOfDecades();
    QCOMPARE(films.size(), 214);
    QCOMPARE(QSet<QString>(films.cbegin(), films.cend()).size(), 214);
    QVERIFY(areLooks(films));
}

void tst_FilmHistory::presetsInNoDecade_areTwelve()
{
    QStringList left = presets().values(u"id"_qs).mid(3);
    const QStringList films = filmsOfDecades();
    left.removeIf([&films](const QString &id) { return films.contains(id); });
    const QStringList first{u"FujiProvia"_qs, u"FujiVelviaVivid"_qs, u"FujiEternaBleachBypass"_qs};
    QCOMPARE(left.size(), 12);
    QCOMPARE(left.first(3), first);
    QCOMPARE(left.filter(u"DigitalFuji"_qs).size(), 9); // the whole family
}

void tst_FilmHistory::decades_mixHistoryPresetsWithOtherFilms()
{
    static const QRegularExpression history(u"^[0-9]{4} - "_qs);
    for (const XmlElement &decade : decades().children) {
        QList<bool> kinds;
        for (const QString &film : decade.child(u"decade_films"_qs).values(u"name"_qs)) {
            kinds.append(history.match(film).hasMatch());
        }
        QVERIFY(!std::is_sorted(kinds.cbegin(), kinds.cend()));
        QVERIFY(!std::is_sorted(kinds.crbegin(), kinds.crend()));
    }
}

void tst_FilmHistory::lastDecade_hasItsFilms()
{
    const QStringList films = decades().children.last().child(u"decade_films"_qs).values(u"name"_qs);
    QVERIFY(films.contains(u"FujiClassicChromePlus"_qs));
    QVERIFY(films.contains(u"CineAutumn"_qs));
    QVERIFY(films.contains(u"2019 - ND Paris"_qs));
    QVERIFY(filmsOfDecades().contains(u"Cyanotype"_qs));
    QVERIFY(filmsOfDecades().contains(u"Sepia"_qs));
}

void tst_FilmHistory::events_ascendFrom1To73()
{
    const QList<XmlElement> all = events();
    QCOMPARE(all.size(), 73);
    for (qsizetype i = 0; i < all.size(); ++i) {
        QCOMPARE(all.at(i).attributes.value(u"id"_qs), QString::number(i + 1));
        QCOMPARE(all.at(i).attributes.size(), 1);
    }
}

void tst_FilmHistory::pictures_skipOneNumber_data()
{
    QTest::addColumn<int>("number");

    for (int event = 1; event <= 61; ++event) {
        QTest::addRow("%d", event) << 2 * event - 1;
    }
    for (int event = 62; event <= 73; ++event) {
        QTest::addRow("%d", event) << 2 * event + 1;
    }
}

void tst_FilmHistory::pictures_skipOneNumber()
{
    QFETCH(const int, number);
    const XmlElement event = events().value(QByteArray(QTest::currentDataTag()).toInt() - 1);
    QCOMPARE(event.child(u"image"_qs).text, u"%1.jpg"_qs.arg(number));
    QCOMPARE(event.child(u"thumbnail"_qs).text, u"%1-thumb.jpg"_qs.arg(number));
}

void tst_FilmHistory::eventFilms_are92Presets()
{
    const QStringList films = filmsOfEvents();
    QCOMPARE(films.size(), 92);
    QVERIFY(areLooks(films));
    const QList<XmlElement> all = events();
    const auto withOne = std::count_if(all.cbegin(), all.cend(), [](const XmlElement &event) {
        return event.child(u"event_films"_qs).children.size() == 1;
    });
    QVERIFY(withOne > all.size() / 2); // mostly one
}

void tst_FilmHistory::event73_hasNoFilms()
{
    for (const XmlElement &event : events()) {
        QCOMPARE(event.childNames().contains(u"event_films"_qs), event.attributes.value(u"id"_qs) != u"73");
    }
}

void tst_FilmHistory::fields_standInTheirOrder()
{
    const QStringList fields{u"image"_qs,          u"thumbnail"_qs,        u"event_films"_qs,    u"copyright"_qs,
                             u"title_fr"_qs,       u"title_en"_qs,         u"title_de"_qs,       u"title_ja"_qs,
                             u"title_zh_CN"_qs,    u"description_fr"_qs,   u"description_en"_qs, u"description_de"_qs,
                             u"description_ja"_qs, u"description_zh_CN"_qs};
    QStringList withoutFilms = fields;
    withoutFilms.removeAt(2);
    const QList<XmlElement> all = events();
    for (const XmlElement &event : all.first(72)) {
        QCOMPARE(event.childNames(), fields);
    }
    QCOMPARE(all.last().childNames(), withoutFilms);
}

void tst_FilmHistory::credits_haveTheCopyrightSign()
{
    for (const XmlElement &event : events()) {
        const QString credit = event.child(u"copyright"_qs).text;
        QVERIFY2(credit.trimmed().startsWith(u"\u00a9 "), qPrintable(credit));
        QVERIFY(event.child(u"copyright"_qs).children.isEmpty()); // plain text
    }
}

/*! It stays, and a reader trims it. */
void tst_FilmHistory::oneCredit_keepsItsLeadingTab()
{
    QStringList tabbed;
    for (const XmlElement &event : events()) {
        const QString credit = event.child(u"copyright"_qs).text;
        if (credit != credit.trimmed()) {
            tabbed.append(credit);
        }
    }
    QCOMPARE(tabbed.size(), 1);
    QVERIFY(tabbed.first().startsWith(u"\t\u00a9 "));
}

void tst_FilmHistory::titles_tellSubjectAndYear()
{
    static const QRegularExpression form(u"^\\S.* \u2022 .*[0-9]{4}"_qs);
    for (const XmlElement &event : events()) {
        for (const QString &language : languages) {
            const QString title = event.child(u"title_"_qs + language).text;
            QVERIFY2(form.match(title).hasMatch(), qPrintable(title));
        }
    }
}

void tst_FilmHistory::stories_haveTheirLength()
{
    QList<qsizetype> lengths; // in English
    for (const XmlElement &event : events()) {
        lengths.append(event.child(u"description_en"_qs).text.size());
        for (const QString &language : languages) {
            QVERIFY(event.child(u"description_"_qs + language).text.size() > 200);
        }
    }
    QCOMPARE(*std::min_element(lengths.cbegin(), lengths.cend()), 713);
    QCOMPARE(*std::max_element(lengths.cbegin(), lengths.cend()), 966);
}

void tst_FilmHistory::texts_arePlainAndStoriesDiffer()
{
    QSet<QString> stories;
    for (const XmlElement &event : events()) {
        for (const QString &language : languages) {
            const XmlElement title = event.child(u"title_"_qs + language);
            const XmlElement story = event.child(u"description_"_qs + language);
            QVERIFY(title.children.isEmpty() && story.children.isEmpty());
            QVERIFY2(!story.text.contains(u'<') && !title.text.contains(u'<'), qPrintable(title.text));
            stories.insert(story.text);
        }
    }
    QCOMPARE(stories.size(), 73 * languages.size()); // none stands for another
}

void tst_FilmHistory::punctuation_isKept()
{
    QString french;
    QString german;
    QString japanese;
    for (const XmlElement &event : events()) {
        french += event.child(u"title_fr"_qs).text + event.child(u"description_fr"_qs).text;
        german += event.child(u"description_de"_qs).text;
        japanese += event.child(u"description_ja"_qs).text;
    }
    for (const char16_t letter : {u'\u2022', u'\u00ab', u'\u00bb', u'\u2019', u'\u202f', u'\u00e9'}) {
        QVERIFY2(french.contains(letter), qPrintable(QString::number(letter, 16)));
    }
    QVERIFY(german.contains(u'\u201e'));
    QVERIFY(japanese.contains(u'\u300c'));
    QVERIFY(!french.contains(u'\'') && !french.contains(u'"'));
}

QTEST_GUILESS_MAIN(tst_FilmHistory)
#include "tst_FilmHistory.moc"
