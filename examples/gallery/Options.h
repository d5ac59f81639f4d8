// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

class QCommandLineParser;

struct GalleryOptions
{
    QString language; // abbreviation; empty for the stored one
    std::optional<QString> ratio; // as given, and for pictures "1" if it is not; none: the screen's own
    bool isRightToLeft = false;
    QString output; // folder; empty for a window
    QString only; // how the exhibits' names begin that pictures are wanted of
};

void addGalleryOptions(QCommandLineParser &parser);

/*! Reads them from a \a parser that has parsed. */
GalleryOptions readGalleryOptions(const QCommandLineParser &parser);

/*! "1", "1.5" and "2". */
bool isRatio(const QString &text);

/*!
    The ratio that the \a arguments, the program's name first, ask for; none if it is the screen's own or not one of
    those. Qt wants to know it before there is an application object, and with it a proper command line.
*/
std::optional<QString> ratioIn(const QStringList &arguments);

/*! The arguments with which another gallery shows \a language, all else alike. */
QStringList argumentsFor(const GalleryOptions &options, const QString &language);
