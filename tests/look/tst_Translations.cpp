// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/CatalogueEntries.h"
#include "look/SourceTexts.h"

#include "utilsDll/frame/QtResources.h"

#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTranslator>
#include <QtCore/QtEndian>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <algorithm>

namespace {

constexpr const char *languages[]{"en", "de", "fr", "ja", "zh_CN"};

using Entry = CatalogueEntry;

QList<Entry> entriesOf(const QString &language)
{
    return catalogueEntriesOf(QString::fromUtf8(TRANSLATIONS_FOLDER) + u"/zyx_" + language + u".ts");
}

QString keyOf(const Entry &entry)
{
    return entry.context + u" | "_qs + entry.source + u" | "_qs + entry.comment;
}

QStringList keysOf(const QList<Entry> &entries)
{
    QStringList keys;
    for (const Entry &entry : entries) {
        keys.append(keyOf(entry));
    }
    keys.sort();
    return keys;
}

/*! The places for arguments in \a text, "%1" or "%n", sorted. */
QStringList placesIn(const QString &text)
{
    static const QRegularExpression form(u"%L?(?:[1-9][0-9]?|n)"_qs);
    QStringList places;
    for (const QRegularExpressionMatch &match : form.globalMatch(text)) {
        places.append(match.captured());
    }
    places.sort();
    return places;
}

qsizetype acceleratorsIn(QString text)
{
    return text.remove(u"&&"_qs).count(u'&');
}

/*! Every literal in the sources that is to be translated. */
QList<SourceText> textsInTheSources()
{
    QList<SourceText> texts;
    QDirIterator files(QString::fromUtf8(SOURCES_FOLDER), {u"*.cpp"_qs, u"*.h"_qs}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) {
            texts.append(sourceTextsIn(QString::fromUtf8(file.readAll())));
        }
    }
    return texts;
}

bool isTextOf(const SourceText &text, const Entry &entry)
{
    return entry.source == text.text && (text.context.isEmpty() || entry.context == text.context);
}

/*! The tags of the sections behind the signature of a compiled catalogue; none if they do not fit its length. */
QList<int> sectionsOf(const QString &path)
{
    constexpr qsizetype signatureSize = 16;
    constexpr qsizetype headSize = 5;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    QList<int> tags;
    qsizetype at = signatureSize;
    while (at + headSize <= bytes.size()) {
        tags.append(quint8(bytes[at]));
        at += headSize + qsizetype(qFromBigEndian<quint32>(bytes.constData() + at + 1));
    }
    return at == bytes.size() ? tags : QList<int>();
}

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const char *language : languages) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

void addQtRows()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("cancel");

    QTest::newRow("German") << u":/translations/qt_de.qm"_qs << u"Abbrechen"_qs;
    QTest::newRow("French") << u":/translations/qt_fr.qm"_qs << u"Annuler"_qs;
    QTest::newRow("Japanese") << u":/translations/qt_ja.qm"_qs << u"\u30ad\u30e3\u30f3\u30bb\u30eb"_qs;
    QTest::newRow("Chinese") << u":/translations/qt_zh_CN.qm"_qs << u"\u53d6\u6d88"_qs;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void entries_ofALanguage_areFinished_data();
    void entries_ofALanguage_areFinished();
    void entries_ofALanguage_areThoseOfEnglish_data();
    void entries_ofALanguage_areThoseOfEnglish();
    void entries_ofALanguage_areThereOnce_data();
    void entries_ofALanguage_areThereOnce();
    void translations_ofALanguage_keepThePlaces_data();
    void translations_ofALanguage_keepThePlaces();
    void translations_ofALanguage_keepTheAccelerators_data();
    void translations_ofALanguage_keepTheAccelerators();
    void translations_areWrittenInTheirLanguage_data();
    void translations_areWrittenInTheirLanguage();
    void catalogue_ofALanguage_answersItsEntries_data();
    void catalogue_ofALanguage_answersItsEntries();
    void catalogues_standAlone_data();
    void catalogues_standAlone();

    void texts_ofTheSources_areInTheCatalogues();
    void entries_areTextsOfTheSources();
    void sourceTextsIn_findsLiterals_data();
    void sourceTextsIn_findsLiterals();

    void qtCatalogue_translatesCancel_data();
    void qtCatalogue_translatesCancel();
    void qtCatalogue_translatesAButtonBox_data();
    void qtCatalogue_translatesAButtonBox();
};

void tst_Translations::initTestCase()
{
    ZYX_zglv6::initQtResources(); // there at load already; but a library without a call is not even linked
}

void tst_Translations::entries_ofALanguage_areFinished_data()
{
    addLanguageRows();
}

void tst_Translations::entries_ofALanguage_areFinished()
{
    QFETCH(const QString, language);
    const QList<Entry> entries = entriesOf(language);
    QVERIFY(!entries.isEmpty());
    for (const Entry &entry : entries) {
        QVERIFY2(entry.type.isEmpty(), qPrintable(keyOf(entry))); // "unfinished", "obsolete", "vanished"
        QVERIFY2(!entry.translations.isEmpty(), qPrintable(keyOf(entry)));
        for (const QString &translation : entry.translations) {
            QVERIFY2(!translation.trimmed().isEmpty(), qPrintable(keyOf(entry)));
        }
    }
}

void tst_Translations::entries_ofALanguage_areThoseOfEnglish_data()
{
    addLanguageRows();
}

void tst_Translations::entries_ofALanguage_areThoseOfEnglish()
{
    QFETCH(const QString, language);
    const QStringList keys = keysOf(entriesOf(language));
    QVERIFY(keys.contains(u"CLanguageManager | language name | "_qs));
    QVERIFY(keys.contains(u"CLanguageManager | language number | "_qs));
    QCOMPARE(keys, keysOf(entriesOf(u"en"_qs)));
}

void tst_Translations::entries_ofALanguage_areThereOnce_data()
{
    addLanguageRows();
}

void tst_Translations::entries_ofALanguage_areThereOnce()
{
    QFETCH(const QString, language);
    const QStringList keys = keysOf(entriesOf(language));
    const auto twice = std::adjacent_find(keys.cbegin(), keys.cend());
    QVERIFY2(twice == keys.cend(), twice == keys.cend() ? "" : qPrintable(*twice));
}

void tst_Translations::translations_ofALanguage_keepThePlaces_data()
{
    addLanguageRows();
}

void tst_Translations::translations_ofALanguage_keepThePlaces()
{
    QFETCH(const QString, language);
    int count = 0;
    for (const Entry &entry : entriesOf(language)) {
        const QStringList places = placesIn(entry.source);
        for (const QString &translation : entry.translations) {
            QVERIFY2(placesIn(translation) == places, qPrintable(keyOf(entry)));
        }
        count += int(places.size());
    }
    QVERIFY(count > 0);
}

void tst_Translations::translations_ofALanguage_keepTheAccelerators_data()
{
    addLanguageRows();
}

void tst_Translations::translations_ofALanguage_keepTheAccelerators()
{
    QFETCH(const QString, language);
    for (const Entry &entry : entriesOf(language)) {
        const qsizetype expected = acceleratorsIn(entry.source) > 0 ? 1 : 0;
        for (const QString &translation : entry.translations) {
            QVERIFY2(acceleratorsIn(translation) == expected, qPrintable(keyOf(entry)));
        }
    }
}

void tst_Translations::translations_areWrittenInTheirLanguage_data()
{
    addLanguageRows();
}

void tst_Translations::translations_areWrittenInTheirLanguage()
{
    QFETCH(const QString, language);
    constexpr qsizetype shortest = 20; // units and single words may be the same
    for (const Entry &entry : entriesOf(language)) {
        if (language != u"en" && entry.source.size() >= shortest) {
            QVERIFY2(!entry.translations.contains(entry.source), qPrintable(keyOf(entry)));
        }
    }
}

void tst_Translations::catalogue_ofALanguage_answersItsEntries_data()
{
    addLanguageRows();
}

void tst_Translations::catalogue_ofALanguage_answersItsEntries()
{
    QFETCH(const QString, language);
    QTranslator catalogue;
    QVERIFY(catalogue.load(u":/translations/zyx_"_qs + language + u".qm"));
    for (const Entry &entry : entriesOf(language)) {
        const QString answer = catalogue.translate(entry.context.toUtf8(), entry.source.toUtf8(),
                                                   entry.comment.toUtf8(), entry.isPlural ? 1 : -1);
        QVERIFY2(entry.translations.contains(answer), qPrintable(keyOf(entry)));
    }
}

void tst_Translations::catalogues_standAlone_data()
{
    QTest::addColumn<QString>("path");
    for (const char *language : languages) {
        QTest::addRow("own, %s", language) << u":/translations/zyx_"_qs + QString::fromUtf8(language) + u".qm";
    }
    for (const char *language : {"de", "fr", "ja", "zh_CN"}) {
        QTest::addRow("Qt's, %s", language) << u":/translations/qt_"_qs + QString::fromUtf8(language) + u".qm";
    }
}

void tst_Translations::catalogues_standAlone()
{
    QFETCH(const QString, path);
    constexpr int messages = 0x69;
    constexpr int dependencies = 0x96;
    const QList<int> sections = sectionsOf(path);
    QVERIFY(sections.contains(messages));
    QVERIFY(!sections.contains(dependencies));
}

void tst_Translations::texts_ofTheSources_areInTheCatalogues()
{
    const QList<Entry> entries = entriesOf(u"en"_qs);
    const QList<SourceText> texts = textsInTheSources();
    QVERIFY(texts.contains({u"QObject"_qs, u"Error"_qs}));
    for (const SourceText &text : texts) {
        const bool isThere = std::any_of(entries.cbegin(), entries.cend(),
                                         [&text](const Entry &entry) { return isTextOf(text, entry); });
        QVERIFY2(isThere, qPrintable(text.context + u" | "_qs + text.text));
    }
}

void tst_Translations::entries_areTextsOfTheSources()
{
    const QList<SourceText> texts = textsInTheSources();
    for (const Entry &entry : entriesOf(u"en"_qs)) {
        const bool isThere = std::any_of(texts.cbegin(), texts.cend(),
                                         [&entry](const SourceText &text) { return isTextOf(text, entry); });
        QVERIFY2(isThere, qPrintable(keyOf(entry)));
    }
}

void tst_Translations::sourceTextsIn_findsLiterals_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("texts"); // context and text in turn

    const auto add = [](const char *tag, const char *code, const QStringList &texts) {
        QTest::newRow(tag) << QString::fromUtf8(code) << texts;
    };
    add("tr of a class", R"(a = QObject::tr("Error");)", {u"QObject"_qs, u"Error"_qs});
    add("bare tr", R"(a = tr("Error").arg(1);)", {u""_qs, u"Error"_qs});
    add("tr with a comment for translators", R"(A::tr("one", "two"))", {u"A"_qs, u"one"_qs});
    add("joined literals", "A::tr(\"one \"\n   \"two\")", {u"A"_qs, u"one two"_qs});
    add("escapes", R"(A::tr("a \"b\"\n\\"))", {u"A"_qs, u"a \"b\"\n\\"_qs});
    add("translate", R"(QCoreApplication::translate("A", "one"))", {u"A"_qs, u"one"_qs});
    add("marked", R"(QT_TRANSLATE_NOOP("A", "one") QT_TR_NOOP("two"))", {u"A"_qs, u"one"_qs, u""_qs, u"two"_qs});
    add("commented out", "// tr(\"one\")\n/* tr(\"two\")\n tr(\"three\") */ tr(\"four\")", {u""_qs, u"four"_qs});
    add("comment between", "A::tr( // \"no\"\n \"one\")", {u"A"_qs, u"one"_qs});
    add("no comment in a literal", R"(A::tr("http://a") A::tr("b"))", {u"A"_qs, u"http://a"_qs, u"A"_qs, u"b"_qs});
    add("a quote as a character", R"(c == '"'; A::tr("one"))", {u"A"_qs, u"one"_qs});
    add("other names", R"(attr("a") painter.translate(1, 2) toAttr("b"))", {});
    add("no literal", "tr(text) translate(a, b)", {});
}

void tst_Translations::sourceTextsIn_findsLiterals()
{
    QFETCH(const QString, code);
    QFETCH(const QStringList, texts);
    QStringList found;
    for (const SourceText &text : sourceTextsIn(code)) {
        found << text.context << text.text;
    }
    QCOMPARE(found, texts);
}

void tst_Translations::qtCatalogue_translatesCancel_data()
{
    addQtRows();
}

void tst_Translations::qtCatalogue_translatesCancel()
{
    QFETCH(const QString, path);
    QFETCH(const QString, cancel);
    QTranslator catalogue;
    QVERIFY(catalogue.load(path));
    QCOMPARE(catalogue.translate("QPlatformTheme", "Cancel"), cancel);
    QCOMPARE(catalogue.translate("CLanguageManager", "language name"), QString()); // so it is no language to choose
}

void tst_Translations::qtCatalogue_translatesAButtonBox_data()
{
    addQtRows();
}

void tst_Translations::qtCatalogue_translatesAButtonBox()
{
    QFETCH(const QString, path);
    QFETCH(const QString, cancel);
    QTranslator catalogue;
    QVERIFY(catalogue.load(path));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));
    const QDialogButtonBox box(QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text(), cancel);
}

QTEST_MAIN(tst_Translations)

#include "tst_Translations.moc"
