// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "HelpMenu.h"
#include "LanguageMenu.h"
#include "LightboxApplication.h"
#include "MainWindow.h"

#include "common/Look.h"

#include "utilsDll/actions/ActionManager.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/RedirectionLinks.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/look/customzyxappstyle.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QScopeGuard>
#include <QtGui/QAction>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtGui/QStandardItemModel>
#include <QtTest/QTest>

#include <algorithm>
#include <memory>

using namespace ZYX_zglv6;

namespace {

constexpr int german = 1031;
constexpr int watchdogMs = 10'000;

QAction *actionOf(const QMenu &menu, const QString &text)
{
    const QList<QAction *> actions = menu.actions();
    const auto found = std::find_if(actions.cbegin(), actions.cend(),
                                    [&text](QAction *action) { return action->text().remove(u'&') == text; });
    return found == actions.cend() ? nullptr : *found;
}

int storedLanguage()
{
    return CSettings().value(languageKey, 0).toInt();
}

} // namespace

/*! The menus of languages and of help, and what the window wears. */
class tst_Menus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void languages_areThoseOfTheBuild();
    void languages_theChosenOneIsMarked();
    void languages_unknownChoice_marksNone();
    void language_chosen_isStoredForTheNextStart();
    void language_chosenAgain_saysNothing();
    void language_chosenThroughAClosedGate_comesLater();
    void help_showsTheAddress_data();
    void help_showsTheAddress();
    void application_wearsFontsIconAndStyle();
    void window_wearsTheSheets();

private:
    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<CMainWindow> m_window;
    CLanguageMenu *m_languages = nullptr;
};

void tst_Menus::initTestCase()
{
    putOnLook(QString());
}

void tst_Menus::init()
{
    CSettings().remove(languageKey);
    m_window.reset();
    m_window = std::make_unique<CMainWindow>(m_sandbox.filePath(u"none"_qs));
    m_languages = m_window->findChild<CLanguageMenu *>();
}

void tst_Menus::languages_areThoseOfTheBuild()
{
    QStringList names;
    for (const QAction *action : m_languages->actions()) {
        names.append(action->text());
    }
    names.sort();
    QCOMPARE(names, (QStringList{u"Deutsch"_qs, u"English"_qs, u"Français"_qs, u"日本語"_qs, u"简体中文"_qs}));
}

void tst_Menus::languages_theChosenOneIsMarked()
{
    QVERIFY(actionOf(*m_languages, u"English"_qs)->isChecked());
    CSettings().setValue(languageKey, german);
    m_languages->popup(QPoint(0, 0));
    QVERIFY(actionOf(*m_languages, u"Deutsch"_qs)->isChecked());
    QVERIFY(!actionOf(*m_languages, u"English"_qs)->isChecked());
    m_languages->hide();
}

void tst_Menus::language_chosen_isStoredForTheNextStart()
{
    const unsigned int loaded = CLanguageManager::getInstance().loadedLanguageID();
    actionOf(*m_languages, u"Deutsch"_qs)->trigger();
    QCOMPARE(storedLanguage(), german);
    QCOMPARE(m_window->statusText(), u"Deutsch will be spoken from the next start on"_qs);
    QCOMPARE(CLanguageManager::getInstance().loadedLanguageID(), loaded);
}

void tst_Menus::language_chosenAgain_saysNothing()
{
    actionOf(*m_languages, u"English"_qs)->trigger();
    QCOMPARE(storedLanguage(), 0);
    QCOMPARE(m_window->statusText(), QString());
}

void tst_Menus::language_chosenThroughAClosedGate_comesLater()
{
    {
        CActionManager &gate = Singleton<CActionManager>::instance();
        gate.blockActions();
        const auto unblock = qScopeGuard([&gate] { gate.unBlockActions(); });
        actionOf(*m_languages, u"Deutsch"_qs)->trigger();
        QCOMPARE(storedLanguage(), 0);
        m_languages->popup(QPoint(0, 0)); // shows what is chosen so far
        QVERIFY(actionOf(*m_languages, u"English"_qs)->isChecked());
        m_languages->hide();
    }
    QTRY_COMPARE_WITH_TIMEOUT(storedLanguage(), german, watchdogMs);
    QVERIFY(actionOf(*m_languages, u"Deutsch"_qs)->isChecked());
}

void tst_Menus::languages_unknownChoice_marksNone()
{
    CSettings().setValue(languageKey, 1);
    m_languages->popup(QPoint(0, 0));
    for (const QAction *action : m_languages->actions()) {
        QVERIFY2(!action->isChecked(), qPrintable(action->text()));
    }
    m_languages->hide();
}

void tst_Menus::help_showsTheAddress_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<CRedirectionLinks::zyxLinkType>("type");

    QTest::newRow("help") << u"Help"_qs << CRedirectionLinks::linkHelp;
    QTest::newRow("user guide") << u"User guide"_qs << CRedirectionLinks::linkUserGuide;
    QTest::newRow("learning") << u"Learning"_qs << CRedirectionLinks::linkLearning;
    QTest::newRow("support") << u"Support"_qs << CRedirectionLinks::linkSupport;
    QTest::newRow("home") << u"Home page"_qs << CRedirectionLinks::linkHome;
    QTest::newRow("shop") << u"Shop"_qs << CRedirectionLinks::linkShop;
    QTest::newRow("improvement") << u"Improvement program"_qs << CRedirectionLinks::linkImprovementProgram;
    QTest::newRow("patents") << u"Patents"_qs << CRedirectionLinks::linkPatents;
}

void tst_Menus::help_showsTheAddress()
{
    QFETCH(const QString, text);
    QFETCH(const CRedirectionLinks::zyxLinkType, type);

    actionOf(*m_window->findChild<CHelpMenu *>(), text)->trigger();
    QCOMPARE(m_window->statusText(), CRedirectionLinks::get(type, CLanguageManager::getInstance()));
}

void tst_Menus::application_wearsFontsIconAndStyle()
{
    QVERIFY(QFontDatabase::hasFamily(u"RobotoMedium"_qs));
    QCOMPARE(m_window->windowIcon().availableSizes().size(), 8);
    QVERIFY(qobject_cast<CustomZyxAppStyle *>(QApplication::style()));
    QCOMPARE(loadedLanguageName(), u"English"_qs);
}

void tst_Menus::window_wearsTheSheets()
{
    QWidget other;
    setCustomStyleSheet(&other, QssLoadBaseSheets, QString());
    QVERIFY(!other.styleSheet().isEmpty());
    QCOMPARE(m_window->styleSheet(), other.styleSheet());
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_Menus test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_Menus.moc"
