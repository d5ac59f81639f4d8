// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "look/LanguageManagerParts.h"
#include "look/LanguageRows.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/QtResources.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMetaMethod>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>

#include <type_traits>

using namespace ZYX_zglv6;
using namespace LanguageManagerParts;
using namespace LanguageRows;

static_assert(
    std::is_base_of_v<QObject, CLanguageManager> && std::is_base_of_v<Singleton<CLanguageManager>, CLanguageManager>);
static_assert(!std::is_default_constructible_v<CLanguageManager>);

namespace {

int rowOfFile(const QString &path)
{
    return int(column(2).indexOf(path));
}

QList<QPair<int, int>> cellsOf(const QSignalSpy &dataChanges)
{
    QList<QPair<int, int>> cells;
    for (const QList<QVariant> &change : dataChanges) {
        const QModelIndex index = change[0].toModelIndex();
        cells.append({index.row(), index.column()});
    }
    return cells;
}

} // namespace

class tst_LanguageManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void getInstance_isTheSingleton();
    void metaObject_hasTheSignalAndTheSlots();
    void beforeTheLoad_nothingIsKnown();
    void loadLanguages_givesEachLanguageARow_data();
    void loadLanguages_givesEachLanguageARow();
    void loadLanguages_findsFive();
    void loadLanguages_keepsTheOrderOfTheListing();
    void loadLanguages_fillsColumnByColumn();
    void loadLanguages_again_changesNothing();
    void loadLanguages_withoutFiles_isDoneAllTheSame();
    void loadLanguages_ofOtherFiles_takesThoseThatTellNameAndNumber_data();
    void loadLanguages_ofOtherFiles_takesThoseThatTellNameAndNumber();
    void createLanguageModel_takesListsOfOneLength_data();
    void createLanguageModel_takesListsOfOneLength();
    void createLanguageModel_onAFilledModel_doesNothing();
    void model_isShownByAComboBox();
    void getLanguageIndexFromId_ofANumber_isItsRow_data();
    void getLanguageIndexFromId_ofANumber_isItsRow();
    void getLanguageIndexFromId_comparesNumbers();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_LanguageManager::init()
{
    CSettings().remove(languageKey);
}

void tst_LanguageManager::getInstance_isTheSingleton()
{
    QCOMPARE(&CLanguageManager::getInstance(), &Singleton<CLanguageManager>::instance());
    QCOMPARE(&CLanguageManager::getInstance(), &CLanguageManager::getInstance());
    QCOMPARE(manager().model(), manager().model());
    QCOMPARE(manager().model()->parent(), nullptr);
}

void tst_LanguageManager::metaObject_hasTheSignalAndTheSlots()
{
    const QMetaObject &metaObject = CLanguageManager::staticMetaObject;
    QCOMPARE(metaObject.className(), "ZYX_zglv6::CLanguageManager");
    const int first = metaObject.methodOffset();
    QCOMPARE(metaObject.methodCount() - first, 3);
    QCOMPARE(metaObject.method(first).methodSignature(), QByteArray("languageChanged()"));
    QCOMPARE(metaObject.method(first).methodType(), QMetaMethod::Signal);
    QCOMPARE(metaObject.method(first + 1).methodSignature(), QByteArray("changeLanguage(int)"));
    QCOMPARE(metaObject.method(first + 1).typeName(), "bool");
    QCOMPARE(metaObject.method(first + 2).methodSignature(), QByteArray("resetToEnglish()"));
    for (const int slot : {first + 1, first + 2}) {
        QCOMPARE(metaObject.method(slot).methodType(), QMetaMethod::Slot);
        QCOMPARE(metaObject.method(slot).access(), QMetaMethod::Public);
    }
}

void tst_LanguageManager::beforeTheLoad_nothingIsKnown()
{
    RUN_IN_FRESH_PROCESS();
    QCOMPARE(manager().loadedLanguageID(), 0xFFFFFFFFU);
    QCOMPARE(translatorOf(manager()), nullptr);
    QCOMPARE(manager().langCount(), 0);
    QCOMPARE(manager().model()->columnCount(), 0);
    QCOMPARE(manager().currentLanguageIndex(), -1);
    QCOMPARE(manager().getLanguageIndexFromId(1033), -1);
    QCOMPARE(manager().currentLanguageAbbrv(), QString());
    QCOMPARE(manager().settingsAbbrv(), u"en"_qs);
    QCOMPARE(installedFiles(), QStringList());
}

void tst_LanguageManager::loadLanguages_givesEachLanguageARow_data()
{
    addLanguageRows();
}

void tst_LanguageManager::loadLanguages_givesEachLanguageARow()
{
    QFETCH(const int, number);
    QFETCH(const QString, name);
    QFETCH(const QString, file);
    QFETCH(const QString, abbreviation);
    QFETCH(const QString, webAbbreviation);

    manager().loadLanguages();
    const int row = manager().getLanguageIndexFromId(number);
    QVERIFY(row >= 0);
    const QStringList expected{name, QString::number(number), file, abbreviation};
    for (int i = 0; i < expected.size(); ++i) {
        const QVariant value = manager().model()->index(row, i).data(Qt::DisplayRole);
        QCOMPARE(value.metaType(), QMetaType::fromType<QString>());
        QCOMPARE(value.toString(), expected[i]);
    }
    choose(number);
    QCOMPARE(manager().currentLanguageIndex(), row);
    QCOMPARE(manager().currentLanguageAbbrv(), abbreviation);
    QCOMPARE(manager().settingsAbbrv(), webAbbreviation);
}

void tst_LanguageManager::loadLanguages_findsFive()
{
    RUN_IN_FRESH_PROCESS();
    manager().loadLanguages();
    QCOMPARE(manager().langCount(), 5);
    QCOMPARE(manager().model()->rowCount(), 5);
    QCOMPARE(manager().model()->columnCount(), 4);
    QCOMPARE(manager().loadedLanguageID(), 0xFFFFFFFFU);
    QCOMPARE(installedFiles(), QStringList());
}

void tst_LanguageManager::loadLanguages_keepsTheOrderOfTheListing()
{
    RUN_IN_FRESH_PROCESS();
    const MoreCatalogues more;
    QVERIFY(more.isRegistered());
    manager().loadLanguages();
    const QStringList files = column(2);
    QStringList expected;
    for (const QString &name : QDir(u":/translations/"_qs).entryList({u"*.qm"_qs}, QDir::Files, QDir::NoSort)) {
        if (files.contains(u":/translations/"_qs + name)) {
            expected.append(u":/translations/"_qs + name);
        }
    }
    QCOMPARE(files.size(), 8);
    QCOMPARE(files, expected);
    // QDir takes NoSort for "as the folder is set", which is by name.
    QCOMPARE(column(3), u"pt_BR.v2 swedish de en eo fr ja zh_CN"_qs.split(u' '));
}

void tst_LanguageManager::loadLanguages_fillsColumnByColumn()
{
    RUN_IN_FRESH_PROCESS();
    const QSignalSpy changes(manager().model(), &QStandardItemModel::dataChanged);
    manager().loadLanguages();
    QList<QPair<int, int>> expected;
    for (int i = 0; i < 4; ++i) {
        for (int row = 0; row < 5; ++row) {
            expected.append({row, i});
        }
    }
    QCOMPARE(cellsOf(changes), expected);
}

void tst_LanguageManager::loadLanguages_again_changesNothing()
{
    RUN_IN_FRESH_PROCESS();
    manager().loadLanguages();
    const QStringList files = column(2);
    const QSignalSpy changes(manager().model(), &QStandardItemModel::dataChanged);
    const QSignalSpy insertions(manager().model(), &QStandardItemModel::rowsInserted);
    const QSignalSpy resets(manager().model(), &QStandardItemModel::modelReset);

    const MoreCatalogues more;
    QVERIFY(more.isRegistered());
    manager().loadLanguages();
    manager().loadLanguageForApp();

    QCOMPARE(changes.size() + insertions.size() + resets.size(), 0);
    QCOMPARE(column(2), files);
}

void tst_LanguageManager::loadLanguages_withoutFiles_isDoneAllTheSame()
{
    RUN_IN_FRESH_PROCESS();
    cleanupQtResources();
    manager().loadLanguages();
    QCOMPARE(manager().langCount(), 0);
    QCOMPARE(manager().model()->columnCount(), 4);

    initQtResources();
    manager().loadLanguages();
    QCOMPARE(manager().langCount(), 0);
}

void tst_LanguageManager::loadLanguages_ofOtherFiles_takesThoseThatTellNameAndNumber_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("cells"); // empty: not taken

    const auto add = [](const char *tag, const QString &file, const QStringList &cells) {
        QTest::newRow(tag) << u":/translations/"_qs + file << cells;
    };
    add("another language", u"zyx_eo.qm"_qs, {u"Esperanto"_qs, u"1167"_qs, u"eo"_qs});
    add("from the last zyx_ to the last dot", u"my_zyx_zyx_pt_BR.v2.qm"_qs,
        {u"Portugu\u00eas"_qs, u"1046"_qs, u"pt_BR.v2"_qs});
    add("no zyx_", u"swedish.qm"_qs, {u"Svenska"_qs, u"1053"_qs, u"swedish"_qs});
    add("name only", u"zyx_nameOnly.qm"_qs, {});
    add("number only", u"zyx_numberOnly.qm"_qs, {});
    add("some text", u"zyx_alien.qm"_qs, {});
    add("cut in a section", u"zyx_damaged.qm"_qs, {});
    add("cut behind the signature", u"zyx_beginning.qm"_qs, {});
    add("empty", u"zyx_empty.qm"_qs, {});
    add("another ending", u"zyx_other.bak"_qs, {});
    add("folder", u"zyx_folder.qm"_qs, {});
    add("in a folder", u"zyx_folder.qm/zyx_inside.qm"_qs, {});
    add("Qt's own", u"qt_de.qm"_qs, {});
}

void tst_LanguageManager::loadLanguages_ofOtherFiles_takesThoseThatTellNameAndNumber()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, file);
    QFETCH(const QStringList, cells);
    const MoreCatalogues more;
    QVERIFY(more.isRegistered());
    QVERIFY(QFileInfo::exists(file));

    manager().loadLanguages();

    QCOMPARE(manager().langCount(), 8); // three more
    const int row = rowOfFile(file);
    QCOMPARE(row >= 0, !cells.isEmpty());
    if (row >= 0) {
        QCOMPARE((QStringList{cell(row, 0), cell(row, 1), cell(row, 3)}), cells);
    }
}

void tst_LanguageManager::createLanguageModel_takesListsOfOneLength_data()
{
    QTest::addColumn<int>("names");
    QTest::addColumn<int>("numbers");
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("rows"); // -1: none and no columns

    QTest::newRow("two each") << 2 << 2 << 2 << 2;
    QTest::newRow("none") << 0 << 0 << 0 << 0;
    QTest::newRow("a name too many") << 3 << 2 << 2 << -1;
    QTest::newRow("a number too many") << 2 << 3 << 2 << -1;
    QTest::newRow("a file too many") << 2 << 2 << 3 << -1;
    QTest::newRow("no file") << 2 << 2 << 0 << -1;
}

void tst_LanguageManager::createLanguageModel_takesListsOfOneLength()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, names);
    QFETCH(const int, numbers);
    QFETCH(const int, files);
    QFETCH(const int, rows);

    createModel(manager(), QList<QString>(names, u"name"_qs), QList<QString>(numbers, u"7"_qs),
                QList<QString>(files, u"file"_qs), QList<QString>(names, u"xx"_qs));

    QCOMPARE(manager().model()->rowCount(), qMax(rows, 0));
    QCOMPARE(manager().model()->columnCount(), rows < 0 ? 0 : 4);
    QCOMPARE(column(0), QStringList(qMax(rows, 0), u"name"_qs));
    QCOMPARE(column(1), QStringList(qMax(rows, 0), u"7"_qs));
    QCOMPARE(column(2), QStringList(qMax(rows, 0), u"file"_qs));
    QCOMPARE(column(3), QStringList(qMax(rows, 0), u"xx"_qs));
}

void tst_LanguageManager::createLanguageModel_onAFilledModel_doesNothing()
{
    RUN_IN_FRESH_PROCESS();
    manager().loadLanguages();
    const QStringList names = column(0);
    createModel(manager(), {u"name"_qs}, {u"7"_qs}, {u"file"_qs}, {u"xx"_qs});
    QCOMPARE(column(0), names);
}

void tst_LanguageManager::model_isShownByAComboBox()
{
    manager().loadLanguages();
    QComboBox box;
    box.setModel(manager().model());
    QCOMPARE(box.count(), 5);
    for (int row = 0; row < box.count(); ++row) {
        QCOMPARE(box.itemText(row), cell(row, 0));
    }
}

void tst_LanguageManager::getLanguageIndexFromId_ofANumber_isItsRow_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("name");

    QTest::newRow("English") << 1033 << u"English"_qs;
    QTest::newRow("German") << 1031 << u"Deutsch"_qs;
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("negative") << -1 << QString();
    QTest::newRow("a row, not a number") << 1 << QString();
    QTest::newRow("no language") << 1040 << QString();
}

void tst_LanguageManager::getLanguageIndexFromId_ofANumber_isItsRow()
{
    QFETCH(const int, number);
    QFETCH(const QString, name);

    manager().loadLanguages();
    QCOMPARE(manager().getLanguageIndexFromId(number), name.isEmpty() ? -1 : int(column(0).indexOf(name)));
}

void tst_LanguageManager::getLanguageIndexFromId_comparesNumbers()
{
    RUN_IN_FRESH_PROCESS();
    createModel(manager(), {u"name"_qs, u"other"_qs}, {u"7"_qs, u"01167"_qs}, {u"a"_qs, u"b"_qs}, {u"xx"_qs, u"yy"_qs});
    QCOMPARE(manager().getLanguageIndexFromId(1167), 1);
}

QTEST_MAIN(tst_LanguageManager)

#include "tst_LanguageManager.moc"
