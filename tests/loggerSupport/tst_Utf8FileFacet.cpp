// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "loggerSupport/Utf8FileFacet_p.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtTest/QTest>

#include <array>
#include <initializer_list>
#include <string>

using namespace ZYX_zglv6;

namespace {

using Facet = std::codecvt<wchar_t, char, std::mbstate_t>;

constexpr wchar_t firstHalf = 0xD83C; // of U+1F39E
constexpr wchar_t secondHalf = 0xDF9E;
const QByteArray wholePair = "\xF0\x9F\x8E\x9E";
const QByteArray replacement = "\xEF\xBF\xBD";

/*! What a stream does: hands \a pieces over one after the other, in a target of \a room bytes, and closes the file. */
QByteArray written(const QList<std::wstring> &pieces, qsizetype room)
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    std::array<char, 64> target{};
    QByteArray all;
    char *end = nullptr;
    for (const std::wstring &piece : pieces) {
        const wchar_t *from = piece.data();
        const wchar_t *const fromEnd = from + piece.size();
        Facet::result result = Facet::partial;
        while (result == Facet::partial) {
            const wchar_t *const before = from;
            result = facet.out(state, before, fromEnd, from, target.data(), target.data() + room, end);
            if (result == Facet::partial && from == before) {
                return "no progress";
            }
            all.append(target.data(), end - target.data());
        }
        if (result != Facet::ok || from != fromEnd) {
            return "failed";
        }
    }
    if (facet.unshift(state, target.data(), target.data() + room, end) == Facet::ok) {
        all.append(target.data(), end - target.data());
    }
    return all;
}

} // namespace

class tst_Utf8FileFacet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void out_writesUtf8_data();
    void out_writesUtf8();
    void out_intoAShortTarget_isPartialAndGoesOn();
    void out_ofHalfAPair_writesNothingYet();
    void unshift_withHalfAPair_writesTheReplacementOnce();
    void unshift_intoAShortTarget_isPartialAndKeepsTheHalf();
    void unshift_withNothingPending_writesNothing();
    void in_refuses();
    void facet_tellsThatCharactersDifferInLength();
};

void tst_Utf8FileFacet::out_writesUtf8_data()
{
    QTest::addColumn<QList<std::wstring>>("pieces");
    QTest::addColumn<QByteArray>("bytes");

    const auto row = [](const char *name, const QList<std::wstring> &pieces, const QByteArray &bytes) {
        QTest::newRow(name) << pieces << bytes;
    };
    const auto units = [](std::initializer_list<wchar_t> values) { return std::wstring(values); };
    const std::wstring whole = units({firstHalf, secondHalf});
    row("nothing", {L""}, "");
    row("ASCII", {L"a \x7f\n"}, "a \x7f\n");
    row("zero", {std::wstring(1, L'\0')}, QByteArray(1, '\0'));
    row("first of two bytes", {L"\u0080"}, "\xC2\x80");
    row("last of two bytes", {L"\u07ff"}, "\xDF\xBF");
    row("first of three bytes", {L"\u0800"}, "\xE0\xA0\x80");
    row("last before the halves", {L"\ud7ff"}, "\xED\x9F\xBF");
    row("first after the halves", {L"\ue000"}, "\xEE\x80\x80");
    row("last of three bytes", {L"\uffff"}, "\xEF\xBF\xBF");
    row("first of four bytes", {u"\U00010000"_qs.toStdWString()}, "\xF0\x90\x80\x80");
    row("four bytes", {u"\U0001F39E"_qs.toStdWString()}, wholePair);
    row("last of four bytes", {u"\U0010FFFF"_qs.toStdWString()}, "\xF4\x8F\xBF\xBF");
    row("mixed", {u"a\u00e9\u5199\U0001F39Eb"_qs.toStdWString()}, "a\xC3\xA9\xE5\x86\x99" + wholePair + 'b');
    row("two pieces",
        {L"a\u00e9",
         L"\u5199"
         L"b"},
        "a\xC3\xA9\xE5\x86\x99"
        "b");

    row("pair", {whole}, wholePair);
    row("pair cut in two", {L"a" + whole.substr(0, 1), whole.substr(1) + L"b"}, 'a' + wholePair + 'b');
    row("pair with an empty piece in it", {whole.substr(0, 1), L"", whole.substr(1)}, wholePair);
    row("first half alone", {units({firstHalf})}, replacement);
    row("first half before a character", {units({firstHalf, L'a'})}, replacement + 'a');
    row("first half before the cut, then a character", {units({firstHalf}), L"\u5199"}, replacement + "\xE5\x86\x99");
    row("second half alone", {units({secondHalf})}, replacement);
    row("second half before a character", {units({secondHalf, L'a'})}, replacement + 'a');
    row("halves in the wrong order", {units({secondHalf, firstHalf})}, replacement + replacement);
    row("first half before a pair", {units({firstHalf, firstHalf, secondHalf})}, replacement + wholePair);
    row("second half after a pair", {units({firstHalf, secondHalf, secondHalf})}, wholePair + replacement);

    if constexpr (sizeof(wchar_t) == 4) {
        const auto unit = [](unsigned long value) { return std::wstring(1, static_cast<wchar_t>(value)); };
        row("first that is no character", {unit(0x110000) + L'a'}, replacement + 'a');
        row("all bits", {unit(0xFFFFFFFF) + L'a'}, replacement + 'a');
        row("first half before a character of four bytes", {units({firstHalf}), unit(0x1F39E)},
            replacement + wholePair);
    }
}

void tst_Utf8FileFacet::out_writesUtf8()
{
    QFETCH(QList<std::wstring>, pieces);
    QFETCH(QByteArray, bytes);
    QCOMPARE(written(pieces, 64), bytes);
    for (const qsizetype room : {7, 8, 10}) { // the longest piece and little more
        QCOMPARE(written(pieces, room), bytes);
    }
}

void tst_Utf8FileFacet::out_intoAShortTarget_isPartialAndGoesOn()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    const std::wstring text = L"a\u5199";
    const wchar_t *from = nullptr;
    std::array<char, 3> target{};
    char *end = nullptr;

    QCOMPARE(facet.out(state, text.data(), text.data() + 2, from, target.data(), target.data() + 3, end),
             Facet::partial);
    QCOMPARE(from - text.data(), 1);
    QCOMPARE(QByteArray(target.data(), end - target.data()), QByteArray("a"));

    QCOMPARE(facet.out(state, from, text.data() + 2, from, target.data(), target.data() + 2, end), Facet::partial);
    QCOMPARE(from - text.data(), 1);
    QCOMPARE(end - target.data(), 0);

    QCOMPARE(facet.out(state, from, text.data() + 2, from, target.data(), target.data() + 3, end), Facet::ok);
    QCOMPARE(from - text.data(), 2);
    QCOMPARE(QByteArray(target.data(), end - target.data()), QByteArray("\xE5\x86\x99"));
}

void tst_Utf8FileFacet::out_ofHalfAPair_writesNothingYet()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    const std::array<wchar_t, 2> pair{firstHalf, secondHalf};
    const wchar_t *from = nullptr;
    std::array<char, 4> target{};
    char *end = nullptr;

    QCOMPARE(facet.out(state, pair.data(), pair.data() + 1, from, target.data(), target.data() + 4, end), Facet::ok);
    QCOMPARE(from - pair.data(), 1);
    QCOMPARE(end - target.data(), 0);

    // a target too short leaves the first half pending
    QCOMPARE(facet.out(state, from, pair.data() + 2, from, target.data(), target.data() + 3, end), Facet::partial);
    QCOMPARE(from - pair.data(), 1);
    QCOMPARE(end - target.data(), 0);

    QCOMPARE(facet.out(state, from, pair.data() + 2, from, target.data(), target.data() + 4, end), Facet::ok);
    QCOMPARE(QByteArray(target.data(), end - target.data()), wholePair);
}

void tst_Utf8FileFacet::unshift_withHalfAPair_writesTheReplacementOnce()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    const wchar_t half = firstHalf;
    const wchar_t *from = nullptr;
    std::array<char, 3> target{};
    char *end = nullptr;
    QCOMPARE(facet.out(state, &half, &half + 1, from, target.data(), target.data() + 3, end), Facet::ok);

    QCOMPARE(facet.unshift(state, target.data(), target.data() + 3, end), Facet::ok);
    QCOMPARE(QByteArray(target.data(), end - target.data()), replacement);
    QCOMPARE(facet.unshift(state, target.data(), target.data() + 3, end), Facet::noconv);
    QCOMPARE(end - target.data(), 0);
}

void tst_Utf8FileFacet::unshift_intoAShortTarget_isPartialAndKeepsTheHalf()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    const wchar_t half = firstHalf;
    const wchar_t *from = nullptr;
    std::array<char, 3> target{};
    char *end = nullptr;
    QCOMPARE(facet.out(state, &half, &half + 1, from, target.data(), target.data() + 3, end), Facet::ok);

    QCOMPARE(facet.unshift(state, target.data(), target.data() + 2, end), Facet::partial);
    QCOMPARE(end - target.data(), 0);
    QCOMPARE(facet.unshift(state, target.data(), target.data() + 3, end), Facet::ok);
    QCOMPARE(QByteArray(target.data(), end - target.data()), replacement);
}

void tst_Utf8FileFacet::unshift_withNothingPending_writesNothing()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    std::array<char, 3> target{};
    char *end = nullptr;
    QCOMPARE(facet.unshift(state, target.data(), target.data() + 3, end), Facet::noconv);
    QCOMPARE(end - target.data(), 0);
}

void tst_Utf8FileFacet::in_refuses()
{
    const Utf8FileFacet facet;
    std::mbstate_t state{};
    const QByteArray bytes = "text";
    const char *from = nullptr;
    std::array<wchar_t, 8> target{};
    wchar_t *end = nullptr;
    QCOMPARE(facet.in(state, bytes.data(), bytes.data() + bytes.size(), from, target.data(), target.data() + 8, end),
             Facet::error);
    QCOMPARE(from - bytes.data(), 0);
    QCOMPARE(end - target.data(), 0);
}

void tst_Utf8FileFacet::facet_tellsThatCharactersDifferInLength()
{
    const Utf8FileFacet facet;
    QCOMPARE(facet.encoding(), 0);
    QCOMPARE(facet.max_length(), 7); // the replacement of half a pair, and a character
    QVERIFY(!facet.always_noconv());
}

QTEST_APPLESS_MAIN(tst_Utf8FileFacet)

#include "tst_Utf8FileFacet.moc"
