// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "platform/ErrorBoxAllocations.h"
#include "platform/ErrorBoxCatcher.h"
#include "support/Sandbox.h"

#include "platform/ErrorBox.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>
#include <QtGui/QWindow>
#include <QtTest/QTest>

#include <memory>
#include <new>

using TestSupport::ErrorBox;
using TestSupport::ErrorBoxAllocations;
using TestSupport::ErrorBoxCatcher;

class tst_ErrorBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showErrorBox_hasTitleTextErrorIconAndOneButton_data();
    void showErrorBox_hasTitleTextErrorIconAndOneButton();
    void showErrorBox_belongsToTheParent();
    void showErrorBox_onAnyThread_shows();
    void showErrorBox_takesNoMemory();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ErrorBox::showErrorBox_hasTitleTextErrorIconAndOneButton_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << u"Error"_qs << u"Out of memory. Program will be closed."_qs;
    QTest::newRow("other than ASCII") << u"\u30a8\u30e9\u30fc"_qs << u"Mémoire \u4e0d\u8db3 \U0001f39e"_qs;
    QTest::newRow("markup") << u"<i>Error</i>"_qs << u"R&amp;D <b>bold</b> %1 $HOME `id` 'a' \"b\""_qs;
    QTest::newRow("no title") << u""_qs << u"text"_qs;
}

void tst_ErrorBox::showErrorBox_hasTitleTextErrorIconAndOneButton()
{
    QFETCH(const QString, title);
    QFETCH(const QString, text);
    const ErrorBoxCatcher catcher;

    ZyxPlatform::showErrorBox(0, text, title);

    const QList<ErrorBox> boxes = catcher.boxes();
    QCOMPARE(boxes.size(), 1);
    QCOMPARE(boxes.first().title, title);
    QCOMPARE(boxes.first().text, text);
    QCOMPARE(boxes.first().parent, quintptr(0));
    QVERIFY(boxes.first().hasErrorIcon);
    QCOMPARE(boxes.first().buttonCount, 1);
}

void tst_ErrorBox::showErrorBox_belongsToTheParent()
{
    QWindow window;
    window.create();
    QVERIFY(window.winId() != 0);
    const ErrorBoxCatcher catcher;

    ZyxPlatform::showErrorBox(window.winId(), u"text"_qs, u"title"_qs);

    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().first().parent, quintptr(window.winId()));
}

void tst_ErrorBox::showErrorBox_onAnyThread_shows()
{
    const ErrorBoxCatcher catcher;
    const std::unique_ptr<QThread> thread(
        QThread::create([] { ZyxPlatform::showErrorBox(0, u"text"_qs, u"title"_qs); }));
    thread->start();
    QVERIFY(thread->wait(QDeadlineTimer(120'000)));
    QCOMPARE(catcher.boxes().size(), 1);
}

void tst_ErrorBox::showErrorBox_takesNoMemory()
{
    if (!ErrorBoxAllocations::areCounted()) {
        QSKIP("Memory is not counted in a build with checks of memory.");
    }
    const ErrorBoxCatcher catcher;
    const QString text(10'000, u'x');
    const QString title = u"title"_qs;
    {
        ErrorBoxAllocations allocations;
        ::operator delete(::operator new(1));
        QCOMPARE(allocations.stop(), 1);
    }

    ErrorBoxAllocations allocations;
    ZyxPlatform::showErrorBox(0, text, title);
    const int count = allocations.stop();

    QCOMPARE(count, 0);
    QCOMPARE(catcher.boxes().size(), 1);
}

QTEST_MAIN(tst_ErrorBox)

#include "tst_ErrorBox.moc"
