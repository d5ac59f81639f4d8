// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "uiControls/PaintedWidgets.h"

#include "uiControls/IconViewer.h"

#include <QtCore/QMetaProperty>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <memory>

namespace {

/*! Counts how often it is painted. */
class Viewer : public CIconViewer
{
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ++paintings;
        CIconViewer::paintEvent(event);
    }
};

/*! Counts how often its layout is asked to look anew. */
class Window : public QWidget
{
public:
    int layoutRequests = 0;

    bool event(QEvent *event) override
    {
        layoutRequests += event->type() == QEvent::LayoutRequest ? 1 : 0;
        return QWidget::event(event);
    }
};

using Change = std::function<void(CIconViewer &)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_IconViewer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_setsTheDefaults();
    void properties_areInOrder();
    void properties_areReadAndWritten();
    void slots_areInOrder();
    void setPixmap_replacesTheIconAndBack();
    void setPixmap_null_emptiesTheViewer();
    void setPixmap_ofItsOwn_keepsIt();
    void setIcon_null_emptiesTheViewer();
    void files_thatAreRead();
    void files_thatFail_data();
    void files_thatFail();
    void change_asksForPaintingAndLayout_data();
    void change_asksForPaintingAndLayout();
    void setShowDisableState_ofDisabledViewer_paints();
    void accessibility_isAnImageWithItsText();
};

void tst_IconViewer::constructor_setsTheDefaults()
{
    QWidget parent;
    const CIconViewer viewer(&parent);
    QCOMPARE(viewer.parentWidget(), &parent);
    QVERIFY(viewer.isEmpty());
    QVERIFY(viewer.showShadow());
    QVERIFY(viewer.showDisableState());
    QCOMPARE(viewer.aspectRatio(), Qt::KeepAspectRatio);
    QCOMPARE(viewer.mandatoryImageSize(), QSize(-1, -1));
    QVERIFY(viewer.text().isEmpty());
    QVERIFY(!viewer.contentIsExpanded());
    QVERIFY(viewer.icon().isNull());
    QVERIFY(viewer.pixmap().isNull());
    QVERIFY(viewer.outputRect().isNull());
    QCOMPARE(viewer.minimumSizeHint(), QSize(100, 100));
    QVERIFY(!CIconViewer().parentWidget());
}

void tst_IconViewer::properties_areInOrder()
{
    const QMetaObject &meta = CIconViewer::staticMetaObject;
    QStringList names;
    for (int index = meta.propertyOffset(); index < meta.propertyCount(); ++index) {
        names.append(QString::fromLatin1(meta.property(index).name()));
    }
    QCOMPARE(names,
             QStringList({u"pixmap"_qs, u"icon"_qs, u"expandContent"_qs, u"showShadow"_qs, u"showDisableState"_qs,
                          u"aspectRatio"_qs, u"mandatoryImageSize"_qs, u"text"_qs}));
}

void tst_IconViewer::properties_areReadAndWritten()
{
    CIconViewer viewer;
    const QList<std::pair<const char *, QVariant>> values
        = {{"expandContent", true},
           {"showShadow", false},
           {"showDisableState", false},
           {"aspectRatio", QVariant::fromValue(Qt::KeepAspectRatioByExpanding)},
           {"mandatoryImageSize", QSize(7, 9)},
           {"text", u"Grain"_qs}};
    for (const auto &[name, value] : values) {
        QVERIFY2(viewer.property(name) != value, name);
        QVERIFY2(viewer.setProperty(name, value), name);
        QVERIFY2(viewer.property(name) == value, name);
    }
    QVERIFY(viewer.contentIsExpanded());
    QCOMPARE(viewer.aspectRatio(), Qt::KeepAspectRatioByExpanding);
    QCOMPARE(viewer.text(), u"Grain"_qs);

    QVERIFY(viewer.setProperty("pixmap", filled({3, 4})));
    QCOMPARE(viewer.property("pixmap").value<QPixmap>().size(), QSize(3, 4));
    QVERIFY(viewer.setProperty("icon", iconOf({{5, 6}})));
    QVERIFY(viewer.property("pixmap").value<QPixmap>().isNull());
    QCOMPARE(viewer.property("icon").value<QIcon>().availableSizes(), QList<QSize>{QSize(5, 6)});
}

void tst_IconViewer::slots_areInOrder()
{
    const QMetaObject &meta = CIconViewer::staticMetaObject;
    QStringList signatures;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(index).methodSignature()));
    }
    QCOMPARE(signatures,
             QStringList({u"clear()"_qs, u"setShowDisableState(bool)"_qs, u"setShowShadow(bool)"_qs,
                          u"setAspectRatio(Qt::AspectRatioMode)"_qs, u"setIcon(QIcon)"_qs, u"setIcon(QString)"_qs,
                          u"setPixmap(QPixmap)"_qs, u"setPixmap(QString)"_qs, u"setMandatoryImageSize(QSize)"_qs,
                          u"setMandatoryImageSize()"_qs, u"setText(QString)"_qs, u"setText()"_qs,
                          u"setExpandContent(bool)"_qs}));
}

void tst_IconViewer::setPixmap_replacesTheIconAndBack()
{
    CIconViewer viewer;
    viewer.setIcon(iconOf({{8, 8}}));
    QVERIFY(!viewer.icon().isNull());
    QVERIFY(viewer.pixmap().isNull());
    const QPixmap pixmap = filled({4, 4});
    viewer.setPixmap(pixmap);
    QVERIFY(viewer.icon().isNull());
    QCOMPARE(viewer.pixmap().cacheKey(), pixmap.cacheKey());
    viewer.setIcon(iconOf({{8, 8}}));
    QCOMPARE(viewer.sizeHint(), QSize(8, 8));
    viewer.clear();
    QVERIFY(viewer.isEmpty());
    QVERIFY(viewer.icon().isNull());
    viewer.clear();
    QVERIFY(viewer.isEmpty());
}

void tst_IconViewer::setPixmap_null_emptiesTheViewer()
{
    CIconViewer viewer;
    viewer.setPixmap(filled({4, 4}));
    QVERIFY(!viewer.isEmpty());
    viewer.setPixmap(QPixmap());
    QVERIFY(viewer.isEmpty());
    QVERIFY(viewer.pixmap().isNull());
    viewer.setIcon(iconOf({{8, 8}}));
    viewer.setPixmap(QPixmap());
    QVERIFY(viewer.isEmpty());
}

void tst_IconViewer::setPixmap_ofItsOwn_keepsIt()
{
    CIconViewer viewer;
    viewer.setPixmap(filled({4, 4}));
    viewer.setPixmap(viewer.pixmap());
    QCOMPARE(viewer.pixmap().size(), QSize(4, 4));
}

void tst_IconViewer::setIcon_null_emptiesTheViewer()
{
    CIconViewer viewer;
    viewer.setIcon(iconOf({{8, 8}}));
    viewer.setIcon(QIcon());
    QVERIFY(viewer.isEmpty());
    viewer.setPixmap(filled({4, 4}));
    viewer.setIcon(QString()); // no file name: a null icon
    QVERIFY(viewer.isEmpty());
}

void tst_IconViewer::files_thatAreRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"image.png"_qs);
    QVERIFY(filled({12, 10}).save(path));
    CIconViewer viewer;
    viewer.setPixmap(path);
    QCOMPARE(viewer.pixmap().size(), QSize(12, 10));
    viewer.setIcon(path);
    QCOMPARE(viewer.icon().availableSizes(), QList<QSize>{QSize(12, 10)});
    QCOMPARE(viewer.sizeHint(), QSize(12, 10));
}

void tst_IconViewer::files_thatFail_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("missing") << u"none.png"_qs << QByteArray();
    QTest::newRow("no image") << u"text.png"_qs << QByteArray("no image");
    QTest::newRow("cut after its head") << u"cut.png"_qs << QByteArray("\x89PNG\r\n\x1a\n");
}

void tst_IconViewer::files_thatFail()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, content);
    const QTemporaryDir folder;
    if (!content.isEmpty()) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    Viewer viewer;
    viewer.resize(200, 200);
    viewer.setPixmap(filled({4, 4}));
    viewer.setIcon(folder.filePath(name)); // such an icon is not null, but has no size
    QVERIFY(!viewer.isEmpty());
    QVERIFY(viewer.outputRect().isEmpty());
    QCOMPARE(viewer.sizeHint(), QSize(100, 100));
    QVERIFY(inked(rendered(viewer)).isNull());
    viewer.setPixmap(folder.filePath(name));
    QVERIFY(viewer.isEmpty());
    QVERIFY(inked(rendered(viewer)).isNull());
}

void tst_IconViewer::change_asksForPaintingAndLayout_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<bool>("isPainted");
    QTest::addColumn<bool>("isLaidOut");

    const auto row = [](const char *name, const Change &change, bool isPainted, bool isLaidOut) {
        QTest::newRow(name) << change << isPainted << isLaidOut;
    };
    row(
        "pixmap",
        [](CIconViewer &viewer) {
            viewer.setPixmap(filled({60, 60}));
        },
        true, true);
    row(
        "null pixmap", [](CIconViewer &viewer) { viewer.setPixmap(QPixmap()); }, true, true);
    row(
        "icon",
        [](CIconViewer &viewer) {
            viewer.setIcon(iconOf({{60, 60}}));
        },
        true, true);
    row(
        "null icon", [](CIconViewer &viewer) { viewer.setIcon(QIcon()); }, true, true);
    row(
        "clear", [](CIconViewer &viewer) { viewer.clear(); }, false, true); // no painting: so it is
    row(
        "mandatory size",
        [](CIconViewer &viewer) {
            viewer.setMandatoryImageSize({20, 20});
        },
        true, true);
    row(
        "same mandatory size", [](CIconViewer &viewer) { viewer.setMandatoryImageSize(); }, false, false);
    row(
        "ratio", [](CIconViewer &viewer) { viewer.setAspectRatio(Qt::IgnoreAspectRatio); }, true, false);
    row(
        "same ratio", [](CIconViewer &viewer) { viewer.setAspectRatio(Qt::KeepAspectRatio); }, false, false);
    row(
        "expand", [](CIconViewer &viewer) { viewer.setExpandContent(true); }, true, false);
    row(
        "same expand", [](CIconViewer &viewer) { viewer.setExpandContent(false); }, false, false);
    row(
        "text", [](CIconViewer &viewer) { viewer.setText(u"Grain"_qs); }, true, false);
    row(
        "same text", [](CIconViewer &viewer) { viewer.setText(); }, false, false);
    row(
        "disable state", [](CIconViewer &viewer) { viewer.setShowDisableState(false); }, false, false);
    row(
        "same disable state", [](CIconViewer &viewer) { viewer.setShowDisableState(true); }, false, false);
    row(
        "same shadow", [](CIconViewer &viewer) { viewer.setShowShadow(true); }, false, false);
    row(
        "shadow", [](CIconViewer &viewer) { viewer.setShowShadow(false); }, true, false); // with the parent
}

void tst_IconViewer::change_asksForPaintingAndLayout()
{
    QFETCH(const Change, change);
    Window window;
    window.resize(300, 300);
    QVBoxLayout layout(&window);
    Viewer viewer;
    layout.addWidget(&viewer);
    viewer.setPixmap(filled({50, 50}));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(viewer.paintings > 0);
    QTest::qWait(0);
    viewer.paintings = 0;
    window.layoutRequests = 0;

    change(viewer);
    QTest::qWait(0); // all that was asked for has come by now
    QTEST(viewer.paintings > 0, "isPainted");
    QTEST(window.layoutRequests > 0, "isLaidOut");
    viewer.setParent(nullptr);
}

void tst_IconViewer::setShowDisableState_ofDisabledViewer_paints()
{
    Viewer viewer;
    viewer.setPixmap(filled({50, 50}));
    viewer.setEnabled(false);
    viewer.show();
    QVERIFY(QTest::qWaitForWindowExposed(&viewer));
    QTRY_VERIFY(viewer.paintings > 0);
    QTest::qWait(0);
    viewer.paintings = 0;
    viewer.setShowDisableState(true);
    QTest::qWait(0);
    QCOMPARE(viewer.paintings, 0);
    viewer.setShowDisableState(false);
    QTRY_COMPARE(viewer.paintings, 1);
}

void tst_IconViewer::accessibility_isAnImageWithItsText()
{
    Viewer viewer;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&viewer);
    QVERIFY(accessible);
    QCOMPARE(accessible->role(), QAccessible::Graphic);
    QVERIFY(accessible->text(QAccessible::Name).isEmpty());
    viewer.setText(u"No preview"_qs);
    QCOMPARE(accessible->text(QAccessible::Name), u"No preview"_qs);
    viewer.setAccessibleName(u"Preview"_qs);
    QCOMPARE(accessible->text(QAccessible::Name), u"Preview"_qs);
    viewer.setEnabled(false);
    QVERIFY(accessible->state().disabled);
    QWidget other;
    QVERIFY(QAccessible::queryAccessibleInterface(&other)->role() != QAccessible::Graphic);
}

QTEST_MAIN(tst_IconViewer)
#include "tst_IconViewer.moc"
