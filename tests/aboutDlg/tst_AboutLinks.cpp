// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "aboutDlg/AboutBox.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

using namespace ZYX_zglv6;

namespace {

QUrl siteAddress(const QString &path)
{
    return QUrl(u"https://"_qs + QStringLiteral(ZYX_WEB_HOST) + path);
}

/*! Where in the label a link to \a address lies; (-1, -1) for nowhere. */
QPoint placeOfLink(QLabel &label, const QString &address)
{
    constexpr int step = 3; // smaller than a letter
    QString hovered;
    const QMetaObject::Connection connection
        = QObject::connect(&label, &QLabel::linkHovered, &label, [&hovered](const QString &link) { hovered = link; });
    QPoint found(-1, -1);
    for (int y = 0; y < label.height() && found.x() < 0; y += step) {
        for (int x = 0; x < label.width() && found.x() < 0; x += step) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, y), label.mapToGlobal(QPointF(x, y)), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(&label, &move);
            found = hovered == address ? QPoint(x + 1, y + 1) : found;
        }
    }
    QObject::disconnect(connection);
    return found;
}

/*! Goes on by the tabulator until \a widget has the focus; false if it never gets it. */
bool tabTo(QWidget &dialog, const QWidget &widget)
{
    constexpr int mostSteps = 20;
    for (int i = 0; i < mostSteps && !widget.hasFocus(); ++i) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &dialog, Qt::Key_Tab);
    }
    return widget.hasFocus();
}

bool showActive(CAboutDlg &dialog)
{
    dialog.myExec();
    QApplication::setActiveWindow(&dialog);
    return QTest::qWaitForWindowActive(&dialog);
}

} // namespace

class tst_AboutLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lastSentence_clicked_showsTheLicenses_data();
    void lastSentence_clicked_showsTheLicenses();
    void patents_clicked_areOpened();
    void lastSentence_byKeyboard_showsTheLicensesAndBack();
    void patents_byKeyboard_areOpened();
    void webSite_byKeyboard_isOpened();
    void webSite_clicked_isOpened();

private:
    TestSupport::Sandbox m_sandbox;
    TestSupport::MachineStore m_machine{m_sandbox};
};

void tst_AboutLinks::lastSentence_clicked_showsTheLicenses_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : AboutBox::languages) {
        QTest::newRow(language) << QString::fromUtf8(language);
    }
}

void tst_AboutLinks::lastSentence_clicked_showsTheLicenses()
{
    QFETCH(const QString, language);
    const AboutBox::Language spoken(language);
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    dialog.show();
    QLabel &legalLine = AboutBox::label(dialog, u"copyrightTextLabel"_qs);
    const QPoint place = placeOfLink(legalLine, u"Zyx Grainlab"_qs);
    QVERIFY(place.x() >= 0);
    QTest::mouseClick(&legalLine, Qt::LeftButton, {}, place);
    QCOMPARE(AboutBox::page(dialog), u"licensesPage"_qs);
    QVERIFY(browser.opened.isEmpty());
}

void tst_AboutLinks::patents_clicked_areOpened()
{
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    dialog.show();
    QLabel &legalLine = AboutBox::label(dialog, u"copyrightTextLabel"_qs);
    const QUrl patents = siteAddress(u"/intl/redirect/gl/patents"_qs);
    const QPoint place = placeOfLink(legalLine, patents.toString());
    QVERIFY(place.x() >= 0);
    QTest::mouseClick(&legalLine, Qt::LeftButton, {}, place);
    QCOMPARE(browser.opened, QList<QUrl>{patents});
    QCOMPARE(AboutBox::page(dialog), u"aboutPage"_qs);
}

void tst_AboutLinks::lastSentence_byKeyboard_showsTheLicensesAndBack()
{
    CAboutDlg dialog(nullptr, {});
    QVERIFY(showActive(dialog));
    QLabel &legalLine = AboutBox::label(dialog, u"copyrightTextLabel"_qs);
    QVERIFY(tabTo(dialog, legalLine));
    QTest::keyClick(&legalLine, Qt::Key_Tab); // to the patents
    QTest::keyClick(&legalLine, Qt::Key_Tab);
    QVERIFY(legalLine.hasFocus());
    QTest::keyClick(&legalLine, Qt::Key_Return);
    QCOMPARE(AboutBox::page(dialog), u"licensesPage"_qs);

    QToolButton &back = AboutBox::backButton(dialog);
    QVERIFY(tabTo(dialog, back));
    QTest::keyClick(&back, Qt::Key_Space);
    QCOMPARE(AboutBox::page(dialog), u"aboutPage"_qs);
}

void tst_AboutLinks::patents_byKeyboard_areOpened()
{
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    QVERIFY(showActive(dialog));
    QLabel &legalLine = AboutBox::label(dialog, u"copyrightTextLabel"_qs);
    QVERIFY(tabTo(dialog, legalLine));
    QTest::keyClick(&legalLine, Qt::Key_Tab);
    QTest::keyClick(&legalLine, Qt::Key_Return);
    QCOMPARE(browser.opened, QList<QUrl>{siteAddress(u"/intl/redirect/gl/patents"_qs)});
}

void tst_AboutLinks::webSite_byKeyboard_isOpened()
{
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    QVERIFY(showActive(dialog));
    QLabel &site = AboutBox::label(dialog, u"zyxLinkLabel"_qs);
    QVERIFY(tabTo(dialog, site));
    QTest::keyClick(&site, Qt::Key_Tab);
    QTest::keyClick(&site, Qt::Key_Return);
    QCOMPARE(browser.opened, QList<QUrl>{siteAddress(u"/en/redirect/gl6/home"_qs)});
}

void tst_AboutLinks::webSite_clicked_isOpened()
{
    AboutBox::Browser browser;
    CAboutDlg dialog(nullptr, {});
    dialog.show();
    QLabel &site = AboutBox::label(dialog, u"zyxLinkLabel"_qs);
    const QUrl home = siteAddress(u"/en/redirect/gl6/home"_qs);
    const QPoint place = placeOfLink(site, home.toString());
    QVERIFY(place.x() >= 0);
    QTest::mouseClick(&site, Qt::LeftButton, {}, place);
    QCOMPARE(browser.opened, QList<QUrl>{home});
}

QTEST_MAIN(tst_AboutLinks)

#include "tst_AboutLinks.moc"
