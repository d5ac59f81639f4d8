// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/Arguments.h"

#include <QtTest/QTest>

#include <limits>
#include <type_traits>
#include <vector>

using ZYX_zglv6::argsToStringList;

static_assert(std::is_same_v<decltype(&argsToStringList), QList<QString> (*)(int, char *const *)>);

class tst_Arguments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void argsToStringList_belowOne_readsNothing_data();
    void argsToStringList_belowOne_readsNothing();
    void argsToStringList_givesOneTextForEach_data();
    void argsToStringList_givesOneTextForEach();
    void argsToStringList_readsAsManyAsTold();
};

namespace {

/*! As main() gets them, but with nothing behind the last. */
QList<QString> toStringList(QByteArrayList arguments)
{
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments) {
        pointers.push_back(argument.data());
    }
    return argsToStringList(int(pointers.size()), pointers.data());
}

} // namespace

void tst_Arguments::argsToStringList_belowOne_readsNothing_data()
{
    QTest::addColumn<int>("count");

    QTest::newRow("none") << 0;
    QTest::newRow("one less") << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min();
}

void tst_Arguments::argsToStringList_belowOne_readsNothing()
{
    QFETCH(const int, count);

    QCOMPARE(argsToStringList(count, nullptr), QList<QString>());
    // In a page that no process has. NOLINTNEXTLINE(performance-no-int-to-ptr)
    auto *const unreadable = reinterpret_cast<char *const *>(quintptr(8));
    QCOMPARE(argsToStringList(count, unreadable), QList<QString>());
}

void tst_Arguments::argsToStringList_givesOneTextForEach_data()
{
    QTest::addColumn<QByteArrayList>("arguments");
    QTest::addColumn<QList<QString>>("expected");

    QTest::newRow("one") << QByteArrayList{"program"} << QList<QString>{u"program"_qs};
    QTest::newRow("in order") << QByteArrayList{"c", "a", "b", "a"}
                              << QList<QString>{u"c"_qs, u"a"_qs, u"b"_qs, u"a"_qs};
    QTest::newRow("empty ones stay") << QByteArrayList{"", "a", ""} << QList<QString>{QString(), u"a"_qs, QString()};
    QTest::newRow("blanks and quotes stay")
        << QByteArrayList{" a b ", "\"c\"", "--d=e f"} << QList<QString>{u" a b "_qs, u"\"c\""_qs, u"--d=e f"_qs};
    QTest::newRow("UTF-8") << QByteArrayList{"\xc3\xa4\xd0\xbf\xe6\x98\xa0\xf0\x9f\x8e\x9e"}
                           << QList<QString>{u"\u00e4\u043f\u6620\U0001f39e"_qs};
    QTest::newRow("no UTF-8") << QByteArrayList{"a\xe4z"} << QList<QString>{u"a\ufffdz"_qs};
    QTest::newRow("long") << QByteArrayList{QByteArray(100'000, 'x')} << QList<QString>{QString(100'000, u'x')};
}

void tst_Arguments::argsToStringList_givesOneTextForEach()
{
    QFETCH(const QByteArrayList, arguments);

    const QList<QString> texts = toStringList(arguments);
    QTEST(texts, "expected");
    QCOMPARE(texts.size(), arguments.size());
    for (qsizetype i = 0; i < texts.size(); ++i) {
        QCOMPARE(texts.at(i), QString::fromUtf8(arguments.at(i).constData())); // what QString makes of const char *
    }
}

void tst_Arguments::argsToStringList_readsAsManyAsTold()
{
    char first[] = "first";
    char *const arguments[] = {first, nullptr};
    QCOMPARE(argsToStringList(1, arguments), QList<QString>{u"first"_qs});
    QCOMPARE(argsToStringList(2, arguments),
             (QList<QString>{u"first"_qs, QString()})); // as QString takes a null pointer
}

QTEST_APPLESS_MAIN(tst_Arguments)

#include "tst_Arguments.moc"
