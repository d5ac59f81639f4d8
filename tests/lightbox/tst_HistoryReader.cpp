// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceParts.h"

#include "FilmHistory.h"
#include "PresetLibrary.h"

#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

/*! The reader of the film history, on the embedded file and on broken ones. */
class tst_HistoryReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decades_areThoseOfTheData_data();
    void decades_areThoseOfTheData();
    void history_sums();
    void history_filmsArePresets();
    void event_lastOne_hasNoFilms();
    void event_textsKeepTheirPunctuation();
    void decadeLabel_fallsBackToTheName_data();
    void decadeLabel_fallsBackToTheName();
    void brokenHistory_isToldAndGivesNothing_data();
    void brokenHistory_isToldAndGivesNothing();
    void missingFile_isTold();
    void unknownElements_areSkippedAtAnyDepth();

private:
    QString fileOf(const QByteArray &content);

    const CPresetLibrary m_library;
    const CFilmHistory m_history;
    QTemporaryDir m_folder;
};

QString tst_HistoryReader::fileOf(const QByteArray &content)
{
    return newFile(m_folder, u"data.xml"_qs, content);
}

void tst_HistoryReader::decades_areThoseOfTheData_data()
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

void tst_HistoryReader::decades_areThoseOfTheData()
{
    const int id = QByteArray(QTest::currentDataTag()).toInt();
    QCOMPARE(m_history.error(), QString());
    const Decade decade = m_history.decades().value(id - 1);
    QCOMPARE(decade.id, id);
    QTEST(decade.name, "name");
    QTEST(int(decade.films.size()), "films");
    QTEST(int(decade.events.size()), "events");
}

void tst_HistoryReader::history_sums()
{
    QCOMPARE(m_history.decades().size(), 14);
    QSet<QString> films;
    int filmCount = 0;
    int eventFilms = 0;
    int lastEvent = 0;
    for (const Decade &decade : m_history.decades()) {
        filmCount += int(decade.films.size());
        films.unite(QSet<QString>(decade.films.cbegin(), decade.films.cend()));
        for (const HistoryEvent &event : decade.events) {
            QCOMPARE(event.id, ++lastEvent);
            const int number = event.id <= 61 ? 2 * event.id - 1 : 2 * event.id + 1;
            QCOMPARE(event.image, u"%1.jpg"_qs.arg(number));
            QCOMPARE(event.thumbnail, u"%1-thumb.jpg"_qs.arg(number));
            QCOMPARE(languagesOf(event.titles), 5);
            QCOMPARE(languagesOf(event.descriptions), 5);
            eventFilms += int(event.films.size());
        }
    }
    QCOMPARE(filmCount, 214);
    QCOMPARE(films.size(), 214);
    QCOMPARE(lastEvent, 73);
    QCOMPARE(eventFilms, 92);
}

void tst_HistoryReader::history_filmsArePresets()
{
    for (const Decade &decade : m_history.decades()) {
        for (const QString &film : decade.films) {
            QVERIFY2(m_library.preset(film) != nullptr, qPrintable(film));
        }
        for (const HistoryEvent &event : decade.events) {
            for (const QString &film : event.films) {
                QVERIFY2(m_library.preset(film) != nullptr, qPrintable(film));
            }
        }
    }
}

void tst_HistoryReader::event_lastOne_hasNoFilms()
{
    for (const Decade &decade : m_history.decades()) {
        for (const HistoryEvent &event : decade.events) {
            QCOMPARE(event.films.isEmpty(), event.id == 73);
        }
    }
}

void tst_HistoryReader::event_textsKeepTheirPunctuation()
{
    int tabs = 0;
    for (const Decade &decade : m_history.decades()) {
        for (const HistoryEvent &event : decade.events) {
            QVERIFY2(event.copyright.contains(u'©'), qPrintable(event.copyright));
            tabs += event.copyright.startsWith(u'\t') ? 1 : 0;
        }
    }
    QCOMPARE(tabs, 1);
    QVERIFY(m_history.decades().constFirst().events.constFirst().titles.value(u"en"_qs).contains(u" • "));
}

void tst_HistoryReader::decadeLabel_fallsBackToTheName_data()
{
    QTest::addColumn<int>("decade");
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("label");

    QTest::newRow("German") << 1 << u"de"_qs << u"19. Jahrhundert"_qs;
    QTest::newRow("French") << 1 << u"fr"_qs << u"19ème Siècle"_qs;
    QTest::newRow("Japanese") << 1 << u"ja"_qs << u"19世紀"_qs;
    QTest::newRow("Chinese") << 1 << u"zh_CN"_qs << u"19世纪"_qs;
    QTest::newRow("English") << 1 << u"en"_qs << u"19 Century"_qs;
    QTest::newRow("second, German") << 2 << u"de"_qs << u"1900's"_qs;
    QTest::newRow("last, Japanese") << 14 << u"ja"_qs << u"2010 - 2020"_qs;
}

void tst_HistoryReader::decadeLabel_fallsBackToTheName()
{
    QFETCH(const int, decade);
    QFETCH(const QString, language);
    QTEST(m_history.decades().at(decade - 1).label(language), "label");
}

void tst_HistoryReader::brokenHistory_isToldAndGivesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error"); // its beginning

    QTest::newRow("empty") << QByteArray() << u"data.xml, line 1: "_qs;
    QTest::newRow("other root") << QByteArray("<decade/>")
                                << u"data.xml, line 1: “decade” stands where “decades” is expected"_qs;
    QTest::newRow("truncated") << QByteArray("<decades>\n<decade id='1' name='a'>") << u"data.xml, line 2: "_qs;
    QTest::newRow("no id") << QByteArray("<decades>\n<decade name='a'/></decades>")
                           << u"data.xml, line 2: “decade” has no “id”"_qs;
    QTest::newRow("no name") << QByteArray("<decades>\n<decade id='1'/></decades>")
                             << u"data.xml, line 2: “decade” has no “name”"_qs;
    QTest::newRow("id of letters") << QByteArray("<decades>\n<decade id='one' name='a'/></decades>")
                                   << u"data.xml, line 2: “one” is no number"_qs;
    QTest::newRow("event without an id") << QByteArray(
        "<decades><decade id='1' name='a'><events>\n<event/></events></decade></decades>")
                                         << u"data.xml, line 2: “event” has no “id”"_qs;
    QTest::newRow("film without a name") << QByteArray(
        "<decades><decade id='1' name='a'><decade_films>\n<film/></decade_films></decade></decades>")
                                         << u"data.xml, line 2: “film” has no “name”"_qs;
    QTest::newRow("deep and open") << nested("<decades>", "") << u"data.xml, line 1: "_qs;
}

void tst_HistoryReader::brokenHistory_isToldAndGivesNothing()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, error);
    const CFilmHistory history(fileOf(content));
    QVERIFY2(history.error().startsWith(error), qPrintable(history.error()));
    QVERIFY(history.decades().isEmpty());
}

void tst_HistoryReader::missingFile_isTold()
{
    const QString path = m_folder.filePath(u"none.xml"_qs);
    QVERIFY(CFilmHistory(path).error().startsWith(path + u" can't be read: "));
}

void tst_HistoryReader::unknownElements_areSkippedAtAnyDepth()
{
    const CFilmHistory history(fileOf(
        nested("<decades><decade id='1' name='a'><events><event id='1'>", "</event></events></decade></decades>")));
    QCOMPARE(history.error(), QString());
    QCOMPARE(history.decades().size(), 1);
    QCOMPARE(history.decades().constFirst().events.size(), 1);
}

QTEST_MAIN(tst_HistoryReader)

#include "tst_HistoryReader.moc"
