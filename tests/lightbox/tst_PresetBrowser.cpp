// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ReferenceParts.h"

#include "gallery/AccessibilityAudit.h"

#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "LightboxApplication.h"
#include "PresetBrowser.h"

#include "common/Look.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTextBrowser>

namespace {

QString textIn(const QWidget &browser)
{
    return part<QTextBrowser>(browser, u"presetInfoText"_qs)->toPlainText();
}

} // namespace

/*! The window of presets. */
class tst_PresetBrowser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void browser_listsLooksByName();
    void browser_ofTheExpertMode_listsAll();
    void browser_tags_narrow_data();
    void browser_tags_narrow();
    void browser_twoTags_areBothWanted();
    void browser_tagBoxes_countWhatIsOffered();
    void browser_search_narrows_data();
    void browser_search_narrows();
    void browser_narrowed_keepsTheChosenOne();
    void browser_nothingLeft_showsNothing();
    void browser_preset_showsItsNote();
    void browser_titleOfItsOwn_standsAboveTheNote();
    void browser_noteWithoutATitle_standsAlone();
    void browser_presetWithoutANote_showsTagsAndParameters();
    void browser_links_areNotOpened();
    void browser_showPreset_takesBackWhatHidesIt();
    void browser_showPreset_ofNoLook_isRefused_data();
    void browser_showPreset_ofNoLook_isRefused();
    void browser_titleWithAnAmpersand_isShownWhole();
    void browser_parts_haveNames();
    void browser_brokenData_areTold();
    void browser_brokenNotes_areToldInTheirPlace();
    void liveLanguage_isSpokenAtOnce_data();
    void liveLanguage_isSpokenAtOnce();

private:
    TestSupport::Sandbox m_sandbox;
    const std::shared_ptr<const CPresetLibrary> m_library = std::make_shared<const CPresetLibrary>();
};

void tst_PresetBrowser::initTestCase()
{
    putOnLook(QString());
}

void tst_PresetBrowser::browser_listsLooksByName()
{
    const CPresetBrowser browser(m_library);
    const QStringList ids = idsIn(browser);
    QCOMPARE(ids.size(), 76); // of 226 looks 150 are for experts
    QStringList names;
    for (const QString &id : ids) {
        QVERIFY2(m_library->preset(id)->isLook() && !m_library->preset(id)->isExpert, qPrintable(id));
        names.append(m_library->displayName(id, u"en"_qs));
    }
    QVERIFY(std::is_sorted(names.cbegin(), names.cend(),
                           [](const QString &a, const QString &b) { return a.localeAwareCompare(b) < 0; }));
    const auto *list = part<QListWidget>(browser, u"presetFilmStrip"_qs);
    QCOMPARE(list->item(7)->text(), names.at(7));
    QCOMPARE(part<QLabel>(browser, u"presetCount"_qs)->text(), u"Presets shown: 76"_qs);
    QVERIFY(!browser.isModal());
}

void tst_PresetBrowser::browser_ofTheExpertMode_listsAll()
{
    const CPresetBrowser browser(m_library);
    part<QCheckBox>(browser, u"expert"_qs)->click();
    const QStringList ids = idsIn(browser);
    QCOMPARE(ids.size(), 226);
    for (const QString &id : {u"default"_qs, u"autoCorrection"_qs, u"noCorrection"_qs}) {
        QVERIFY2(!ids.contains(id), qPrintable(id));
    }
}

void tst_PresetBrowser::browser_tags_narrow_data()
{
    QTest::addColumn<int>("count");

    QTest::newRow("Film") << 84;
    QTest::newRow("B&W") << 64;
    QTest::newRow("TimeMachine") << 78;
    QTest::newRow("Frame") << 6;
}

void tst_PresetBrowser::browser_tags_narrow()
{
    const QString tag = QString::fromUtf8(QTest::currentDataTag());
    const CPresetBrowser browser(m_library);
    part<QCheckBox>(browser, u"expert"_qs)->setChecked(true);
    auto *box = part<QCheckBox>(browser, u"tag "_qs + tag);
    box->click();
    QTEST(int(idsIn(browser).size()), "count");
    for (const QString &id : idsIn(browser)) {
        QVERIFY2(m_library->preset(id)->tags.contains(tag), qPrintable(id));
    }
    box->click();
    QCOMPARE(idsIn(browser).size(), 226);
}

void tst_PresetBrowser::browser_twoTags_areBothWanted()
{
    const CPresetBrowser browser(m_library);
    part<QCheckBox>(browser, u"expert"_qs)->setChecked(true);
    part<QCheckBox>(browser, u"tag Film"_qs)->click();
    part<QCheckBox>(browser, u"tag Slide"_qs)->click();
    int expected = 0;
    for (const Preset &preset : m_library->presets()) {
        expected += preset.tags.contains(u"Film"_qs) && preset.tags.contains(u"Slide"_qs) ? 1 : 0;
    }
    QVERIFY(expected > 0 && expected < 31 + 84);
    QCOMPARE(idsIn(browser).size(), expected);
}

void tst_PresetBrowser::browser_tagBoxes_countWhatIsOffered()
{
    const CPresetBrowser browser(m_library);
    QCOMPARE(part<QCheckBox>(browser, u"tag B&W"_qs)->text(), u"Black and white (28)"_qs);
    QCOMPARE(part<QCheckBox>(browser, u"tag TimeMachine"_qs)->text(), u"Time machine (0)"_qs);
    part<QCheckBox>(browser, u"expert"_qs)->click();
    const auto boxes = browser.findChildren<QCheckBox *>(QRegularExpression(u"^tag "_qs));
    QCOMPARE(boxes.size(), 13);
    QCOMPARE(part<QCheckBox>(browser, u"tag Film"_qs)->text(), u"Film (84)"_qs);
    QCOMPARE(part<QCheckBox>(browser, u"tag B&W"_qs)->text(), u"Black and white (64)"_qs);
    QCOMPARE(part<QCheckBox>(browser, u"tag TimeMachine"_qs)->text(), u"Time machine (78)"_qs);
}

void tst_PresetBrowser::browser_search_narrows_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFound");

    QTest::newRow("name") << u"Cyanotype"_qs << true;
    QTest::newRow("part without case and with blanks") << u"  yanoTYP "_qs << true;
    QTest::newRow("nothing of it") << u"zzz"_qs << false;
    QTest::newRow("a pattern is a text") << u".*"_qs << false;
}

void tst_PresetBrowser::browser_search_narrows()
{
    QFETCH(const QString, text);
    const CPresetBrowser browser(m_library);
    part<QCheckBox>(browser, u"expert"_qs)->setChecked(true);
    QTest::keyClicks(part<QLineEdit>(browser, u"presetSearch"_qs), text);
    QTEST(idsIn(browser).contains(u"Cyanotype"_qs), "isFound");
    QVERIFY(idsIn(browser).size() < 10);
}

void tst_PresetBrowser::browser_narrowed_keepsTheChosenOne()
{
    CPresetBrowser browser(m_library);
    QVERIFY(browser.showPreset(u"Cyanotype"_qs));
    const QString title = titleIn(browser);
    part<QLineEdit>(browser, u"presetSearch"_qs)->setText(u"c"_qs);
    QCOMPARE(titleIn(browser), title);
    QCOMPARE(part<QListWidget>(browser, u"presetFilmStrip"_qs)->currentItem()->text(), title);
}

void tst_PresetBrowser::browser_nothingLeft_showsNothing()
{
    const CPresetBrowser browser(m_library);
    QVERIFY(!titleIn(browser).isEmpty());
    part<QLineEdit>(browser, u"presetSearch"_qs)->setText(u"zzz"_qs);
    QCOMPARE(titleIn(browser), QString());
    QCOMPARE(textIn(browser), QString());
}

void tst_PresetBrowser::browser_preset_showsItsNote()
{
    CPresetBrowser browser(m_library);
    QVERIFY(browser.showPreset(u"FujiAstia100"_qs));
    QCOMPARE(titleIn(browser), u"Fuji Astia™ 100F"_qs);
    QVERIFY2(textIn(browser).startsWith(u"Creator: Fuji\nType: "), qPrintable(textIn(browser)));
    QVERIFY(!textIn(browser).contains(u'<'));
}

void tst_PresetBrowser::browser_titleOfItsOwn_standsAboveTheNote()
{
    const QTemporaryDir folder;
    const QString presets = newFile(folder, u"a.xml"_qs, "<Presets><Preset id='a' type='x' name_en='A'/></Presets>");
    const QString notes = newFile(folder, u"b.xml"_qs,
                                  "<presets><preset id='a'><title_en>Soft &lt;b&gt; film</title_en>"
                                  "<description_en>PGI+Ym9sZDwvYj4=</description_en></preset></presets>");
    const CPresetBrowser browser(std::make_shared<const CPresetLibrary>(presets, notes));
    QCOMPARE(titleIn(browser), u"A"_qs);
    QCOMPARE(textIn(browser), u"Soft <b> film\nbold"_qs);
}

void tst_PresetBrowser::browser_noteWithoutATitle_standsAlone()
{
    const QTemporaryDir folder;
    const QString presets = newFile(folder, u"a.xml"_qs, "<Presets><Preset id='a' type='x' name_en='A'/></Presets>");
    const QString notes = newFile(folder, u"b.xml"_qs,
                                  "<presets><preset id='a'><title_en/><description_en>PGI+Ym9sZDwvYj4="
                                  "</description_en></preset></presets>");
    const CPresetBrowser browser(std::make_shared<const CPresetLibrary>(presets, notes));
    QCOMPARE(textIn(browser), u"bold"_qs);
}

void tst_PresetBrowser::browser_presetWithoutANote_showsTagsAndParameters()
{
    CPresetBrowser browser(m_library);
    const QString id = u"DigitalFujiAcros"_qs;
    QVERIFY(browser.showPreset(id));
    QCOMPARE(m_library->note(id), nullptr);
    const QString text = textIn(browser);
    QVERIFY2(text.startsWith(u"Tags: "), qPrintable(text));
    QVERIFY2(text.contains(u"Digital"), qPrintable(text));
    QVERIFY2(text.endsWith(u"\nParameters: %1"_qs.arg(m_library->preset(id)->params.size())), qPrintable(text));
}

void tst_PresetBrowser::browser_links_areNotOpened()
{
    const CPresetBrowser browser(m_library);
    QVERIFY(!part<QTextBrowser>(browser, u"presetInfoText"_qs)->openLinks());
    QVERIFY(!part<QTextBrowser>(browser, u"presetInfoText"_qs)->openExternalLinks());
}

void tst_PresetBrowser::browser_showPreset_takesBackWhatHidesIt()
{
    CPresetBrowser browser(m_library);
    auto *frames = part<QCheckBox>(browser, u"tag Frame"_qs);
    auto *search = part<QLineEdit>(browser, u"presetSearch"_qs);
    frames->setChecked(true);
    search->setText(u"zzz"_qs);
    QString expert;
    for (const Preset &preset : m_library->presets()) {
        expert = preset.isExpert ? preset.id : expert;
    }
    QVERIFY(browser.showPreset(expert));
    QCOMPARE(titleIn(browser), m_library->displayName(expert, u"en"_qs));
    QVERIFY(part<QCheckBox>(browser, u"expert"_qs)->isChecked());
    QVERIFY(!frames->isChecked());
    QVERIFY(search->text().isEmpty());
}

void tst_PresetBrowser::browser_showPreset_ofNoLook_isRefused_data()
{
    QTest::addColumn<QString>("id");

    QTest::newRow("base") << u"default"_qs;
    QTest::newRow("correction") << u"autoCorrection"_qs;
    QTest::newRow("unknown") << u"NoSuchPreset"_qs;
    QTest::newRow("empty") << QString();
}

void tst_PresetBrowser::browser_showPreset_ofNoLook_isRefused()
{
    QFETCH(const QString, id);
    CPresetBrowser browser(m_library);
    const QString title = titleIn(browser);
    QVERIFY(!browser.showPreset(id));
    QCOMPARE(titleIn(browser), title);
}

/*! As a label of the text it would take the character for the mark of a shortcut. */
void tst_PresetBrowser::browser_titleWithAnAmpersand_isShownWhole()
{
    CPresetBrowser browser(m_library);
    QVERIFY(browser.showPreset(u"1917 - Light & Shadow"_qs));
    const auto *title = part<QLabel>(browser, u"presetInfoTitle"_qs);
    QCOMPARE(title->text(), u"1917 - Light & Shadow"_qs);
    QCOMPARE(part<QTextBrowser>(browser, u"presetInfoText"_qs)->accessibleName(), title->text());
    QVERIFY(title->buddy() == nullptr);
}

void tst_PresetBrowser::browser_parts_haveNames()
{
    CPresetBrowser browser(m_library);
    browser.show();
    QCOMPARE(accessibilityFaults(browser), QStringList());
}

void tst_PresetBrowser::browser_brokenData_areTold()
{
    const CPresetBrowser browser(brokenLibrary());
    QVERIFY2(textIn(browser).startsWith(u"none.xml can't be read: "), qPrintable(textIn(browser)));
    QCOMPARE(idsIn(browser), QStringList());
}

void tst_PresetBrowser::browser_brokenNotes_areToldInTheirPlace()
{
    const CPresetBrowser browser(
        std::make_shared<const CPresetLibrary>(u":/presets/default.xml"_qs, u"/nowhere/none.xml"_qs));
    QCOMPARE(idsIn(browser).size(), 76);
    QVERIFY2(textIn(browser).contains(u"\nParameters: "), qPrintable(textIn(browser)));
    QVERIFY2(textIn(browser).contains(u"none.xml can't be read: "), qPrintable(textIn(browser)));
}

void tst_PresetBrowser::liveLanguage_isSpokenAtOnce_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expert");
    QTest::addColumn<QString>("tag");

    QTest::newRow("de") << u"de"_qs << u"Voreinstellungen"_qs << u"Voreinstellungen des Expertenmodus einbeziehen"_qs
                        << u"Schwarzweiß: 28"_qs;
    QTest::newRow("fr") << u"fr"_qs << u"Préréglages"_qs << u"Inclure les préréglages du mode expert"_qs
                        << u"Noir et blanc\u00a0: 28"_qs;
    QTest::newRow("ja") << u"ja"_qs << u"プリセット"_qs << u"エキスパートモードのプリセットも表示"_qs << u"白黒：28"_qs;
    QTest::newRow("zh_CN") << u"zh_CN"_qs << u"预设"_qs << u"同时显示专家模式的预设"_qs << u"黑白：28"_qs;
}

void tst_PresetBrowser::liveLanguage_isSpokenAtOnce()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, language);
    CPresetBrowser browser(m_library);
    QVERIFY(browser.showPreset(u"FujiAstia100"_qs));
    QCOMPARE(browser.windowTitle(), u"Presets"_qs);
    speakAtOnce(language);

    QTEST(browser.windowTitle(), "title");
    QTEST(part<QCheckBox>(browser, u"expert"_qs)->text(), "expert");
    QTEST(part<QCheckBox>(browser, u"tag B&W"_qs)->text(), "tag");
    QCOMPARE(titleIn(browser), m_library->displayName(u"FujiAstia100"_qs, language));
    const QString note = m_library->note(u"FujiAstia100"_qs)->descriptions.value(language);
    QCOMPARE(textIn(browser), QTextDocumentFragment::fromHtml(note).toPlainText());
}

int main(int argc, char *argv[])
{
    CLightboxApplication application(argc, argv);
    tst_PresetBrowser test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_PresetBrowser.moc"
