// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/frame/QtResources.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QScopeGuard>
#include <QtCore/QSet>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProxyStyle>

#include <optional>
#include <utility>

using namespace ZYX_zglv6;

namespace {

QLabel *iconLabelOf(const QMessageBox &box)
{
    return box.findChild<QLabel *>(u"qt_msgboxex_icon_label"_qs);
}

QLabel *textLabelOf(const QMessageBox &box)
{
    return box.findChild<QLabel *>(u"qt_msgbox_label"_qs);
}

void show(QWidget *parent, const QString &text, bool showIcon = true)
{
    CMessageBox::warning(parent, u"Film"_qs, text, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, showIcon);
}

/*! The file as the renderer draws it into 48 by 48. */
QImage drawnSvg(const QString &path, double pixelRatio)
{
    QImage image(QSize(48, 48) * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(path).render(&painter);
    return image;
}

int largestDifference(const QImage &one, const QImage &other)
{
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
        }
    }
    return largest;
}

/*! Has one standard icon for all. */
class IconStyle : public QProxyStyle
{
public:
    explicit IconStyle(QIcon icon)
        : QProxyStyle(new QCommonStyle) // takes it over
        , m_icon(std::move(icon))
    {
    }

    QIcon standardIcon(StandardPixmap /*pixmap*/, const QStyleOption * /*option*/,
                       const QWidget * /*widget*/) const override
    {
        return m_icon;
    }

private:
    QIcon m_icon;
};

QPixmap redPixmap(const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::red);
    return pixmap;
}

QRect opaqueIn(const QImage &image)
{
    QRect all;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255) {
                all |= QRect(x, y, 1, 1);
            }
        }
    }
    return all;
}

} // namespace

class tst_MessageBoxIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void icon_isDrawnSharp_data();
    void icon_isDrawnSharp();
    void icon_ofAStyle_isCentred_data();
    void icon_ofAStyle_isCentred();
    void noIcon_labelIsHidden();
    void textLabel_isAsHighAsTheIcon();
    void iconLabel_followsTheTextLabel();
    void filteredText_isPaintedAllTheSame();
    void sheetChangedWhileOpen_keepsIconAndLayout();

private:
    /*! Looks at an open box, which is then closed. */
    void look(QWidget *parent, const QString &text, const std::function<void(QMessageBox &)> &check,
              bool showIcon = true);

    TestSupport::Sandbox m_sandbox;
    std::optional<TestSupport::AssertionReports> m_reports; // of a test function
    BoxDriver m_driver;
};

void tst_MessageBoxIcon::initTestCase()
{
    initQtResources();
    QApplication::setStyle(new CustomZyxAppStyle); // the application owns it
}

void tst_MessageBoxIcon::init()
{
    m_reports.emplace();
}

void tst_MessageBoxIcon::cleanup()
{
    QCOMPARE(m_driver.unexpectedCount, 0);
    const QStringList reports = m_reports->texts();
    m_reports.reset();
    QCOMPARE(reports, QStringList());
}

void tst_MessageBoxIcon::look(QWidget *parent, const QString &text, const std::function<void(QMessageBox &)> &check,
                              bool showIcon)
{
    m_driver.lookAtNext(check);
    show(parent, text, showIcon);
}

void tst_MessageBoxIcon::icon_isDrawnSharp_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("scale");

    for (const char *scale : {"1", "2"}) {
        QTest::addRow("critical, ratio %s", scale) << int(QMessageBox::Critical) << u"error"_qs << QByteArray(scale);
        QTest::addRow("information, ratio %s", scale)
            << int(QMessageBox::Information) << u"information"_qs << QByteArray(scale);
        QTest::addRow("question, ratio %s", scale) << int(QMessageBox::Question) << u"warning"_qs << QByteArray(scale);
        QTest::addRow("warning, ratio %s", scale) << int(QMessageBox::Warning) << u"warning"_qs << QByteArray(scale);
    }
}

void tst_MessageBoxIcon::icon_isDrawnSharp()
{
    QFETCH(const int, icon);
    QFETCH(const QString, file);
    QFETCH(const QByteArray, scale);
    const auto restore = qScopeGuard([] { qunsetenv("QT_SCALE_FACTOR"); });
    qputenv("QT_SCALE_FACTOR", scale); // for the other process
    RUN_IN_FRESH_PROCESS();
    const auto operation = icon == QMessageBox::Critical ? &CMessageBox::critical
        : icon == QMessageBox::Information               ? &CMessageBox::information
        : icon == QMessageBox::Question                  ? &CMessageBox::question
                                                         : &CMessageBox::warning;
    QPixmap pixmap;
    QRect place;
    m_driver.onNext([&](QMessageBox &box) {
        pixmap = box.iconPixmap();
        place = iconLabelOf(box)->geometry();
        box.close();
    });
    operation(nullptr, u"Film"_qs, u"Text"_qs, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, true);
    const double ratio = scale.toDouble();
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
    QCOMPARE(pixmap.size(), QSize(48, 48) * ratio);
    QCOMPARE(place.size(), QSize(48, 48));
    QCOMPARE(place.x(), 25);
    const QImage expected = drawnSvg(u":/icons/secondary_windows/%1.svg"_qs.arg(file), ratio);
    const int difference
        = largestDifference(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied), expected);
    QVERIFY2(difference <= 2, qPrintable(QString::number(difference)));
}

void tst_MessageBoxIcon::icon_ofAStyle_isCentred_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place"); // of what is painted

    QTest::newRow("as large") << QSize(48, 48) << QRect(0, 0, 48, 48);
    QTest::newRow("wide") << QSize(96, 48) << QRect(0, 12, 48, 24);
    QTest::newRow("high") << QSize(60, 120) << QRect(12, 0, 24, 48);
    QTest::newRow("small") << QSize(24, 12) << QRect(12, 18, 24, 12); // a bitmap does not grow
    QTest::newRow("none") << QSize() << QRect();
}

void tst_MessageBoxIcon::icon_ofAStyle_isCentred()
{
    QFETCH(const QSize, size);
    QFETCH(const QRect, place);
    QIcon icon;
    if (size.isValid()) {
        icon.addPixmap(redPixmap(size));
    }
    const auto restore = qScopeGuard([] { QApplication::setStyle(new CustomZyxAppStyle); });
    QApplication::setStyle(new IconStyle(icon)); // the application owns it
    QWidget parent; // without a sheet, which would name files
    QPixmap pixmap;
    look(&parent, u"Full."_qs, [&](QMessageBox &box) { pixmap = box.iconPixmap(); });
    QCOMPARE(pixmap.isNull(), icon.isNull());
    QCOMPARE(pixmap.size(), icon.isNull() ? QSize(0, 0) : QSize(48, 48));
    QCOMPARE(opaqueIn(pixmap.toImage()), place);
}

void tst_MessageBoxIcon::noIcon_labelIsHidden()
{
    bool isVisible = true;
    bool isNull = false;
    QSize size;
    look(
        nullptr, u"Full."_qs,
        [&](QMessageBox &box) {
            isVisible = iconLabelOf(box)->isVisible();
            isNull = box.iconPixmap().isNull();
            size = iconLabelOf(box)->maximumSize();
        },
        false);
    QVERIFY(!isVisible);
    QVERIFY(isNull);
    QCOMPARE(size, QSize(48, 48));
}

void tst_MessageBoxIcon::textLabel_isAsHighAsTheIcon()
{
    int smallest = 0;
    QRect icon;
    QRect text;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) {
        smallest = textLabelOf(box)->minimumHeight();
        icon = iconLabelOf(box)->geometry();
        text = textLabelOf(box)->geometry();
    });
    QCOMPARE(smallest, 48);
    int needed = 0;
    look(nullptr, u"One\nTwo\nThree\nFour\nFive\nSix"_qs, [&](QMessageBox &box) {
        smallest = textLabelOf(box)->minimumHeight();
        needed = textLabelOf(box)->minimumSizeHint().height();
    });
    QVERIFY2(smallest > 48 && smallest <= needed, QByteArray::number(smallest)); // as of the font before the sheet's
    QCOMPARE(icon.center().y(), text.center().y()); // one line is level with the icon
}

void tst_MessageBoxIcon::iconLabel_followsTheTextLabel()
{
    QList<int> heights;
    QList<int> others;
    look(nullptr, u"One\nTwo\nThree\nFour\nFive\nSix"_qs, [&](QMessageBox &box) {
        QLabel *text = textLabelOf(box);
        heights.append(iconLabelOf(box)->minimumHeight() - text->height());
        for (const int height : {123, 110, 200}) {
            text->resize(text->width(), height);
            heights.append(iconLabelOf(box)->minimumHeight());
        }
        QWidget grandchild(box.findChild<QDialogButtonBox *>());
        grandchild.installEventFilter(&box);
        QResizeEvent resize(QSize(50, 77), QSize());
        QCoreApplication::sendEvent(&grandchild, &resize);
        others.append(iconLabelOf(box)->minimumHeight());
    });
    QCOMPARE(heights, QList<int>({0, 123, 110, 200}));
    QCOMPARE(others, QList<int>({200}));
}

void tst_MessageBoxIcon::filteredText_isPaintedAllTheSame()
{
    QSet<QRgb> colors;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) {
        const QImage label = textLabelOf(box)->grab().toImage();
        for (int x = 0; x < label.width(); ++x) {
            for (int y = 0; y < label.height(); ++y) {
                colors.insert(label.pixel(x, y));
            }
        }
    });
    QVERIFY2(colors.size() > 2, QByteArray::number(colors.size())); // letters on their ground
}

void tst_MessageBoxIcon::sheetChangedWhileOpen_keepsIconAndLayout()
{
    QSize size;
    QMargins margins;
    QList<int> heights;
    bool isCentered = true;
    look(nullptr, u"Full."_qs, [&](QMessageBox &box) {
        box.setStyleSheet(box.styleSheet() + u"QLabel { color: red; }"_qs);
        size = box.iconPixmap().size();
        const auto *grid = qobject_cast<QGridLayout *>(box.layout());
        margins = grid->contentsMargins();
        heights = {grid->rowMinimumHeight(0), grid->rowMinimumHeight(1)};
        isCentered = box.findChild<QDialogButtonBox *>()->centerButtons();
    });
    QCOMPARE(size, QSize(48, 48));
    QCOMPARE(margins.left(), 25);
    QCOMPARE(margins.bottom(), 10);
    QCOMPARE(heights, (QList<int>{35, 10}));
    QVERIFY(!isCentered);
}

QTEST_MAIN(tst_MessageBoxIcon)
#include "tst_MessageBoxIcon.moc"
