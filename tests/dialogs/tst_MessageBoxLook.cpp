// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/frame/QtResources.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QScopeGuard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

#include <optional>

using namespace ZYX_zglv6;

namespace {

constexpr QRgb stripColour = 0xff1b1b1b;
constexpr QRgb groundColour = 0xff232323;

void show(QWidget *parent, const QString &text, bool showIcon = true)
{
    CMessageBox::warning(parent, u"Film"_qs, text, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, showIcon);
}

} // namespace

class tst_MessageBoxLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void windowFlags_areThoseOfADialog();
    void buttons_haveTheirSize();
    void layout_hasItsDistances_data();
    void layout_hasItsDistances();
    void strip_liesBehindTheButtons_data();
    void strip_liesBehindTheButtons();
    void highlightedButton_isOrange_data();
    void highlightedButton_isOrange();
    void size_fitsTheContent();
    void layoutRequest_adaptsTheMinimum();

private:
    /*! Looks at an open box, which is then closed. */
    void look(QWidget *parent, const QString &text, const std::function<void(QMessageBox &)> &check,
              bool showIcon = true);

    TestSupport::Sandbox m_sandbox;
    std::optional<TestSupport::AssertionReports> m_reports; // of a test function
    BoxDriver m_driver;
};

void tst_MessageBoxLook::initTestCase()
{
    initQtResources();
    addApplicationFonts();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

void tst_MessageBoxLook::init()
{
    m_reports.emplace();
}

void tst_MessageBoxLook::cleanup()
{
    QCOMPARE(m_driver.unexpectedCount, 0);
    const QStringList reports = m_reports->texts();
    m_reports.reset();
    QCOMPARE(reports, QStringList());
}

void tst_MessageBoxLook::look(QWidget *parent, const QString &text, const std::function<void(QMessageBox &)> &check,
                              bool showIcon)
{
    m_driver.lookAtNext(check);
    show(parent, text, showIcon);
}

void tst_MessageBoxLook::windowFlags_areThoseOfADialog()
{
    Qt::WindowFlags flags;
    bool isModal = false;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) {
        flags = box.windowFlags();
        isModal = box.isModal();
    });
    QVERIFY(flags.testFlags(Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint));
    QVERIFY(isModal);
}

void tst_MessageBoxLook::buttons_haveTheirSize()
{
    QList<QSize> smallest;
    QList<QSize> largest;
    QList<QSize> sizes;
    m_driver.onNext([&](QMessageBox &box) {
        for (const QAbstractButton *button : box.buttons()) {
            smallest.append(button->minimumSize());
            largest.append(button->maximumSize());
            sizes.append(button->size());
        }
        box.close();
    });
    CMessageBox::backgroundProcessingCancelMessage(nullptr, u"Film"_qs, u"Quit?"_qs);
    QCOMPARE(smallest, QList<QSize>(2, QSize(90, 29)));
    QCOMPARE(largest, QList<QSize>(2, QSize(QWIDGETSIZE_MAX, 29)));
    QCOMPARE(sizes.at(0).height(), 29);
    QVERIFY(sizes.at(0).width() > 90); // of a long text
}

void tst_MessageBoxLook::layout_hasItsDistances_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("no parent") << false;
    QTest::newRow("parent") << true;
}

void tst_MessageBoxLook::layout_hasItsDistances()
{
    QFETCH(const bool, hasParent);
    QWidget parent;
    QMessageBox plain; // whose top and right margins stay
    const QMargins style = plain.layout()->contentsMargins();
    QMargins margins;
    QList<int> rowHeights;
    int spacing = 0;
    int buttonBoxWidth = 0;
    bool isCentred = true;
    QList<int> gaps;
    look(hasParent ? &parent : nullptr, u"Full."_qs, [&](QMessageBox &box) {
        margins = box.layout()->contentsMargins();
        const auto *grid = qobject_cast<QGridLayout *>(box.layout());
        rowHeights = {grid->rowMinimumHeight(0), grid->rowMinimumHeight(1)};
        const auto *buttonBox = box.findChild<QDialogButtonBox *>();
        spacing = buttonBox->layout()->spacing();
        buttonBoxWidth = buttonBox->minimumWidth();
        isCentred = buttonBox->centerButtons();
        const QPushButton *ok = buttonOf(box, u"OK"_qs);
        const QPushButton *cancel = buttonOf(box, u"Cancel"_qs);
        gaps = {std::max(ok->x(), cancel->x()) - std::min(ok->geometry().right(), cancel->geometry().right()) - 1,
                box.height() - ok->mapTo(&box, QPoint(0, ok->height())).y()};
    });
    QCOMPARE(margins, QMargins(25, style.top(), style.right(), 10));
    QCOMPARE(rowHeights, QList<int>({35, 10}));
    QCOMPARE(spacing, 10);
    QCOMPARE(buttonBoxWidth, 450);
    QVERIFY(!isCentred);
    QCOMPARE(gaps, QList<int>({10, 10})); // between the buttons, and below them
}

void tst_MessageBoxLook::strip_liesBehindTheButtons_data()
{
    QTest::addColumn<QByteArray>("scale");
    QTest::newRow("ratio 1") << QByteArray("1");
    QTest::newRow("ratio 2") << QByteArray("2");
}

void tst_MessageBoxLook::strip_liesBehindTheButtons()
{
    QFETCH(const QByteArray, scale);
    const auto restore = qScopeGuard([] { qunsetenv("QT_SCALE_FACTOR"); });
    qputenv("QT_SCALE_FACTOR", scale); // for the other process
    RUN_IN_FRESH_PROCESS();
    QImage image;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) { image = box.grab().toImage(); });
    const int ratio = scale.toInt();
    QCOMPARE(image.devicePixelRatio(), double(ratio));
    const int top = image.height() - 51 * ratio;
    for (const int x : {0, 2 * ratio, image.width() - 1}) {
        QCOMPARE(QColor(image.pixel(x, top - 1)), QColor(groundColour));
        QCOMPARE(QColor(image.pixel(x, top)), QColor(stripColour));
        QCOMPARE(QColor(image.pixel(x, image.height() - 1)), QColor(stripColour));
    }
}

void tst_MessageBoxLook::highlightedButton_isOrange_data()
{
    QTest::addColumn<bool>("hasParent");
    QTest::newRow("no parent") << false;
    QTest::newRow("parent") << true;
}

void tst_MessageBoxLook::highlightedButton_isOrange()
{
    QFETCH(const bool, hasParent);
    QWidget parent;
    setCustomStyleSheet(&parent, QssLoadBaseSheets, QString());
    QColor highlighted;
    QColor other;
    look(hasParent ? &parent : nullptr, u"Full."_qs, [&](QMessageBox &box) {
        const QImage image = box.grab().toImage();
        const auto colourOf = [&](const QString &text) {
            const QPushButton *button = buttonOf(box, text);
            return QColor(image.pixel(button->mapTo(&box, QPoint(8, button->height() / 2)) * image.devicePixelRatio()));
        };
        highlighted = colourOf(u"Cancel"_qs);
        other = colourOf(u"OK"_qs);
    });
    QVERIFY2(highlighted.red() > 2 * highlighted.green(), qPrintable(highlighted.name()));
    QVERIFY2(other.red() == other.green() && other.green() == other.blue(), qPrintable(other.name()));
}

void tst_MessageBoxLook::size_fitsTheContent()
{
    for (const QString &text : {u"Full."_qs, u"One\nTwo\nThree\nFour\nFive\nSix"_qs, QString()}) {
        QSize smallest;
        QSize size;
        QSize hint;
        bool isUpdating = false;
        look(nullptr, text, [&](QMessageBox &box) {
            smallest = box.minimumSize();
            size = box.size();
            hint = box.minimumSizeHint();
            isUpdating = box.updatesEnabled();
        });
        QCOMPARE(smallest, hint);
        QCOMPARE(size, hint);
        QVERIFY(isUpdating);
    }
}

void tst_MessageBoxLook::layoutRequest_adaptsTheMinimum()
{
    QSize before;
    QSize after;
    QSize hint;
    QSize largestBefore;
    QSize largestAfter;
    bool isHandled = false;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) {
        before = box.minimumSize();
        largestBefore = box.maximumSize();
        box.findChild<QDialogButtonBox *>()->setMinimumWidth(600);
        QEvent request(QEvent::LayoutRequest);
        isHandled = QCoreApplication::sendEvent(&box, &request);
        after = box.minimumSize();
        hint = box.minimumSizeHint();
        largestAfter = box.maximumSize();
    });
    QVERIFY(isHandled);
    QCOMPARE(largestAfter, largestBefore); // which QMessageBox would set
    QCOMPARE(after, hint);
    QCOMPARE(after.width(), before.width() + 150);
}

QTEST_MAIN(tst_MessageBoxLook)
#include "tst_MessageBoxLook.moc"
