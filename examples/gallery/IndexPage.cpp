// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "IndexPage.h"

#include "PictureName.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QMap>
#include <QtCore/QSaveFile>
#include <QtCore/QXmlStreamWriter>
#include <QtGui/QImageReader>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

constexpr const char *look = R"(
:root { color-scheme: dark; }
body { margin: 2em; background: #303030; color: #b0b0b0; font-family: Roboto, sans-serif; }
h1, h2, h3 { color: #e5e5e5; font-weight: 400; }
h2 { margin-top: 2em; border-bottom: 1px solid #535353; }
a, summary { color: #e08a5c; }
summary { cursor: pointer; padding: 0.3em 0; }
figure { display: inline-block; vertical-align: top; margin: 0 1.5em 1em 0; }
figcaption { font-size: 0.8em; }
img { max-width: 100%; height: auto; }
)";

struct Kind
{
    QLatin1StringView name;
    QLatin1StringView title;
};

constexpr Kind kinds[] = {
    {QLatin1StringView("box"), QLatin1StringView("Message boxes")},
    {QLatin1StringView("dialog"), QLatin1StringView("Dialogs")},
    {QLatin1StringView("overlay"), QLatin1StringView("Overlays")},
    {QLatin1StringView("widget"), QLatin1StringView("Widgets")},
    {QLatin1StringView("sheet"), QLatin1StringView("Style sheets")},
};

struct Picture
{
    PictureName name;
    QString file;
    QSize size; // in units
};

/*! Of one exhibit, by ratio and direction, in the order in which they are shown. */
using Variants = QMap<QString, QList<Picture>>;

QString variantOf(const PictureName &name)
{
    return u"Ratio %1, %2"_qs.arg(name.ratio, name.direction == u"rtl" ? u"right to left"_qs : u"left to right"_qs);
}

QString kindOf(const QString &exhibit)
{
    return exhibit.section(u'-', 0, 0);
}

QHash<QString, Variants> picturesIn(const QString &folder)
{
    QHash<QString, Variants> pictures;
    const QStringList files = QDir(folder).entryList({u"*.png"_qs}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const std::optional<PictureName> name = pictureNameOf(file);
        if (name) {
            const QSize size = QImageReader(QDir(folder).filePath(file)).size() / name->ratio.toDouble();
            pictures[name->exhibit][variantOf(*name)].append({*name, file, size});
        }
    }
    return pictures;
}

/*! Those that there are pictures of. */
QList<IndexEntry> allEntries(const QList<IndexEntry> &entries, const QHash<QString, Variants> &pictures)
{
    QList<IndexEntry> all;
    QStringList others = pictures.keys();
    std::sort(others.begin(), others.end());
    for (const IndexEntry &entry : entries) {
        if (others.removeOne(entry.name)) {
            all.append(entry);
        }
    }
    for (const QString &name : others) {
        all.append({name, name.section(u'-', 1)});
    }
    return all;
}

QString languageName(const QString &language)
{
    const QLocale locale(language);
    return locale.language() == QLocale::English ? u"English"_qs : locale.nativeLanguageName(); // not that of a country
}

void writeHead(QXmlStreamWriter &page)
{
    page.writeStartElement(u"head"_qs);
    page.writeEmptyElement(u"meta"_qs);
    page.writeAttribute(u"charset"_qs, u"utf-8"_qs);
    page.writeEmptyElement(u"meta"_qs);
    page.writeAttribute(u"name"_qs, u"viewport"_qs);
    page.writeAttribute(u"content"_qs, u"width=device-width"_qs);
    page.writeTextElement(u"title"_qs, u"Gallery"_qs);
    page.writeTextElement(u"style"_qs, QString::fromUtf8(look));
    page.writeEndElement();
}

void writePicture(QXmlStreamWriter &page, const Picture &picture, const QString &title)
{
    page.writeStartElement(u"figure"_qs);
    page.writeEmptyElement(u"img"_qs);
    page.writeAttribute(u"src"_qs, picture.file);
    page.writeAttribute(u"alt"_qs,
                        u"%1: %2, %3"_qs.arg(title, picture.name.language, variantOf(picture.name).toLower()));
    page.writeAttribute(u"width"_qs, QString::number(picture.size.width()));
    page.writeAttribute(u"height"_qs, QString::number(picture.size.height()));
    page.writeAttribute(u"loading"_qs, u"lazy"_qs);
    page.writeStartElement(u"figcaption"_qs);
    page.writeAttribute(u"lang"_qs, QLocale(picture.name.language).bcp47Name());
    page.writeCharacters(languageName(picture.name.language));
    page.writeEndElement();
    page.writeEndElement();
}

void writeExhibit(QXmlStreamWriter &page, const IndexEntry &entry, const Variants &variants)
{
    page.writeStartElement(u"article"_qs);
    page.writeAttribute(u"id"_qs, entry.name);
    page.writeTextElement(u"h3"_qs, entry.title);
    bool isOpen = true; // the first one
    for (auto variant = variants.cbegin(); variant != variants.cend(); ++variant) {
        page.writeStartElement(u"details"_qs);
        if (std::exchange(isOpen, false)) {
            page.writeAttribute(u"open"_qs, QString());
        }
        page.writeTextElement(u"summary"_qs, variant.key());
        for (const Picture &picture : variant.value()) {
            writePicture(page, picture, entry.title);
        }
        page.writeEndElement();
    }
    page.writeEndElement();
}

void writeContents(QXmlStreamWriter &page)
{
    page.writeStartElement(u"nav"_qs);
    for (const Kind &kind : kinds) {
        page.writeStartElement(u"p"_qs);
        page.writeStartElement(u"a"_qs);
        page.writeAttribute(u"href"_qs, u'#' + kind.name);
        page.writeCharacters(kind.title);
        page.writeEndElement();
        page.writeEndElement();
    }
    page.writeEndElement();
}

void writeBody(QXmlStreamWriter &page, const QList<IndexEntry> &entries, const QHash<QString, Variants> &pictures)
{
    page.writeStartElement(u"body"_qs);
    page.writeTextElement(u"h1"_qs, u"Gallery"_qs);
    writeContents(page);
    for (const Kind &kind : kinds) {
        page.writeStartElement(u"section"_qs);
        page.writeAttribute(u"id"_qs, kind.name);
        page.writeTextElement(u"h2"_qs, kind.title);
        for (const IndexEntry &entry : entries) {
            if (kindOf(entry.name) == kind.name) {
                writeExhibit(page, entry, pictures.value(entry.name));
            }
        }
        page.writeEndElement();
    }
    page.writeEndElement();
}

} // namespace

bool writeIndexPage(const QString &folder, const QList<IndexEntry> &entries)
{
    QSaveFile file(QDir(folder).filePath(u"index.html"_qs));
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const QHash<QString, Variants> pictures = picturesIn(folder);
    QXmlStreamWriter page(&file);
    page.setAutoFormatting(true);
    page.setAutoFormattingIndent(1);
    page.writeDTD(u"<!DOCTYPE html>"_qs);
    page.writeStartElement(u"html"_qs);
    page.writeAttribute(u"lang"_qs, u"en"_qs);
    writeHead(page);
    writeBody(page, allEntries(entries, pictures), pictures);
    page.writeEndElement();
    return !page.hasError() && file.commit();
}
