// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceParts.h"

#include "gallery/AccessibilityAudit.h"

#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "CalibrationCommand.h"
#include "LightboxApplication.h"
#include "MainWindow.h"
#include "PresetBrowser.h"
#include "ReferenceMenu.h"
#include "TimeLine.h"

#include "common/Look.h"

#include "utilsDll/actions/ActionManager.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QUrl>
#include <QtGui/QAction>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

using namespace ZYX_zglv6;

namespace {

constexpr int watchdogMs = 10'000;

QString eventsIn(const QWidget &timeLine)
{
    return part<QTextBrowser>(timeLine, u"filmDescription"_qs)->toPlainText();
}

} // namespace

/*! The window of the film history, and the menu that opens this and the other windows. */
class tst_TimeLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void timeLine_decades_areListed();
    void timeLine_decade_showsFilmsAndEvents();
    void timeLine_stepButtons_goThroughTheDecades();
    void timeLine_clickOnAFilm_choosesIt();
    void timeLine_link_choosesThePreset();
    void timeLine_linkOfAnOddId_choosesIt();
    void timeLine_foreignLink_choosesNothing();
    void timeLine_parts_haveNames();
    void timeLine_brokenData_areTold();
    void menu_hasAShortcutForEachWindow();
    void menu_opensEachWindowOnce();
    void menu_filmOfTheTimeLine_isShownInTheBrowser();
    void menu_throughAClosedGate_comesLater();
    void liveLanguage_isSpokenAtOnce_data();
    void liveLanguage_isSpokenAtOnce();
    void liveLanguage_keepsTheDecade();

private:
    TestSupport::Sandbox m_sandbox;
    const std::shared_ptr<const CPresetLibrary> m_library = std::make_shared<const CPresetLibrary>();
};

void tst_TimeLine::initTestCase()
{
    putOnLook(QString());
}

void tst_TimeLine::timeLine_decades_areListed()
{
    const CTimeLine timeLine(CFilmHistory(), m_library);
    const auto *decades = part<QListWidget>(timeLine, u"decadeList"_qs);
    QCOMPARE(decades->count(), 14);
    QCOMPARE(decades->currentRow(), 0);
    QCOMPARE(decades->item(10)->text(), u"1990 - 1994"_qs);
    QVERIFY(!timeLine.isModal());
}

void tst_TimeLine::timeLine_decade_showsFilmsAndEvents()
{
    const CFilmHistory history;
    const CTimeLine timeLine(history, m_library);
    for (int row = 0; row < 14; ++row) {
        part<QListWidget>(timeLine, u"decadeList"_qs)->setCurrentRow(row);
        const Decade &decade = history.decades().at(row);
        QCOMPARE(part<QLabel>(timeLine, u"decadeLabel"_qs)->text(), decade.name);
        QCOMPARE(idsIn(timeLine), decade.films);
        const QString text = eventsIn(timeLine);
        for (const HistoryEvent &event : decade.events) {
            QVERIFY2(text.contains(event.titles.value(u"en"_qs)), qPrintable(text));
            QVERIFY2(text.contains(event.descriptions.value(u"en"_qs).simplified().left(40)), qPrintable(text));
            QVERIFY2(text.contains(event.copyright.trimmed()), qPrintable(event.copyright));
        }
        // Only the last event has none to try.
        QCOMPARE(text.count(u"To try: "), decade.events.size() - (row == 13 ? 1 : 0));
    }
}

void tst_TimeLine::timeLine_stepButtons_goThroughTheDecades()
{
    const CTimeLine timeLine(CFilmHistory(), m_library);
    const auto *decades = part<QListWidget>(timeLine, u"decadeList"_qs);
    auto *previous = part<QToolButton>(timeLine, u"previousDecadeButton"_qs);
    auto *next = part<QToolButton>(timeLine, u"nextDecadeButton"_qs);
    QVERIFY(!previous->isEnabled());
    for (int row = 1; row < 14; ++row) {
        QVERIFY(next->isEnabled());
        next->click();
        QCOMPARE(decades->currentRow(), row);
    }
    QVERIFY(!next->isEnabled());
    previous->click();
    QCOMPARE(decades->currentRow(), 12);
}

void tst_TimeLine::timeLine_clickOnAFilm_choosesIt()
{
    CTimeLine timeLine(CFilmHistory(), m_library);
    timeLine.show();
    const QSignalSpy chosen(&timeLine, &CTimeLine::presetChosen);
    auto *films = part<QListWidget>(timeLine, u"presetFilmStrip"_qs);
    QTest::mouseClick(films->viewport(), Qt::LeftButton, {}, films->visualItemRect(films->item(2)).center());
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.constFirst().constFirst().toString(), idsIn(timeLine).at(2));

    films->setCurrentRow(3);
    QTest::keyClick(films, Qt::Key_Return); // and so does the keyboard
    QCOMPARE(chosen.constLast().constFirst().toString(), idsIn(timeLine).at(3));
}

void tst_TimeLine::timeLine_link_choosesThePreset()
{
    const CFilmHistory history;
    const CTimeLine timeLine(history, m_library);
    const QSignalSpy chosen(&timeLine, &CTimeLine::presetChosen);
    auto *events = part<QTextBrowser>(timeLine, u"filmDescription"_qs);
    static const QRegularExpression form(u"href=\"(preset:[^\"]+)\""_qs);
    QStringList links;
    for (const QRegularExpressionMatch &match : form.globalMatch(events->toHtml())) {
        links.append(match.captured(1));
    }
    QStringList expected;
    for (const HistoryEvent &event : history.decades().constFirst().events) {
        expected += event.films;
    }
    QCOMPARE(links.size(), expected.size());
    QStringList ids;
    for (const QString &link : links) {
        Q_EMIT events->anchorClicked(QUrl(link));
        ids.append(chosen.constLast().constFirst().toString());
    }
    QCOMPARE(ids, expected);
    QVERIFY(!events->openLinks());
}

void tst_TimeLine::timeLine_linkOfAnOddId_choosesIt()
{
    const QTemporaryDir folder;
    const QString path
        = newFile(folder, u"decades.xml"_qs,
                  "<decades><decade id='1' name='a'><events><event id='1'><event_films>"
                  "<film name='1 &amp; \"2\" %41?#ä'/></event_films></event></events></decade></decades>");
    const CTimeLine timeLine(CFilmHistory(path), m_library);
    const QSignalSpy chosen(&timeLine, &CTimeLine::presetChosen);
    auto *events = part<QTextBrowser>(timeLine, u"filmDescription"_qs);
    static const QRegularExpression form(u"href=\"([^\"]+)\""_qs);
    Q_EMIT events->anchorClicked(QUrl(form.match(events->toHtml()).captured(1)));
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.constFirst().constFirst().toString(), u"1 & \"2\" %41?#ä"_qs);
    QVERIFY(eventsIn(timeLine).contains(u"To try: 1 & \"2\" %41?#ä"));
}

void tst_TimeLine::timeLine_foreignLink_choosesNothing()
{
    const CTimeLine timeLine(CFilmHistory(), m_library);
    const QSignalSpy chosen(&timeLine, &CTimeLine::presetChosen);
    Q_EMIT part<QTextBrowser>(timeLine, u"filmDescription"_qs)->anchorClicked(QUrl(u"https://x.example/"_qs));
    QCOMPARE(chosen.size(), 0);
}

void tst_TimeLine::timeLine_parts_haveNames()
{
    CTimeLine timeLine(CFilmHistory(), m_library);
    part<QListWidget>(timeLine, u"decadeList"_qs)->setCurrentRow(3); // both buttons have a way to go
    timeLine.show();
    QCOMPARE(accessibilityFaults(timeLine), QStringList());
}

void tst_TimeLine::timeLine_brokenData_areTold()
{
    const CTimeLine timeLine(CFilmHistory(u"none.xml"_qs), brokenLibrary());
    QVERIFY2(eventsIn(timeLine).startsWith(u"none.xml can't be read: "), qPrintable(eventsIn(timeLine)));
    QVERIFY(!part<QToolButton>(timeLine, u"nextDecadeButton"_qs)->isEnabled());
}

void tst_TimeLine::menu_hasAShortcutForEachWindow()
{
    const CMainWindow window(m_sandbox.filePath(u"none"_qs));
    QStringList entries;
    for (const QAction *action : window.reference().actions()) {
        entries.append(action->text().remove(u'&') + u": " + action->shortcut().toString());
    }
    QStringList expected{u"Presets: P"_qs, u"Film history: T"_qs};
    if (isCalibrationOffered()) {
        expected.append(u"Calibration modules: C"_qs);
    }
    QCOMPARE(entries, expected);
}

void tst_TimeLine::menu_opensEachWindowOnce()
{
    const CMainWindow window(m_sandbox.filePath(u"none"_qs));
    CReferenceMenu &menu = window.reference();
    QCOMPARE(menu.presetBrowser(), nullptr);
    menu.actions().at(0)->trigger();
    menu.actions().at(1)->trigger();
    const CPresetBrowser *browser = menu.presetBrowser();
    QVERIFY(browser != nullptr && browser->isVisible());
    QVERIFY(menu.timeLine() != nullptr && menu.timeLine()->isVisible());
    QCOMPARE(browser->parentWidget(), &window);
    menu.presetBrowser()->close();
    menu.actions().at(0)->trigger();
    QCOMPARE(menu.presetBrowser(), browser);
    QVERIFY(browser->isVisible());
}

void tst_TimeLine::menu_filmOfTheTimeLine_isShownInTheBrowser()
{
    const CMainWindow window(m_sandbox.filePath(u"none"_qs));
    CReferenceMenu &menu = window.reference();
    menu.showTimeLine();
    auto *films = part<QListWidget>(*menu.timeLine(), u"presetFilmStrip"_qs);
    QTest::mouseClick(films->viewport(), Qt::LeftButton, {}, films->visualItemRect(films->item(1)).center());
    QVERIFY(menu.presetBrowser() != nullptr && menu.presetBrowser()->isVisible());
    QCOMPARE(titleIn(*menu.presetBrowser()), films->item(1)->text());
}

void tst_TimeLine::menu_throughAClosedGate_comesLater()
{
    const CMainWindow window(m_sandbox.filePath(u"none"_qs));
    CReferenceMenu &menu = window.reference();
    {
        CActionManager &gate = Singleton<CActionManager>::instance();
        gate.blockActions();
        const auto unblock = qScopeGuard([&gate] { gate.unBlockActions(); });
        menu.actions().at(0)->trigger();
        QCOMPARE(menu.presetBrowser(), nullptr);
    }
    QTRY_VERIFY_WITH_TIMEOUT(menu.presetBrowser() != nullptr, watchdogMs);
}

void tst_TimeLine::liveLanguage_isSpokenAtOnce_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("decade");

    QTest::newRow("de") << u"de"_qs << u"Geschichte des fotografischen Films"_qs << u"19. Jahrhundert"_qs;
    QTest::newRow("fr") << u"fr"_qs << u"Histoire du film photographique"_qs << u"19ème Siècle"_qs;
    QTest::newRow("ja") << u"ja"_qs << u"フィルムの歴史"_qs << u"19世紀"_qs;
    QTest::newRow("zh_CN") << u"zh_CN"_qs << u"胶片历史"_qs << u"19世纪"_qs;
}

void tst_TimeLine::liveLanguage_isSpokenAtOnce()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    const CTimeLine timeLine(CFilmHistory(), m_library);
    QCOMPARE(part<QLabel>(timeLine, u"decadeLabel"_qs)->text(), u"19 Century"_qs);
    speakAtOnce(language);

    QTEST(timeLine.windowTitle(), "title");
    QTEST(part<QLabel>(timeLine, u"decadeLabel"_qs)->text(), "decade");
    const HistoryEvent event = CFilmHistory().decades().constFirst().events.constFirst();
    QVERIFY(event.titles.value(language) != event.titles.value(u"en"_qs));
    QVERIFY2(eventsIn(timeLine).startsWith(event.titles.value(language)), qPrintable(eventsIn(timeLine)));
}

void tst_TimeLine::liveLanguage_keepsTheDecade()
{
    RUN_IN_FRESH_PROCESS();
    const CTimeLine timeLine(CFilmHistory(), m_library);
    auto *decades = part<QListWidget>(timeLine, u"decadeList"_qs);
    decades->setCurrentRow(3);
    speakAtOnce(u"de"_qs);
    QCOMPARE(decades->currentRow(), 3);
    QCOMPARE(part<QLabel>(timeLine, u"decadeLabel"_qs)->text(), u"1920's"_qs); // it has no other name
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_TimeLine test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_TimeLine.moc"
