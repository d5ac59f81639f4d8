// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"
#include "support/Sandbox.h"

#include "aboutDlg/AboutDlg.h"
#include "baseDialogs/WidgetFromHWND.h"
#include "utilsDll/dialogs/ProgressPainter.h"

#include <QtCore/QDir>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <functional>
#include <memory>

using namespace ZYX_zglv6;

namespace {

constexpr int watchdogMs = 30'000;

/*! Once a dialog is open, does something with it, and closes it if it is still there then. */
std::unique_ptr<QTimer> visitNext(const std::function<void(QDialog &)> &visit)
{
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [visit, timer = timer.get()] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) {
            return;
        }
        timer->stop();
        const QPointer<QDialog> guard(dialog);
        visit(*dialog);
        if (guard && guard->isVisible()) {
            guard->reject();
        }
    });
    timer->start(1);
    return timer;
}

void click(QDialog &dialog, const QString &text)
{
    for (QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (QString(button->text()).remove(u'&') == text) {
            button->click();
        }
    }
}

} // namespace

/*! Runs the examples of the pages on boxes, overlays and dialogs. */
class tst_DialogSnippets : public QObject
{
    Q_OBJECT

    TestSupport::Sandbox m_sandbox;

private Q_SLOTS:
    void mayClose_asksAndSaves_data();
    void mayClose_asksAndSaves();
    void mayThrowAway_showsTheNameAsItIs();
    void develop_showsTheOverlayOnlyWhenItTakesLong();
    void showScale_showsPercent();
    void chooseTarget_proposesAWritableName();
    void showInHost_showsThePanel();
    void showAboutBox_returnsAtOnce();
};

void tst_DialogSnippets::mayClose_asksAndSaves_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("isSaved");
    QTest::addColumn<bool>("mayClose");

    QTest::newRow("save") << u"Save"_qs << true << true;
    QTest::newRow("discard") << u"Don't save"_qs << false << true;
    QTest::newRow("cancel") << u"Cancel"_qs << false << false;
}

void tst_DialogSnippets::mayClose_asksAndSaves()
{
    QFETCH(const QString, button);
    QFETCH(const bool, isSaved);
    QFETCH(const bool, mayClose);

    const auto visit = visitNext([&button](QDialog &box) { click(box, button); });
    bool wasSaved = false;
    const bool answer = Snippets::mayClose(nullptr, [&wasSaved] {
        wasSaved = true;
        return true;
    });
    QCOMPARE(answer, mayClose);
    QCOMPARE(wasSaved, isSaved);
}

void tst_DialogSnippets::mayThrowAway_showsTheNameAsItIs()
{
    QString text;
    const auto visit = visitNext([&text](QDialog &box) {
        text = box.findChild<QLabel *>(u"qt_msgbox_label"_qs)->text();
        box.findChild<QCheckBox *>()->setChecked(true);
        click(box, u"Yes"_qs);
    });
    bool isAskedAgain = true;
    QVERIFY(Snippets::mayThrowAway(nullptr, u"<b>.jpg"_qs, isAskedAgain));
    QVERIFY(!isAskedAgain);
    QCOMPARE(text, u"Move &lt;b&gt;.jpg to the trash?"_qs);
}

void tst_DialogSnippets::develop_showsTheOverlayOnlyWhenItTakesLong()
{
    QWidget preview;
    preview.resize(600, 400);
    preview.show();
    ProgressPainter painter(&preview, &preview);
    bool wasSeen = true;
    Snippets::develop(painter, [&] { wasSeen = painter.isVisible(); });
    QVERIFY(!wasSeen);
    Snippets::develop(painter,
                      [&] { wasSeen = QTest::qWaitFor([&painter] { return painter.isVisible(); }, watchdogMs); });
    QVERIFY(wasSeen);
    QVERIFY(!painter.isVisible());
}

void tst_DialogSnippets::showScale_showsPercent()
{
    QWidget preview;
    preview.resize(600, 400);
    preview.show();
    ZoomPainter painter(&preview, &preview);
    Snippets::showScale(painter, 0.334);
    QVERIFY(painter.isVisible());
    QCOMPARE(painter.findChild<QLabel *>()->text(), u"33 %"_qs);
}

void tst_DialogSnippets::chooseTarget_proposesAWritableName()
{
    QString proposal;
    const auto visit = visitNext([&proposal](QDialog &dialog) {
        proposal = dialog.findChild<QLineEdit *>()->text();
        QTest::keyClick(dialog.findChild<QLineEdit *>(), Qt::Key_Return);
    });
    const QString folder = QDir::cleanPath(m_sandbox.filePath(u"."_qs));
    QCOMPARE(Snippets::chooseTarget(nullptr, folder + u"/IMG 1.NEF"), QString(folder + u"/IMG 1.tiff"));
    QCOMPARE(proposal, u"IMG 1.tiff"_qs);
}

/*! The platform of the tests can embed nothing; what is shown where is tested with a real host. */
void tst_DialogSnippets::showInHost_showsThePanel()
{
    auto *panel = new QLabel(u"Grain"_qs);
    Snippets::showInHost(nullptr, panel);
    const std::unique_ptr<QWidget> ground(panel->window());
    QVERIFY(qobject_cast<CWidgetFromHWND *>(ground.get()));
    QVERIFY(panel->isVisible());
}

void tst_DialogSnippets::showAboutBox_returnsAtOnce()
{
    QWidget window;
    const QPointer<CAboutDlg> about = Snippets::showAboutBox(&window);
    QVERIFY(about->isVisible());
    QCOMPARE(about->findChild<QLabel *>(u"productNameLabel"_qs)->text(), u"Zyx Grainlab 6 Elite"_qs);
    about->close();
    QTRY_VERIFY_WITH_TIMEOUT(about.isNull(), watchdogMs);
}

QTEST_MAIN(tst_DialogSnippets)
#include "tst_DialogSnippets.moc"
