// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/MessageBoxParts.h"

#include "support/AssertionReports.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtTest/QTest>

using namespace MessageBoxParts;

class tst_MessageBoxScripting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void scriptableObjectName_isThatOfTheInstance();
    void initializeScripting_again_deletesTheFormerInstance();
    void metaObject_hasTheInvokableMethodsInTheirOrder();
    void queues_lieInTheirOrder();
    void setRotateQuestion_appendsTheValue();
    void setYesNoMessage_appendsYesOrNo();
    void setYesNoMessageWithCheckBox_appendsThePair();
    void setSaveDiscardCancelMessage_appendsTheButton_data();
    void setSaveDiscardCancelMessage_appendsTheButton();
    void setSaveDiscardCancelMessage_otherValue_isReported_data();
    void setSaveDiscardCancelMessage_otherValue_isReported();
};

void tst_MessageBoxScripting::init()
{
    CMessageBox::initializeScripting();
}

void tst_MessageBoxScripting::scriptableObjectName_isThatOfTheInstance()
{
    QCOMPARE(CMessageBox::scriptableObjectName(), u"messageBoxes"_qs);
    QCOMPARE(instance()->objectName(), u"messageBoxes"_qs);
    QCOMPARE(instance()->parent(), nullptr);
}

void tst_MessageBoxScripting::initializeScripting_again_deletesTheFormerInstance()
{
    const QPointer<CMessageBox> former = instance();
    former->setRotateQuestion(true);
    CMessageBox::initializeScripting();
    QVERIFY(former.isNull());
    QVERIFY(instance() != nullptr);
    QVERIFY(rotateAnswersOf(*instance()).isEmpty());
}

void tst_MessageBoxScripting::metaObject_hasTheInvokableMethodsInTheirOrder()
{
    const QMetaObject &meta = CMessageBox::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("ZYX_zglv6::CMessageBox"));
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QList<QByteArray> methods;
    for (int index = meta.methodOffset(); index < meta.methodCount(); ++index) {
        QCOMPARE(meta.method(index).methodType(), QMetaMethod::Method);
        QCOMPARE(meta.method(index).access(), QMetaMethod::Public);
        methods.append(meta.method(index).methodSignature());
    }
    QCOMPARE(methods,
             QList<QByteArray>({"setRotateQuestion(bool)", "setYesNoMessage(bool)",
                                "setYesNoMessageWithCheckBox(bool,bool)", "setSaveDiscardCancelMessage(int)"}));
}

void tst_MessageBoxScripting::queues_lieInTheirOrder()
{
    QVERIFY(isInOrder(*instance()));
}

void tst_MessageBoxScripting::setRotateQuestion_appendsTheValue()
{
    for (const bool value : {true, false, true}) {
        QVERIFY(QMetaObject::invokeMethod(instance(), "setRotateQuestion", Q_ARG(bool, value)));
    }
    QCOMPARE(QList<bool>(rotateAnswersOf(*instance())), QList<bool>({true, false, true}));
    QVERIFY(yesNoAnswersOf(*instance()).isEmpty());
}

void tst_MessageBoxScripting::setYesNoMessage_appendsYesOrNo()
{
    for (const bool isYes : {false, true, true}) {
        QVERIFY(QMetaObject::invokeMethod(instance(), "setYesNoMessage", Q_ARG(bool, isYes)));
    }
    QCOMPARE(QList<Button>(yesNoAnswersOf(*instance())),
             QList<Button>({QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes}));
    QVERIFY(checkBoxAnswersOf(*instance()).isEmpty());
    QVERIFY(saveAnswersOf(*instance()).isEmpty());
}

void tst_MessageBoxScripting::setYesNoMessageWithCheckBox_appendsThePair()
{
    using Pair = std::pair<Button, bool>;
    const QList<std::pair<bool, bool>> calls{{true, false}, {false, true}, {true, true}, {false, false}};
    for (const auto &[isYes, isChecked] : calls) {
        QVERIFY(QMetaObject::invokeMethod(instance(), "setYesNoMessageWithCheckBox", Q_ARG(bool, isYes),
                                          Q_ARG(bool, isChecked)));
    }
    QCOMPARE(
        QList<Pair>(checkBoxAnswersOf(*instance())),
        QList<Pair>(
            {{QMessageBox::Yes, false}, {QMessageBox::No, true}, {QMessageBox::Yes, true}, {QMessageBox::No, false}}));
    QVERIFY(yesNoAnswersOf(*instance()).isEmpty());
}

void tst_MessageBoxScripting::setSaveDiscardCancelMessage_appendsTheButton_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("button");

    QTest::newRow("save") << 0 << int(QMessageBox::Save);
    QTest::newRow("discard") << 1 << int(QMessageBox::Discard);
    QTest::newRow("cancel") << 2 << int(QMessageBox::Cancel);
}

void tst_MessageBoxScripting::setSaveDiscardCancelMessage_appendsTheButton()
{
    QFETCH(const int, value);
    QFETCH(const int, button);
    const TestSupport::AssertionReports reports;
    QVERIFY(QMetaObject::invokeMethod(instance(), "setSaveDiscardCancelMessage", Q_ARG(int, value)));
    QCOMPARE(QList<Button>(saveAnswersOf(*instance())), QList<Button>({Button(button)}));
    QVERIFY(reports.texts().isEmpty());
}

void tst_MessageBoxScripting::setSaveDiscardCancelMessage_otherValue_isReported_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("3") << 3 << u": wrong value: 3"_qs;
    QTest::newRow("-1") << -1 << u": wrong value: -1"_qs;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << u": wrong value: 2147483647"_qs;
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << u": wrong value: -2147483648"_qs;
}

void tst_MessageBoxScripting::setSaveDiscardCancelMessage_otherValue_isReported()
{
    QFETCH(const int, value);
    QFETCH(const QString, text);
    instance()->setSaveDiscardCancelMessage(1);
    const TestSupport::AssertionReports reports;
    instance()->setSaveDiscardCancelMessage(value);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY2(reports.texts().constFirst().endsWith(text), qPrintable(reports.texts().constFirst()));
    QCOMPARE(QList<Button>(saveAnswersOf(*instance())), QList<Button>({QMessageBox::Discard}));
}

QTEST_GUILESS_MAIN(tst_MessageBoxScripting)
#include "tst_MessageBoxScripting.moc"
