// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCatalogue.h"

#include "PhotoMetadata.h"
#include "Resources.h"

#include <QtCore/QFile>
#include <QtCore/QMultiHash>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

struct Maker
{
    QLatin1StringView told; // what a photograph's maker begins with, or its model
    QLatin1StringView name; // as the catalogue writes it
};

constexpr Maker makers[] = {
    {QLatin1StringView("EASTMAN KODAK"), QLatin1StringView("Kodak")},
    {QLatin1StringView("OM DIGITAL"), QLatin1StringView("OMSystem")},
    {QLatin1StringView("KONICA"), QLatin1StringView("Konica")},
    {QLatin1StringView("MINOLTA"), QLatin1StringView("Konica")},
    {QLatin1StringView("MICROSOFT"), QLatin1StringView("Nokia")},
    {QLatin1StringView("HMD"), QLatin1StringView("Nokia")},
    {QLatin1StringView("FUJI"), QLatin1StringView("Fujifilm")},
    {QLatin1StringView("APPLE"), QLatin1StringView("Apple")},
    {QLatin1StringView("CANON"), QLatin1StringView("Canon")},
    {QLatin1StringView("DJI"), QLatin1StringView("DJI")},
    {QLatin1StringView("GOPRO"), QLatin1StringView("GoPro")},
    {QLatin1StringView("HASSELBLAD"), QLatin1StringView("Hasselblad")},
    {QLatin1StringView("KODAK"), QLatin1StringView("Kodak")},
    {QLatin1StringView("LEICA"), QLatin1StringView("Leica")},
    {QLatin1StringView("NIKON"), QLatin1StringView("Nikon")},
    {QLatin1StringView("NOKIA"), QLatin1StringView("Nokia")},
    {QLatin1StringView("OLYMPUS"), QLatin1StringView("Olympus")},
    {QLatin1StringView("PANASONIC"), QLatin1StringView("Panasonic")},
    {QLatin1StringView("PARROT"), QLatin1StringView("Parrot")},
    {QLatin1StringView("PENTAX"), QLatin1StringView("Pentax")},
    {QLatin1StringView("RICOH"), QLatin1StringView("Ricoh")},
    {QLatin1StringView("SAMSUNG"), QLatin1StringView("Samsung")},
    {QLatin1StringView("SIGMA"), QLatin1StringView("Sigma")},
    {QLatin1StringView("SONY"), QLatin1StringView("Sony")},
    {QLatin1StringView("ZYX LABS"), QLatin1StringView("ZyxLabs")},
};

QStringList wordsOf(QString text)
{
    text.replace(u'\u00b5', u'u'); // as cameras write it
    static const QRegularExpression separators(u"[^\\p{L}\\p{N}]+"_qs);
    return text.replace(u'+', u" Plus "_qs).split(separators, Qt::SkipEmptyParts);
}

/*! Each word with a capital, which need not be its first character: "6s" is "6S". */
QString joined(const QStringList &words)
{
    QString text;
    for (QString word : words) {
        const auto letter = std::find_if(word.begin(), word.end(), [](QChar c) { return c.isLetter(); });
        if (letter != word.end()) {
            *letter = letter->toUpper();
        }
        text += word;
    }
    return text;
}

QString makerIn(const QString &text)
{
    const auto *const found = std::find_if(std::begin(makers), std::end(makers), [&text](const Maker &maker) {
        return text.startsWith(maker.told, Qt::CaseInsensitive);
    });
    return found == std::end(makers) ? QString() : QString(found->name);
}

/*! Run together, without the maker that the model begins with. */
QString identifierOf(const QString &maker, const QString &model)
{
    const bool repeats = model.startsWith(QString(maker + u' '), Qt::CaseInsensitive);
    return joined(wordsOf(maker)) + joined(wordsOf(repeats ? model.mid(maker.size()) : model));
}

/*! Identifiers by the models that cameras tell, which for many are no names that people know. */
QMultiHash<QString, QString> readToldModels()
{
    initLightboxResources();
    QMultiHash<QString, QString> identifiers;
    QFile table(u":/lightbox/bodies.tsv"_qs);
    if (!table.open(QIODevice::ReadOnly)) {
        return identifiers;
    }
    while (!table.atEnd()) {
        const QStringList row = QString::fromUtf8(table.readLine()).trimmed().split(u'\t');
        if (row.constFirst().startsWith(u'#')) {
            continue; // a comment
        }
        QStringList told = row.value(2).split(u',', Qt::SkipEmptyParts);
        told.append(row.value(2)); // some tell both of their names at once
        told.removeDuplicates();
        for (const QString &model : told) {
            identifiers.insert(model.toCaseFolded(), identifierOf(row.at(0), row.value(1)));
        }
    }
    return identifiers;
}

/*! Those of that maker alone: several call a model by one letter. */
QStringList identifiersByToldModel(const QString &maker, const QString &model)
{
    static const QMultiHash<QString, QString> identifiers = readToldModels();
    QStringList found = identifiers.values(model.simplified().toCaseFolded());
    std::reverse(found.begin(), found.end()); // into the order of the table
    found.removeIf([&maker](const QString &identifier) { return !identifier.startsWith(maker, Qt::CaseInsensitive); });
    return found;
}

} // namespace

QStringList CCalibrationCatalogue::bodiesOf(const QString &make, const QString &model)
{
    const QStringList words = wordsOf(model);
    if (words.isEmpty()) {
        return {};
    }
    // Some cameras bear another brand than that of their maker.
    const QString ofModel = makerIn(words.constFirst());
    const QString ofMake = makerIn(make.trimmed());
    const QString maker = !ofModel.isEmpty() ? ofModel : ofMake.isEmpty() ? joined(wordsOf(make)) : ofMake;
    QStringList bodies = identifiersByToldModel(maker, model);
    if (!ofModel.isEmpty() && words.size() > 1) {
        bodies.append(maker + joined(words.sliced(1)));
    }
    bodies.append(maker + joined(words));
    bodies.removeDuplicates();
    return bodies;
}

CalibrationQuery queryOf(const PhotoMetadata &metadata)
{
    return {CCalibrationCatalogue::bodiesOf(metadata.make, metadata.model), metadata.lensId, metadata.lens,
            metadata.focalLength, metadata.isRaw ? ImageKind::Raw : ImageKind::Rgb};
}
