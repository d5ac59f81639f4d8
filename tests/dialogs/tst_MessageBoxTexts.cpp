// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "dialogs/BoxDriver.h"

#include "support/Sandbox.h"
#include "utilsDll/dialogs/MessageBox.h"
#include "utilsDll/frame/QtResources.h"

#include <QtCore/QTranslator>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

class tst_MessageBoxTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void buttons_areTranslated_data();
    void buttons_areTranslated();

private:
    TestSupport::Sandbox m_sandbox;
    BoxDriver m_driver;
};

void tst_MessageBoxTexts::buttons_areTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QStringList>("texts"); // of the critical, rotate, yes or no, save and background boxes in turn

    QTest::newRow("none") << QString()
                          << QStringList({u"Close"_qs, u"Rotate"_qs, u"Cancel"_qs, u"Yes"_qs, u"No"_qs, u"Save"_qs,
                                          u"Don't save"_qs, u"Cancel"_qs, u"Quit without saving"_qs, u"Don't quit"_qs});
    QTest::newRow("English") << u"en"_qs
                             << QStringList({u"Close"_qs, u"Rotate"_qs, u"Cancel"_qs, u"Yes"_qs, u"No"_qs, u"Save"_qs,
                                             u"Don't save"_qs, u"Cancel"_qs, u"Quit without saving"_qs,
                                             u"Don't quit"_qs});
    QTest::newRow("German") << u"de"_qs
                            << QStringList({u"Schlie\u00dfen"_qs, u"Drehen"_qs, u"Abbrechen"_qs, u"Ja"_qs, u"Nein"_qs,
                                            u"Speichern"_qs, u"Nicht speichern"_qs, u"Abbrechen"_qs,
                                            u"Ohne Speichern beenden"_qs, u"Nicht beenden"_qs});
    QTest::newRow("French") << u"fr"_qs
                            << QStringList({u"Fermer"_qs, u"Faire pivoter"_qs, u"Annuler"_qs, u"Oui"_qs, u"Non"_qs,
                                            u"Enregistrer"_qs, u"Ne pas enregistrer"_qs, u"Annuler"_qs,
                                            u"Quitter sans enregistrer"_qs, u"Ne pas quitter"_qs});
    QTest::newRow("Japanese") << u"ja"_qs
                              << QStringList({u"閉じる"_qs, u"回転"_qs, u"キャンセル"_qs, u"はい"_qs, u"いいえ"_qs,
                                              u"保存"_qs, u"保存しない"_qs, u"キャンセル"_qs, u"保存せずに終了"_qs,
                                              u"終了しない"_qs});
    QTest::newRow("Chinese") << u"zh_CN"_qs
                             << QStringList({u"关闭"_qs, u"旋转"_qs, u"取消"_qs, u"是"_qs, u"否"_qs, u"保存"_qs,
                                             u"不保存"_qs, u"取消"_qs, u"不保存并退出"_qs, u"不退出"_qs});
}

void tst_MessageBoxTexts::buttons_areTranslated()
{
    QFETCH(const QString, language);
    QFETCH(const QStringList, texts);
    QTranslator catalogue; // takes itself off the application when it goes
    if (!language.isEmpty()) {
        initQtResources();
        QVERIFY(catalogue.load(u":/translations/zyx_%1.qm"_qs.arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&catalogue));
    }
    QStringList found;
    m_driver.closeNext();
    CMessageBox::critical(nullptr, u"Film"_qs, u"No."_qs, QMessageBox::Ok, QMessageBox::Ok, true);
    found += m_driver.facts.buttons;
    const std::function<void()> questions[] = {
        [] { CMessageBox::rotateQuestion(nullptr, u"Film"_qs, u"Well?"_qs); },
        [] { CMessageBox::yesNoMessage(nullptr, u"Film"_qs, u"Well?"_qs, QMessageBox::Yes); },
        [] { CMessageBox::saveDiscardCancelMessage(nullptr, u"Film"_qs, u"Well?"_qs, QMessageBox::Save); },
        [] { CMessageBox::backgroundProcessingCancelMessage(nullptr, u"Film"_qs, u"Well?"_qs); },
    };
    for (const std::function<void()> &ask : questions) {
        m_driver.closeNext();
        ask();
        found += m_driver.facts.buttons;
    }
    QCOMPARE(found, texts);
}

QTEST_MAIN(tst_MessageBoxTexts)
#include "tst_MessageBoxTexts.moc"
