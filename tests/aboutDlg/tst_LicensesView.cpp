// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"
#include "support/FreshProcess.h"
#include "support/TestLog.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

using namespace ZYX_zglv6;
using AboutBox::description;
using AboutBox::write;

namespace {

const QString starLine = QString(54, u'*');

bool isTransparent(const QTextBrowser &browser)
{
    return browser.palette().color(QPalette::Base).alpha() == 0
        && browser.palette().color(QPalette::Window).alpha() == 0;
}

} // namespace

class tst_LicensesView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void page_showsAcknowledgementAndLicenses();
    void page_ofALanguage_hasItsAcknowledgement_data();
    void page_ofALanguage_hasItsAcknowledgement();
    void page_visitedAgain_isNotReadAgain();
    void page_withoutFiles_hasTheAcknowledgement();
    void page_untilThereIsAFolder_isEmpty();
    void page_untilTheInstallationTells_isEmpty();
    void page_withoutLicenses_isNotReported_data();
    void page_withoutLicenses_isNotReported();
    void page_ofManyLines_isShown();

private:
    void install();

    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
    QTemporaryDir m_installation;
};

/*! As the installer leaves it, without the folder of licences. */
void tst_LicensesView::install()
{
    m_machine.setValue(u"ZyxPSQtPlugInDllDir"_qs, m_installation.path());
}

void tst_LicensesView::page_showsAcknowledgementAndLicenses()
{
    RUN_IN_FRESH_PROCESS();
    install();
    QVERIFY(write(m_installation.filePath(u"Licenses/a.txt"_qs), "first <b>line</b>\nsecond line\n"));
    QVERIFY(write(m_installation.filePath(u"Licenses/b.txt"_qs), "other\n"));
    const CAboutDlg dialog(nullptr, {});
    AboutBox::followLastLink(dialog);

    const QString text = description(dialog).toPlainText();
    QCOMPARE(text.count(starLine), 3);
    const QStringList parts = text.split(starLine);
    QVERIFY(parts[0].contains(u"copyrighted material"));
    QVERIFY(parts[1].contains(u"trademarks of their respective owners"));
    QStringList licenses{parts[2].trimmed(), parts[3].trimmed()};
    licenses.sort();
    QCOMPARE(licenses, (QStringList{u"first line\nsecond line"_qs, u"other"_qs}));
    const QTextDocument &document = *description(dialog).document();
    const QTextCharFormat format = document.find(u"other"_qs).charFormat();
    QCOMPARE(format.foreground().color(), QColor(u"#999999"_qs));
    QCOMPARE(format.intProperty(QTextFormat::FontPixelSize), 13);
    QCOMPARE(format.fontFamilies().toStringList(),
             (QStringList{u"Roboto Light"_qs, u"arial"_qs, u"verdana"_qs, u"sans-serif"_qs}));
    QVERIFY(isTransparent(description(dialog)));
}

void tst_LicensesView::page_ofALanguage_hasItsAcknowledgement_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("trademarks");

    QTest::newRow("en") << u"en"_qs << u"trademarks of their respective owners."_qs;
    QTest::newRow("de") << u"de"_qs << u"Marken ihrer jeweiligen Inhaber."_qs;
    QTest::newRow("fr") << u"fr"_qs << u"marques de leurs propri\u00e9taires respectifs."_qs;
    QTest::newRow("ja") << u"ja"_qs << u"\u5404\u6240\u6709\u8005\u306e\u5546\u6a19\u3067\u3059\u3002"_qs;
    QTest::newRow("zh_CN") << u"zh_CN"_qs << u"\u5404\u81ea\u6240\u6709\u8005\u7684\u5546\u6807\u3002"_qs;
}

void tst_LicensesView::page_ofALanguage_hasItsAcknowledgement()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    QFETCH(const QString, trademarks);
    const AboutBox::Language spoken(language);
    install();
    QVERIFY(write(m_installation.filePath(u"Licenses/a.txt"_qs), "license"));
    const CAboutDlg dialog(nullptr, {});
    AboutBox::followLastLink(dialog);
    const QStringList parts = description(dialog).toPlainText().split(starLine);
    QCOMPARE(parts.size(), 3);
    QVERIFY2(parts[1].contains(trademarks), qPrintable(parts[1]));
    QCOMPARE(parts[2].trimmed(), u"license"_qs);
    QVERIFY(!description(dialog).toPlainText().contains(u'%'));
}

void tst_LicensesView::page_visitedAgain_isNotReadAgain()
{
    RUN_IN_FRESH_PROCESS();
    install();
    const QString path = m_installation.filePath(u"Licenses/a.txt"_qs);
    QVERIFY(write(path, "license"));
    const CAboutDlg dialog(nullptr, {});
    AboutBox::followLastLink(dialog);
    const QString text = description(dialog).toPlainText();
    QVERIFY(text.contains(u"license"));
    AboutBox::backButton(dialog).click();
    QVERIFY(write(path, "changed"));
    AboutBox::followLastLink(dialog);
    QCOMPARE(description(dialog).toPlainText(), text);

    const CAboutDlg next(nullptr, {}); // each dialog has a page of its own
    AboutBox::followLastLink(next);
    QVERIFY(description(next).toPlainText().contains(u"changed"));
}

void tst_LicensesView::page_withoutFiles_hasTheAcknowledgement()
{
    RUN_IN_FRESH_PROCESS();
    install();
    QVERIFY(QDir().mkpath(m_installation.filePath(u"Licenses"_qs)));
    const CAboutDlg dialog(nullptr, {});
    AboutBox::followLastLink(dialog);
    const QString text = description(dialog).toPlainText();
    QCOMPARE(text.count(starLine), 2);
    QVERIFY(text.trimmed().endsWith(starLine));
}

void tst_LicensesView::page_untilThereIsAFolder_isEmpty()
{
    RUN_IN_FRESH_PROCESS();
    install();
    const CAboutDlg dialog(nullptr, {});
    for (int visit = 0; visit < 2; ++visit) {
        AboutBox::followLastLink(dialog);
        QCOMPARE(description(dialog).toPlainText(), QString());
        QVERIFY(isTransparent(description(dialog)));
    }
    QVERIFY(write(m_installation.filePath(u"Licenses/a.txt"_qs), "license"));
    AboutBox::followLastLink(dialog);
    QVERIFY(description(dialog).toPlainText().contains(u"license"));
}

void tst_LicensesView::page_untilTheInstallationTells_isEmpty()
{
    RUN_IN_FRESH_PROCESS();
    QVERIFY(write(m_installation.filePath(u"Licenses/a.txt"_qs), "license"));
    const CAboutDlg dialog(nullptr, {});
    for (int visit = 0; visit < 2; ++visit) {
        AboutBox::followLastLink(dialog);
        QCOMPARE(AboutBox::page(dialog), u"licensesPage"_qs);
        QCOMPARE(description(dialog).toPlainText(), QString());
        QVERIFY(!isTransparent(description(dialog)));
    }
    install();
    AboutBox::followLastLink(dialog);
    QVERIFY(description(dialog).toPlainText().contains(u"license"));
}

void tst_LicensesView::page_withoutLicenses_isNotReported_data()
{
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<bool>("hasFolder");

    QTest::newRow("no value") << false << false;
    QTest::newRow("no folder") << true << false;
    QTest::newRow("no file") << true << true;
}

void tst_LicensesView::page_withoutLicenses_isNotReported()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const bool, isInstalled);
    QFETCH(const bool, hasFolder);
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    if (isInstalled) {
        install();
    }
    QVERIFY(!hasFolder || QDir().mkpath(m_installation.filePath(u"Licenses"_qs)));
    const CAboutDlg dialog(nullptr, {});
    AboutBox::followLastLink(dialog);
    QCOMPARE(description(dialog).toPlainText().isEmpty(), !hasFolder);
    QCOMPARE(log.records(), QStringList());
}

void tst_LicensesView::page_ofManyLines_isShown()
{
    RUN_IN_FRESH_PROCESS();
    install();
    constexpr int lineCount = 9'000; // of 70 letters, some twenty licences
    const QByteArray line = QByteArray(69, 'x') + '\n';
    QVERIFY(write(m_installation.filePath(u"Licenses/a.txt"_qs), line.repeated(lineCount) + "the end"));
    CAboutDlg dialog(nullptr, {});
    dialog.show();
    AboutBox::followLastLink(dialog);
    const QString text = description(dialog).toPlainText();
    QCOMPARE(text.count(u"xxx\n"), lineCount);
    QVERIFY(text.trimmed().endsWith(u"the end"));
}

QTEST_MAIN(tst_LicensesView)

#include "tst_LicensesView.moc"
