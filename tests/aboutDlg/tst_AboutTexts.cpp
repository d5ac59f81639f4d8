// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"
#include "support/FreshProcess.h"

#include "utilsDll/frame/ProductData_p.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QAccessible>

using namespace ZYX_zglv6;

namespace {

void addLanguageRows()
{
    QTest::addColumn<QString>("language");
    for (const char *language : AboutBox::languages) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

const QString linkStyle = QStringLiteral("<style>a { color: #ce7044; }</style>");

constexpr char legalFormOfTheSource[]
    = "%1 is a trademark of Zyx Labs. This software is protected<br>by copyright law and by international treaties."
      "<br>Parts of it may be covered by patents: see <a href=\"%2\">patents and notices</a>.<br><br>"
      "<a href=\"%1\">Read the licenses of the third-party software in this product.</a>";

/*! A language with one place more in its legal line. */
class WordyLanguage : public QTranslator
{
    Q_OBJECT

public:
    QString translate(const char *context, const char *source, const char * /*remark*/, int /*count*/) const override
    {
        const bool isLegalForm = qstrcmp(context, "aboutDlg") == 0 && qstrcmp(source, legalFormOfTheSource) == 0;
        return isLegalForm ? u"%1 and %2,%3 and %1."_qs : QString();
    }

    bool isEmpty() const override
    {
        return false;
    }
};

QString addressOf(const QString &page)
{
    return u"https://"_qs + QStringLiteral(ZYX_WEB_HOST) + u'/' + page;
}

} // namespace

class tst_AboutTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_ofALanguage_areItsOwn_data();
    void texts_ofALanguage_areItsOwn();
    void texts_withoutLanguage_areEnglish();
    void version_isThatOfTheLibrary();
    void legalForm_ofALanguage_keepsItsPlacesAndLinks_data();
    void legalForm_ofALanguage_keepsItsPlacesAndLinks();
    void legalLine_ofALanguage_namesProductAndAddresses_data();
    void legalLine_ofALanguage_namesProductAndAddresses();
    void legalLine_withAThirdPlace_leavesItEmpty();
    void addresses_areInTheLoadedLanguage_data();
    void addresses_areInTheLoadedLanguage();
    void labels_ofALanguage_areSpokenAsPlainText_data();
    void labels_ofALanguage_areSpokenAsPlainText();
    void webSite_isALinkToTheHomePage();
    void copyrightLine_isWrittenInItsOwnFont();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_AboutTexts::texts_ofALanguage_areItsOwn_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("slogan");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("back");

    QTest::newRow("en") << u"en"_qs << u"About Zyx Grainlab"_qs << u"The look of real film."_qs
                        << u"Version 6.4.0 / Build 314 / 64 bits"_qs << u"Back"_qs;
    QTest::newRow("de") << u"de"_qs << u"\u00dcber Zyx Grainlab"_qs << u"So sieht echter Film aus."_qs
                        << u"Version 6.4.0 / Build 314 / 64 Bit"_qs << u"Zur\u00fcck"_qs;
    QTest::newRow("fr") << u"fr"_qs << u"\u00c0 propos de Zyx Grainlab"_qs << u"Le vrai rendu de la pellicule."_qs
                        << u"Version 6.4.0 / Build 314 / 64\u00a0bits"_qs << u"Retour"_qs;
    QTest::newRow("ja") << u"ja"_qs << u"Zyx Grainlab \u306b\u3064\u3044\u3066"_qs
                        << u"\u672c\u7269\u306e\u30d5\u30a3\u30eb\u30e0\u306e\u98a8\u5408\u3044\u3092\u3002"_qs
                        << u"\u30d0\u30fc\u30b8\u30e7\u30f3 6.4.0 / \u30d3\u30eb\u30c9 314 / 64 \u30d3\u30c3\u30c8"_qs
                        << u"\u623b\u308b"_qs;
    QTest::newRow("zh_CN") << u"zh_CN"_qs << u"\u5173\u4e8e Zyx Grainlab"_qs
                           << u"\u91cd\u73b0\u771f\u5b9e\u80f6\u7247\u7684\u8d28\u611f\u3002"_qs
                           << u"\u7248\u672c 6.4.0 / \u5185\u90e8\u7248\u672c 314 / 64 \u4f4d"_qs << u"\u8fd4\u56de"_qs;
}

void tst_AboutTexts::texts_ofALanguage_areItsOwn()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    const CAboutDlg dialog(nullptr, {});
    QTEST(dialog.windowTitle(), "title");
    QTEST(AboutBox::label(dialog, u"sloganLabel"_qs).text(), "slogan");
    QTEST(AboutBox::label(dialog, u"versionLabel"_qs).text(), "version");
    QTEST(AboutBox::backButton(dialog).accessibleName(), "back");
    QCOMPARE(AboutBox::label(dialog, u"logoVersionLabel"_qs).text(), u"6"_qs);
    QCOMPARE(AboutBox::label(dialog, u"productNameLabel"_qs).text(), u"Zyx Grainlab 6"_qs);
}

void tst_AboutTexts::texts_withoutLanguage_areEnglish()
{
    const CAboutDlg dialog(nullptr, {});
    QCOMPARE(dialog.windowTitle(), u"About Zyx Grainlab"_qs);
    QCOMPARE(AboutBox::label(dialog, u"versionLabel"_qs).text(), u"Version 6.4.0 / Build 314 / 64 bits"_qs);
    QCOMPARE(AboutBox::description(dialog).accessibleName(), u"Licenses"_qs);
}

void tst_AboutTexts::version_isThatOfTheLibrary()
{
    const CAboutDlg dialog(nullptr, {});
    const QStringList numbers = QString(libraryVersion()).split(u'.');
    QCOMPARE(numbers.size(), 4);
    QCOMPARE(AboutBox::label(dialog, u"logoVersionLabel"_qs).text(), numbers[0]);
    QCOMPARE(AboutBox::label(dialog, u"versionLabel"_qs).text(),
             u"Version %1 / Build %2 / 64 bits"_qs.arg(numbers.first(3).join(u'.'), numbers[3]));
}

void tst_AboutTexts::legalForm_ofALanguage_keepsItsPlacesAndLinks_data()
{
    addLanguageRows();
}

void tst_AboutTexts::legalForm_ofALanguage_keepsItsPlacesAndLinks()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    const QString form = QCoreApplication::translate("aboutDlg", legalFormOfTheSource);
    QCOMPARE(form.count(u"%1"), 2);
    QCOMPARE(form.count(u"%2"), 1);
    QCOMPARE(form.count(u'%'), 3);
    QVERIFY(form.startsWith(u"%1"));
    const QRegularExpression links(u"<a href=\"%2\">[^<>]+</a>.*<br><br><a href=\"%1\">[^<>]+[.\u3002]</a>$"_qs);
    QVERIFY2(links.match(form).hasMatch(), qPrintable(form));
    QCOMPARE(form.count(u"<a "), 2);
    QCOMPARE(form == QString::fromUtf8(legalFormOfTheSource), language == u"en");
}

void tst_AboutTexts::legalLine_ofALanguage_namesProductAndAddresses_data()
{
    addLanguageRows();
}

void tst_AboutTexts::legalLine_ofALanguage_namesProductAndAddresses()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    const CAboutDlg dialog(nullptr, {});
    const QString line = AboutBox::label(dialog, u"copyrightTextLabel"_qs).text();
    QVERIFY2(line.startsWith(linkStyle + u"Zyx Grainlab "), qPrintable(line));
    const QString patents = addressOf(u"intl/redirect/gl/patents"_qs);
    QVERIFY2(line.contains(u"<a href=\""_qs + patents + u"\">"_qs), qPrintable(line));
    QVERIFY2(line.contains(u"<br><br><a href=\"Zyx Grainlab\">"), qPrintable(line));
    QVERIFY2(!line.contains(u'%'), qPrintable(line));
}

void tst_AboutTexts::legalLine_withAThirdPlace_leavesItEmpty()
{
    WordyLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    const CAboutDlg dialog(nullptr, {});
    QCOMPARE(AboutBox::label(dialog, u"copyrightTextLabel"_qs).text(),
             linkStyle + u"Zyx Grainlab and "_qs + addressOf(u"intl/redirect/gl/patents"_qs)
                 + u", and Zyx Grainlab."_qs);
}

void tst_AboutTexts::addresses_areInTheLoadedLanguage_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("patents");

    QTest::newRow("German") << 1031 << u"de/redirect/gl6/home"_qs << u"de/redirect/gl/patents"_qs;
    QTest::newRow("Japanese") << 1041 << u"ja/redirect/gl6/home"_qs << u"jp/redirect/gl/patents"_qs;
}

void tst_AboutTexts::addresses_areInTheLoadedLanguage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, number);
    QFETCH(const QString, home);
    QFETCH(const QString, patents);
    CSettings().setValue(languageKey, number);
    CLanguageManager::getInstance().loadLanguageForApp();
    const CAboutDlg dialog(nullptr, {});
    const auto leadsTo = [&dialog](const QString &name, const QString &page) {
        return AboutBox::label(dialog, name).text().contains(u"<a href=\""_qs + addressOf(page) + u"\">"_qs);
    };
    QVERIFY(leadsTo(u"zyxLinkLabel"_qs, home));
    QVERIFY(leadsTo(u"copyrightTextLabel"_qs, patents));
}

void tst_AboutTexts::labels_ofALanguage_areSpokenAsPlainText_data()
{
    addLanguageRows();
}

void tst_AboutTexts::labels_ofALanguage_areSpokenAsPlainText()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    const CAboutDlg dialog(nullptr, {});
    const QList<QLabel *> labels = dialog.findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const QAccessibleInterface *part = QAccessible::queryAccessibleInterface(label);
        QCOMPARE(part->role(), QAccessible::StaticText);
        QVERIFY2(!part->text(QAccessible::Name).isEmpty(), qPrintable(label->objectName()));
        QVERIFY2(!part->text(QAccessible::Name).contains(u'<'), qPrintable(part->text(QAccessible::Name)));
    }
}

void tst_AboutTexts::webSite_isALinkToTheHomePage()
{
    const CAboutDlg dialog(nullptr, {});
    const QString host = QStringLiteral(ZYX_WEB_HOST);
    QCOMPARE(AboutBox::label(dialog, u"zyxLinkLabel"_qs).text(),
             linkStyle + u"<a href=\"https://"_qs + host + u"/en/redirect/gl6/home\">"_qs + host + u"</a>"_qs);
}

void tst_AboutTexts::copyrightLine_isWrittenInItsOwnFont()
{
    CAboutDlg dialog(nullptr, {});
    QLabel &label = AboutBox::label(dialog, u"leftCopyrightLabel"_qs);
    QCOMPARE(label.text(), u"\u00a9 2026 Zyx Labs"_qs);
    QCOMPARE(label.styleSheet(), u"background:black;color: #683a22;font-size: 8px;font-family: \"Tahoma\";"_qs);
    dialog.show();
    QCOMPARE(label.font().pixelSize(), 8);
    QCOMPARE(label.font().letterSpacingType(), QFont::AbsoluteSpacing);
    QVERIFY(qAbs(label.font().letterSpacing() - 1.05) < 1.0 / 64); // what a font keeps of it
    QCOMPARE(AboutBox::label(dialog, u"logoVersionLabel"_qs).styleSheet(), u"font-size:45px"_qs);
    QCOMPARE(AboutBox::label(dialog, u"sloganLabel"_qs).styleSheet(), u"font-size:23px"_qs);
}

QTEST_MAIN(tst_AboutTexts)

#include "tst_AboutTexts.moc"
