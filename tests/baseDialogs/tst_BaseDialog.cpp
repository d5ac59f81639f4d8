// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "baseDialogs/BaseDialog.h"

#include "support/VirtualSlot.h"

#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

#include <type_traits>

using namespace ZYX_zglv6;

namespace {

constexpr auto unwantedHints
    = Qt::WindowMinimizeButtonHint | Qt::WindowMaximizeButtonHint | Qt::WindowContextHelpButtonHint;

/*! What subclasses can do. */
class OpenDialog : public CBaseDialog
{
public:
    using CBaseDialog::CBaseDialog;
    using CBaseDialog::firstShow;
};

class ShyDialog : public CBaseDialog
{
public:
    using CBaseDialog::CBaseDialog;

    bool canUseInAATSignalService() const override
    {
        return false;
    }
};

void moveAndShow(QDialog &dialog, QWidget &owner)
{
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.hide();
    owner.move(owner.pos() + QPoint(120, 90));
    QVERIFY(!dialog.testAttribute(Qt::WA_Moved)); // else it would stay in any case
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
}

} // namespace

class tst_BaseDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_withFlags_dropsTheHints_data();
    void constructor_withFlags_dropsTheHints();
    void constructor_withParent_belongsToIt();
    void firstShow_isTrueUntilShown();
    void show_firstTime_isPlacedByQDialog();
    void show_secondTime_isNotPlacedAnew();
    void show_secondTime_keepsMoveAndSize();
    void getObjectName_isTheObjectName();
    void sendNotification_canBeConnected();
    void canUseInAATSignalService_isForSubclassesToSay();
    void virtualOperations_areInTheirSlots();
};

void tst_BaseDialog::constructor_withFlags_dropsTheHints_data()
{
    QTest::addColumn<Qt::WindowFlags>("flags");
    QTest::addColumn<Qt::WindowFlags>("kept");

    QTest::newRow("none") << Qt::WindowFlags() << Qt::WindowFlags(Qt::Dialog);
    QTest::newRow("minimize") << Qt::WindowFlags(Qt::Dialog | Qt::WindowMinimizeButtonHint)
                              << Qt::WindowFlags(Qt::Dialog);
    QTest::newRow("maximize") << Qt::WindowFlags(Qt::Dialog | Qt::WindowMaximizeButtonHint)
                              << Qt::WindowFlags(Qt::Dialog);
    QTest::newRow("context help") << Qt::WindowFlags(Qt::Dialog | Qt::WindowContextHelpButtonHint)
                                  << Qt::WindowFlags(Qt::Dialog);
    QTest::newRow("all, and others that stay")
        << Qt::WindowFlags(Qt::Tool | unwantedHints | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                           | Qt::WindowStaysOnTopHint)
        << Qt::WindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
    QTest::newRow("a plain window, which has them by default")
        << Qt::WindowFlags(Qt::Window) << Qt::WindowFlags(Qt::Window | Qt::WindowCloseButtonHint);
    QTest::newRow("without a frame") << Qt::WindowFlags(Qt::Dialog | Qt::FramelessWindowHint)
                                     << Qt::WindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
}

void tst_BaseDialog::constructor_withFlags_dropsTheHints()
{
    QFETCH(const Qt::WindowFlags, flags);
    QFETCH(const Qt::WindowFlags, kept);

    CBaseDialog dialog(nullptr, flags);
    QCOMPARE(dialog.windowFlags() & unwantedHints, Qt::WindowFlags());
    QCOMPARE(dialog.windowFlags() & kept, kept);
    dialog.show();
    QCOMPARE(dialog.windowFlags() & unwantedHints, Qt::WindowFlags());
    QCOMPARE(dialog.windowFlags() & kept, kept);
}

void tst_BaseDialog::constructor_withParent_belongsToIt()
{
    QWidget owner;
    const CBaseDialog dialog(&owner, Qt::WindowFlags());
    QCOMPARE(dialog.parentWidget(), &owner);
    QVERIFY(dialog.isWindow());
}

void tst_BaseDialog::firstShow_isTrueUntilShown()
{
    OpenDialog dialog(nullptr, Qt::WindowFlags());
    static_assert(std::is_same_v<decltype(dialog.firstShow), bool>);
    QVERIFY(dialog.firstShow);
    dialog.show();
    QVERIFY(!dialog.firstShow);
    dialog.hide();
    QVERIFY(!dialog.firstShow);
}

void tst_BaseDialog::show_firstTime_isPlacedByQDialog()
{
    QWidget owner;
    owner.setGeometry(100, 100, 500, 400);
    owner.show();
    CBaseDialog dialog(&owner, Qt::WindowFlags());
    QDialog plain(&owner, dialog.windowFlags());
    for (QDialog *shown : {static_cast<QDialog *>(&dialog), &plain}) {
        shown->resize(200, 100);
        shown->show();
    }
    QCOMPARE(dialog.pos(), plain.pos());
    QVERIFY(dialog.pos() != QPoint());
}

void tst_BaseDialog::show_secondTime_isNotPlacedAnew()
{
    QWidget owner;
    owner.setGeometry(100, 100, 300, 200);
    owner.show();
    CBaseDialog dialog(&owner, Qt::WindowFlags());
    dialog.resize(200, 100);
    moveAndShow(dialog, owner);
    const QPoint kept = dialog.pos();
    dialog.hide();

    owner.setGeometry(100, 100, 300, 200);
    QDialog plain(&owner, dialog.windowFlags());
    plain.resize(200, 100);
    moveAndShow(plain, owner);
    QCOMPARE(plain.pos() - kept, QPoint(120, 90)); // it follows its owner
}

void tst_BaseDialog::show_secondTime_keepsMoveAndSize()
{
    QWidget owner;
    owner.setGeometry(100, 100, 300, 200);
    owner.show();
    CBaseDialog dialog(&owner, Qt::WindowFlags());
    dialog.show();
    dialog.setGeometry(31, 47, 222, 111);
    dialog.hide();
    dialog.show();
    QCOMPARE(dialog.geometry(), QRect(31, 47, 222, 111));
}

void tst_BaseDialog::getObjectName_isTheObjectName()
{
    CBaseDialog dialog(nullptr, Qt::WindowFlags());
    QCOMPARE(dialog.getObjectName(), QString());
    dialog.setObjectName(u"Entwicklung \u00fc"_qs);
    QString name;
    QVERIFY(QMetaObject::invokeMethod(&dialog, "getObjectName", Q_RETURN_ARG(QString, name)));
    QCOMPARE(name, u"Entwicklung \u00fc"_qs);
}

void tst_BaseDialog::sendNotification_canBeConnected()
{
    CBaseDialog dialog(nullptr, Qt::WindowFlags());
    QPushButton button;
    QVERIFY(connect(&button, SIGNAL(clicked()), &dialog, SLOT(sendNotification())));
    button.click();
    const int index = dialog.metaObject()->indexOfSlot("sendNotification()");
    QVERIFY(index >= 0);
    QCOMPARE(dialog.metaObject()->method(index).access(), QMetaMethod::Public);
    QVERIFY(!dialog.isVisible());
}

void tst_BaseDialog::canUseInAATSignalService_isForSubclassesToSay()
{
    const CBaseDialog dialog(nullptr, Qt::WindowFlags());
    QVERIFY(dialog.canUseInAATSignalService());
    const ShyDialog shy(nullptr, Qt::WindowFlags());
    const CBaseDialog &asBase = shy;
    QVERIFY(!asBase.canUseInAATSignalService());
}

void tst_BaseDialog::virtualOperations_areInTheirSlots()
{
    const auto lastOfQDialog = TestSupport::virtualSlot(&QDialog::reject);
    if (!lastOfQDialog) {
        QSKIP("pointers to members do not tell slots here");
    }
    const auto first = TestSupport::virtualSlot(&CBaseDialog::canUseInAATSignalService);
    QVERIFY(first);
    QCOMPARE(*first, *lastOfQDialog + 1);
}

QTEST_MAIN(tst_BaseDialog)
#include "tst_BaseDialog.moc"
