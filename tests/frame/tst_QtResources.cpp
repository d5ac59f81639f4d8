// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ResourceCalls.h"
#include "support/FreshProcess.h"

#include "utilsDll/frame/QtResources.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSet>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <algorithm>

using namespace TestSupport;
using ZYX_zglv6::cleanupQtResources;
using ZYX_zglv6::initQtResources;

namespace {

bool isReadable(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && !file.readAll().isEmpty();
}

// One file of each collection.
bool isMainThere()
{
    return isReadable(u":/css/checkForUpdateHtmlStyles.css"_qs);
}

bool isPlatformStyleThere()
{
    return isReadable(u":/qss/win.qss"_qs);
}

bool areTranslationsThere()
{
    return isReadable(u":/translations/zyx_en.qm"_qs);
}

bool isCalibrationThere()
{
    return isReadable(u":/calibration/db/CAFList5.db"_qs);
}

constexpr std::size_t nodeSize = 22; // of format version 3, with its time stamp
constexpr unsigned directoryFlag = 2;

quint32 numberAt(const unsigned char *node, std::size_t offset)
{
    return qFromBigEndian<quint32>(node + offset);
}

/*! A folder that lists a name more than once; what is stored of a name is stored once. */
struct FolderWithDoubles
{
    quint32 entries = 0;
    qsizetype names = 0;
};

FolderWithDoubles folderWithDoubles(const unsigned char *tree, quint32 node = 0)
{
    const unsigned char *start = tree + node * nodeSize;
    if ((qFromBigEndian<quint16>(start + 4) & directoryFlag) == 0) {
        return {};
    }
    const quint32 children = numberAt(start, 6);
    const quint32 first = numberAt(start, 10);
    QSet<quint32> names;
    for (quint32 child = first; child < first + children; ++child) {
        names.insert(numberAt(tree + child * nodeSize, 0));
        const FolderWithDoubles below = folderWithDoubles(tree, child);
        if (below.entries > 0) {
            return below;
        }
    }
    return names.size() < children ? FolderWithDoubles{children, names.size()} : FolderWithDoubles{};
}

/*! The files in a collection, also those of one name in one folder. */
int entryCount(const unsigned char *tree, quint32 node = 0)
{
    const unsigned char *start = tree + node * nodeSize;
    if ((qFromBigEndian<quint16>(start + 4) & directoryFlag) == 0) {
        return 1;
    }
    int count = 0;
    const quint32 children = numberAt(start, 6);
    const quint32 first = numberAt(start, 10);
    for (quint32 child = 0; child < children; ++child) {
        count += entryCount(tree, first + child);
    }
    return count;
}

template <typename Operation>
std::vector<ResourceCall> callsOf(const Operation &operation)
{
    const std::size_t before = resourceCalls().size();
    operation();
    const std::vector<ResourceCall> calls = resourceCalls();
    return {calls.cbegin() + std::ptrdiff_t(before), calls.cend()};
}

} // namespace

class tst_QtResources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void collections_areThereAtLoad_data();
    void collections_areThereAtLoad();
    void collections_areRegisteredAtLoadWithVersion3();
    void collections_haveTheirEntries();

    void initQtResources_registersMainThenTranslationsWithVersion3();
    void cleanupQtResources_addsTheZlibFeatureToTheVersion();
    void cleanupQtResources_releasesMainThenTranslations();
    void initQtResources_callsOften_isHarmless();
    void cleanupQtResources_endsReading_untilInitQtResources();
    void cleanupQtResources_keepsStyleAndCalibration();
    void cleanupQtResources_callsOften_isHarmless();
    void cleanupQtResources_afterManyInits_releasesAtOnce();
    void cleanupQtResources_leavesOpenFilesReadable();
};

void tst_QtResources::collections_areThereAtLoad_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("start");

    QTest::newRow("main, style of texts") << u":/css/checkForUpdateHtmlStyles.css"_qs << QByteArray();
    QTest::newRow("main, sheet") << u":/qss/custom.qss"_qs << QByteArray();
    QTest::newRow("main, icon") << u":/icons/app_icon/logo_16.png"_qs << QByteArray("\x89PNG\r\n");
    QTest::newRow("platform style") << u":/qss/win.qss"_qs << QByteArray();
    for (const char *language : {"en", "fr", "de", "ja", "zh_CN"}) {
        QTest::addRow("translations, %s", language)
            << u":/translations/zyx_"_qs + QString::fromUtf8(language) + u".qm" << QByteArray("\x3c\xb8\x64\x18");
    }
    QTest::newRow("calibration") << u":/calibration/db/CAFList5.db"_qs << QByteArray("SQLite format 3\0", 16);
}

void tst_QtResources::collections_areThereAtLoad()
{
    QFETCH(const QString, path);
    QFETCH(const QByteArray, start);

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(!content.isEmpty());
    QCOMPARE(content.size(), file.size());
    QVERIFY(content.startsWith(start));
}

void tst_QtResources::collections_areRegisteredAtLoadWithVersion3()
{
    RUN_IN_FRESH_PROCESS();
    if (!isLoadingWatched()) {
        QSKIP("Here the calls are watched only after the library is loaded.");
    }
    // Statics of the program's own modules may come behind; the library's four come in any order among themselves.
    const std::vector<ResourceCall> atLoad = resourceCalls();
    QCOMPARE(atLoad.size(), std::size_t(4));
    QVERIFY(std::all_of(atLoad.cbegin(), atLoad.cend(), [](const ResourceCall &call) {
        return call.kind == ResourceCall::Register && call.version == 3;
    }));
    // Two of them are the ones that initQtResources() registers once more.
    const auto isAtLoad
        = [&atLoad](const ResourceCall &call) { return std::count(atLoad.cbegin(), atLoad.cend(), call) == 1; };
    const std::vector<ResourceCall> again = callsOf(&initQtResources);
    QVERIFY(std::all_of(again.cbegin(), again.cend(), isAtLoad));
}

void tst_QtResources::collections_haveTheirEntries()
{
    RUN_IN_FRESH_PROCESS();
    const std::vector<ResourceCall> again = callsOf(&initQtResources);
    QCOMPARE(entryCount(again.at(0).tree), 487); // main
    const FolderWithDoubles fonts = folderWithDoubles(again.at(0).tree); // one of them is listed twice
    QCOMPARE(fonts.entries, 8U);
    QCOMPARE(fonts.names, 7);
    QCOMPARE(entryCount(again.at(1).tree), 9); // translations
    if (!isLoadingWatched()) {
        return; // the other two are registered at load alone
    }
    std::vector<int> counts;
    for (std::size_t i = 0; i < 4; ++i) {
        counts.push_back(entryCount(resourceCalls().at(i).tree));
    }
    std::sort(counts.begin(), counts.end());
    QCOMPARE(counts, (std::vector<int>{1, 3, 9, 487}));
}

void tst_QtResources::initQtResources_registersMainThenTranslationsWithVersion3()
{
    RUN_IN_FRESH_PROCESS();
    const std::vector<ResourceCall> calls = callsOf(&initQtResources);
    QCOMPARE(calls.size(), std::size_t(2));
    for (const ResourceCall &call : calls) {
        QCOMPARE(call.kind, ResourceCall::Register);
        QCOMPARE(call.version, 3);
    }
    // Which tree is which is seen in what goes away with it: see cleanupQtResources_releasesMainThenTranslations().
    const std::vector<ResourceCall> releases = callsOf(&cleanupQtResources);
    QCOMPARE(releases.size(), std::size_t(2));
    QCOMPARE(calls[0].tree, releases[0].tree);
    QCOMPARE(calls[1].tree, releases[1].tree);
}

void tst_QtResources::cleanupQtResources_addsTheZlibFeatureToTheVersion()
{
    RUN_IN_FRESH_PROCESS();
    const std::vector<ResourceCall> calls = callsOf(&cleanupQtResources);
    QCOMPARE(calls.size(), std::size_t(2));
    for (const ResourceCall &call : calls) {
        QCOMPARE(call.kind, ResourceCall::Unregister);
        QCOMPARE(call.version, 3 + zlibFeature);
    }
    QVERIFY(calls[0].tree != calls[1].tree);
}

void tst_QtResources::cleanupQtResources_releasesMainThenTranslations()
{
    RUN_IN_FRESH_PROCESS();
    std::vector<std::pair<bool, bool>> seen; // main, translations
    onResourceCall([&seen] { seen.emplace_back(isMainThere(), areTranslationsThere()); });
    cleanupQtResources();
    onResourceCall({});
    QCOMPARE(seen, (std::vector<std::pair<bool, bool>>{{false, true}, {false, false}}));

    seen.clear();
    onResourceCall([&seen] { seen.emplace_back(isMainThere(), areTranslationsThere()); });
    initQtResources();
    onResourceCall({});
    QCOMPARE(seen, (std::vector<std::pair<bool, bool>>{{true, false}, {true, true}}));
}

void tst_QtResources::initQtResources_callsOften_isHarmless()
{
    RUN_IN_FRESH_PROCESS();
    const QStringList before = QDir(u":/"_qs).entryList();
    for (int i = 0; i < 10; ++i) {
        initQtResources();
    }
    QVERIFY(isMainThere() && areTranslationsThere() && isPlatformStyleThere() && isCalibrationThere());
    QCOMPARE(QDir(u":/"_qs).entryList(), before);
}

void tst_QtResources::cleanupQtResources_endsReading_untilInitQtResources()
{
    RUN_IN_FRESH_PROCESS();
    cleanupQtResources();
    QVERIFY(!isMainThere());
    QVERIFY(!areTranslationsThere());
    QVERIFY(!QFile::exists(u":/qss/custom.qss"_qs));
    QVERIFY(!QFile::exists(u":/translations"_qs));

    initQtResources();
    QVERIFY(isMainThere());
    QVERIFY(areTranslationsThere());
}

void tst_QtResources::cleanupQtResources_keepsStyleAndCalibration()
{
    RUN_IN_FRESH_PROCESS();
    cleanupQtResources();
    QVERIFY(isPlatformStyleThere());
    QVERIFY(isCalibrationThere());
    QCOMPARE(QDir(u":/qss"_qs).entryList(), QStringList{u"win.qss"_qs});
}

void tst_QtResources::cleanupQtResources_callsOften_isHarmless()
{
    RUN_IN_FRESH_PROCESS();
    for (int i = 0; i < 3; ++i) {
        cleanupQtResources();
    }
    QVERIFY(!isMainThere());
    initQtResources();
    QVERIFY(isMainThere() && areTranslationsThere());
}

void tst_QtResources::cleanupQtResources_afterManyInits_releasesAtOnce()
{
    RUN_IN_FRESH_PROCESS();
    for (int i = 0; i < 3; ++i) {
        initQtResources();
    }
    cleanupQtResources(); // Qt keeps a collection once, however often it is registered
    QVERIFY(!isMainThere());
    QVERIFY(!areTranslationsThere());
}

void tst_QtResources::cleanupQtResources_leavesOpenFilesReadable()
{
    RUN_IN_FRESH_PROCESS();
    QFile reference(u":/css/checkForUpdateHtmlStyles.css"_qs);
    QVERIFY(reference.open(QIODevice::ReadOnly));
    const QByteArray content = reference.readAll();
    QFile file(reference.fileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    cleanupQtResources();
    QCOMPARE(file.readAll(), content);
}

QTEST_GUILESS_MAIN(tst_QtResources)

#include "tst_QtResources.moc"
