// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceParts.h"

#include "Texts.h"

#include "common/Look.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>

QStringList idsIn(const QWidget &window)
{
    const auto *list = part<QListWidget>(window, u"presetFilmStrip"_qs);
    QStringList ids;
    for (int row = 0; row < list->count(); ++row) {
        ids.append(list->item(row)->data(Qt::UserRole).toString());
    }
    return ids;
}

QString titleIn(const QWidget &browser)
{
    return part<QLabel>(browser, u"presetInfoTitle"_qs)->text();
}

void speakAtOnce(const QString &language)
{
    putOnLook(language);
    speakLoadedLanguage();
    QCoreApplication::processEvents(); // the windows are told by an event
}

QString newFile(const QTemporaryDir &folder, const QString &name, const QByteArray &content)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() ? file.fileName() : QString();
}

std::shared_ptr<const CPresetLibrary> brokenLibrary()
{
    return std::make_shared<const CPresetLibrary>(u"none.xml"_qs, u"none.xml"_qs);
}

QByteArray nested(const QByteArray &head, const QByteArray &tail)
{
    constexpr int depth = 200'000;
    return head + QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth) + tail;
}

int languagesOf(const LanguageTexts &texts)
{
    int count = 0;
    for (const QString &language : {u"en"_qs, u"fr"_qs, u"de"_qs, u"ja"_qs, u"zh_CN"_qs}) {
        count += texts.value(language).isEmpty() ? 0 : 1;
    }
    return count;
}
