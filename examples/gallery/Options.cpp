// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Options.h"

#include <QtCore/QCommandLineParser>

namespace {

const QCommandLineOption &languageOption()
{
    static const QCommandLineOption option(u"language"_qs, u"Language, such as \"de\"."_qs, u"abbreviation"_qs);
    return option;
}

const QCommandLineOption &ratioOption()
{
    static const QCommandLineOption option(
        u"ratio"_qs, u"Pixels to a unit: 1, 1.5 or 2; without it those of the screen, and of a picture 1."_qs,
        u"ratio"_qs);
    return option;
}

const QCommandLineOption &rightToLeftOption()
{
    static const QCommandLineOption option(u"right-to-left"_qs, u"Lay everything out from right to left."_qs);
    return option;
}

const QCommandLineOption &outputOption()
{
    static const QCommandLineOption option(
        u"output"_qs, u"Write pictures, and a page \"index.html\" of all in the folder, and leave."_qs, u"folder"_qs);
    return option;
}

const QCommandLineOption &onlyOption()
{
    static const QCommandLineOption option(
        u"only"_qs, u"With --output: the pictures whose names begin so, such as \"box-save\" or \"sheet\"."_qs,
        u"name"_qs);
    return option;
}

std::optional<QString> readRatio(const QCommandLineParser &parser)
{
    if (parser.isSet(ratioOption())) {
        return parser.value(ratioOption());
    }
    return parser.isSet(outputOption()) ? std::optional(u"1"_qs) : std::nullopt;
}

} // namespace

void addGalleryOptions(QCommandLineParser &parser)
{
    parser.addOptions({languageOption(), ratioOption(), rightToLeftOption(), outputOption(), onlyOption()});
}

GalleryOptions readGalleryOptions(const QCommandLineParser &parser)
{
    return {parser.value(languageOption()), readRatio(parser), parser.isSet(rightToLeftOption()),
            parser.value(outputOption()), parser.value(onlyOption())};
}

bool isRatio(const QString &text)
{
    return QStringList{u"1"_qs, u"1.5"_qs, u"2"_qs}.contains(text);
}

std::optional<QString> ratioIn(const QStringList &arguments)
{
    QCommandLineParser parser;
    addGalleryOptions(parser);
    parser.parse(arguments); // others are looked at later
    std::optional<QString> ratio = readRatio(parser);
    return ratio && isRatio(*ratio) ? ratio : std::nullopt;
}

QStringList argumentsFor(const GalleryOptions &options, const QString &language)
{
    QStringList arguments{u"--language"_qs, language};
    if (options.ratio) {
        arguments += {u"--ratio"_qs, *options.ratio};
    }
    if (options.isRightToLeft) {
        arguments.append(u"--right-to-left"_qs);
    }
    return arguments;
}
