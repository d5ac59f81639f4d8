// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/PaintedWidgets.h"

#include "uiControls/VerticalLabel.h"

#include <QtGui/QAccessible>
#include <QtGui/QPainter>
#include <QtTest/QTest>

namespace {

/*! A label of 40 by 200 with letters of 20 pixels. */
class TestLabel : public CVerticalLabel
{
public:
    explicit TestLabel(const QString &text)
        : CVerticalLabel(text, nullptr)
    {
        QFont font;
        font.setPixelSize(20);
        setFont(font);
        QPalette palette;
        palette.setColor(QPalette::WindowText, Qt::white);
        setPalette(palette);
        resize(40, 200);
    }

    int paintings = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paintings;
        CVerticalLabel::paintEvent(event);
    }
};

/*! The text as it stands upright, on a sheet that is then turned by hand. */
QRect turnedInk(const QString &text, const QFont &font, double ratio)
{
    QImage image = sheet({200, 40}, ratio);
    {
        QPainter painter(&image);
        painter.setFont(font);
        painter.setPen(Qt::white);
        painter.drawText(0, 20, text);
    }
    const QRect ink = inked(image);
    return {ink.top(), image.width() - 1 - ink.right(), ink.height(), ink.width()};
}

bool isClose(const QRect &first, const QRect &second)
{
    constexpr int most = 1; // the letters are not hinted alike
    return qAbs(first.left() - second.left()) <= most && qAbs(first.right() - second.right()) <= most
        && qAbs(first.top() - second.top()) <= most && qAbs(first.bottom() - second.bottom()) <= most;
}

} // namespace

class tst_VerticalLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_takesTextAndParent();
    void hints_areSwapped();
    void text_runsFromBottomToTop();
    void margins_moveTheText_data();
    void margins_moveTheText();
    void margins_paintAgain();
    void height_keepsTheTextAtTheLowerEdge();
    void fontInPoints_movesTheTextBeyondTheEdge();
    void label_alignmentFrameAndRichText_doNotApply();
    void emptyText_paintsNothing();
    void disabledLabel_takesThatColour();
    void accessibility_isItsText();
};

void tst_VerticalLabel::constructor_takesTextAndParent()
{
    QWidget parent;
    const CVerticalLabel empty(&parent);
    const CVerticalLabel label(u"Grain"_qs, &parent);
    QCOMPARE(empty.parentWidget(), &parent);
    QVERIFY(empty.text().isEmpty());
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(label.text(), u"Grain"_qs);
}

void tst_VerticalLabel::hints_areSwapped()
{
    for (const QString &text : {QString(), u"Grain"_qs, u"A rather long caption"_qs}) {
        CVerticalLabel label(text, nullptr);
        QLabel plain(text);
        for (QLabel *each : {static_cast<QLabel *>(&label), &plain}) {
            each->setIndent(3);
            each->setMargin(2);
        }
        QCOMPARE(label.sizeHint(), plain.sizeHint().transposed());
        QCOMPARE(label.minimumSizeHint(), plain.minimumSizeHint().transposed());
        label.setLeftMargin(50); // of the painting alone
        QCOMPARE(label.sizeHint(), plain.sizeHint().transposed());
    }
    QVERIFY(CVerticalLabel(u"A rather long caption"_qs, nullptr).sizeHint().height() > 50);
}

void tst_VerticalLabel::text_runsFromBottomToTop()
{
    TestLabel label(u"Lj."_qs);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(label, ratio);
        const QRect expected = turnedInk(label.text(), label.font(), ratio);
        QVERIFY(expected.isValid());
        QVERIFY(isClose(inked(image), expected));
        // the stem of the L, which begins the text, lies at the lower end and reaches from the left to the base line
        const QRect end = inked(image.copy(0, image.height() - int(8 * ratio), image.width(), int(8 * ratio)));
        QVERIFY(end.width() > 12 * ratio);
        QVERIFY(end.right() <= 20 * ratio);
    }
}

void tst_VerticalLabel::margins_moveTheText_data()
{
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("top");

    QTest::newRow("left") << 30 << 0;
    QTest::newRow("top") << 0 << 7;
    QTest::newRow("both") << 12 << 5;
    QTest::newRow("negative top") << 0 << -3;
}

void tst_VerticalLabel::margins_moveTheText()
{
    QFETCH(const int, left);
    QFETCH(const int, top);
    TestLabel label(u"HLH"_qs);
    for (const double ratio : {1.0, 2.0}) {
        label.setLeftMargin(0);
        label.setTopMargin(0);
        const QRect before = inked(rendered(label, ratio));
        QVERIFY(before.isValid());
        label.setLeftMargin(left);
        label.setTopMargin(top);
        QCOMPARE(inked(rendered(label, ratio)), before.translated(int(top * ratio), -int(left * ratio)));
    }
}

void tst_VerticalLabel::margins_paintAgain()
{
    TestLabel label(u"Grain"_qs);
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QTRY_VERIFY(label.paintings > 0);
    QTest::qWait(0);
    label.paintings = 0;
    label.setLeftMargin(5);
    QTRY_COMPARE(label.paintings, 1);
    label.setTopMargin(5);
    QTRY_COMPARE(label.paintings, 2);
}

void tst_VerticalLabel::height_keepsTheTextAtTheLowerEdge()
{
    TestLabel label(u"HLH"_qs);
    const QRect before = inked(rendered(label));
    label.resize(40, 260);
    QCOMPARE(inked(rendered(label)), before.translated(0, 60));
}

void tst_VerticalLabel::fontInPoints_movesTheTextBeyondTheEdge()
{
    TestLabel label(u"HLH"_qs);
    QFont font;
    font.setPointSize(15);
    label.setFont(font);
    QCOMPARE(label.font().pixelSize(), -1);
    QVERIFY(inked(rendered(label)).isNull()); // its base line is at -1
    label.setTopMargin(21); // and now at 20
    QVERIFY(inked(rendered(label)).right() <= 20);
    QVERIFY(inked(rendered(label)).right() >= 18);
}

void tst_VerticalLabel::label_alignmentFrameAndRichText_doNotApply()
{
    TestLabel label(u"<b>H</b>"_qs);
    label.setTextFormat(Qt::PlainText);
    const QImage plain = rendered(label);
    QVERIFY(inked(plain).height() > 60); // all of the eight letters
    label.setTextFormat(Qt::RichText);
    label.setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    label.setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    label.setLineWidth(3);
    label.setMargin(9);
    label.setIndent(9);
    QCOMPARE(rendered(label), plain);
}

void tst_VerticalLabel::emptyText_paintsNothing()
{
    TestLabel label{QString()};
    QVERIFY(inked(rendered(label)).isNull());
    label.setPixmap(filled({20, 20})); // a pixmap is no text
    QVERIFY(inked(rendered(label)).isNull());
}

void tst_VerticalLabel::disabledLabel_takesThatColour()
{
    TestLabel label(u"HHH"_qs);
    QPalette palette = label.palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::red);
    label.setPalette(palette);
    label.setEnabled(false);
    const QImage image = rendered(label);
    const QRect ink = inked(image);
    bool isRed = false;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x) {
            isRed = isRed || image.pixel(x, y) == qRgb(255, 0, 0);
        }
    }
    QVERIFY(isRed);
}

void tst_VerticalLabel::accessibility_isItsText()
{
    TestLabel label(u"Grain"_qs);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&label);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::StaticText);
    QCOMPARE(accessible->text(QAccessible::Name), u"Grain"_qs);
}

QTEST_MAIN(tst_VerticalLabel)
#include "tst_VerticalLabel.moc"
