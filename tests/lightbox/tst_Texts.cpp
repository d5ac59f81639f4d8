// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/CatalogueEntries.h"
#include "look/SourceTexts.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

namespace {

QString cataloguePath(const QString &language, const QString &suffix)
{
    return QString::fromUtf8(LIGHTBOX_FOLDER) + u"/translations/lightbox_" + language + suffix;
}

QList<CatalogueEntry> entriesOf(const QString &language)
{
    return catalogueEntriesOf(cataloguePath(language, u".ts"_qs));
}

QString keyOf(const CatalogueEntry &entry)
{
    return entry.context + u" | " + entry.source;
}

QStringList keysOf(const QList<CatalogueEntry> &entries)
{
    QStringList keys;
    for (const CatalogueEntry &entry : entries) {
        keys.append(keyOf(entry));
    }
    keys.sort();
    return keys;
}

/*! The class that a bare tr() in the source \a code belongs to: that of the header which it includes first. */
QString classOf(const QString &code)
{
    static const QRegularExpression form(u"#include \"(\\w+)\\.h\""_qs);
    return u'C' + form.match(code).captured(1);
}

/*! What is to be translated in the sources, each once. */
QStringList keysOfTheSources()
{
    QStringList keys;
    const QFileInfoList sources = QDir(QString::fromUtf8(LIGHTBOX_FOLDER)).entryInfoList({u"*.cpp"_qs, u"*.h"_qs});
    for (const QFileInfo &source : sources) {
        QFile file(source.filePath());
        const QString code = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
        const QString ownClass = source.suffix() == u"h" ? QString(u'C' + source.baseName()) : classOf(code);
        for (const SourceText &text : sourceTextsIn(code)) {
            keys.append((text.context.isEmpty() ? ownClass : text.context) + u" | " + text.text);
        }
    }
    keys.sort();
    keys.removeDuplicates();
    return keys;
}

/*! The places for arguments in \a text and its patterns of file names, sorted. */
QStringList placesIn(const QString &text)
{
    static const QRegularExpression form(u"%L?(?:[1-9][0-9]?|n)|\\(\\*[^)]*\\)"_qs);
    QStringList places;
    for (const QRegularExpressionMatch &match : form.globalMatch(text)) {
        places.append(match.captured());
    }
    places.sort();
    return places;
}

/*! How many texts the compiled catalogue \a path has; -1 if it can't be read. */
qsizetype textCountOf(const QString &path)
{
    constexpr qsizetype signatureSize = 16;
    constexpr qsizetype headSize = 5; // of a section: its tag and its length
    constexpr char hashes = 0x42;
    constexpr qsizetype hashSize = 8; // with the place of the text
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    for (qsizetype at = signatureSize; at + headSize <= bytes.size();) {
        const auto length = qsizetype(qFromBigEndian<quint32>(bytes.constData() + at + 1));
        if (bytes[at] == hashes) {
            return length / hashSize;
        }
        at += headSize + length;
    }
    return -1;
}

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"de", "fr", "ja", "zh_CN"}) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

} // namespace

/*! The catalogues of the program beside its sources. */
class tst_Texts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entries_areFinished_data();
    void entries_areFinished();
    void entries_areTheTextsOfTheSources_data();
    void entries_areTheTextsOfTheSources();
    void translations_keepPlacesAndPatterns_data();
    void translations_keepPlacesAndPatterns();
    void translations_keepTheAccelerator_data();
    void translations_keepTheAccelerator();
    void translations_areWrittenInTheirLanguage_data();
    void translations_areWrittenInTheirLanguage();
    void compiledCatalogue_isUpToDate_data();
    void compiledCatalogue_isUpToDate();
};

void tst_Texts::entries_areFinished_data()
{
    addLanguageRows();
}

void tst_Texts::entries_areFinished()
{
    QFETCH(const QString, language);
    const QList<CatalogueEntry> entries = entriesOf(language);
    QVERIFY(!entries.isEmpty());
    for (const CatalogueEntry &entry : entries) {
        QVERIFY2(entry.type.isEmpty(), qPrintable(keyOf(entry))); // "unfinished", "obsolete", "vanished"
        QVERIFY2(entry.translations.size() == 1, qPrintable(keyOf(entry)));
        QVERIFY2(!entry.translations.front().trimmed().isEmpty(), qPrintable(keyOf(entry)));
    }
}

void tst_Texts::entries_areTheTextsOfTheSources_data()
{
    addLanguageRows();
}

void tst_Texts::entries_areTheTextsOfTheSources()
{
    QFETCH(const QString, language);
    const QStringList keys = keysOfTheSources();
    QVERIFY(keys.contains(u"CMainWindow | Open a photograph"_qs)); // which is in a second source of that class
    QVERIFY(keys.contains(u"CPhotoService | No description: %1"_qs));
    QCOMPARE(keysOf(entriesOf(language)), keys);
}

void tst_Texts::translations_keepPlacesAndPatterns_data()
{
    addLanguageRows();
}

void tst_Texts::translations_keepPlacesAndPatterns()
{
    QFETCH(const QString, language);
    qsizetype count = 0;
    for (const CatalogueEntry &entry : entriesOf(language)) {
        QVERIFY2(placesIn(entry.translations.value(0)) == placesIn(entry.source), qPrintable(keyOf(entry)));
        count += placesIn(entry.source).size();
    }
    QVERIFY(count > 0);
}

void tst_Texts::translations_keepTheAccelerator_data()
{
    addLanguageRows();
}

void tst_Texts::translations_keepTheAccelerator()
{
    QFETCH(const QString, language);
    static const QRegularExpression inAWord(u"^[^&]*&\\w[^&]*$"_qs, QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression behind(u"^[^&]+\\(&[A-Z]\\)(\\.\\.\\.)?$"_qs); // a letter that can be typed
    const QRegularExpression &form = language == u"ja" || language == u"zh_CN" ? behind : inAWord;
    qsizetype count = 0;
    for (const CatalogueEntry &entry : entriesOf(language)) {
        const QString translation = entry.translations.value(0);
        const bool hasOne = entry.source.contains(u'&');
        const bool isRight = hasOne ? form.match(translation).hasMatch() : !translation.contains(u'&');
        QVERIFY2(isRight, qPrintable(keyOf(entry)));
        count += hasOne ? 1 : 0;
    }
    QVERIFY(count > 0);
}

void tst_Texts::translations_areWrittenInTheirLanguage_data()
{
    addLanguageRows();
}

void tst_Texts::translations_areWrittenInTheirLanguage()
{
    QFETCH(const QString, language);
    const QStringList common{u"JPEG (*.jpg)"_qs, u"PNG (*.png)"_qs, u"&Support"_qs, u"Sho&p"_qs,
                             u"&Pixels"_qs,      u"Grain"_qs,       u"Film"_qs,     u"Digital"_qs};
    for (const CatalogueEntry &entry : entriesOf(language)) {
        QVERIFY2(common.contains(entry.source) || entry.translations.value(0) != entry.source,
                 qPrintable(keyOf(entry)));
    }
}

void tst_Texts::compiledCatalogue_isUpToDate_data()
{
    addLanguageRows();
}

void tst_Texts::compiledCatalogue_isUpToDate()
{
    QFETCH(const QString, language);
    QTranslator catalogue;
    QVERIFY(catalogue.load(cataloguePath(language, u".qm"_qs)));
    const QList<CatalogueEntry> entries = entriesOf(language);
    for (const CatalogueEntry &entry : entries) {
        QCOMPARE(catalogue.translate(entry.context.toUtf8(), entry.source.toUtf8()), entry.translations.value(0));
    }
    QCOMPARE(textCountOf(catalogue.filePath()), entries.size());
}

QTEST_APPLESS_MAIN(tst_Texts)

#include "tst_Texts.moc"
