// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/StyledWindow.h"
#include "support/Sandbox.h"

#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>

using namespace StyledWidgets;
using namespace ZYX_zglv6;

/*! The class of hosts in whose tool panels the sheets find buttons. */
class CMainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit CMainWindow(QWidget *parent)
        : QWidget(parent)
    {
    }
};

namespace {

QImage paintedButton(QPushButton *button, QStyle::State state)
{
    QImage image(button->size(), QImage::Format_RGB32);
    image.fill(Qt::green);
    QPainter painter(&image);
    QStyleOptionButton option;
    option.initFrom(button);
    option.state = state;
    button->style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, button);
    return image;
}

/*! A button in the crash sender's window; the name sendButton and the property each make it orange. */
QPushButton *newSenderButton(StyledWindow &window, const QString &name, bool isHighlighted)
{
    window.setObjectName(u"CrashSenderMainWindow"_qs);
    auto *button = new QPushButton;
    button->setObjectName(name);
    button->setProperty("highlighted", isHighlighted);
    return window.with(button, QSize(120, 60));
}

} // namespace

class tst_StyledButtons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pushButton_isPaintedByItsState_data();
    void pushButton_isPaintedByItsState();
    void highlightedProperty_setLater_paintsOrangeAfterPolish();
    void previewButton_checked_isPaintedByItsState_data();
    void previewButton_checked_isPaintedByItsState();
    void senderButton_withFocus_hasTheEdgeOfItsState_data();
    void senderButton_withFocus_hasTheEdgeOfItsState();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_StyledButtons::pushButton_isPaintedByItsState_data()
{
    QTest::addColumn<bool>("isHighlighted");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("edge");
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("bottom");

    const QStyle::State enabled = QStyle::State_Enabled | QStyle::State_Raised;
    const QStyle::State under = enabled | QStyle::State_MouseOver;
    const QStyle::State pressed = QStyle::State_Enabled | QStyle::State_MouseOver | QStyle::State_Sunken;
    QTest::newRow("gray") << false << enabled << QColor(0x949494) << QColor(0x616161) << QColor(0x5e5e5e);
    QTest::newRow("gray, mouse over") << false << under << QColor(0xcccccc) << QColor(0x737373) << QColor(0x616161);
    QTest::newRow("gray, pressed") << false << pressed << QColor(0x5e5e5e) << QColor(0x5e5e5e) << QColor(0x616161);
    QTest::newRow("gray, disabled") << false << QStyle::State(QStyle::State_Raised) << QColor(0x4b4b4b)
                                    << QColor(0x2c2c2c) << QColor(0x2c2c2c);
    QTest::newRow("orange") << true << enabled << QColor(0xce7044) << QColor(0xa34012) << QColor(0x8d370f);
    QTest::newRow("orange, mouse over") << true << under << QColor(0xf7a37e) << QColor(0xb35f3a) << QColor(0xa33f12);
    QTest::newRow("orange, pressed") << true << pressed << QColor(0x8d370f) << QColor(0x8d370f) << QColor(0xa34012);
    QTest::newRow("orange, disabled") << true << QStyle::State(QStyle::State_Raised) << QColor(0x4b4b4b)
                                      << QColor(0x2c2c2c) << QColor(0x2c2c2c);
}

void tst_StyledButtons::pushButton_isPaintedByItsState()
{
    QFETCH(const bool, isHighlighted);
    QFETCH(const QStyle::State, state);
    QFETCH(const QColor, edge);
    QFETCH(const QColor, top);
    QFETCH(const QColor, bottom);
    StyledWindow window;
    auto *button = new QPushButton;
    button->setProperty("highlighted", isHighlighted);
    window.with(button, QSize(120, 60));
    const QImage image = paintedButton(button, state);
    QCOMPARE(differenceAt(image, {60, 0}, edge, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {0, 30}, edge, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {60, 2}, top, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {60, 57}, bottom, gradientTolerance), QString());
    QCOMPARE(QColor(image.pixel(0, 0)), QColor(Qt::green)); // outside the round corner
}

void tst_StyledButtons::highlightedProperty_setLater_paintsOrangeAfterPolish()
{
    StyledWindow window;
    auto *button = window.with(new QPushButton, QSize(120, 60));
    QCOMPARE(differenceAt(painted(button), {60, 2}, QColor(0x616161), gradientTolerance), QString());
    button->setProperty("highlighted", true);
    button->style()->unpolish(button);
    button->style()->polish(button);
    QCOMPARE(differenceAt(painted(button), {60, 2}, QColor(0xa34012), gradientTolerance), QString());
}

void tst_StyledButtons::previewButton_checked_isPaintedByItsState_data()
{
    QTest::addColumn<QString>("panelName");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<QColor>("edge");
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("bottom");

    for (const char *tool : {"crop", "vignetting", "horizon"}) {
        const QString name = QString::fromLatin1(tool) + u"ToolPanel";
        QTest::addRow("%s, enabled", tool) << name << true << QColor(0x5e5e5e) << QColor(0x5e5e5e) << QColor(0x616161);
        QTest::addRow("%s, disabled", tool)
            << name << false << QColor(0x4b4b4b) << QColor(0x2c2c2c) << QColor(0x2c2c2c);
    }
}

void tst_StyledButtons::previewButton_checked_isPaintedByItsState()
{
    QFETCH(const QString, panelName);
    QFETCH(const bool, isEnabled);
    QFETCH(const QColor, edge);
    QFETCH(const QColor, top);
    QFETCH(const QColor, bottom);
    StyledWindow window;
    auto *panel = new QWidget(window.with(new CMainWindow(nullptr), QSize(300, 100)));
    panel->setObjectName(panelName);
    auto *button = new QPushButton(panel);
    button->setObjectName(u"previewButton"_qs);
    button->setCheckable(true);
    button->setChecked(true);
    button->setEnabled(isEnabled);
    button->resize(120, 60);
    const QImage image = painted(button);
    QCOMPARE(differenceAt(image, {60, 0}, edge, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {0, 30}, edge, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {60, 2}, top, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {60, 57}, bottom, gradientTolerance), QString());
}

void tst_StyledButtons::senderButton_withFocus_hasTheEdgeOfItsState_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isHighlighted");
    QTest::addColumn<QStyle::State>("state");
    QTest::addColumn<QColor>("edge");

    const QStyle::State focus = QStyle::State_Enabled | QStyle::State_HasFocus;
    const QStyle::State under = focus | QStyle::State_Raised | QStyle::State_MouseOver;
    const QStyle::State pressed = focus | QStyle::State_Sunken | QStyle::State_MouseOver;
    const auto addRows = [&](const char *button, const QString &name, bool isHighlighted, QRgb light, QRgb dark) {
        QTest::addRow("%s", button) << name << isHighlighted << (focus | QStyle::State_Raised) << QColor(light);
        QTest::addRow("%s, mouse over", button) << name << isHighlighted << under << QColor(light);
        QTest::addRow("%s, pressed", button) << name << isHighlighted << pressed << QColor(dark);
    };
    addRows("gray", QString(), false, 0xcccccc, 0x5e5e5e);
    addRows("orange by its name", u"sendButton"_qs, false, 0xf7a37e, 0x8d370f);
    addRows("orange by its property", QString(), true, 0xf7a37e, 0x8d370f);
}

void tst_StyledButtons::senderButton_withFocus_hasTheEdgeOfItsState()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isHighlighted);
    QFETCH(const QStyle::State, state);
    QFETCH(const QColor, edge);
    StyledWindow window(QssLoadCrashSender);
    const QImage image = paintedButton(newSenderButton(window, name, isHighlighted), state);
    QCOMPARE(differenceAt(image, {60, 0}, edge, gradientTolerance), QString());
    QCOMPARE(differenceAt(image, {0, 30}, edge, gradientTolerance), QString());
}

QTEST_MAIN(tst_StyledButtons)

#include "tst_StyledButtons.moc"
