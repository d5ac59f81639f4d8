// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/ButtonImages.h"
#include "uiControls/PaintedWidgets.h"

#include <QtGui/QAction>
#include <QtTest/QTest>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QMenu>
#include <QtWidgets/QStyleOptionToolButton>

namespace {

/*! Remembers what it is asked to draw. */
class BesideStyle : public QCommonStyle
{
public:
    mutable QList<QRect> focusRects;
    mutable QList<QRect> textRects;
    mutable QList<QRect> iconRects;
    mutable QList<QIcon> controlIcons;
    mutable QString text;
    mutable int textFlags = 0;
    mutable int iconFlags = 0;
    mutable bool isTextEnabled = false;
    mutable QPalette::ColorRole textRole = QPalette::NoRole;
    mutable QRgb iconColour = 0;
    QStyle::State moreState = State_None;

    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        switch (metric) {
        case PM_DefaultFrameWidth:
            return 4;
        case PM_MenuButtonIndicator:
            return 12;
        default:
            return QCommonStyle::pixelMetric(metric, option, widget);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        if (element == PE_FrameFocusRect && qstyleoption_cast<const QStyleOptionFocusRect *>(option)) {
            focusRects.append(option->rect);
            return;
        }
        QCommonStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override
    {
        if (const auto *button = qstyleoption_cast<const QStyleOptionToolButton *>(option)) {
            controlIcons.append(button->icon);
        }
        QCommonStyle::drawComplexControl(control, option, painter, widget);
    }

    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &shownText, QPalette::ColorRole role) const override
    {
        textRects.append(rect);
        textFlags = flags;
        isTextEnabled = enabled;
        text = shownText;
        textRole = role;
        QCommonStyle::drawItemText(painter, rect, flags, palette, enabled, shownText, role);
    }

    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment, const QPixmap &pixmap) const override
    {
        iconRects.append(rect);
        iconFlags = alignment;
        iconColour = pixmap.toImage().pixel(1, 1);
        QCommonStyle::drawItemPixmap(painter, rect, alignment, pixmap);
    }
};

/*! A button whose state for the style can be told. */
class BesideButton : public CRetinaToolButton
{
public:
    explicit BesideButton(const ButtonImages &images)
        : CRetinaToolButton(images.normal, images.hover, images.pressed, nullptr)
    {
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setText(u"HH"_qs);
        resize(160, 60);
        setIconSize({30, 30});
    }

    ~BesideButton() override
    {
        setStyle(nullptr);
    }

    BesideStyle style;
    QStyle::State more;

protected:
    void initStyleOption(QStyleOptionToolButton *option) const override
    {
        CRetinaToolButton::initStyleOption(option);
        option->state |= more;
    }
};

constexpr int alignment(Qt::Alignment flags)
{
    return int(flags);
}

} // namespace

class tst_RetinaToolButtonPainting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void normal_isAPlainToolButton();
    void disabled_isPaintedWithTheNormalIcon_data();
    void disabled_isPaintedWithTheNormalIcon();
    void besideIcon_places_data();
    void besideIcon_places();
    void besideIcon_textIsDrawnAsItIs();
    void besideIcon_iconMode_data();
    void besideIcon_iconMode();
    void besideIcon_iconState();
    void besideIcon_pixels_data();
    void besideIcon_pixels();
    void besideIcon_disabled_isTheOrdinaryButton_data();
    void besideIcon_disabled_isTheOrdinaryButton();

private:
    const ButtonImages m_images;
};

void tst_RetinaToolButtonPainting::normal_isAPlainToolButton()
{
    QCommonStyle style;
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    QToolButton plain;
    plain.setIcon(QIcon(m_images.pressed));
    plain.setIconSize({44, 44});
    button.markAsPressed();
    for (QToolButton *each : {static_cast<QToolButton *>(&button), &plain}) {
        each->setStyle(&style);
        each->resize(60, 50);
    }
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(button, ratio);
        QCOMPARE(image, rendered(plain, ratio));
        QCOMPARE(image.pixel(image.rect().center()), pressedColour);
    }
}

void tst_RetinaToolButtonPainting::disabled_isPaintedWithTheNormalIcon_data()
{
    QTest::addColumn<bool>("isActionDisabled");

    QTest::newRow("forced") << false;
    QTest::newRow("disabled action") << true;
}

void tst_RetinaToolButtonPainting::disabled_isPaintedWithTheNormalIcon()
{
    QFETCH(const bool, isActionDisabled);
    BesideStyle style;
    QAction action;
    CRetinaToolButton button(m_images.normal, m_images.hover, m_images.pressed, nullptr);
    button.setStyle(&style);
    button.resize(60, 50);
    button.markAsPressed();
    if (isActionDisabled) {
        action.setEnabled(false);
        button.setDefaultAction(&action); // sets the action's icon, which is none
        QVERIFY(button.icon().isNull());
    } else {
        button.forceDisable(true);
        QCOMPARE(look(button), pressedColour);
    }
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(button, ratio);
        QCOMPARE(image.pixel(image.rect().center()), normalColour);
    }
    QCOMPARE(style.controlIcons.size(), 2);
}

void tst_RetinaToolButtonPainting::besideIcon_places_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<bool>("hasMenuButton");
    QTest::addColumn<QRect>("icon");
    QTest::addColumn<QRect>("text");
    QTest::addColumn<QRect>("focus");

    // the area is (4, 4) to (155, 55); a menu button takes 12 of it, at the right or the left
    QTest::newRow("left to right") << Qt::LeftToRight << false << QRect(0, 0, 30, 52)
                                   << QRect(QPoint(34, 4), QPoint(145, 55)) << QRect(3, 3, 154, 54);
    QTest::newRow("left to right, menu button") << Qt::LeftToRight << true << QRect(0, 0, 30, 52)
                                                << QRect(QPoint(34, 4), QPoint(133, 55)) << QRect(3, 3, 142, 54);
    QTest::newRow("right to left") << Qt::RightToLeft << false << QRect(QPoint(126, 4), QPoint(155, 55))
                                   << QRect(QPoint(4, 4), QPoint(120, 55)) << QRect(3, 3, 154, 54);
    QTest::newRow("right to left, menu button") << Qt::RightToLeft << true << QRect(QPoint(126, 4), QPoint(155, 55))
                                                << QRect(QPoint(16, 4), QPoint(120, 55)) << QRect(3, 3, 142, 54);
}

void tst_RetinaToolButtonPainting::besideIcon_places()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const bool, hasMenuButton);
    QFETCH(const QRect, icon);
    QFETCH(const QRect, text);
    QFETCH(const QRect, focus);
    BesideButton button(m_images);
    QMenu menu;
    button.setStyle(&button.style);
    button.setLayoutDirection(direction);
    if (hasMenuButton) {
        button.setMenu(&menu);
        button.setPopupMode(QToolButton::MenuButtonPopup);
    }
    rendered(button);
    QCOMPARE(button.style.iconRects, QList<QRect>{icon});
    QCOMPARE(button.style.textRects, QList<QRect>{text});
    QVERIFY(button.style.focusRects.isEmpty());
    QVERIFY(button.style.controlIcons.isEmpty()); // no button around them
    QCOMPARE(button.style.textFlags, alignment(Qt::AlignRight | Qt::AlignVCenter));
    QCOMPARE(button.style.iconFlags, alignment(Qt::AlignLeft | Qt::AlignVCenter));
    QCOMPARE(button.style.textRole, QPalette::ButtonText);

    button.more = QStyle::State_HasFocus;
    rendered(button);
    QCOMPARE(button.style.focusRects, QList<QRect>{focus});
}

void tst_RetinaToolButtonPainting::besideIcon_textIsDrawnAsItIs()
{
    BesideButton button(m_images);
    button.setStyle(&button.style);
    button.setText(u"&Film"_qs);
    rendered(button);
    QCOMPARE(button.style.text, u"&Film"_qs); // mnemonics have no meaning here
    QVERIFY(button.style.isTextEnabled);
    button.setEnabled(false);
    rendered(button);
    QVERIFY(!button.style.isTextEnabled);
}

void tst_RetinaToolButtonPainting::besideIcon_iconMode_data()
{
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QStyle::State>("more");
    QTest::addColumn<QRgb>("colour");

    const QRgb normal = 0xff111111;
    const QRgb active = 0xff222222;
    const QRgb disabled = 0xff333333;
    const QStyle::State over = QStyle::State_MouseOver;
    const QStyle::State raised = QStyle::State_AutoRaise;
    QTest::newRow("normal") << true << QStyle::State() << normal;
    QTest::newRow("mouse over") << true << over << normal;
    QTest::newRow("auto raise") << true << raised << normal;
    QTest::newRow("mouse over and auto raise") << true << (over | raised) << active;
    QTest::newRow("disabled") << false << QStyle::State() << disabled;
    QTest::newRow("disabled, mouse over and auto raise") << false << (over | raised) << disabled;
}

void tst_RetinaToolButtonPainting::besideIcon_iconMode()
{
    QFETCH(const bool, isEnabled);
    QFETCH(const QStyle::State, more);
    BesideButton button(m_images);
    button.setStyle(&button.style);
    QIcon icon;
    icon.addPixmap(filled({30, 30}, QColor(0x11, 0x11, 0x11)), QIcon::Normal);
    icon.addPixmap(filled({30, 30}, QColor(0x22, 0x22, 0x22)), QIcon::Active);
    icon.addPixmap(filled({30, 30}, QColor(0x33, 0x33, 0x33)), QIcon::Disabled);
    button.setIcon(icon);
    button.setEnabled(isEnabled);
    button.more = more;
    rendered(button);
    QTEST(button.style.iconColour, "colour");
}

void tst_RetinaToolButtonPainting::besideIcon_iconState()
{
    BesideButton button(m_images);
    button.setStyle(&button.style);
    QIcon icon;
    icon.addPixmap(filled({30, 30}, Qt::red), QIcon::Normal, QIcon::Off);
    icon.addPixmap(filled({30, 30}, Qt::blue), QIcon::Normal, QIcon::On);
    button.setIcon(icon);
    rendered(button);
    QCOMPARE(button.style.iconColour, QColor(Qt::red).rgb());
    button.setCheckable(true);
    button.setChecked(true);
    rendered(button);
    QCOMPARE(button.style.iconColour, QColor(Qt::blue).rgb());
}

void tst_RetinaToolButtonPainting::besideIcon_pixels_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<QRect>("icon");
    QTest::addColumn<int>("textEnd");

    QTest::newRow("left to right") << Qt::LeftToRight << QRect(0, 11, 30, 30) << 146;
    // the text is at its right edge here, too
    QTest::newRow("right to left") << Qt::RightToLeft << QRect(126, 15, 30, 30) << 121;
}

void tst_RetinaToolButtonPainting::besideIcon_pixels()
{
    QFETCH(const Qt::LayoutDirection, direction);
    QFETCH(const QRect, icon);
    QFETCH(const int, textEnd);
    BesideButton button(m_images);
    button.setStyle(&button.style);
    button.setLayoutDirection(direction);
    QPalette palette;
    palette.setColor(QPalette::ButtonText, Qt::white);
    button.setPalette(palette);
    QFont font = button.font();
    font.setPixelSize(24);
    font.setBold(true);
    button.setFont(font);
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = rendered(button, ratio);
        QRect green;
        QRect letters;
        int countOfWhite = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                if (pixel == normalColour) {
                    green |= QRect(x, y, 1, 1);
                } else if (pixel != paper) {
                    letters |= QRect(x, y, 1, 1);
                    countOfWhite += int(pixel == qRgb(255, 255, 255));
                }
            }
        }
        QCOMPARE(green, inPixels(icon, ratio));
        QVERIFY(countOfWhite > 20); // the palette's colour, pure within the strokes
        QVERIFY(letters.right() < textEnd * ratio && letters.right() > (textEnd - 5) * ratio); // at its right edge
    }
}

void tst_RetinaToolButtonPainting::besideIcon_disabled_isTheOrdinaryButton_data()
{
    disabled_isPaintedWithTheNormalIcon_data();
}

void tst_RetinaToolButtonPainting::besideIcon_disabled_isTheOrdinaryButton()
{
    QFETCH(const bool, isActionDisabled);
    QAction action;
    BesideButton button(m_images);
    button.setStyle(&button.style);
    if (isActionDisabled) {
        action.setEnabled(false);
        button.setDefaultAction(&action);
    } else {
        button.markAsPressed();
        button.forceDisable(true);
    }
    rendered(button);
    QCOMPARE(button.style.controlIcons.size(), 1);
    const QImage icon = button.style.controlIcons[0].pixmap(QSize(30, 30)).toImage();
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixel(15, 15), normalColour);
    QVERIFY(!button.style.iconRects.contains(QRect(0, 0, 30, 52))); // of the other way
}

QTEST_MAIN(tst_RetinaToolButtonPainting)
#include "tst_RetinaToolButtonPainting.moc"
