// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "support/AssertionReports.h"
#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"

#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>

#include <optional>

using namespace ZYX_zglv6;

namespace {

using Button = QMessageBox::StandardButton;

enum class Question { Rotate, YesNo, YesNoWithCheckBox, Save, Background };

/*! The answer; that of the rotate question is Yes or No. */
Button ask(Question question, QWidget *parent = nullptr, Button defaultButton = QMessageBox::Yes)
{
    switch (question) {
    case Question::Rotate:
        return CMessageBox::rotateQuestion(parent, u"Film"_qs, u"Well?"_qs) ? QMessageBox::Yes : QMessageBox::No;
    case Question::YesNo:
        return CMessageBox::yesNoMessage(parent, u"Film"_qs, u"Well?"_qs, defaultButton);
    case Question::YesNoWithCheckBox:
        return CMessageBox::yesNoMessageWithCheckBox(parent, u"Film"_qs, u"Well?"_qs, u"Always"_qs, false,
                                                     defaultButton)
            .first;
    case Question::Save:
        return CMessageBox::saveDiscardCancelMessage(parent, u"Film"_qs, u"Well?"_qs, defaultButton);
    case Question::Background:
        return CMessageBox::backgroundProcessingCancelMessage(parent, u"Film"_qs, u"Well?"_qs);
    }
    return QMessageBox::NoButton;
}

void addQuestionRows()
{
    QTest::addColumn<Question>("question");
    QTest::newRow("rotate") << Question::Rotate;
    QTest::newRow("yes or no") << Question::YesNo;
    QTest::newRow("yes or no, check box") << Question::YesNoWithCheckBox;
    QTest::newRow("save") << Question::Save;
    QTest::newRow("background") << Question::Background;
}

Button escapeOf(Question question)
{
    return question == Question::Save || question == Question::Background ? QMessageBox::Cancel : QMessageBox::No;
}

} // namespace

Q_DECLARE_METATYPE(Question)

/*! The boxes with buttons of their own. */
class tst_MessageBoxQuestions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void box_hasItsTextsAndButtons_data();
    void box_hasItsTextsAndButtons();
    void click_answersTheButton_data();
    void click_answersTheButton();
    void defaultButton_isThatOfTheCaller_data();
    void defaultButton_isThatOfTheCaller();
    void defaultButton_neitherYesNorNo_isReported_data();
    void defaultButton_neitherYesNorNo_isReported();
    void escapeKey_answersTheEscape_data();
    void escapeKey_answersTheEscape();
    void closeButton_answersTheEscape_data();
    void closeButton_answersTheEscape();
    void parentDestroyedWhileOpen_answersTheEscape_data();
    void parentDestroyedWhileOpen_answersTheEscape();
    void endedByTheProgram_isAnsweredWithoutAButton_data();
    void endedByTheProgram_isAnsweredWithoutAButton();
    void checkBox_state_isAnswered_data();
    void checkBox_state_isAnswered();
    void checkBox_parentDestroyed_answersTheFirstState();
    void checkBox_liesBelowTheText();

private:
    TestSupport::Sandbox m_sandbox;
    std::optional<TestSupport::AssertionReports> m_reports; // of a test function
    BoxDriver m_driver;
};

void tst_MessageBoxQuestions::init()
{
    m_reports.emplace();
}

void tst_MessageBoxQuestions::cleanup()
{
    const QStringList reports = m_reports->texts();
    m_reports.reset();
    QCOMPARE(reports, QStringList());
    QCOMPARE(m_driver.unexpectedCount, 0);
    QVERIFY(visibleBoxes().isEmpty());
}

void tst_MessageBoxQuestions::box_hasItsTextsAndButtons_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<int>("icon");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("fromTheRight");
    QTest::addColumn<QStringList>("names");

    const QStringList yesNo{u"Yes"_qs, u"No"_qs};
    const QStringList noNames{QString(), QString()};
    QTest::newRow("rotate") << Question::Rotate << int(QMessageBox::NoIcon) << u"rotateQuestionMessage"_qs
                            << QStringList({u"Rotate"_qs, u"Cancel"_qs}) << noNames;
    QTest::newRow("yes or no") << Question::YesNo << int(QMessageBox::Question) << QString() << yesNo << noNames;
    QTest::newRow("yes or no, check box")
        << Question::YesNoWithCheckBox << int(QMessageBox::NoIcon) << QString() << yesNo << noNames;
    QTest::newRow("save") << Question::Save << int(QMessageBox::Warning) << u"saveDiscardCancelMessage"_qs
                          << QStringList({u"Save"_qs, u"Don't save"_qs, u"Cancel"_qs})
                          << QStringList({u"saveButton"_qs, u"discardButton"_qs, u"cancelButton"_qs});
    QTest::newRow("background") << Question::Background << int(QMessageBox::Warning) << u"saveDiscardCancelMessage"_qs
                                << QStringList({u"Quit without saving"_qs, u"Don't quit"_qs})
                                << QStringList({u"discardButton"_qs, u"cancelButton"_qs});
}

void tst_MessageBoxQuestions::box_hasItsTextsAndButtons()
{
    QFETCH(const Question, question);
    QFETCH(const int, icon);
    QFETCH(const QString, name);
    QFETCH(const QStringList, fromTheRight);
    QFETCH(const QStringList, names);
    m_driver.closeNext();
    ask(question);
    const BoxFacts &facts = m_driver.facts;
    QCOMPARE(facts.title, u"Film"_qs);
    QCOMPARE(facts.text, u"Well?"_qs);
    QCOMPARE(int(facts.icon), icon);
    QCOMPARE(facts.hasIconPixmap, icon != QMessageBox::NoIcon);
    QCOMPARE(facts.name, name);
    QCOMPARE(facts.buttons, fromTheRight);
    QCOMPARE(facts.names, names);
    QCOMPARE(facts.roles, QList<QMessageBox::ButtonRole>(fromTheRight.size(), QMessageBox::NoRole));
    QCOMPARE(facts.highlighted, QStringList({fromTheRight.constFirst()}));
}

void tst_MessageBoxQuestions::click_answersTheButton_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("answer");

    using Box = QMessageBox;
    QTest::newRow("rotate: Rotate") << Question::Rotate << u"Rotate"_qs << int(Box::Yes);
    QTest::newRow("rotate: Cancel") << Question::Rotate << u"Cancel"_qs << int(Box::No);
    QTest::newRow("yes or no: Yes") << Question::YesNo << u"Yes"_qs << int(Box::Yes);
    QTest::newRow("yes or no: No") << Question::YesNo << u"No"_qs << int(Box::No);
    QTest::newRow("check box: Yes") << Question::YesNoWithCheckBox << u"Yes"_qs << int(Box::Yes);
    QTest::newRow("check box: No") << Question::YesNoWithCheckBox << u"No"_qs << int(Box::No);
    QTest::newRow("save: Save") << Question::Save << u"Save"_qs << int(Box::Save);
    QTest::newRow("save: Don't save") << Question::Save << u"Don't save"_qs << int(Box::Discard);
    QTest::newRow("save: Cancel") << Question::Save << u"Cancel"_qs << int(Box::Cancel);
    QTest::newRow("background: quit") << Question::Background << u"Quit without saving"_qs << int(Box::Discard);
    QTest::newRow("background: Don't quit") << Question::Background << u"Don't quit"_qs << int(Box::Cancel);
}

void tst_MessageBoxQuestions::click_answersTheButton()
{
    QFETCH(const Question, question);
    QFETCH(const QString, text);
    QFETCH(const int, answer);
    m_driver.clickNext(text);
    QCOMPARE(int(ask(question)), answer);
}

void tst_MessageBoxQuestions::defaultButton_isThatOfTheCaller_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("answer");

    using Box = QMessageBox;
    QTest::newRow("rotate") << Question::Rotate << int(Box::NoButton) << u"Rotate"_qs << int(Box::Yes);
    QTest::newRow("yes") << Question::YesNo << int(Box::Yes) << u"Yes"_qs << int(Box::Yes);
    QTest::newRow("no") << Question::YesNo << int(Box::No) << u"No"_qs << int(Box::No);
    QTest::newRow("check box, yes") << Question::YesNoWithCheckBox << int(Box::Yes) << u"Yes"_qs << int(Box::Yes);
    QTest::newRow("check box, no") << Question::YesNoWithCheckBox << int(Box::No) << u"No"_qs << int(Box::No);
    QTest::newRow("save") << Question::Save << int(Box::Save) << u"Save"_qs << int(Box::Save);
    QTest::newRow("discard") << Question::Save << int(Box::Discard) << u"Don't save"_qs << int(Box::Discard);
    QTest::newRow("cancel") << Question::Save << int(Box::Cancel) << u"Cancel"_qs << int(Box::Cancel);
    QTest::newRow("save, unknown") << Question::Save << int(Box::Yes) << u"Cancel"_qs << int(Box::Cancel);
    QTest::newRow("save, none") << Question::Save << int(Box::NoButton) << u"Cancel"_qs << int(Box::Cancel);
    QTest::newRow("background") << Question::Background << int(Box::NoButton) << u"Quit without saving"_qs
                                << int(Box::Discard);
}

void tst_MessageBoxQuestions::defaultButton_isThatOfTheCaller()
{
    QFETCH(const Question, question);
    QFETCH(const int, button);
    QFETCH(const QString, text);
    QFETCH(const int, answer);
    m_driver.pressKeyOnNext(Qt::Key_Return);
    QCOMPARE(int(ask(question, nullptr, Button(button))), answer);
    QCOMPARE(m_driver.facts.defaultButton, text);
}

void tst_MessageBoxQuestions::defaultButton_neitherYesNorNo_isReported_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("defaultText");

    QTest::newRow("none") << Question::YesNo << int(QMessageBox::NoButton) << u"No"_qs;
    QTest::newRow("OK") << Question::YesNo << int(QMessageBox::Ok) << u"No"_qs;
    QTest::newRow("check box, none") << Question::YesNoWithCheckBox << int(QMessageBox::NoButton) << u"Yes"_qs;
    QTest::newRow("check box, OK") << Question::YesNoWithCheckBox << int(QMessageBox::Ok) << u"Yes"_qs;
}

void tst_MessageBoxQuestions::defaultButton_neitherYesNorNo_isReported()
{
    QFETCH(const Question, question);
    QFETCH(const int, button);
    QFETCH(const QString, defaultText);
    m_driver.closeNext();
    QCOMPARE(ask(question, nullptr, Button(button)), QMessageBox::No);
    QCOMPARE(m_driver.facts.defaultButton, defaultText);
    const QStringList reports = m_reports->texts();
    m_reports.emplace();
    QCOMPARE(reports.size(), 1);
    QVERIFY2(reports.constFirst().contains(u"MessageBox.cpp line "_qs), qPrintable(reports.constFirst()));
}

void tst_MessageBoxQuestions::escapeKey_answersTheEscape_data()
{
    addQuestionRows();
}

void tst_MessageBoxQuestions::escapeKey_answersTheEscape()
{
    QFETCH(const Question, question);
    m_driver.pressKeyOnNext(Qt::Key_Escape);
    QCOMPARE(ask(question), escapeOf(question));
}

void tst_MessageBoxQuestions::closeButton_answersTheEscape_data()
{
    addQuestionRows();
}

void tst_MessageBoxQuestions::closeButton_answersTheEscape()
{
    QFETCH(const Question, question);
    m_driver.closeNext();
    QCOMPARE(ask(question), escapeOf(question));
}

void tst_MessageBoxQuestions::parentDestroyedWhileOpen_answersTheEscape_data()
{
    addQuestionRows();
}

void tst_MessageBoxQuestions::parentDestroyedWhileOpen_answersTheEscape()
{
    QFETCH(const Question, question);
    auto parent = std::make_unique<QWidget>();
    m_driver.onNext([&parent](QMessageBox & /*box*/) { parent.reset(); });
    QCOMPARE(ask(question, parent.get()), escapeOf(question));
    QVERIFY(parent == nullptr);
}

void tst_MessageBoxQuestions::endedByTheProgram_isAnsweredWithoutAButton_data()
{
    QTest::addColumn<Question>("question");
    QTest::addColumn<int>("answer");

    QTest::newRow("rotate") << Question::Rotate << int(QMessageBox::No);
    QTest::newRow("yes or no") << Question::YesNo << int(QMessageBox::No);
    QTest::newRow("yes or no, check box") << Question::YesNoWithCheckBox << int(QMessageBox::No);
    QTest::newRow("save") << Question::Save << int(QMessageBox::Cancel);
    QTest::newRow("background") << Question::Background << int(QMessageBox::Discard); // all but "Don't quit"
}

void tst_MessageBoxQuestions::endedByTheProgram_isAnsweredWithoutAButton()
{
    QFETCH(const Question, question);
    QFETCH(const int, answer);
    m_driver.onNext([](QMessageBox &box) { box.done(QDialog::Accepted); });
    QCOMPARE(int(ask(question)), answer);
}

void tst_MessageBoxQuestions::checkBox_state_isAnswered_data()
{
    QTest::addColumn<bool>("isChecked");
    QTest::addColumn<bool>("isClicked");
    QTest::addColumn<QString>("button");

    for (const bool isChecked : {false, true}) {
        for (const bool isClicked : {false, true}) {
            for (const char *button : {"Yes", "No"}) {
                QTest::addRow("%s, %s, %s", isChecked ? "checked" : "not checked", isClicked ? "flipped" : "left",
                              button)
                    << isChecked << isClicked << QString::fromUtf8(button);
            }
        }
    }
}

void tst_MessageBoxQuestions::checkBox_state_isAnswered()
{
    QFETCH(const bool, isChecked);
    QFETCH(const bool, isClicked);
    QFETCH(const QString, button);
    QString text;
    m_driver.onNext([&](QMessageBox &box) {
        auto *checkBox = box.findChild<QCheckBox *>();
        text = checkBox->text();
        if (isClicked) {
            QTest::mouseClick(checkBox, Qt::LeftButton, {}, QPoint(8, checkBox->height() / 2));
        }
        QTest::mouseClick(buttonOf(box, button), Qt::LeftButton);
    });
    const std::pair<Button, bool> answer = CMessageBox::yesNoMessageWithCheckBox(
        nullptr, u"Film"_qs, u"Well?"_qs, u"Always"_qs, isChecked, QMessageBox::Yes);
    QCOMPARE(answer.first, button == u"Yes" ? QMessageBox::Yes : QMessageBox::No);
    QCOMPARE(answer.second, isChecked != isClicked);
    QCOMPARE(text, u"Always"_qs);
}

void tst_MessageBoxQuestions::checkBox_parentDestroyed_answersTheFirstState()
{
    for (const bool isChecked : {false, true}) {
        auto parent = std::make_unique<QWidget>();
        m_driver.onNext([&parent](QMessageBox & /*box*/) { parent.reset(); });
        const std::pair<Button, bool> answer = CMessageBox::yesNoMessageWithCheckBox(
            parent.get(), u"Film"_qs, u"Well?"_qs, u"Always"_qs, isChecked, QMessageBox::Yes);
        QCOMPARE(answer, std::make_pair(QMessageBox::No, isChecked));
    }
}

void tst_MessageBoxQuestions::checkBox_liesBelowTheText()
{
    QMargins margins;
    int row = -1;
    int column = -1;
    QStringList inIt;
    m_driver.onNext([&](QMessageBox &box) {
        const auto *grid = qobject_cast<QGridLayout *>(box.layout());
        if (QLayoutItem *item = grid->itemAtPosition(1, 1)) {
            margins = item->layout()->contentsMargins();
            int rowSpan = 0;
            int columnSpan = 0;
            grid->getItemPosition(grid->indexOf(item), &row, &column, &rowSpan, &columnSpan);
            for (int i = 0; i < item->layout()->count(); ++i) {
                inIt.append(QString::fromLatin1(item->layout()->itemAt(i)->widget()->metaObject()->className()));
            }
        }
        box.close();
    });
    ask(Question::YesNoWithCheckBox);
    QCOMPARE(margins, QMargins(10, 0, 0, 0));
    QCOMPARE(row, 1);
    QCOMPARE(column, 1);
    QCOMPARE(inIt, QStringList(u"QCheckBox"_qs));
}

QTEST_MAIN(tst_MessageBoxQuestions)
#include "tst_MessageBoxQuestions.moc"
