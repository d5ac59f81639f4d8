// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "FilmHistory.h"

#include "XmlFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QXmlStreamReader>

namespace {

constexpr QLatin1StringView idName("id");
constexpr QLatin1StringView nameName("name");

int readId(QXmlStreamReader &xml)
{
    const QString text = requiredAttribute(xml, idName);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber && !xml.hasError()) {
        xml.raiseError(QCoreApplication::translate("CFilmHistory", "“%1” is no number").arg(text));
    }
    return number;
}

QStringList readFilms(QXmlStreamReader &xml)
{
    QStringList films;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"film") {
            films.append(requiredAttribute(xml, nameName));
        }
        xml.skipCurrentElement();
    }
    return films;
}

/*! As it stands, with its blanks. */
QString readText(QXmlStreamReader &xml)
{
    return xml.readElementText(QXmlStreamReader::SkipChildElements);
}

void readField(QXmlStreamReader &xml, HistoryEvent &event)
{
    const QString field = xml.name().toString();
    if (field == u"event_films") {
        event.films = readFilms(xml);
    } else if (field == u"image") {
        event.image = readText(xml);
    } else if (field == u"thumbnail") {
        event.thumbnail = readText(xml);
    } else if (field == u"copyright") {
        event.copyright = readText(xml);
    } else {
        const QString text = readText(xml);
        addText(event.titles, field, QLatin1StringView("title"), text);
        addText(event.descriptions, field, QLatin1StringView("description"), text);
    }
}

QList<HistoryEvent> readEvents(QXmlStreamReader &xml)
{
    QList<HistoryEvent> events;
    while (xml.readNextStartElement()) {
        if (xml.name() != u"event") {
            xml.skipCurrentElement();
            continue;
        }
        HistoryEvent event;
        event.id = readId(xml);
        while (xml.readNextStartElement()) {
            readField(xml, event);
        }
        events.append(event);
    }
    return events;
}

Decade readDecade(QXmlStreamReader &xml)
{
    Decade decade;
    decade.id = readId(xml);
    decade.name = requiredAttribute(xml, nameName);
    decade.names = namesOf(xml);
    while (xml.readNextStartElement()) {
        if (xml.name() == u"decade_films") {
            decade.films = readFilms(xml);
        } else if (xml.name() == u"events") {
            decade.events = readEvents(xml);
        } else {
            xml.skipCurrentElement();
        }
    }
    return decade;
}

} // namespace

QString Decade::label(const QString &language) const
{
    const QString translated = names.value(language);
    return translated.isEmpty() ? name : translated;
}

CFilmHistory::CFilmHistory(const QString &path)
{
    m_error = readXmlFile(path, QLatin1StringView("decades"), [this](QXmlStreamReader &xml) {
        if (xml.name() == u"decade") {
            m_decades.append(readDecade(xml));
        } else {
            xml.skipCurrentElement();
        }
    });
    if (!m_error.isEmpty()) {
        m_decades.clear();
    }
}

const QString &CFilmHistory::error() const
{
    return m_error;
}

const QList<Decade> &CFilmHistory::decades() const
{
    return m_decades;
}
