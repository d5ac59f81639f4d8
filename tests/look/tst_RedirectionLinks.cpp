// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/LanguageManagerParts.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/RedirectionLinks.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QThread>
#include <QtCore/QUrl>
#include <QtTest/QTest>

#include <array>
#include <memory>
#include <type_traits>

using namespace ZYX_zglv6;
using LanguageManagerParts::setLoadedLanguage;

static_assert(std::is_copy_assignable_v<CRedirectionLinks> && std::is_empty_v<CRedirectionLinks>);
static_assert(CRedirectionLinks::linkHome == 0 && CRedirectionLinks::linkImprovementProgram == 1
              && CRedirectionLinks::linkSupport == 2 && CRedirectionLinks::linkLearning == 3
              && CRedirectionLinks::linkShop == 4 && CRedirectionLinks::linkPatents == 5
              && CRedirectionLinks::linkHelp == 6 && CRedirectionLinks::linkUserGuide == 7);

namespace {

constexpr int firstUnknownType = 8;

struct Language
{
    unsigned int number;
    std::array<const char *, 9> addresses; // of the types 0 to 7 and of a value that is none, behind the host
};

const std::array<Language, 7> languages{{
    {1033,
     {"en/redirect/gl6/home", "intl/redirect/gl/improvement_program", "en/redirect/gl6/support",
      "en/redirect/gl6/learning", "en/redirect/gl6/shop", "intl/redirect/gl/patents", "en/redirect/gl6/help",
      "en/redirect/gl6/user-guide.pdf", "en/redirect/gl6/"}},
    {1036,
     {"fr/redirect/gl6/home", "fr/redirect/gl/improvement_program", "fr/redirect/gl6/support",
      "fr/redirect/gl6/learning", "fr/redirect/gl6/shop", "fr/redirect/gl/patents", "fr/redirect/gl6/help",
      "fr/redirect/gl6/user-guide.pdf", "fr/redirect/gl6/"}},
    {1031,
     {"de/redirect/gl6/home", "de/redirect/gl/improvement_program", "de/redirect/gl6/support",
      "de/redirect/gl6/learning", "de/redirect/gl6/shop", "de/redirect/gl/patents", "de/redirect/gl6/help",
      "de/redirect/gl6/user-guide.pdf", "de/redirect/gl6/"}},
    {1041,
     {"ja/redirect/gl6/home", "jp/redirect/gl/improvement_program", "ja/redirect/gl6/support",
      "ja/redirect/gl6/learning", "ja/redirect/gl6/shop", "jp/redirect/gl/patents", "ja/redirect/gl6/help",
      "ja/redirect/gl6/user-guide.pdf", "ja/redirect/gl6/"}},
    {2052,
     {"zh-cn/redirect/gl6/home", "zh-cn/redirect/gl/improvement_program", "zh-cn/redirect/gl6/support",
      "zh-cn/redirect/gl6/learning", "zh-cn/redirect/gl6/shop", "zh-cn/redirect/gl/patents", "zh-cn/redirect/gl6/help",
      "zh-cn/redirect/gl6/user-guide.pdf", "zh-cn/redirect/gl6/"}},
    {0,
     {"en/redirect/gl6/home", "intl/redirect/gl/improvement_program", "en/redirect/gl6/support",
      "en/redirect/gl6/learning", "en/redirect/gl6/shop", "intl/redirect/gl/patents", "en/redirect/gl6/help",
      "en/redirect/gl6/user-guide.pdf", "en/redirect/gl6/"}},
    {0xFFFFFFFF,
     {"en/redirect/gl6/home", "intl/redirect/gl/improvement_program", "en/redirect/gl6/support",
      "en/redirect/gl6/learning", "en/redirect/gl6/shop", "intl/redirect/gl/patents", "en/redirect/gl6/help",
      "en/redirect/gl6/user-guide.pdf", "en/redirect/gl6/"}},
}};

QString linkOf(int type)
{
    return CRedirectionLinks::get(CRedirectionLinks::zyxLinkType(type), CLanguageManager::getInstance());
}

QString addressOf(const char *rest)
{
    return u"https://"_qs + QString::fromUtf8(ZYX_WEB_HOST) + u'/' + QString::fromUtf8(rest);
}

} // namespace

class tst_RedirectionLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void get_ofEachTypeAndLanguage_isTheAddress_data();
    void get_ofEachTypeAndLanguage_isTheAddress();
    void get_ofAnUnknownType_endsBeforeTheName_data();
    void get_ofAnUnknownType_endsBeforeTheName();
    void get_isAValidAddressWithoutPort();
    void get_beforeALanguageIsLoaded_isEnglishOrInternational();
    void get_afterTheLoad_isInTheLoadedLanguage_data();
    void get_afterTheLoad_isInTheLoadedLanguage();
    void get_afterAnotherChoice_staysInTheLoadedLanguage();
    void get_onAnotherThread_isTheSame();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_RedirectionLinks::get_ofEachTypeAndLanguage_isTheAddress_data()
{
    QTest::addColumn<unsigned int>("language");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("address");

    for (const Language &language : languages) {
        for (int type = 0; type <= firstUnknownType; ++type) {
            const char *address = language.addresses.at(std::size_t(type));
            QTest::addRow("%u, %d: %s", language.number, type, address)
                << language.number << type << addressOf(address);
        }
    }
}

void tst_RedirectionLinks::get_ofEachTypeAndLanguage_isTheAddress()
{
    QFETCH(const unsigned int, language);
    QFETCH(const int, type);
    QFETCH(const QString, address);

    setLoadedLanguage(CLanguageManager::getInstance(), language);
    QCOMPARE(linkOf(type), address);
}

void tst_RedirectionLinks::get_ofAnUnknownType_endsBeforeTheName_data()
{
    QTest::addColumn<int>("type");

    QTest::newRow("one below") << -1;
    QTest::newRow("one beyond") << firstUnknownType;
    QTest::newRow("far beyond") << 1000;
}

void tst_RedirectionLinks::get_ofAnUnknownType_endsBeforeTheName()
{
    QFETCH(const int, type);

    setLoadedLanguage(CLanguageManager::getInstance(), 1036);
    QCOMPARE(linkOf(type), addressOf("fr/redirect/gl6/")); // whatever is not 1 or 5 is about the product
}

void tst_RedirectionLinks::get_isAValidAddressWithoutPort()
{
    setLoadedLanguage(CLanguageManager::getInstance(), 2052);
    const QUrl url(linkOf(CRedirectionLinks::linkUserGuide), QUrl::StrictMode);
    QVERIFY(url.isValid());
    QCOMPARE(url.scheme(), u"https"_qs);
    QVERIFY(!url.host().isEmpty());
    QCOMPARE(url.port(), -1);
    QCOMPARE(url.path(), u"/zh-cn/redirect/gl6/user-guide.pdf"_qs);
}

void tst_RedirectionLinks::get_beforeALanguageIsLoaded_isEnglishOrInternational()
{
    RUN_IN_FRESH_PROCESS();
    CSettings().setValue(languageKey, 1031); // only chosen
    QCOMPARE(CLanguageManager::getInstance().loadedLanguageID(), 0xFFFFFFFFU);
    QCOMPARE(linkOf(CRedirectionLinks::linkSupport), addressOf("en/redirect/gl6/support"));
    QCOMPARE(linkOf(CRedirectionLinks::linkPatents), addressOf("intl/redirect/gl/patents"));
}

void tst_RedirectionLinks::get_afterTheLoad_isInTheLoadedLanguage_data()
{
    QTest::addColumn<unsigned int>("number");
    QTest::addColumn<QString>("help");
    QTest::addColumn<QString>("patents");

    const auto add = [](const char *name, unsigned int number, const char *help, const char *patents) {
        QTest::newRow(name) << number << addressOf(help) << addressOf(patents);
    };
    add("English", 1033, "en/redirect/gl6/help", "intl/redirect/gl/patents");
    add("German", 1031, "de/redirect/gl6/help", "de/redirect/gl/patents");
    add("French", 1036, "fr/redirect/gl6/help", "fr/redirect/gl/patents");
    add("Japanese", 1041, "ja/redirect/gl6/help", "jp/redirect/gl/patents");
    add("Chinese", 2052, "zh-cn/redirect/gl6/help", "zh-cn/redirect/gl/patents");
    add("no language", 7, "en/redirect/gl6/help", "intl/redirect/gl/patents");
}

void tst_RedirectionLinks::get_afterTheLoad_isInTheLoadedLanguage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const unsigned int, number);
    QFETCH(const QString, help);
    QFETCH(const QString, patents);

    CSettings().setValue(languageKey, number);
    CLanguageManager::getInstance().loadLanguageForApp();
    QCOMPARE(linkOf(CRedirectionLinks::linkHelp), help);
    QCOMPARE(linkOf(CRedirectionLinks::linkPatents), patents);
}

void tst_RedirectionLinks::get_afterAnotherChoice_staysInTheLoadedLanguage()
{
    RUN_IN_FRESH_PROCESS();
    CLanguageManager &manager = CLanguageManager::getInstance();
    CSettings().setValue(languageKey, 1031);
    manager.loadLanguageForApp();
    QVERIFY(manager.changeLanguage(manager.getLanguageIndexFromId(1041)));
    QCOMPARE(manager.settingsAbbrv(), u"ja"_qs);
    QCOMPARE(linkOf(CRedirectionLinks::linkPatents), addressOf("de/redirect/gl/patents"));
}

void tst_RedirectionLinks::get_onAnotherThread_isTheSame()
{
    RUN_IN_FRESH_PROCESS(); // the first call of all
    setLoadedLanguage(CLanguageManager::getInstance(), 1041);
    QString link;
    const std::unique_ptr<QThread> thread(
        QThread::create([&link] { link = linkOf(CRedirectionLinks::linkImprovementProgram); }));
    thread->start();
    QVERIFY(thread->wait(60'000));
    QCOMPARE(link, addressOf("jp/redirect/gl/improvement_program"));
}

QTEST_GUILESS_MAIN(tst_RedirectionLinks)

#include "tst_RedirectionLinks.moc"
