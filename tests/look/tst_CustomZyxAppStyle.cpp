// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/RecordingStyle.h"
#include "support/FreshProcess.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCommonStyle>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QTreeWidget>

#include <memory>

using namespace ZYX_zglv6;

namespace {

class DerivedTableView : public QTableView
{
    Q_OBJECT
};

class NamelessTableView : public QTableView // has the meta object of QTableView
{
};

/*! 'g' is opaque #808080, ' ' is fully transparent, '?' is anything else. */
QStringList drawing(const QPixmap &pixmap)
{
    QStringList rows;
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            row += pixel == 0xff808080U ? u'g' : qAlpha(pixel) == 0 ? u' ' : u'?';
        }
        rows += row;
    }
    return rows;
}

const QStringList pointsRight{u"gg  gg  "_qs, u" gg  gg "_qs, u"  gg  gg"_qs, u" gg  gg "_qs, u"gg  gg  "_qs};
const QStringList pointsLeft{u"  gg  gg"_qs, u" gg  gg "_qs, u"gg  gg  "_qs, u" gg  gg "_qs, u"  gg  gg"_qs};

QPixmap arrow(const QStyle &style, const QStyleOption *option = nullptr)
{
    return style.standardPixmap(QStyle::SP_ToolBarHorizontalExtensionButton, option);
}

QImage focusRectangle(const QStyle &style)
{
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionFocusRect option;
    option.rect = image.rect().adjusted(2, 2, -2, -2);
    option.state = QStyle::State_Enabled | QStyle::State_KeyboardFocusChange;
    option.backgroundColor = Qt::white;
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter);
    return image;
}

} // namespace

class tst_CustomZyxAppStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_baseIsThePlainCommonStyle();
    void metaObject_hasTwoPrivateSlots_data();
    void metaObject_hasTwoPrivateSlots();

    void drawPrimitive_focusRectangle_isNotDrawn();
    void drawPrimitive_others_areTheBaseStyles_data();
    void drawPrimitive_others_areTheBaseStyles();

    void drawControl_viewItem_isPaintedAsOfAPlainTableView_data();
    void drawControl_viewItem_isPaintedAsOfAPlainTableView();
    void destructor_takesItsViewAlong();
    void drawControl_viewItemOfTableView_keepsTheWidget();
    void drawControl_otherOptions_keepTheWidget();

    void standardPixmap_extension_pointsInTheOptionsDirection_data();
    void standardPixmap_extension_pointsInTheOptionsDirection();
    void standardPixmap_extensionWithoutOption_pointsInTheApplicationsDirection();
    void standardPixmap_mirroredExtension_isOneForAllStyles();
    void standardPixmap_mirroredExtension_outlivesTheStyle();
    void standardPixmap_others_areTheBaseStyles_data();
    void standardPixmap_others_areTheBaseStyles();

    void destructor_installedStyle_leavesWithTheApplication();
    void destructor_installedStyle_canBeReplaced();
};

void tst_CustomZyxAppStyle::constructor_baseIsThePlainCommonStyle()
{
    const CustomZyxAppStyle style;
    QCOMPARE(style.baseStyle()->metaObject(), &QCommonStyle::staticMetaObject);
    QCOMPARE(style.baseStyle()->parent(), static_cast<const QObject *>(&style)); // goes with it
    QCOMPARE(style.baseStyle()->proxy(), static_cast<const QStyle *>(&style));
}

void tst_CustomZyxAppStyle::metaObject_hasTwoPrivateSlots_data()
{
    QTest::addColumn<QByteArray>("signature");

    QTest::newRow("destruction") << QByteArray("onNonShiftedButtonDestroy(QObject*)");
    QTest::newRow("renaming") << QByteArray("onNonShiftedButtonObjectNameChanged(QString)");
}

void tst_CustomZyxAppStyle::metaObject_hasTwoPrivateSlots()
{
    QFETCH(const QByteArray, signature);
    const QMetaObject &metaObject = CustomZyxAppStyle::staticMetaObject;
    const QMetaMethod slot = metaObject.method(metaObject.indexOfMethod(signature.constData()));
    QCOMPARE(slot.methodType(), QMetaMethod::Slot);
    QCOMPARE(slot.access(), QMetaMethod::Private);
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 2);
    QCOMPARE(metaObject.superClass(), &QProxyStyle::staticMetaObject);
}

void tst_CustomZyxAppStyle::drawPrimitive_focusRectangle_isNotDrawn()
{
    QImage untouched(20, 20, QImage::Format_RGB32);
    untouched.fill(Qt::white);
    QVERIFY(focusRectangle(QCommonStyle()) != untouched);
    QCOMPARE(focusRectangle(CustomZyxAppStyle()), untouched);

    const RecordedStyle style;
    const QWidget widget;
    const QStyleOptionFocusRect option;
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &option, nullptr, &widget);
    QCOMPARE(style.takeCalls().size(), 0);
}

void tst_CustomZyxAppStyle::drawPrimitive_others_areTheBaseStyles_data()
{
    QTest::addColumn<int>("element");

    QTest::newRow("frame") << int(QStyle::PE_Frame);
    QTest::newRow("frame of a default button") << int(QStyle::PE_FrameDefaultButton);
    QTest::newRow("panel of a button") << int(QStyle::PE_PanelButtonCommand);
    QTest::newRow("focus in a view") << int(QStyle::PE_PanelItemViewItem);
    QTest::newRow("an element of its own") << int(QStyle::PE_CustomBase);
}

void tst_CustomZyxAppStyle::drawPrimitive_others_areTheBaseStyles()
{
    QFETCH(const int, element);
    const RecordedStyle style;
    const QWidget widget;
    const QStyleOption option;
    QImage image(4, 4, QImage::Format_RGB32);
    QPainter painter(&image);
    style.drawPrimitive(QStyle::PrimitiveElement(element), &option, &painter, &widget);
    QCOMPARE(style.takeCalls(), (QList<Call>{{element, &option, &painter, &widget}}));
}

void tst_CustomZyxAppStyle::drawControl_viewItem_isPaintedAsOfAPlainTableView_data()
{
    QTest::addColumn<std::shared_ptr<QWidget>>("widget");

    QTest::newRow("none") << std::shared_ptr<QWidget>();
    QTest::newRow("list") << std::shared_ptr<QWidget>(new QListView);
    QTest::newRow("tree") << std::shared_ptr<QWidget>(new QTreeView);
    QTest::newRow("derived table") << std::shared_ptr<QWidget>(new DerivedTableView);
    QTest::newRow("table widget") << std::shared_ptr<QWidget>(new QTableWidget);
    QTest::newRow("no view at all") << std::make_shared<QWidget>();
}

void tst_CustomZyxAppStyle::drawControl_viewItem_isPaintedAsOfAPlainTableView()
{
    QFETCH(const std::shared_ptr<QWidget>, widget);
    const RecordedStyle style;
    const QStyleOptionViewItem option;
    QImage image(4, 4, QImage::Format_RGB32);
    QPainter painter(&image);
    style.drawControl(QStyle::CE_ItemViewItem, &option, &painter, widget.get());
    style.drawControl(QStyle::CE_ShapedFrame, &option, &painter, widget.get()); // the option decides, not the element

    const QList<Call> calls = style.takeCalls();
    QCOMPARE(calls.size(), 2);
    const QWidget *view = calls.first().widget;
    QVERIFY(view && view != widget.get());
    QCOMPARE(view->metaObject(), &QTableView::staticMetaObject);
    QVERIFY(!view->parent() && !view->isVisible());
    QCOMPARE(calls,
             (QList<Call>{{QStyle::CE_ItemViewItem, &option, &painter, view},
                          {QStyle::CE_ShapedFrame, &option, &painter, view}}));
}

void tst_CustomZyxAppStyle::destructor_takesItsViewAlong()
{
    auto style = std::make_unique<RecordedStyle>();
    const QStyleOptionViewItem option;
    style->drawControl(QStyle::CE_ItemViewItem, &option, nullptr, nullptr);
    const QPointer<const QWidget> view(style->takeCalls().first().widget);
    QVERIFY(view);
    style.reset();
    QVERIFY(!view);
}

void tst_CustomZyxAppStyle::drawControl_viewItemOfTableView_keepsTheWidget()
{
    const RecordedStyle style;
    const QStyleOptionViewItem option;
    const QTableView table;
    const NamelessTableView nameless;
    style.drawControl(QStyle::CE_ItemViewItem, &option, nullptr, &table);
    style.drawControl(QStyle::CE_ItemViewItem, &option, nullptr, &nameless);
    QCOMPARE(style.takeCalls(),
             (QList<Call>{{QStyle::CE_ItemViewItem, &option, nullptr, &table},
                          {QStyle::CE_ItemViewItem, &option, nullptr, &nameless}}));
}

void tst_CustomZyxAppStyle::drawControl_otherOptions_keepTheWidget()
{
    const RecordedStyle style;
    const QTreeView tree;
    const QStyleOptionButton button;
    style.drawControl(QStyle::CE_ItemViewItem, &button, nullptr, &tree);
    style.drawControl(QStyle::CE_ItemViewItem, &button, nullptr, nullptr);
    style.drawControl(QStyle::CE_ItemViewItem, nullptr, nullptr, &tree);
    style.drawControl(QStyle::CE_ItemViewItem, nullptr, nullptr, nullptr);
    QCOMPARE(style.takeCalls(),
             (QList<Call>{{QStyle::CE_ItemViewItem, &button, nullptr, &tree},
                          {QStyle::CE_ItemViewItem, &button, nullptr, nullptr},
                          {QStyle::CE_ItemViewItem, nullptr, nullptr, &tree},
                          {QStyle::CE_ItemViewItem, nullptr, nullptr, nullptr}}));
}

void tst_CustomZyxAppStyle::standardPixmap_extension_pointsInTheOptionsDirection_data()
{
    QTest::addColumn<Qt::LayoutDirection>("ofTheApplication");
    QTest::addColumn<Qt::LayoutDirection>("ofTheOption");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("both to the right") << Qt::LeftToRight << Qt::LeftToRight << pointsRight;
    QTest::newRow("option to the left") << Qt::LeftToRight << Qt::RightToLeft << pointsLeft;
    QTest::newRow("application to the left") << Qt::RightToLeft << Qt::LeftToRight << pointsRight;
    QTest::newRow("both to the left") << Qt::RightToLeft << Qt::RightToLeft << pointsLeft;
}

void tst_CustomZyxAppStyle::standardPixmap_extension_pointsInTheOptionsDirection()
{
    QFETCH(const Qt::LayoutDirection, ofTheApplication);
    QFETCH(const Qt::LayoutDirection, ofTheOption);
    const auto reset = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    QGuiApplication::setLayoutDirection(ofTheApplication);
    QStyleOption option;
    option.direction = ofTheOption;
    const RecordedStyle style;
    QTEST(drawing(arrow(style, &option)), "expected");
    QCOMPARE(style.takeCalls().size(), 0);
}

void tst_CustomZyxAppStyle::standardPixmap_extensionWithoutOption_pointsInTheApplicationsDirection()
{
    const auto reset = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    const CustomZyxAppStyle style;
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QCOMPARE(drawing(arrow(style)), pointsRight);
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(drawing(arrow(style)), pointsLeft);
}

void tst_CustomZyxAppStyle::standardPixmap_mirroredExtension_isOneForAllStyles()
{
    const CustomZyxAppStyle style;
    const CustomZyxAppStyle other;
    QStyleOption option;
    option.direction = Qt::LeftToRight;
    QCOMPARE(arrow(style, &option).cacheKey(), arrow(style, &option).cacheKey());
    QVERIFY(arrow(style, &option).cacheKey() != arrow(other, &option).cacheKey());
    option.direction = Qt::RightToLeft;
    QCOMPARE(arrow(style, &option).cacheKey(), arrow(other, &option).cacheKey());
}

void tst_CustomZyxAppStyle::standardPixmap_mirroredExtension_outlivesTheStyle()
{
    QStyleOption option;
    option.direction = Qt::RightToLeft;
    auto style = std::make_unique<CustomZyxAppStyle>();
    const qint64 key = arrow(*style, &option).cacheKey();
    style = std::make_unique<CustomZyxAppStyle>();
    const QPixmap pixmap = arrow(*style, &option);
    QCOMPARE(pixmap.cacheKey(), key);
    style.reset();
    QVERIFY(pixmap.toImage().hasAlphaChannel());
    QCOMPARE(drawing(pixmap), pointsLeft);
}

void tst_CustomZyxAppStyle::standardPixmap_others_areTheBaseStyles_data()
{
    QTest::addColumn<int>("standardPixmap");

    QTest::newRow("vertical extension") << int(QStyle::SP_ToolBarVerticalExtensionButton);
    QTest::newRow("close") << int(QStyle::SP_TitleBarCloseButton);
    QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning);
}

void tst_CustomZyxAppStyle::standardPixmap_others_areTheBaseStyles()
{
    QFETCH(const int, standardPixmap);
    const RecordedStyle style;
    const QWidget widget;
    const QStyleOption option;
    QCOMPARE(style.standardPixmap(QStyle::StandardPixmap(standardPixmap), &option, &widget).size(), QSize(3, 2));
    QCOMPARE(style.takeCalls(), (QList<Call>{{standardPixmap, &option, nullptr, &widget}}));
}

void tst_CustomZyxAppStyle::destructor_installedStyle_leavesWithTheApplication()
{
    RUN_IN_FRESH_PROCESS();
    auto *style = new CustomZyxAppStyle;
    QApplication::setStyle(style);
    qApp->setStyleSheet(u"QTreeView { color: red; }"_qs);
    QStyleOption option;
    option.direction = Qt::RightToLeft;
    QCOMPARE(drawing(arrow(*style, &option)), pointsLeft);
    QTreeWidget tree;
    new QTreeWidgetItem(&tree, {u"film"_qs});
    tree.show();
    QVERIFY(QTest::qWaitForWindowExposed(&tree));
}

void tst_CustomZyxAppStyle::destructor_installedStyle_canBeReplaced()
{
    RUN_IN_FRESH_PROCESS();
    const QPointer<QStyle> style = new CustomZyxAppStyle;
    QApplication::setStyle(style);
    QCOMPARE(QApplication::style(), style.data());
    QPushButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QApplication::setStyle(new QCommonStyle);
    QTRY_VERIFY(style.isNull());
}

QTEST_MAIN(tst_CustomZyxAppStyle)
#include "tst_CustomZyxAppStyle.moc"
