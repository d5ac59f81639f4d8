// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>

using namespace ZYX_zglv6;

namespace {

using Button = QMessageBox::StandardButton;

Button show(const QString &title, QWidget *parent = nullptr)
{
    return CMessageBox::warning(parent, title, u"Text"_qs, QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok,
                                true);
}

QString textOf(Button answer)
{
    return answer == QMessageBox::Ok ? u"OK"_qs : answer == QMessageBox::Cancel ? u"Cancel"_qs : u"nothing"_qs;
}

QStringList visibleTitles()
{
    QStringList titles;
    for (const QMessageBox *box : visibleBoxes()) {
        titles.append(box->windowTitle());
    }
    return titles;
}

} // namespace

/*! No two boxes are ever shown at once. */
class tst_MessageBoxOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void secondBox_waitsForTheFirst();
    void twoBoxes_waitForTheSameOne();
    void boxAskedForRightAfterAnAnswer_doesNotWait();
    void boxAskedForInFinished_isShown();
    void waitingBox_goesOnWhenTheOpenOneIsDestroyed();
    void waitingBox_goesOnWhenTheOpenOneIsHidden();
    void waitingBox_whoseParentIsDestroyed_isNeverShown();
    void bothParentsDestroyed_endBothBoxes();
    void endOfTheProgram_endsAllBoxes();
    void thousandBoxes_areShownOneAtATime();

private:
    /*! Asks in the next pass of the event loop, then does \a duringWait in the pass after that. Logs the answer. */
    void showSoon(const QString &title, const std::function<void()> &duringWait, QWidget *parent = nullptr);
    /*! Logs what is visible when the next box comes up, and clicks that button. */
    void logAndClickNext(const QString &button);
    /*! One box waits for the open one, the next is asked for in its wait, and so on; the last wait answers the first.
     */
    void addWaits(int count, QMessageBox &first, QWidget *parent);

    TestSupport::Sandbox m_sandbox;
    BoxDriver m_driver;
    QStringList m_log;
};

void tst_MessageBoxOrder::init()
{
    m_log.clear();
    m_driver.shownCount = 0;
    m_driver.mostVisible = 0;
}

void tst_MessageBoxOrder::cleanup()
{
    QCOMPARE(m_driver.unexpectedCount, 0);
    QVERIFY(visibleBoxes().isEmpty());
}

void tst_MessageBoxOrder::showSoon(const QString &title, const std::function<void()> &duringWait, QWidget *parent)
{
    QTimer::singleShot(0, this, [this, title, duringWait, parent] {
        QTimer::singleShot(0, this, duringWait);
        const Button answer = show(title, parent);
        m_log.append(title + u": "_qs + textOf(answer));
    });
}

void tst_MessageBoxOrder::logAndClickNext(const QString &button)
{
    m_driver.onNext([this, button](QMessageBox &box) {
        m_log.append(visibleTitles().join(u", "_qs) + u" is open"_qs);
        QTest::mouseClick(buttonOf(box, button), Qt::LeftButton);
    });
}

void tst_MessageBoxOrder::secondBox_waitsForTheFirst()
{
    m_driver.onNext([this](QMessageBox &first) {
        showSoon(u"second"_qs, [this, &first] {
            m_log.append(visibleTitles().join(u", "_qs) + u" is open"_qs);
            buttonOf(first, u"OK"_qs)->click();
        });
    });
    logAndClickNext(u"Cancel"_qs);
    m_log.append(u"first: "_qs + textOf(show(u"first"_qs)));
    QCOMPARE(m_log, QStringList({u"first is open"_qs, u"second is open"_qs, u"second: Cancel"_qs, u"first: OK"_qs}));
    QCOMPARE(m_driver.shownCount, 2);
    QCOMPARE(m_driver.mostVisible, 1);
}

void tst_MessageBoxOrder::twoBoxes_waitForTheSameOne()
{
    m_driver.onNext([this](QMessageBox &first) {
        showSoon(u"second"_qs, [this, &first] {
            showSoon(u"third"_qs, [this, &first] {
                m_log.append(visibleTitles().join(u", "_qs) + u" is open"_qs);
                first.close();
            });
        });
    });
    logAndClickNext(u"OK"_qs);
    logAndClickNext(u"Cancel"_qs);
    QCOMPARE(show(u"first"_qs), QMessageBox::Cancel);
    QCOMPARE(m_log,
             QStringList({u"first is open"_qs, u"third is open"_qs, u"third: OK"_qs, u"second is open"_qs,
                          u"second: Cancel"_qs}));
    QCOMPARE(m_driver.mostVisible, 1);
}

void tst_MessageBoxOrder::boxAskedForRightAfterAnAnswer_doesNotWait()
{
    m_driver.onNext([this](QMessageBox &first) {
        showSoon(u"second"_qs, [this, &first] {
            first.close(); // it has its answer, but its exec() is below the second box's wait
            m_log.append(u"third: "_qs + textOf(show(u"third"_qs)));
        });
    });
    logAndClickNext(u"OK"_qs);
    logAndClickNext(u"OK"_qs);
    QCOMPARE(show(u"first"_qs), QMessageBox::Cancel);
    QCOMPARE(m_log, QStringList({u"third is open"_qs, u"third: OK"_qs, u"second is open"_qs, u"second: OK"_qs}));
}

void tst_MessageBoxOrder::boxAskedForInFinished_isShown()
{
    m_driver.onNext([this](QMessageBox &first) {
        connect(&first, &QDialog::finished, this,
                [this] { m_log.append(u"second: "_qs + textOf(show(u"second"_qs))); });
        buttonOf(first, u"OK"_qs)->click();
    });
    logAndClickNext(u"OK"_qs);
    QCOMPARE(show(u"first"_qs), QMessageBox::Ok);
    QCOMPARE(m_log, QStringList({u"second is open"_qs, u"second: OK"_qs}));
}

void tst_MessageBoxOrder::waitingBox_goesOnWhenTheOpenOneIsDestroyed()
{
    auto parent = std::make_unique<QWidget>();
    m_driver.onNext([&](QMessageBox & /*first*/) { showSoon(u"second"_qs, [&parent] { parent.reset(); }); });
    logAndClickNext(u"OK"_qs);
    QCOMPARE(show(u"first"_qs, parent.get()), QMessageBox::Cancel);
    QCOMPARE(m_log, QStringList({u"second is open"_qs, u"second: OK"_qs}));
}

void tst_MessageBoxOrder::waitingBox_goesOnWhenTheOpenOneIsHidden()
{
    m_driver.onNext([this](QMessageBox &first) { showSoon(u"second"_qs, [&first] { first.hide(); }); });
    logAndClickNext(u"OK"_qs);
    QCOMPARE(show(u"first"_qs), QMessageBox::NoButton);
    QCOMPARE(m_log, QStringList({u"second is open"_qs, u"second: OK"_qs}));
}

void tst_MessageBoxOrder::waitingBox_whoseParentIsDestroyed_isNeverShown()
{
    auto parent = std::make_unique<QWidget>();
    m_driver.onNext([&](QMessageBox &first) {
        showSoon(
            u"second"_qs,
            [&parent, &first] {
                parent.reset();
                buttonOf(first, u"OK"_qs)->click();
            },
            parent.get());
    });
    QCOMPARE(show(u"first"_qs), QMessageBox::Ok);
    QCOMPARE(m_log, QStringList({u"second: Cancel"_qs}));
    QCOMPARE(m_driver.shownCount, 1);
}

void tst_MessageBoxOrder::bothParentsDestroyed_endBothBoxes()
{
    auto window = std::make_unique<QWidget>();
    m_driver.onNext([&](QMessageBox & /*first*/) {
        showSoon(
            u"second"_qs, [&window] { window.reset(); }, window.get());
    });
    QCOMPARE(show(u"first"_qs, window.get()), QMessageBox::Cancel);
    QCOMPARE(m_log, QStringList({u"second: Cancel"_qs}));
    QCOMPARE(m_driver.shownCount, 1);
}

void tst_MessageBoxOrder::endOfTheProgram_endsAllBoxes()
{
    m_driver.onNext([this](QMessageBox & /*first*/) { showSoon(u"second"_qs, [] { QCoreApplication::exit(7); }); });
    showSoon(u"first"_qs, [] {});
    QCOMPARE(QCoreApplication::exec(), 7);
    QCOMPARE(m_log, QStringList({u"second: nothing"_qs, u"first: nothing"_qs}));
    QCOMPARE(m_driver.shownCount, 1);
}

void tst_MessageBoxOrder::addWaits(int count, QMessageBox &first, QWidget *parent)
{
    if (count == 0) {
        buttonOf(first, u"OK"_qs)->click();
        return;
    }
    showSoon(
        QString::number(count), [this, count, &first, parent] { addWaits(count - 1, first, parent); }, parent);
}

void tst_MessageBoxOrder::thousandBoxes_areShownOneAtATime()
{
    constexpr int rounds = 50;
    constexpr int waits = 19; // at a time: each takes its part of the stack
    QWidget parent; // without a sheet, which would take most of the time
    for (int round = 0; round < rounds; ++round) {
        m_log.clear();
        QStringList expected;
        m_driver.onNext([&](QMessageBox &first) { addWaits(waits, first, &parent); });
        for (int box = 1; box <= waits; ++box) { // the last one to wait is the first to go on
            const QString button = (box + round) % 3 == 0 ? u"OK"_qs : u"Cancel"_qs;
            logAndClickNext(button);
            expected << QString::number(box) + u" is open"_qs << QString::number(box) + u": "_qs + button;
        }
        QCOMPARE(show(u"first"_qs, &parent), QMessageBox::Ok);
        QCOMPARE(m_log, expected);
    }
    QCOMPARE(m_driver.shownCount, rounds * (waits + 1));
    QCOMPARE(m_driver.mostVisible, 1);
}

QTEST_MAIN(tst_MessageBoxOrder)
#include "tst_MessageBoxOrder.moc"
