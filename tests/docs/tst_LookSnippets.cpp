// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"
#include "support/Sandbox.h"

#include "uiControls/IconViewer.h"
#include "uiControls/RetinaToolButton.h"
#include "uiControls/VerticalLabel.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/customzyxappstyle.h"

#include <QtCore/QUrl>
#include <QtGui/QFontDatabase>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QPushButton>

using namespace ZYX_zglv6;

/*! Runs the examples of the pages on the look and on the small widgets. */
class tst_LookSnippets : public QObject
{
    Q_OBJECT

    TestSupport::Sandbox m_sandbox; // the choice of a language is a setting

private Q_SLOTS:
    void startLook_bringsFontsLanguageIconAndStyle();
    void dressWindow_makesADialogDark();
    void keepStill_turnsTheShiftOff();
    void languageBox_storesTheChoice();
    void guideAddress_isInTheLoadedLanguage();
    void addViewer_showsThePhotograph();
    void addBackButton_isANamedButton();
    void addYear_isHigherThanWide();
    void paintPreview_hasShadowAndGroove();
    void isVisiblyChanged_fromAHundredthOn();
};

void tst_LookSnippets::startLook_bringsFontsLanguageIconAndStyle()
{
    Snippets::startLook();
    QVERIFY(QFontDatabase::hasFamily(u"Roboto Light"_qs));
    QCOMPARE(CLanguageManager::getInstance().loadedLanguageID(), 1033U);
    QVERIFY(!QGuiApplication::windowIcon().isNull());
    QVERIFY(qobject_cast<CustomZyxAppStyle *>(QApplication::style()));
}

void tst_LookSnippets::dressWindow_makesADialogDark()
{
    QDialog dialog;
    dialog.resize(100, 50);
    Snippets::dressWindow(dialog);
    QCOMPARE(dialog.grab().toImage().pixelColor(50, 25), QColor(0x23, 0x23, 0x23));
}

void tst_LookSnippets::keepStill_turnsTheShiftOff()
{
    CustomZyxAppStyle style;
    QPushButton shutter;
    QPushButton zoom;
    QVERIFY(style.pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &shutter) != 0);
    Snippets::keepStill(style, shutter, zoom);
    QCOMPARE(style.pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &shutter), 0);
    QCOMPARE(style.pixelMetric(QStyle::PM_ButtonShiftVertical, nullptr, &zoom), 0);
}

void tst_LookSnippets::languageBox_storesTheChoice()
{
    CLanguageManager &languages = CLanguageManager::getInstance();
    languages.loadLanguages();
    const std::unique_ptr<QComboBox> box = Snippets::newLanguageBox();
    QCOMPARE(box->currentText(), u"English"_qs);
    const int german = box->findText(u"Deutsch"_qs);
    Q_EMIT box->activated(german);
    QCOMPARE(languages.currentLanguageIndex(), german);
    languages.resetToEnglish();
}

void tst_LookSnippets::guideAddress_isInTheLoadedLanguage()
{
    CLanguageManager::getInstance().loadLanguageForApp();
    QCOMPARE(Snippets::guideAddress().path(), u"/en/redirect/gl6/user-guide.pdf"_qs);
}

void tst_LookSnippets::addViewer_showsThePhotograph()
{
    QWidget frame;
    QPixmap photograph(200, 100);
    photograph.fill(Qt::red);
    CIconViewer *viewer = Snippets::addViewer(frame, photograph);
    viewer->resize(240, 140);
    QCOMPARE(viewer->grab().toImage().pixelColor(25, 25), QColor(Qt::red)); // the text lies in the middle
}

void tst_LookSnippets::addBackButton_isANamedButton()
{
    QWidget frame;
    const CRetinaToolButton *back = Snippets::addBackButton(frame);
    QVERIFY(!back->icon().isNull());
    QCOMPARE(back->accessibleName(), u"Back"_qs);
}

void tst_LookSnippets::addYear_isHigherThanWide()
{
    QWidget frame;
    const QSize size = Snippets::addYear(frame, u"1968"_qs)->sizeHint();
    QVERIFY(size.height() > size.width());
}

void tst_LookSnippets::paintPreview_hasShadowAndGroove()
{
    QImage photograph(20, 10, QImage::Format_RGB32);
    photograph.fill(Qt::white);
    QImage image(80, 40, QImage::Format_RGB32);
    image.fill(Qt::lightGray);
    QPainter painter(&image);
    Snippets::paintPreview(painter, photograph, {10, 5});
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white));
    QVERIFY(image.pixelColor(20, 15).lightness() < QColor(Qt::lightGray).lightness()); // right below
    QCOMPARE(image.pixelColor(48, 10), QColor(Qt::black));
    QCOMPARE(image.pixelColor(49, 10), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(60, 10), QColor(Qt::lightGray));
}

void tst_LookSnippets::isVisiblyChanged_fromAHundredthOn()
{
    QImage before(10, 10, QImage::Format_RGB888);
    before.fill(Qt::black);
    QImage after = before;
    after.setPixelColor(0, 0, Qt::white);
    QVERIFY(!Snippets::isVisiblyChanged(before, after));
    after.setPixelColor(1, 0, QColor(1, 0, 0));
    QVERIFY(Snippets::isVisiblyChanged(before, after));
}

QTEST_MAIN(tst_LookSnippets)
#include "tst_LookSnippets.moc"
