// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/CatalogueEntries.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace {

CatalogueEntry readEntry(QXmlStreamReader &xml, const QString &context)
{
    CatalogueEntry entry;
    entry.context = context;
    entry.isPlural = xml.attributes().value(u"numerus"_qs) == u"yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == u"source") {
            entry.source = xml.readElementText();
        } else if (xml.name() == u"comment") {
            entry.comment = xml.readElementText();
        } else if (xml.name() == u"translation" && entry.isPlural) {
            entry.type = xml.attributes().value(u"type"_qs).toString();
            while (xml.readNextStartElement()) {
                entry.translations.append(xml.readElementText());
            }
        } else if (xml.name() == u"translation") {
            entry.type = xml.attributes().value(u"type"_qs).toString();
            entry.translations.append(xml.readElementText());
        } else {
            xml.skipCurrentElement();
        }
    }
    return entry;
}

} // namespace

QList<CatalogueEntry> catalogueEntriesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<CatalogueEntry> entries;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"name") {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"message") {
            entries.append(readEntry(xml, context));
        }
    }
    return xml.hasError() ? QList<CatalogueEntry>() : entries;
}
