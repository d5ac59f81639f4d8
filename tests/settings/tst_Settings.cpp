// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "settings/OnDisk.h"
#include "settings/SystemPlaces.h"
#include "support/Sandbox.h"

#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <memory>

using namespace ZYX_zglv6;
using TestSupport::valueOnDisk;

namespace {

enum class Made { Plainly, Ignoring, OnFile };

std::unique_ptr<CSettings> makeSettings(Made made, const QString &file, QObject *parent = nullptr)
{
    switch (made) {
    case Made::Plainly:
        return std::make_unique<CSettings>(parent);
    case Made::Ignoring:
        return std::make_unique<CSettings>(parent, true);
    case Made::OnFile:
        return std::make_unique<CSettings>(file, QSettings::IniFormat, parent);
    }
    return nullptr;
}

} // namespace

/*! Tests that look at the target behind QSettings' back. */
#define SKIP_UNLESS_TARGET_IS_A_FILE()                                                                                 \
    do {                                                                                                               \
        if (targetPath().isEmpty()) {                                                                                  \
            QSKIP("The system store is no file here.");                                                                \
        }                                                                                                              \
    } while (false)

/*!
    Every operation of CSettings in the five situations that a CSettings can be in. Each row has one store that the
    object should work on, the target, and two that it should leave alone.
*/
class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void systemStore_liesUnderOrganizationAndProduct();
    void constructor_givesParentToTheStoreInside_data();
    void constructor_givesParentToTheStoreInside();
    void fileConstructor_takesTheFormatGiven();
    void usingTemporarySettings_data();
    void usingTemporarySettings();
    void ignoringObject_keepsReadingTheSystemStore();

    void setValue_reachesOneStore_data();
    void setValue_reachesOneStore();
    void setValue_isOnDiskAtOnceOnlyIfRedirected_data();
    void setValue_isOnDiskAtOnceOnlyIfRedirected();
    void value_readsOneStore_data();
    void value_readsOneStore();
    void contains_asksOneStore_data();
    void contains_asksOneStore();
    void remove_reachesOneStore_data();
    void remove_reachesOneStore();
    void remove_isOnDiskAtOnceOnlyIfRedirected_data();
    void remove_isOnDiskAtOnceOnlyIfRedirected();

    void beginGroup_replacesIfRedirectedAndNestsOtherwise_data();
    void beginGroup_replacesIfRedirectedAndNestsOtherwise();
    void beginGroup_countsForEveryKey_data();
    void beginGroup_countsForEveryKey();
    void endGroup_clearsIfRedirectedAndGoesUpOtherwise_data();
    void endGroup_clearsIfRedirectedAndGoesUpOtherwise();
    void endGroup_redirected_withoutGroup_isHarmless();
    void group_ofOneRedirectedObject_isNotAnothers();
    void localKey_data();
    void localKey();
    void localKey_notRedirected_isTheKeyInAnyGroup();
    void localKey_behindARedirectLeftInAGroup_keepsTheGroup();

    void writeArray_redirected_leavesTheGroupOut_data();
    void writeArray_redirected_leavesTheGroupOut();
    void writeArray_withoutSize_isAsLongAsItsHighestIndex_data();
    void writeArray_withoutSize_isAsLongAsItsHighestIndex();
    void readArray_redirected_leavesTheGroupOut_data();
    void readArray_redirected_leavesTheGroupOut();
    void array_redirected_isOpenForAllRedirectedObjects();

    void status_isTheTargets_data();
    void status_isTheTargets();
    void status_redirected_isNotTheFiles();
    void sync_writesTheTarget_data();
    void sync_writesTheTarget();
    void sync_redirected_leavesTheObjectsFileUnwritten();

private:
    void setUpRow();
    std::unique_ptr<QSettings> target() const;
    QString targetPath() const;
    QStringList keysElsewhere() const;
    void writeElsewhere(const QString &key);

    QDir parentFolder() const;
    void installTemporarySettings();

    TestSupport::Sandbox m_sandbox;
    QString m_productStorePath;
    QString m_file;
    std::unique_ptr<CTemporarySettings> m_temporary;
    std::unique_ptr<CSettings> m_settings; // of the current row
    Made m_made = Made::Plainly;
    bool m_isRedirected = false;
};

namespace {

void addSituation(const char *name, Made made, bool isInstalled)
{
    QTest::newRow(name) << made << isInstalled;
}

void addAllSituations()
{
    QTest::addColumn<Made>("made");
    QTest::addColumn<bool>("isInstalled");

    addSituation("redirected", Made::Plainly, true);
    addSituation("on a file, redirected", Made::OnFile, true);
    addSituation("on a file", Made::OnFile, false);
    addSituation("system store", Made::Plainly, false);
    addSituation("ignoring temporary settings", Made::Ignoring, true);
}

} // namespace

void tst_Settings::init()
{
    m_productStorePath = TestSupport::productStorePath(); // not later: the look-up writes whatever waits to be written
    // One for each row: QSettings remembers a file by its size and time, and would not see it replaced in an instant.
    m_file = m_sandbox.filePath(QString::fromUtf8(QTest::currentTestFunction()) + u'/'
                                + QString::fromUtf8(QTest::currentDataTag()) + u".ini");
}

void tst_Settings::cleanup()
{
    m_settings.reset();
    m_temporary.reset();
    TestSupport::openProductStore()->clear();
}

void tst_Settings::setUpRow()
{
    QFETCH(Made, made);
    QFETCH(bool, isInstalled);

    if (isInstalled) {
        installTemporarySettings();
    }
    m_made = made;
    m_isRedirected = isInstalled && made != Made::Ignoring;
    m_settings = makeSettings(made, m_file);
    QCOMPARE(m_settings->usingTemporarySettings(), m_isRedirected);
}

std::unique_ptr<QSettings> tst_Settings::target() const
{
    if (!m_isRedirected && m_made != Made::OnFile) {
        return TestSupport::openProductStore();
    }
    return std::make_unique<QSettings>(targetPath(), QSettings::IniFormat);
}

QString tst_Settings::targetPath() const
{
    if (m_isRedirected) {
        return m_temporary->tempSettingsPath();
    }
    return m_made == Made::OnFile ? m_file : m_productStorePath;
}

QStringList tst_Settings::keysElsewhere() const
{
    QStringList keys;
    if (m_isRedirected || m_made == Made::OnFile) {
        keys += TestSupport::openProductStore()->allKeys();
    }
    if (m_isRedirected || m_made != Made::OnFile) {
        keys += QSettings(m_file, QSettings::IniFormat).allKeys();
    }
    if (m_temporary != nullptr && !m_isRedirected) {
        keys += QSettings(m_temporary->tempSettingsPath(), QSettings::IniFormat).allKeys();
    }
    return keys;
}

void tst_Settings::writeElsewhere(const QString &key)
{
    if (m_isRedirected || m_made == Made::OnFile) {
        TestSupport::openProductStore()->setValue(key, u"elsewhere"_qs);
    }
    if (m_isRedirected || m_made != Made::OnFile) {
        QSettings(m_file, QSettings::IniFormat).setValue(key, u"elsewhere"_qs);
    }
    if (m_temporary != nullptr && !m_isRedirected) {
        m_temporary->setValue(key, u"elsewhere"_qs);
    }
}

QDir tst_Settings::parentFolder() const
{
    const QDir folder(m_sandbox.filePath(u"parent"_qs));
    folder.mkpath(u"."_qs);
    return folder;
}

void tst_Settings::installTemporarySettings()
{
    m_temporary = std::make_unique<CTemporarySettings>(parentFolder());
    CSettings::setTemporarySettings(*m_temporary);
}

void tst_Settings::systemStore_liesUnderOrganizationAndProduct()
{
    CSettings().setValue(u"group/a"_qs, 1);
    QCOMPARE(TestSupport::openProductStore()->value(u"group/a"_qs).toInt(), 1);
    QCOMPARE(QSettings(u"Zyx Labs"_qs, u"Zyx Grainlab 6"_qs).value(u"group/a"_qs).toInt(), 1);

    TestSupport::openProductStore()->setValue(u"b"_qs, 2);
    QCOMPARE(CSettings().value(u"b"_qs).toInt(), 2);
}

void tst_Settings::constructor_givesParentToTheStoreInside_data()
{
    QTest::addColumn<Made>("made");

    QTest::newRow("system store") << Made::Plainly;
    QTest::newRow("ignoring temporary settings") << Made::Ignoring;
    QTest::newRow("on a file") << Made::OnFile;
}

void tst_Settings::constructor_givesParentToTheStoreInside()
{
    QFETCH(Made, made);

    QObject parent;
    {
        const auto settings = makeSettings(made, m_file, &parent);
        QVERIFY(settings->parent() == nullptr);
        QCOMPARE(parent.children().size(), 1);
        QVERIFY(qobject_cast<QSettings *>(parent.children().first()) != nullptr);
    }
    QVERIFY(parent.children().isEmpty());
}

void tst_Settings::fileConstructor_takesTheFormatGiven()
{
    static const QSettings::Format format = QSettings::registerFormat(
        u"marked"_qs,
        [](QIODevice &device, QSettings::SettingsMap &map) {
            map.insert(u"read"_qs, QString::fromUtf8(device.readAll()));
            return true;
        },
        [](QIODevice &, const QSettings::SettingsMap &) { return true; });
    QVERIFY(format != QSettings::InvalidFormat);
    TestSupport::writeFile(m_file, "content");
    QCOMPARE(CSettings(m_file, format).value(u"read"_qs).toString(), u"content"_qs);
}

void tst_Settings::usingTemporarySettings_data()
{
    QTest::addColumn<Made>("made");
    QTest::addColumn<bool>("isRedirectable");

    QTest::newRow("system store") << Made::Plainly << true;
    QTest::newRow("on a file") << Made::OnFile << true;
    QTest::newRow("ignoring temporary settings") << Made::Ignoring << false;
}

void tst_Settings::usingTemporarySettings()
{
    QFETCH(Made, made);
    QFETCH(bool, isRedirectable);

    const auto settings = makeSettings(made, m_file);
    QVERIFY(!settings->usingTemporarySettings());
    installTemporarySettings();
    QCOMPARE(settings->usingTemporarySettings(), isRedirectable);
    QCOMPARE(makeSettings(made, m_file)->usingTemporarySettings(), isRedirectable);
    m_temporary.reset();
    QVERIFY(!settings->usingTemporarySettings());
}

void tst_Settings::ignoringObject_keepsReadingTheSystemStore()
{
    TestSupport::openProductStore()->setValue(u"a"_qs, u"system"_qs);
    installTemporarySettings();
    m_temporary->setValue(u"a"_qs, u"temporary"_qs);
    QCOMPARE(CSettings(nullptr, true).value(u"a"_qs).toString(), u"system"_qs);
    QCOMPARE(CSettings().value(u"a"_qs).toString(), u"temporary"_qs);
    QVERIFY(!CSettings(nullptr, true).usingTemporarySettings());
}

void tst_Settings::setValue_reachesOneStore_data()
{
    addAllSituations();
}

void tst_Settings::setValue_reachesOneStore()
{
    setUpRow();
    m_settings->setValue(u"a"_qs, 1);
    QCOMPARE(target()->value(u"a"_qs).toInt(), 1);
    QCOMPARE(keysElsewhere(), QStringList());
}

void tst_Settings::setValue_isOnDiskAtOnceOnlyIfRedirected_data()
{
    addAllSituations();
}

void tst_Settings::setValue_isOnDiskAtOnceOnlyIfRedirected()
{
    setUpRow();
    SKIP_UNLESS_TARGET_IS_A_FILE();
    m_settings->setValue(u"a"_qs, 1);
    QCOMPARE(valueOnDisk(targetPath(), u"a"_qs), m_isRedirected ? QVariant(u"1"_qs) : QVariant());
}

void tst_Settings::value_readsOneStore_data()
{
    addAllSituations();
}

void tst_Settings::value_readsOneStore()
{
    setUpRow();
    writeElsewhere(u"a"_qs);
    QCOMPARE(m_settings->value(u"a"_qs, 5), QVariant(5));
    QCOMPARE(m_settings->value(u"a"_qs), QVariant());
    target()->setValue(u"a"_qs, u"text"_qs);
    QCOMPARE(m_settings->value(u"a"_qs, 5), QVariant(u"text"_qs));
    QCOMPARE(m_settings->value(u"a"_qs), QVariant(u"text"_qs));
}

void tst_Settings::contains_asksOneStore_data()
{
    addAllSituations();
}

void tst_Settings::contains_asksOneStore()
{
    setUpRow();
    writeElsewhere(u"a"_qs);
    QVERIFY(!m_settings->contains(u"a"_qs));
    target()->setValue(u"a"_qs, 1);
    QVERIFY(m_settings->contains(u"a"_qs));
}

void tst_Settings::remove_reachesOneStore_data()
{
    addAllSituations();
}

void tst_Settings::remove_reachesOneStore()
{
    setUpRow();
    writeElsewhere(u"a"_qs);
    const QStringList untouched = keysElsewhere();
    target()->setValue(u"a"_qs, 1);
    target()->setValue(u"b"_qs, 2);
    m_settings->remove(u"a"_qs);
    QCOMPARE(target()->allKeys(), QStringList(u"b"_qs));
    QCOMPARE(keysElsewhere(), untouched);
}

void tst_Settings::remove_isOnDiskAtOnceOnlyIfRedirected_data()
{
    addAllSituations();
}

void tst_Settings::remove_isOnDiskAtOnceOnlyIfRedirected()
{
    setUpRow();
    SKIP_UNLESS_TARGET_IS_A_FILE();
    m_settings->setValue(u"a"_qs, 1);
    m_settings->sync();
    QCOMPARE(valueOnDisk(targetPath(), u"a"_qs).toInt(), 1);
    m_settings->remove(u"a"_qs);
    QCOMPARE(valueOnDisk(targetPath(), u"a"_qs), m_isRedirected ? QVariant() : QVariant(u"1"_qs));
}

void tst_Settings::beginGroup_replacesIfRedirectedAndNestsOtherwise_data()
{
    addAllSituations();
}

void tst_Settings::beginGroup_replacesIfRedirectedAndNestsOtherwise()
{
    setUpRow();
    m_settings->beginGroup(u"a"_qs);
    m_settings->beginGroup(u"b"_qs);
    QCOMPARE(m_settings->group(), m_isRedirected ? u"b"_qs : u"a/b"_qs);
    m_settings->setValue(u"k"_qs, 1);
    QCOMPARE(target()->allKeys(), QStringList(m_isRedirected ? u"b/k"_qs : u"a/b/k"_qs));
}

void tst_Settings::beginGroup_countsForEveryKey_data()
{
    addAllSituations();
}

void tst_Settings::beginGroup_countsForEveryKey()
{
    setUpRow();
    target()->setValue(u"k"_qs, u"top"_qs);
    m_settings->beginGroup(u"g"_qs);
    QVERIFY(!m_settings->contains(u"k"_qs));
    QCOMPARE(m_settings->value(u"k"_qs, 5), QVariant(5));

    target()->setValue(u"g/k"_qs, u"in group"_qs);
    QVERIFY(m_settings->contains(u"k"_qs));
    QCOMPARE(m_settings->value(u"k"_qs), QVariant(u"in group"_qs));

    m_settings->remove(u"k"_qs);
    QCOMPARE(target()->allKeys(), QStringList(u"k"_qs));
}

void tst_Settings::endGroup_clearsIfRedirectedAndGoesUpOtherwise_data()
{
    addAllSituations();
}

void tst_Settings::endGroup_clearsIfRedirectedAndGoesUpOtherwise()
{
    setUpRow();
    QCOMPARE(m_settings->group(), QString());
    m_settings->beginGroup(u"a"_qs);
    m_settings->beginGroup(u"b"_qs);
    m_settings->endGroup();
    QCOMPARE(m_settings->group(), m_isRedirected ? QString() : u"a"_qs);
    m_settings->setValue(u"k"_qs, 1);
    QCOMPARE(target()->allKeys(), QStringList(m_isRedirected ? u"k"_qs : u"a/k"_qs));
}

void tst_Settings::endGroup_redirected_withoutGroup_isHarmless()
{
    installTemporarySettings();
    CSettings settings;
    settings.endGroup();
    settings.beginGroup(u"a/b"_qs); // one group in one piece, ended in one
    settings.setValue(u"k"_qs, 1);
    settings.endGroup();
    settings.setValue(u"k"_qs, 2);
    QCOMPARE(m_temporary->value(u"a/b/k"_qs).toInt(), 1);
    QCOMPARE(m_temporary->value(u"k"_qs).toInt(), 2);
}

void tst_Settings::group_ofOneRedirectedObject_isNotAnothers()
{
    installTemporarySettings();
    CSettings first;
    first.beginGroup(u"a"_qs);
    CSettings second;
    QCOMPARE(second.group(), QString());
    second.setValue(u"k"_qs, 1);
    QVERIFY(m_temporary->contains(u"k"_qs));
    QVERIFY(!m_temporary->contains(u"a/k"_qs));
}

void tst_Settings::localKey_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("localKey");

    QTest::newRow("no group") << QString() << u"k"_qs << u"k"_qs;
    QTest::newRow("group") << u"g"_qs << u"k"_qs << u"g/k"_qs;
    QTest::newRow("group of two levels") << u"a/b"_qs << u"k"_qs << u"a/b/k"_qs;
    QTest::newRow("key of two levels") << u"g"_qs << u"a/k"_qs << u"g/a/k"_qs;
    QTest::newRow("empty key") << u"g"_qs << QString() << u"g/"_qs;
    QTest::newRow("place marker in the group") << u"%2"_qs << u"k"_qs << u"%2/k"_qs;
    QTest::newRow("place marker in the key") << u"g"_qs << u"%1"_qs << u"g/%1"_qs;
}

void tst_Settings::localKey()
{
    QFETCH(QString, group);
    QFETCH(QString, key);

    installTemporarySettings();
    CSettings settings;
    settings.beginGroup(group);
    QTEST(settings.localKey(key), "localKey");
}

void tst_Settings::localKey_notRedirected_isTheKeyInAnyGroup()
{
    installTemporarySettings();
    CSettings ignoring(nullptr, true);
    ignoring.beginGroup(u"g"_qs);
    QCOMPARE(ignoring.localKey(u"k"_qs), u"k"_qs);

    CSettings onFile(m_file, QSettings::IniFormat);
    m_temporary.reset();
    onFile.beginGroup(u"g"_qs);
    QCOMPARE(onFile.localKey(u"k"_qs), u"k"_qs);
}

void tst_Settings::localKey_behindARedirectLeftInAGroup_keepsTheGroup()
{
    CSettings settings;
    installTemporarySettings();
    settings.beginGroup(u"g"_qs);
    m_temporary.reset();
    QCOMPARE(settings.localKey(u"k"_qs), u"g/k"_qs);
    QCOMPARE(settings.group(), QString());
    settings.setValue(u"k"_qs, 1);
    QCOMPARE(TestSupport::openProductStore()->allKeys(), QStringList(u"k"_qs));

    installTemporarySettings();
    QCOMPARE(settings.group(), u"g"_qs);
    settings.setValue(u"k"_qs, 2);
    QCOMPARE(m_temporary->value(u"g/k"_qs).toInt(), 2);
}

void tst_Settings::writeArray_redirected_leavesTheGroupOut_data()
{
    addAllSituations();
}

void tst_Settings::writeArray_redirected_leavesTheGroupOut()
{
    setUpRow();
    m_settings->beginGroup(u"g"_qs);
    m_settings->beginWriteArray(u"array"_qs, 1);
    m_settings->setArrayIndex(0);
    m_settings->setValue(u"k"_qs, 1);
    m_settings->endArray();
    m_settings->setValue(u"behind"_qs, 2);

    // The array's keys still have the group: it goes in front of each of them.
    const QStringList redirectedKeys{u"array/1/g/k"_qs, u"array/size"_qs, u"g/behind"_qs};
    const QStringList nestedKeys{u"g/array/1/k"_qs, u"g/array/size"_qs, u"g/behind"_qs};
    QStringList keys = target()->allKeys();
    keys.sort();
    QCOMPARE(keys, m_isRedirected ? redirectedKeys : nestedKeys);
    QCOMPARE(keysElsewhere(), QStringList());
}

void tst_Settings::writeArray_withoutSize_isAsLongAsItsHighestIndex_data()
{
    addAllSituations();
}

void tst_Settings::writeArray_withoutSize_isAsLongAsItsHighestIndex()
{
    setUpRow();
    target()->setValue(u"array/size"_qs, 9); // of an earlier, longer array
    m_settings->beginWriteArray(u"array"_qs);
    for (const int index : {4, 1}) {
        m_settings->setArrayIndex(index);
        m_settings->setValue(u"k"_qs, index);
    }
    m_settings->endArray();
    QCOMPARE(target()->value(u"array/size"_qs).toInt(), 5);
}

void tst_Settings::readArray_redirected_leavesTheGroupOut_data()
{
    addAllSituations();
}

void tst_Settings::readArray_redirected_leavesTheGroupOut()
{
    setUpRow();
    const QString prefix = m_isRedirected ? QString() : u"g/"_qs;
    const auto store = target();
    store->beginWriteArray(prefix + u"array"_qs);
    for (int i = 0; i < 3; ++i) {
        store->setArrayIndex(i);
        store->setValue(u"k"_qs, 10 + i);
    }
    store->endArray();

    m_settings->beginGroup(u"g"_qs);
    QCOMPARE(m_settings->beginReadArray(u"array"_qs), 3);
    if (m_isRedirected) {
        m_settings->endGroup(); // else it would count for the array's keys
    }
    m_settings->setArrayIndex(2);
    QCOMPARE(m_settings->value(u"k"_qs).toInt(), 12);
    m_settings->endArray();
    QVERIFY(!m_settings->contains(u"k"_qs));
}

void tst_Settings::array_redirected_isOpenForAllRedirectedObjects()
{
    installTemporarySettings();
    CSettings first;
    first.beginWriteArray(u"array"_qs);
    first.setArrayIndex(0);
    CSettings().setValue(u"k"_qs, 1); // one store behind both, and one array open on it
    first.endArray();
    QVERIFY(m_temporary->contains(u"array/1/k"_qs));
}

void tst_Settings::status_isTheTargets_data()
{
    addAllSituations();
}

void tst_Settings::status_isTheTargets()
{
    setUpRow();
    SKIP_UNLESS_TARGET_IS_A_FILE();
    QCOMPARE(m_settings->status(), QSettings::NoError);
    TestSupport::writeFile(targetPath(), "[group without an end\n");
    m_settings->sync();
    QCOMPARE(m_settings->status(), QSettings::FormatError);
    TestSupport::writeFile(targetPath(), ""); // the system store lives on
    m_settings->sync();
}

void tst_Settings::status_redirected_isNotTheFiles()
{
    TestSupport::writeFile(m_file, "[group without an end\n");
    const CSettings settings(m_file, QSettings::IniFormat);
    QCOMPARE(settings.status(), QSettings::FormatError);
    installTemporarySettings();
    QCOMPARE(settings.status(), QSettings::NoError);
    m_temporary.reset();
    QCOMPARE(settings.status(), QSettings::FormatError);
}

void tst_Settings::sync_writesTheTarget_data()
{
    addAllSituations();
}

void tst_Settings::sync_writesTheTarget()
{
    setUpRow();
    SKIP_UNLESS_TARGET_IS_A_FILE();
    m_settings->beginWriteArray(u"array"_qs, 3);
    m_settings->endArray();
    QCOMPARE(valueOnDisk(targetPath(), u"array/size"_qs), QVariant());
    m_settings->sync();
    QCOMPARE(valueOnDisk(targetPath(), u"array/size"_qs).toInt(), 3);
}

void tst_Settings::sync_redirected_leavesTheObjectsFileUnwritten()
{
    CSettings settings(m_file, QSettings::IniFormat);
    settings.setValue(u"a"_qs, 1);
    installTemporarySettings();
    settings.sync();
    QVERIFY(!QFile::exists(m_file));
    m_temporary.reset();
    settings.sync();
    QCOMPARE(valueOnDisk(m_file, u"a"_qs).toInt(), 1);
}

QTEST_MAIN(tst_Settings)

#include "tst_Settings.moc"
