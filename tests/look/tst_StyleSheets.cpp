// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyleSheetNames.h"
#include "look/StyleSheetParser.h"

#include "utilsDll/frame/QtResources.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>

using namespace StyleSheets;

namespace {

/*! What Qt says while it lives. */
class QtMessages
{
public:
    QtMessages()
        : m_previousHandler(qInstallMessageHandler(&QtMessages::collect))
    {
        collected().clear();
    }

    ~QtMessages()
    {
        qInstallMessageHandler(m_previousHandler);
    }

    QtMessages(const QtMessages &) = delete;
    QtMessages &operator=(const QtMessages &) = delete;

    static QStringList &collected()
    {
        static QStringList texts;
        return texts;
    }

private:
    static void collect(QtMsgType /*type*/, const QMessageLogContext & /*context*/, const QString &text)
    {
        collected().append(text);
    }

    QtMessageHandler m_previousHandler;
};

/*! What Qt says of a sheet when a widget wants to look like it. */
QStringList complaintsOfQt(const QString &text)
{
    const QtMessages messages;
    QLabel widget;
    widget.setStyleSheet(text);
    widget.ensurePolished();
    return QtMessages::collected();
}

void addSheetRows()
{
    QTest::addColumn<QString>("name");

    for (const QString &name : sheetNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

QSet<QString> allMatches(const QString &pattern)
{
    static const QRegularExpression comment(u"/\\*.*?\\*/"_qs, QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpression expression(pattern);
    QSet<QString> found;
    for (const QString &name : sheetNames()) {
        const QString rules = sheetText(name).replace(comment, QString());
        for (auto matches = expression.globalMatch(rules); matches.hasNext();) {
            found.insert(matches.next().captured(1));
        }
    }
    return found;
}

QSet<QString> inSelectors(const QString &pattern)
{
    const QRegularExpression expression(pattern);
    QSet<QString> found;
    for (const QString &name : sheetNames()) {
        for (const Rule &rule : parse(sheetText(name)).rules) {
            for (auto matches = expression.globalMatch(rule.selectors.join(u' ')); matches.hasNext();) {
                found.insert(matches.next().captured(1));
            }
        }
    }
    return found;
}

QSet<QString> asSet(const QStringList &list)
{
    return {list.cbegin(), list.cend()};
}

QStringList sorted(const QSet<QString> &set)
{
    QStringList list(set.cbegin(), set.cend());
    list.sort();
    return list;
}

} // namespace

class tst_StyleSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void sheet_isThere_data();
    void sheet_isThere();
    void sheet_canBeJoined_data();
    void sheet_canBeJoined();
    void sheet_holdsOnlyRulesThatCount_data();
    void sheet_holdsOnlyRulesThatCount();
    void sheet_isTakenByQt_data();
    void sheet_isTakenByQt();
    void allSheets_joined_areTakenByQt();
    void brokenSheet_isFound_data();
    void brokenSheet_isFound();

    void images_areEmbedded();
    void fonts_areTheSevenFamilies();
    void objectNames_areThoseOfTheLists();
    void classes_areThoseOfTheLists();
    void noObjectName_isOfTwoOwners();
};

void tst_StyleSheets::initTestCase()
{
    ZYX_zglv6::initQtResources(); // the linker leaves out a library that nothing is called of
}

void tst_StyleSheets::sheet_isThere_data()
{
    addSheetRows();
}

void tst_StyleSheets::sheet_isThere()
{
    QFETCH(const QString, name);
    QVERIFY(QFile::exists(u":/qss/%1.qss"_qs.arg(name)));
    QCOMPARE(sheetText(name).isEmpty(), name == u"extra-en");
}

void tst_StyleSheets::sheet_canBeJoined_data()
{
    addSheetRows();
}

void tst_StyleSheets::sheet_canBeJoined()
{
    QFETCH(const QString, name);
    const QString text = sheetText(name);
    QVERIFY(text.isEmpty() || text.endsWith(u"}\n"));
    QVERIFY(!text.startsWith(QChar(0xfeff)));
    QVERIFY(!text.contains(u'\r'));
    QCOMPARE(text.count(u"/*"_qs), text.count(u"*/"_qs));
}

void tst_StyleSheets::sheet_holdsOnlyRulesThatCount_data()
{
    addSheetRows();
}

void tst_StyleSheets::sheet_holdsOnlyRulesThatCount()
{
    QFETCH(const QString, name);
    const Sheet sheet = parse(sheetText(name));
    QCOMPARE(sheet.errors, QStringList());
    QCOMPARE(sheet.rules.isEmpty(), name == u"extra-en");
}

void tst_StyleSheets::sheet_isTakenByQt_data()
{
    addSheetRows();
}

void tst_StyleSheets::sheet_isTakenByQt()
{
    QFETCH(const QString, name);
    QCOMPARE(complaintsOfQt(sheetText(name)), QStringList());
}

void tst_StyleSheets::allSheets_joined_areTakenByQt()
{
    QString text;
    for (const QString &name : sheetNames()) {
        text += sheetText(name);
    }
    QCOMPARE(complaintsOfQt(text), QStringList());
    QCOMPARE(parse(text).errors, QStringList());
}

void tst_StyleSheets::brokenSheet_isFound_data()
{
    QTest::addColumn<QString>("broken");
    QTest::addColumn<bool>("byQt");

    QTest::newRow("no colon") << u"QLabel { color red; }"_qs << false;
    QTest::newRow("no selector") << u"{ color: red; }"_qs << true;
    QTest::newRow("stray brace") << u"QLabel { color: red; } }"_qs << true;
    QTest::newRow("colon in a selector") << u"QLabel: { color: red; }"_qs << false;
    QTest::newRow("unknown property") << u"QLabel { colour: red; }"_qs << true;
    QTest::newRow("open comment") << u"QLabel { color: red; } /* and"_qs << false;
    QTest::newRow("comment to the end of the line") << u"// a\nQLabel { color: red; }"_qs << true;
    QTest::newRow("colour of five digits") << u"QLabel { color: #12345; }"_qs << false;
    QTest::newRow("unknown state") << u"QLabel:hovered { color: red; }"_qs << false;
    QTest::newRow("unknown part") << u"QLabel::tabs { color: red; }"_qs << false;
    QTest::newRow("open rule") << u"QLabel { color: red;"_qs << false;
    QTest::newRow("open value") << u"QLabel { color: rgb(1, 2; }"_qs << false;
    QTest::newRow("brackets in a plain address") << u"QLabel { image: url(:/a-(b).png); }"_qs << false;
}

void tst_StyleSheets::brokenSheet_isFound()
{
    QFETCH(const QString, broken);
    QFETCH(const bool, byQt);
    QVERIFY(!parse(broken).errors.isEmpty());
    if (byQt) { // Qt passes over the others without a word
        QVERIFY(!complaintsOfQt(broken).isEmpty());
    }
}

void tst_StyleSheets::images_areEmbedded()
{
    const QStringList paths = sorted(allMatches(u"url\\(\"?(:[^\\s\"]+?)\"?\\)(?=[\\s;])"_qs));
    QVERIFY(paths.size() > 300);
    QStringList missing;
    for (const QString &path : paths) {
        if (!QFile::exists(path)) {
            missing.append(path);
        }
    }
    QCOMPARE(missing, QStringList());
}

void tst_StyleSheets::fonts_areTheSevenFamilies()
{
    QCOMPARE(sorted(allMatches(u"font-family: ([^;]+);"_qs)),
             sorted({u"\"Roboto Light\""_qs, u"\"RobotoRegular\""_qs, u"\"RobotoBold\""_qs, u"\"RobotoMedium\""_qs,
                     u"\"Maven Pro\""_qs, u"\"OpenSansLight\""_qs, u"\"Lucida Sans Unicode\""_qs}));
}

void tst_StyleSheets::objectNames_areThoseOfTheLists()
{
    QCOMPARE(sorted(inSelectors(u"#(\\w+)"_qs)),
             sorted(asSet(ownObjectNames() + hostObjectNames() + objectNamesOfNoWidget())));
}

void tst_StyleSheets::classes_areThoseOfTheLists()
{
    const QSet<QString> classes = inSelectors(u"(?:^|\\s)([A-Z]\\w*)"_qs);
    QSet<QString> ofHosts;
    for (const QString &name : classes) {
        if (!name.startsWith(u'Q')) {
            ofHosts.insert(name);
        }
    }
    QCOMPARE(sorted(ofHosts), sorted(asSet(hostClasses())));
}

void tst_StyleSheets::noObjectName_isOfTwoOwners()
{
    const QStringList all = ownObjectNames() + hostObjectNames() + objectNamesOfNoWidget();
    QCOMPARE(asSet(all).size(), all.size());
}

QTEST_MAIN(tst_StyleSheets)

#include "tst_StyleSheets.moc"
