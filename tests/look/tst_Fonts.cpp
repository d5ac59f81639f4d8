// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QStringDecoder>
#include <QtCore/QtEndian>
#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>
#include <QtGui/QPainterPath>
#include <QtGui/QRawFont>
#include <QtTest/QTest>

namespace {

const QString mavenPro = u":/fonts/MavenPro-Regular.ttf"_qs;
const QString lighter = u":/fonts/MavenProLight-200.otf"_qs;

/*! Entries of a font's name table, as OpenType numbers them. */
enum NameId { Copyright = 0, Family = 1, FullName = 4, PostScriptName = 6, LicenceAddress = 14 };

template <typename Number>
Number number(const QByteArray &data, qsizetype place)
{
    const QByteArray bytes = data.mid(place, sizeof(Number)).leftJustified(sizeof(Number), '\0');
    return qFromBigEndian<Number>(bytes.constData());
}

/*! From the file itself: Windows gives a QRawFont another name. */
QByteArray table(const QString &path, const QByteArray &tag)
{
    constexpr qsizetype headSize = 12;
    constexpr qsizetype entrySize = 16;
    QFile file(path);
    const QByteArray font = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    for (int i = 0; i < number<quint16>(font, 4); ++i) {
        const qsizetype entry = headSize + i * entrySize;
        if (font.mid(entry, tag.size()) == tag) {
            return font.mid(number<quint32>(font, entry + 8), number<quint32>(font, entry + 12));
        }
    }
    return {};
}

/*! The names that Windows reads: those of its platform, in UTF-16. */
QMap<int, QString> names(const QString &path)
{
    constexpr int windows = 3;
    constexpr qsizetype headSize = 6;
    constexpr qsizetype recordSize = 12;
    const QByteArray nameTable = table(path, "name");
    const qsizetype texts = number<quint16>(nameTable, 4);
    QMap<int, QString> result;
    for (int i = 0; i < number<quint16>(nameTable, 2); ++i) {
        const QByteArray record = nameTable.mid(headSize + i * recordSize, recordSize);
        if (number<quint16>(record, 0) == windows) {
            const QByteArray text = nameTable.mid(texts + number<quint16>(record, 10), number<quint16>(record, 8));
            result.insert(number<quint16>(record, 6), QStringDecoder(QStringDecoder::Utf16BE)(text));
        }
    }
    return result;
}

/*! A font as an application has it: gone with this object. */
class ApplicationFont
{
public:
    explicit ApplicationFont(const QString &path)
        : m_id(QFontDatabase::addApplicationFont(path))
    {
    }

    ~ApplicationFont()
    {
        QFontDatabase::removeApplicationFont(m_id);
    }

    ApplicationFont(const ApplicationFont &) = delete;
    ApplicationFont &operator=(const ApplicationFont &) = delete;

    QStringList families() const
    {
        return QFontDatabase::applicationFontFamilies(m_id);
    }

private:
    const int m_id;
};

qreal widthOfStroke(const QString &path)
{
    const QRawFont font(path, 1000);
    return font.pathForGlyph(font.glyphIndexesForString(u"l"_qs).value(0)).boundingRect().width();
}

} // namespace

class tst_Fonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void addApplicationFont_file_isOfOneFamily_data();
    void addApplicationFont_file_isOfOneFamily();
    void bytes_file_arePlainOpenType_data();
    void bytes_file_arePlainOpenType();
    void characters_ofWesternLanguages_areThere_data();
    void characters_ofWesternLanguages_areThere();
    void names_file_belongsToNoOtherFamily_data();
    void names_file_belongsToNoOtherFamily();
    void names_lighterFont_doNotUseTheReservedName();
    void outlines_lighterFont_areThinner();
};

void tst_Fonts::initTestCase()
{
    ZYX_zglv6::initQtResources();
}

void tst_Fonts::addApplicationFont_file_isOfOneFamily_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("family");

    QTest::newRow("Maven Pro") << mavenPro << u"Maven Pro"_qs;
    QTest::newRow("lighter than Maven Pro") << lighter << u"ZL Mvn Light"_qs;
    QTest::newRow("Open Sans, light") << u":/fonts/OpenSans-Light.ttf"_qs << u"OpenSansLight"_qs;
    QTest::newRow("Roboto, bold") << u":/fonts/Roboto-Bold.ttf"_qs << u"RobotoBold"_qs;
    QTest::newRow("Roboto, light") << u":/fonts/Roboto-Light.ttf"_qs << u"Roboto Light"_qs;
    QTest::newRow("Roboto, medium") << u":/fonts/Roboto-Medium.ttf"_qs << u"RobotoMedium"_qs;
    QTest::newRow("Roboto, regular") << u":/fonts/Roboto-Regular.ttf"_qs << u"RobotoRegular"_qs;
}

void tst_Fonts::addApplicationFont_file_isOfOneFamily()
{
    QFETCH(const QString, path);
    QFETCH(const QString, family);
    const ApplicationFont font(path);
    QCOMPARE(font.families(), QStringList{family});
    const QFontInfo info((QFont(family)));
    QCOMPARE(info.family(), family);
    QVERIFY(info.exactMatch());
    QVERIFY(!QFontInfo(QFont(family + u" Missing"_qs)).exactMatch());
}

void tst_Fonts::bytes_file_arePlainOpenType_data()
{
    addApplicationFont_file_isOfOneFamily_data();
}

/*! Packed ones (WOFF2) are fonts on Linux and none on Windows. */
void tst_Fonts::bytes_file_arePlainOpenType()
{
    QFETCH(const QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray mark = path == lighter ? QByteArray("OTTO") : QByteArray("\0\1\0\0", 4);
    QCOMPARE(file.read(4), mark);
}

void tst_Fonts::characters_ofWesternLanguages_areThere_data()
{
    addApplicationFont_file_isOfOneFamily_data();
}

void tst_Fonts::characters_ofWesternLanguages_areThere()
{
    QFETCH(const QString, path);
    const QRawFont font(path, 16);
    QVERIFY(font.isValid());
    for (const QChar character : u"AZaz09.,:;!?&%()ÄÖÜäöüßéèêàçœ«»’–€™©"_qs) {
        QVERIFY2(font.supportsCharacter(character), qPrintable(QString(character)));
    }
}

void tst_Fonts::names_file_belongsToNoOtherFamily_data()
{
    addApplicationFont_file_isOfOneFamily_data();
}

void tst_Fonts::names_file_belongsToNoOtherFamily()
{
    QFETCH(const QString, path);
    const QMap<int, QString> texts = names(path);
    QTEST(texts.value(Family), "family");
    QVERIFY(!texts.value(Copyright).isEmpty());
    QVERIFY(!texts.value(LicenceAddress).isEmpty());
    for (const int otherFamilyName : {16, 17, 18, 21, 22, 25}) {
        QVERIFY2(!texts.contains(otherFamilyName), qPrintable(texts.value(otherFamilyName)));
    }
}

void tst_Fonts::names_lighterFont_doNotUseTheReservedName()
{
    QMap<int, QString> texts = names(lighter);
    QVERIFY(texts.take(Copyright).contains(u"Reserved Font Name \"Maven Pro\""));
    QCOMPARE(texts.value(FullName), u"ZL Mvn Light"_qs);
    QCOMPARE(texts.value(PostScriptName), u"ZLMvn-Light"_qs);
    QCOMPARE(texts.values().filter(u"Maven"_qs, Qt::CaseInsensitive), QStringList());
    const QByteArray outlines = table(lighter, "CFF "); // has names, too
    QVERIFY(outlines.contains("ZLMvn-Light"));
    QVERIFY(!outlines.contains("Maven"));
}

void tst_Fonts::outlines_lighterFont_areThinner()
{
    QVERIFY(widthOfStroke(mavenPro) > 0);
    QVERIFY(widthOfStroke(lighter) > 0);
    QVERIFY(widthOfStroke(lighter) < 0.7 * widthOfStroke(mavenPro));
}

QTEST_MAIN(tst_Fonts)
#include "tst_Fonts.moc"
