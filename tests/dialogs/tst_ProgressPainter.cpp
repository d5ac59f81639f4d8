// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/OverlayCalls.h"
#include "support/Sandbox.h"
#include "support/VirtualSlot.h"

#include "utilsDll/dialogs/ProgressPainter.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QTranslator>
#include <QtGui/QAccessible>
#include <QtGui/QFontInfo>
#include <QtTest/QTest>
#include <QtWidgets/QHBoxLayout>

#include <memory>

using namespace ZYX_zglv6;

namespace {

/*! Opens what only subclasses see. */
class Overlay : public BaseProgressPainter
{
public:
    explicit Overlay(QWidget *parent, QWidget *referenceWidget)
        : BaseProgressPainter(parent, referenceWidget, u"overlayLabel"_qs)
    {
    }

    static void compareSlots();
};

void Overlay::compareSlots()
{
    const auto moving = TestSupport::virtualSlot(&Overlay::moveToCenter);
    const auto sizing = TestSupport::virtualSlot(&Overlay::updateSize);
    if (!moving) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QVERIFY(sizing.has_value());
    QCOMPARE(*sizing, *moving + 1);
    QVERIFY(*moving > TestSupport::virtualSlot(&Overlay::showEvent).value());
    QVERIFY(TestSupport::virtualSlot(&Overlay::showEvent).value()
            > TestSupport::virtualSlot(&Overlay::paintEvent).value());
    QVERIFY(TestSupport::virtualSlot(&Overlay::paintEvent).value()
            > TestSupport::virtualSlot(&Overlay::setVisible).value());
}

QLabel *labelOf(const QWidget &overlay)
{
    return qobject_cast<QLabel *>(overlay.layout()->itemAt(0)->widget());
}

} // namespace

class tst_ProgressPainter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaObjects_haveTheirSlots();
    void virtualOperations_standInOrder();
    void construction_ofTheBase();
    void construction_ofAProgressPainter();
    void construction_takesTheSizeOfTheAnimationToo();
    void construction_inAShownWindow_showsNothing();
    void defaultText_isThatOfTheLanguage_data();
    void defaultText_isThatOfTheLanguage();
    void defaultText_isThatOfTheConstruction();
    void setText_fitsTheWidth_data();
    void setText_fitsTheWidth();
    void setText_withoutSheets_fitsTheWidthToo();
    void setText_ofAVisibleOverlay_keepsItsPlace();
    void moveToCenter_places_data();
    void moveToCenter_places();
    void moveToCenter_ofANestedReference();
    void moveToCenter_updatesTheReference();
    void moveToCenter_withoutParent_startsAtZero();
    void show_movesToTheCenter();
    void referenceWidget_thatIsNull_isSurvived();
    void referenceWidget_thatDies_isSurvived();
    void accessibleName_isTheText_data();
    void accessibleName_isTheText();

private:
    TestSupport::Sandbox m_sandbox; // for the sheets ask for the stored language
};

void tst_ProgressPainter::initTestCase()
{
    addApplicationFonts();
}

void tst_ProgressPainter::metaObjects_haveTheirSlots()
{
    const QMetaObject &base = BaseProgressPainter::staticMetaObject;
    QCOMPARE(base.className(), "ZYX_zglv6::BaseProgressPainter");
    QCOMPARE(base.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(base.methodCount() - base.methodOffset(), 2);
    const QMetaMethod setVisible = base.method(base.methodOffset());
    QCOMPARE(setVisible.methodSignature(), QByteArray("setVisible(bool)"));
    QCOMPARE(setVisible.access(), QMetaMethod::Public);
    const QMetaMethod onHideTimer = base.method(base.methodOffset() + 1);
    QCOMPARE(onHideTimer.methodSignature(), QByteArray("onHideTimer()"));
    QCOMPARE(onHideTimer.access(), QMetaMethod::Protected);

    const QMetaObject &meta = ProgressPainter::staticMetaObject;
    QCOMPARE(meta.className(), "ZYX_zglv6::ProgressPainter");
    QCOMPARE(meta.superClass(), &base);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_ProgressPainter::virtualOperations_standInOrder()
{
    Overlay::compareSlots();
}

void tst_ProgressPainter::construction_ofTheBase()
{
    QWidget parent;
    Overlay overlay(&parent, &parent);
    QCOMPARE(overlay.parentWidget(), &parent);
    QCOMPARE(overlay.objectName(), u"processingWidget"_qs);
    QCOMPARE(overlay.focusPolicy(), Qt::NoFocus);
    QCOMPARE(overlay.minimumHeight(), 65);
    QCOMPARE(overlay.height(), 65);
    const QSizePolicy policy = overlay.sizePolicy();
    QCOMPARE(policy, QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
    QCOMPARE(policy.horizontalStretch(), 0);
    QCOMPARE(policy.verticalStretch(), 0);
    QVERIFY(!policy.hasHeightForWidth());
    QVERIFY(qobject_cast<QHBoxLayout *>(overlay.layout()));
    QCOMPARE(overlay.layout()->count(), 1);
    QCOMPARE(labelOf(overlay)->objectName(), u"overlayLabel"_qs);
    QCOMPARE(labelOf(overlay)->text(), u"Processing"_qs);
    QVERIFY(overlay.isHidden());
}

void tst_ProgressPainter::construction_ofAProgressPainter()
{
    QWidget parent;
    ProgressPainter painter(&parent, &parent);
    QCOMPARE(painter.objectName(), u"processingWidget"_qs);
    QCOMPARE(painter.layout()->count(), 2);
    QCOMPARE(labelOf(painter)->objectName(), u"processLabel"_qs);
    QCOMPARE(labelOf(painter)->text(), u"Processing"_qs);
    auto *animation = qobject_cast<AnimatedLabel *>(painter.layout()->itemAt(1)->widget());
    QVERIFY(animation);
    QCOMPARE(animation->objectName(), u"AnimatedLabel"_qs);
    for (int i = 1; i <= 4; ++i) {
        const QPixmap frame(u":/icons/processing/processing%1.png"_qs.arg((i - 1) % 3 + 1));
        QVERIFY(!frame.isNull());
        QCOMPARE(animation->pixmap().toImage(), frame.toImage());
        QVERIFY(QMetaObject::invokeMethod(animation, "changeImage"));
    }
    QVERIFY(painter.isHidden());
}

void tst_ProgressPainter::construction_takesTheSizeOfTheAnimationToo()
{
    QWidget parent;
    parent.setStyleSheet(u"QLabel#AnimatedLabel { padding-top: 100px }"_qs);
    ProgressPainter painter(&parent, &parent);
    QVERIFY(painter.height() >= 132);
    QCOMPARE(painter.height(), painter.sizeHint().height());
}

void tst_ProgressPainter::construction_inAShownWindow_showsNothing()
{
    QWidget parent;
    ProgressPainter painter(&parent, &parent);
    parent.show();
    QVERIFY(!painter.isVisible());
    const ProgressPainter later(&parent, &parent);
    QVERIFY(!later.isVisible());
}

void tst_ProgressPainter::defaultText_isThatOfTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("text");

    QTest::newRow("English") << u"en"_qs << u"Processing"_qs;
    QTest::newRow("German") << u"de"_qs << u"Wird verarbeitet"_qs;
    QTest::newRow("French") << u"fr"_qs << u"Traitement en cours"_qs;
    QTest::newRow("Japanese") << u"ja"_qs << u"\u51e6\u7406\u4e2d"_qs;
    QTest::newRow("Chinese") << u"zh_CN"_qs << u"\u6b63\u5728\u5904\u7406"_qs;
}

void tst_ProgressPainter::defaultText_isThatOfTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, text);
    QTranslator translator;
    QVERIFY(translator.load(u":/translations/zyx_"_qs + language));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QWidget parent;
    setCustomStyleSheet(&parent, QssLoadBaseSheets, QString());
    ProgressPainter painter(&parent, &parent);
    QCOMPARE(labelOf(painter)->text(), text);
    QCOMPARE(painter.width(), labelOf(painter)->fontMetrics().horizontalAdvance(text) + 100);
    QCOMPARE(labelOf(painter)->font().pixelSize(), 14);
    QVERIFY(painter.layout()->minimumSize().width() <= painter.width()); // nothing is cut
}

void tst_ProgressPainter::defaultText_isThatOfTheConstruction()
{
    QWidget parent;
    ProgressPainter painter(&parent, &parent);
    QTranslator translator;
    QVERIFY(translator.load(u":/translations/zyx_de"_qs));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    painter.setText(u"Grain"_qs);
    QCOMPARE(labelOf(painter)->text(), u"Grain"_qs);
    painter.setText(QString());
    QCOMPARE(labelOf(painter)->text(), u"Processing"_qs);
}

void tst_ProgressPainter::setText_fitsTheWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");

    QTest::newRow("empty") << QString() << u"Processing"_qs;
    QTest::newRow("short") << u"i"_qs << u"i"_qs;
    QTest::newRow("a sentence") << u"Developing the film, please wait"_qs << u"Developing the film, please wait"_qs;
    QTest::newRow("Japanese") << u"\u51e6\u7406\u4e2d"_qs << u"\u51e6\u7406\u4e2d"_qs;
    QTest::newRow("10,000 letters") << QString(10'000, u'm') << QString(10'000, u'm');
    QTest::newRow("rich text, with its marks") << u"<b>Grain</b>"_qs << u"<b>Grain</b>"_qs;
    QTest::newRow("two lines") << u"Film\nGrain"_qs << u"Film\nGrain"_qs;
}

void tst_ProgressPainter::setText_fitsTheWidth()
{
    QFETCH(const QString, text);
    QFETCH(const QString, shown);
    QWidget parent;
    setCustomStyleSheet(&parent, QFlags<QssLoadOption>(), QString());
    ProgressPainter painter(&parent, &parent);
    QFont font(u"Roboto Light"_qs);
    font.setPixelSize(14); // of the sheet
    QVERIFY(QFontInfo(font).exactMatch());
    for (const QString &former : {QString(500, u'm'), u"."_qs}) {
        painter.setText(former);
        painter.setText(text);
        QCOMPARE(labelOf(painter)->text(), shown);
        const int width = QFontMetrics(font).horizontalAdvance(shown) + 100;
        QCOMPARE(painter.width(), width);
        QCOMPARE(painter.minimumWidth(), width);
        QCOMPARE(painter.maximumWidth(), width);
        QCOMPARE(painter.height(), 65);
    }
}

void tst_ProgressPainter::setText_withoutSheets_fitsTheWidthToo()
{
    QWidget parent;
    Overlay overlay(&parent, &parent);
    QCOMPARE(overlay.width(), QFontMetrics(parent.font()).horizontalAdvance(u"Processing"_qs) + 100);
    overlay.setText(u"Grain"_qs);
    QCOMPARE(overlay.width(), QFontMetrics(parent.font()).horizontalAdvance(u"Grain"_qs) + 100);
}

void tst_ProgressPainter::setText_ofAVisibleOverlay_keepsItsPlace()
{
    QWidget parent;
    parent.resize(400, 300);
    ProgressPainter painter(&parent, &parent);
    parent.show();
    painter.show();
    const QPoint place = painter.pos();
    painter.setText(u"Developing the film"_qs);
    QCOMPARE(painter.pos(), place); // until the next show
    painter.hide();
    painter.show();
    QCOMPARE(painter.x(), (400 - painter.width()) / 2);
}

void tst_ProgressPainter::moveToCenter_places_data()
{
    QTest::addColumn<QRect>("reference");
    QTest::addColumn<QPoint>("place");

    // an overlay of 160 by 65
    QTest::newRow("all of the parent") << QRect(0, 0, 1000, 800) << QPoint(420, 549); // 3 * 183, not 551
    QTest::newRow("aside") << QRect(100, 50, 1000, 800) << QPoint(520, 599);
    QTest::newRow("half a pixel") << QRect(0, 0, 1001, 803) << QPoint(420, 552);
    QTest::newRow("as large") << QRect(30, 40, 160, 65) << QPoint(30, 40);
    QTest::newRow("a little higher") << QRect(0, 40, 160, 68) << QPoint(0, 40);
    QTest::newRow("higher by four") << QRect(0, 40, 160, 69) << QPoint(0, 43);
    QTest::newRow("narrower by one") << QRect(30, 0, 159, 65) << QPoint(30, 0);
    QTest::newRow("narrower") << QRect(30, 0, 101, 65) << QPoint(1, 0); // -29, not -30
    QTest::newRow("lower by three") << QRect(0, 40, 160, 62) << QPoint(0, 40);
    QTest::newRow("lower") << QRect(0, 40, 160, 58) << QPoint(0, 37); // -3, not -6
    QTest::newRow("no size, beyond the parent") << QRect(-20, -10, 0, 0) << QPoint(-100, -58);
}

void tst_ProgressPainter::moveToCenter_places()
{
    QFETCH(const QRect, reference);
    QWidget parent;
    QWidget preview(&parent);
    preview.setGeometry(reference);
    Overlay overlay(&parent, &preview);
    overlay.setFixedSize(160, 65);
    for (const int y : {0, 500, -500}) { // not used
        overlay.move(-1, -1);
        overlay.moveToCenter(y);
        QTEST(overlay.pos(), "place");
    }
}

void tst_ProgressPainter::moveToCenter_ofANestedReference()
{
    QWidget parent;
    QWidget area(&parent);
    area.setGeometry(10, 20, 700, 700);
    QWidget frame(&area);
    frame.setGeometry(3, 4, 600, 600);
    QWidget preview(&frame);
    preview.setGeometry(100, 200, 360, 265);
    Overlay overlay(&parent, &preview);
    overlay.setFixedSize(160, 65);
    overlay.moveToCenter(0);
    QCOMPARE(overlay.pos(), QPoint(113 + 100, 224 + 150));
}

void tst_ProgressPainter::moveToCenter_updatesTheReference()
{
    QWidget parent;
    parent.resize(400, 300);
    QWidget preview(&parent);
    preview.resize(400, 300);
    Overlay overlay(&parent, &preview);
    overlay.moveToCenter(0);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTest::qWait(0);
    const WidgetEvents events(preview);
    overlay.moveToCenter(0); // nothing moves
    QTRY_COMPARE(events.paintings, 1);
}

void tst_ProgressPainter::moveToCenter_withoutParent_startsAtZero()
{
    QWidget window;
    QWidget preview(&window);
    preview.setGeometry(100, 50, 1000, 800);
    Overlay overlay(nullptr, &preview);
    overlay.setFixedSize(160, 65);
    overlay.moveToCenter(0);
    QCOMPARE(overlay.pos(), QPoint(420, 549));
}

void tst_ProgressPainter::show_movesToTheCenter()
{
    QWidget parent;
    parent.resize(400, 300);
    QWidget preview(&parent);
    preview.setGeometry(40, 20, 300, 200);
    ProgressPainter painter(&parent, &preview);
    parent.show();
    painter.show();
    QCOMPARE(painter.pos(), QPoint(40 + (300 - painter.width()) / 2, 20 + 3 * 33));
    preview.setGeometry(0, 0, 400, 300);
    painter.hide();
    painter.show();
    QCOMPARE(painter.pos(), QPoint((400 - painter.width()) / 2, 3 * 58));
}

void tst_ProgressPainter::referenceWidget_thatIsNull_isSurvived()
{
    QWidget parent;
    ProgressPainter painter(&parent, nullptr);
    painter.move(3, 4);
    parent.show();
    painter.onStartProgress(false);
    QVERIFY(painter.isVisible());
    QCOMPARE(painter.pos(), QPoint(3, 4));
    painter.onStopProgress(false);
    QVERIFY(!painter.isVisible());
}

void tst_ProgressPainter::referenceWidget_thatDies_isSurvived()
{
    QWidget parent;
    parent.resize(400, 300);
    auto preview = std::make_unique<QWidget>(&parent);
    preview->resize(400, 300);
    ProgressPainter painter(&parent, preview.get());
    parent.show();
    painter.onStartProgress(false);
    const QPoint place = painter.pos();
    preview.reset();
    painter.hide();
    painter.onStartProgress(false);
    painter.moveToCenter(0);
    QVERIFY(painter.isVisible());
    QCOMPARE(painter.pos(), place);
}

void tst_ProgressPainter::accessibleName_isTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");

    QTest::newRow("default") << QString() << u"Processing"_qs;
    QTest::newRow("plain") << u"Grain"_qs << u"Grain"_qs;
    QTest::newRow("marks that are none") << u"a < b & c"_qs << u"a < b & c"_qs;
    QTest::newRow("rich") << u"<b>Grain</b> &amp; film"_qs << u"Grain & film"_qs;
}

void tst_ProgressPainter::accessibleName_isTheText()
{
    QFETCH(const QString, text);
    QFETCH(const QString, name);
    QWidget parent;
    ProgressPainter painter(&parent, &parent);
    painter.setText(text);
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&painter);
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Name), name);
    QCOMPARE(accessible->role(), QAccessible::Client);
    QCOMPARE(accessible->child(0)->role(), QAccessible::StaticText);
    QCOMPARE(accessible->child(0)->text(QAccessible::Name), name);
}

QTEST_MAIN(tst_ProgressPainter)
#include "tst_ProgressPainter.moc"
