// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#pragma once

#include "LanguageTexts.h"
#include "PresetLibrary.h"

#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QWidget>

#include <memory>

// What the tests of the windows that show embedded data share, and those of its readers.

/*! What a user sees in a window. */
template <class Widget>
Widget *part(const QWidget &window, const QString &name)
{
    return window.findChild<Widget *>(name);
}

/*! The presets that a window lists. */
QStringList idsIn(const QWidget &window);

/*! Of the preset that is shown. */
QString titleIn(const QWidget &browser);

/*! As if the program had been started with it, while its windows are open. */
void speakAtOnce(const QString &language);

/*! The path of a new file; empty if it can't be written. */
QString newFile(const QTemporaryDir &folder, const QString &name, const QByteArray &content);

/*! Neither of its files is there. */
std::shared_ptr<const CPresetLibrary> brokenLibrary();

/*! A document with elements that lie too deep in each other. */
QByteArray nested(const QByteArray &head, const QByteArray &tail);

/*! How many of the five languages have a text. */
int languagesOf(const LanguageTexts &texts);
