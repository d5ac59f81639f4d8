// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"
#include "dialogs/MessageBoxParts.h"

#include "support/AssertionReports.h"
#include "support/Sandbox.h"
#include "utilsDll/look/SharedUtils.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

#include <optional>

using namespace MessageBoxParts;

namespace {

using Operation = Button (*)(QWidget *, const QString &, const QString &, QFlags<Button>, Button, bool);

} // namespace

Q_DECLARE_METATYPE(Operation)
Q_DECLARE_METATYPE(QFlags<Button>)

/*! The plain boxes. */
class tst_MessageBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void operation_showsItsIconIfItShall_data();
    void operation_showsItsIconIfItShall();
    void critical_withOkAlone_showsCloseAndAnswersNoButton_data();
    void critical_withOkAlone_showsCloseAndAnswersNoButton();
    void okAlone_otherwise_isAStandardButton_data();
    void okAlone_otherwise_isAStandardButton();
    void buttons_lastOneIsHighlighted_data();
    void buttons_lastOneIsHighlighted();
    void click_answersTheButton_data();
    void click_answersTheButton();
    void closing_answersTheEscape_data();
    void closing_answersTheEscape();
    void enter_pressesTheDefaultButton_data();
    void enter_pressesTheDefaultButton();
    void letter_pressesTheButtonOfThatKey();
    void tabAndSpace_pressTheNextButton();
    void parent_isThatOfTheBox();
    void noParent_boxHasASheetOfItsOwn();
    void text_isShownAsGiven_data();
    void text_isShownAsGiven();
    void noButtons_boxIsShownAndRejected();
    void parentDestroyedWhileOpen_answersAsClosed_data();
    void parentDestroyedWhileOpen_answersAsClosed();
    void accessibility_namesTheBoxAndItsButtons();
    void messageHelper_showsIconAndButtons();

private:
    TestSupport::Sandbox m_sandbox;
    std::optional<TestSupport::AssertionReports> m_reports; // of a test function
    BoxDriver m_driver;
};

void tst_MessageBox::init()
{
    m_reports.emplace();
}

void tst_MessageBox::cleanup()
{
    QCOMPARE(m_driver.unexpectedCount, 0);
    const QStringList reports = m_reports->texts();
    m_reports.reset();
    QCOMPARE(reports, QStringList());
    QVERIFY(visibleBoxes().isEmpty());
}

void tst_MessageBox::operation_showsItsIconIfItShall_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<bool>("showIcon");
    QTest::addColumn<int>("icon");

    QTest::newRow("critical") << &CMessageBox::critical << true << int(QMessageBox::Critical);
    QTest::newRow("information") << &CMessageBox::information << true << int(QMessageBox::Information);
    QTest::newRow("question") << &CMessageBox::question << true << int(QMessageBox::Question);
    QTest::newRow("warning") << &CMessageBox::warning << true << int(QMessageBox::Warning);
    QTest::newRow("critical, none") << &CMessageBox::critical << false << int(QMessageBox::NoIcon);
    QTest::newRow("information, none") << &CMessageBox::information << false << int(QMessageBox::NoIcon);
    QTest::newRow("question, none") << &CMessageBox::question << false << int(QMessageBox::NoIcon);
    QTest::newRow("warning, none") << &CMessageBox::warning << false << int(QMessageBox::NoIcon);
}

void tst_MessageBox::operation_showsItsIconIfItShall()
{
    QFETCH(const Operation, operation);
    QFETCH(const bool, showIcon);
    QFETCH(const int, icon);
    m_driver.clickNext(u"No"_qs);
    const Button answer = operation(nullptr, u"Film"_qs, u"More grain?"_qs, QMessageBox::Yes | QMessageBox::No,
                                    QMessageBox::Yes, showIcon);
    QCOMPARE(answer, QMessageBox::No);
    QCOMPARE(int(m_driver.facts.icon), icon);
    QCOMPARE(m_driver.facts.hasIconPixmap, showIcon);
    QCOMPARE(m_driver.facts.title, u"Film"_qs);
    QCOMPARE(m_driver.facts.text, u"More grain?"_qs);
    QCOMPARE(m_driver.facts.name, QString());
    QCOMPARE(m_driver.facts.defaultButton, u"Yes"_qs);
}

void tst_MessageBox::critical_withOkAlone_showsCloseAndAnswersNoButton_data()
{
    QTest::addColumn<int>("key"); // 0 clicks the button

    QTest::newRow("mouse") << 0;
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void tst_MessageBox::critical_withOkAlone_showsCloseAndAnswersNoButton()
{
    QFETCH(const int, key);
    if (key == 0) {
        m_driver.clickNext(u"Close"_qs);
    } else {
        m_driver.pressKeyOnNext(Qt::Key(key));
    }
    const Button answer
        = CMessageBox::critical(nullptr, u"Film"_qs, u"No file."_qs, QMessageBox::Ok, QMessageBox::Ok, true);
    QCOMPARE(answer, QMessageBox::NoButton);
    QCOMPARE(m_driver.facts.buttons, QStringList({u"Close"_qs}));
    QCOMPARE(m_driver.facts.roles, QList<QMessageBox::ButtonRole>({QMessageBox::AcceptRole}));
    QVERIFY(m_driver.facts.highlighted.isEmpty());
    QCOMPARE(m_driver.facts.icon, QMessageBox::Critical);
}

void tst_MessageBox::okAlone_otherwise_isAStandardButton_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<bool>("showIcon");

    QTest::newRow("critical without its icon") << &CMessageBox::critical << false;
    QTest::newRow("information") << &CMessageBox::information << true;
    QTest::newRow("question") << &CMessageBox::question << true;
    QTest::newRow("warning") << &CMessageBox::warning << true;
}

void tst_MessageBox::okAlone_otherwise_isAStandardButton()
{
    QFETCH(const Operation, operation);
    QFETCH(const bool, showIcon);
    m_driver.clickNext(u"OK"_qs);
    QCOMPARE(operation(nullptr, u"Film"_qs, u"Done."_qs, QMessageBox::Ok, QMessageBox::Ok, showIcon), QMessageBox::Ok);
    QCOMPARE(m_driver.facts.buttons, QStringList({u"OK"_qs}));
    QCOMPARE(m_driver.facts.highlighted, QStringList({u"OK"_qs}));
}

void tst_MessageBox::buttons_lastOneIsHighlighted_data()
{
    QTest::addColumn<QFlags<Button>>("buttons");
    QTest::addColumn<QStringList>("fromTheRight");
    QTest::addColumn<QString>("highlighted");

    using Box = QMessageBox;
    QTest::newRow("OK, Cancel") << (Box::Ok | Box::Cancel) << QStringList({u"OK"_qs, u"Cancel"_qs}) << u"Cancel"_qs;
    QTest::newRow("Cancel alone") << QFlags<Button>(Box::Cancel) << QStringList({u"Cancel"_qs}) << u"Cancel"_qs;
    QTest::newRow("Yes, No") << (Box::Yes | Box::No) << QStringList({u"Yes"_qs, u"No"_qs}) << u"No"_qs;
    QTest::newRow("Yes, No, Cancel") << (Box::Yes | Box::No | Box::Cancel)
                                     << QStringList({u"Yes"_qs, u"No"_qs, u"Cancel"_qs}) << u"No"_qs;
    QTest::newRow("Save, Cancel") << (Box::Save | Box::Cancel) << QStringList({u"Save"_qs, u"Cancel"_qs})
                                  << u"Cancel"_qs;
    QTest::newRow("Retry, Cancel") << (Box::Retry | Box::Cancel) << QStringList({u"Retry"_qs, u"Cancel"_qs})
                                   << u"Cancel"_qs;
}

void tst_MessageBox::buttons_lastOneIsHighlighted()
{
    QFETCH(const QFlags<Button>, buttons);
    QFETCH(const QStringList, fromTheRight);
    QFETCH(const QString, highlighted);
    m_driver.closeNext();
    CMessageBox::critical(nullptr, u"Film"_qs, u"Full."_qs, buttons, QMessageBox::NoButton, true);
    QCOMPARE(m_driver.facts.buttons, fromTheRight);
    QCOMPARE(m_driver.facts.highlighted, QStringList({highlighted}));
}

void tst_MessageBox::click_answersTheButton_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("answer");

    QTest::newRow("Yes") << u"Yes"_qs << int(QMessageBox::Yes);
    QTest::newRow("No") << u"No"_qs << int(QMessageBox::No);
    QTest::newRow("Cancel") << u"Cancel"_qs << int(QMessageBox::Cancel);
    QTest::newRow("Help") << u"Help"_qs << int(QMessageBox::Help);
}

void tst_MessageBox::click_answersTheButton()
{
    QFETCH(const QString, text);
    QFETCH(const int, answer);
    m_driver.clickNext(text);
    const QFlags<Button> buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel | QMessageBox::Help;
    QCOMPARE(int(CMessageBox::question(nullptr, u"Film"_qs, u"More?"_qs, buttons, QMessageBox::Yes, true)), answer);
}

void tst_MessageBox::closing_answersTheEscape_data()
{
    QTest::addColumn<QFlags<Button>>("buttons");
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<int>("answer");

    using Box = QMessageBox;
    QTest::newRow("Cancel by close button") << (Box::Ok | Box::Cancel) << false << int(Box::Cancel);
    QTest::newRow("Cancel by key") << (Box::Ok | Box::Cancel) << true << int(Box::Cancel);
    QTest::newRow("the only one") << QFlags<Button>(Box::Ok) << false << int(Box::Ok);
    QTest::newRow("No of Yes and No") << (Box::Yes | Box::No) << true << int(Box::No);
    QTest::newRow("Close of Save and Close") << (Box::Save | Box::Close) << false << int(Box::Close);
}

void tst_MessageBox::closing_answersTheEscape()
{
    QFETCH(const QFlags<Button>, buttons);
    QFETCH(const bool, byKey);
    QFETCH(const int, answer);
    if (byKey) {
        m_driver.pressKeyOnNext(Qt::Key_Escape);
    } else {
        m_driver.closeNext();
    }
    QCOMPARE(int(CMessageBox::warning(nullptr, u"Film"_qs, u"Full."_qs, buttons, QMessageBox::NoButton, true)), answer);
}

void tst_MessageBox::enter_pressesTheDefaultButton_data()
{
    QTest::addColumn<int>("defaultButton");
    for (const Button button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
        QTest::addRow("%#x", unsigned(button)) << int(button);
    }
}

void tst_MessageBox::enter_pressesTheDefaultButton()
{
    QFETCH(const int, defaultButton);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        m_driver.pressKeyOnNext(key);
        const QFlags<Button> buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        const Button answer
            = CMessageBox::question(nullptr, u"Film"_qs, u"More?"_qs, buttons, Button(defaultButton), true);
        QCOMPARE(int(answer), defaultButton);
    }
}

void tst_MessageBox::letter_pressesTheButtonOfThatKey()
{
    m_driver.pressKeyOnNext(Qt::Key_N);
    const Button answer = CMessageBox::question(nullptr, u"Film"_qs, u"More?"_qs, QMessageBox::Yes | QMessageBox::No,
                                                QMessageBox::Yes, true);
    QCOMPARE(answer, QMessageBox::No);
}

void tst_MessageBox::tabAndSpace_pressTheNextButton()
{
    m_driver.onNext([](QMessageBox &box) {
        QTest::keyClick(&box, Qt::Key_Tab); // from the default button, which has the focus
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
    });
    const Button answer = CMessageBox::warning(nullptr, u"Film"_qs, u"Full."_qs, QMessageBox::Ok | QMessageBox::Cancel,
                                               QMessageBox::Ok, true);
    QCOMPARE(answer, QMessageBox::Cancel);
}

void tst_MessageBox::parent_isThatOfTheBox()
{
    QWidget parent;
    QWidget *seen = nullptr;
    QString sheet;
    m_driver.onNext([&](QMessageBox &box) {
        seen = box.parentWidget();
        sheet = box.styleSheet();
        box.close();
    });
    CMessageBox::information(&parent, u"Film"_qs, u"Done."_qs, QMessageBox::Ok, QMessageBox::Ok, true);
    QCOMPARE(seen, &parent);
    QVERIFY(sheet.isEmpty()); // it inherits the parent's
    QVERIFY(parent.children().isEmpty());
}

void tst_MessageBox::noParent_boxHasASheetOfItsOwn()
{
    QString sheet;
    m_driver.onNext([&](QMessageBox &box) {
        sheet = box.styleSheet();
        box.close();
    });
    CMessageBox::information(nullptr, u"Film"_qs, u"Done."_qs, QMessageBox::Ok, QMessageBox::Ok, true);
    QWidget reference;
    ZYX_zglv6::setCustomStyleSheet(
        &reference, QFlags<ZYX_zglv6::QssLoadOption>(ZYX_zglv6::QssLoadBaseSheets) | ZYX_zglv6::QssSkipAdditionalSheet,
        QString());
    QVERIFY(!sheet.isEmpty());
    QCOMPARE(sheet, reference.styleSheet());
}

void tst_MessageBox::text_isShownAsGiven_data()
{
    QTest::addColumn<QString>("text");

    QTest::newRow("empty") << QString();
    QTest::newRow("rich") << u"<b>Full.</b><br>Nothing is left."_qs;
    QTest::newRow("markup that is none") << u"a < b & c > d"_qs;
    QTest::newRow("Japanese") << u"\u30d5\u30a3\u30eb\u30e0"_qs;
    QTest::newRow("10,000 characters") << u"grain "_qs.repeated(1667).left(10'000);
    QTest::newRow("10,000 characters without a blank") << QString(10'000, u'x');
    QTest::newRow("a null character") << u"a\0b"_qs;
}

void tst_MessageBox::text_isShownAsGiven()
{
    QFETCH(const QString, text);
    m_driver.clickNext(u"OK"_qs);
    QCOMPARE(CMessageBox::warning(nullptr, text, text, QMessageBox::Ok, QMessageBox::Ok, true), QMessageBox::Ok);
    QCOMPARE(m_driver.facts.text, text);
}

void tst_MessageBox::noButtons_boxIsShownAndRejected()
{
    m_driver.onNext([this](QMessageBox &box) {
        m_driver.facts = factsOf(box);
        box.reject();
    });
    const Button answer
        = CMessageBox::warning(nullptr, u"Film"_qs, u"Wait."_qs, QMessageBox::NoButton, QMessageBox::Ok, true);
    QCOMPARE(answer, QMessageBox::NoButton);
    QVERIFY(m_driver.facts.buttons.isEmpty());
}

void tst_MessageBox::parentDestroyedWhileOpen_answersAsClosed_data()
{
    QTest::addColumn<QFlags<Button>>("buttons");
    QTest::addColumn<int>("answer");

    using Box = QMessageBox;
    QTest::newRow("Cancel") << (Box::Ok | Box::Cancel) << int(Box::Cancel);
    QTest::newRow("the only one") << QFlags<Button>(Box::Ok) << int(Box::Ok);
    QTest::newRow("No of Yes and No") << (Box::Yes | Box::No) << int(Box::No);
    QTest::newRow("Close of Save and Close") << (Box::Save | Box::Close) << int(Box::Close);
    QTest::newRow("none of Yes and Save") << (Box::Yes | Box::Save) << int(Box::NoButton);
    QTest::newRow("no buttons") << QFlags<Button>(Box::NoButton) << int(Box::NoButton);
}

void tst_MessageBox::parentDestroyedWhileOpen_answersAsClosed()
{
    QFETCH(const QFlags<Button>, buttons);
    QFETCH(const int, answer);
    auto window = std::make_unique<QWidget>();
    auto *parent = new QWidget(window.get());
    m_driver.onNext([&window](QMessageBox & /*box*/) { window.reset(); });
    QCOMPARE(int(CMessageBox::warning(parent, u"Film"_qs, u"Full."_qs, buttons, QMessageBox::NoButton, true)), answer);
    QVERIFY(window == nullptr);
}

void tst_MessageBox::accessibility_namesTheBoxAndItsButtons()
{
    QStringList names;
    QList<QAccessible::Role> roles;
    m_driver.onNext([&](QMessageBox &box) {
        for (QObject *object : QList<QObject *>{&box, buttonOf(box, u"OK"_qs), buttonOf(box, u"Cancel"_qs)}) {
            QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(object);
            names.append(interface->text(QAccessible::Name));
            roles.append(interface->role());
        }
        box.close();
    });
    CMessageBox::warning(nullptr, u"Film"_qs, u"Full."_qs, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
                         true);
    QCOMPARE(names, QStringList({u"Film"_qs, u"OK"_qs, u"Cancel"_qs}));
    QCOMPARE(roles,
             QList<QAccessible::Role>({QAccessible::AlertMessage, QAccessible::PushButton, QAccessible::PushButton}));
}

void tst_MessageBox::messageHelper_showsIconAndButtons()
{
    m_driver.clickNext(u"OK"_qs);
    const Button answer = MessageBoxParts::messageHelper()(nullptr, u"Warning"_qs, u"No file."_qs, QMessageBox::Ok,
                                                           QMessageBox::Ok, QMessageBox::Warning);
    QCOMPARE(answer, QMessageBox::Ok);
    QCOMPARE(m_driver.facts.icon, QMessageBox::Warning);
    QCOMPARE(m_driver.facts.highlighted, QStringList({u"OK"_qs}));
}

QTEST_MAIN(tst_MessageBox)
#include "tst_MessageBox.moc"
