// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "storageLocation/storageLocation.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QTest>

using ZYX_zglv6::CStorageLocation;

namespace {

const QString catalogue = u":/calibration/db/CAFList5.db"_qs;

/*! The first column of the rows that \a text finds. */
QStringList column(const QString &text, const QVariantList &values = {})
{
    QSqlQuery query;
    query.prepare(text);
    for (const QVariant &value : values) {
        query.addBindValue(value);
    }
    if (!query.exec()) {
        return {query.lastError().text()};
    }
    QStringList found;
    while (query.next()) {
        found.append(query.value(0).toString());
    }
    return found;
}

/*! How SQLite answers \a text. */
QString plan(const QString &text)
{
    QSqlQuery query(u"EXPLAIN QUERY PLAN "_qs + text);
    QStringList steps;
    while (query.next()) {
        steps.append(query.value(3).toString());
    }
    return steps.join(u"; ");
}

/*! The modules that serve a lens of that id at that focal length on a camera, for RAW images. */
QStringList rawModules(const QString &identifier, const QString &lensId, double focalLength)
{
    return column(u"SELECT cid FROM Body JOIN Module ON Module.body = Body.id WHERE identifier = ? AND lens_id = ? "
                  "AND fmin <= ? AND fmax >= ? AND rgb_only = 0 ORDER BY cid"_qs,
                  {identifier, lensId, focalLength, focalLength});
}

} // namespace

class tst_CalibrationCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void name_isThatOfTheStorageLocation();
    void schema_isThis_data();
    void schema_isThis();
    void schema_isInThisOrder();
    void figures_areThese_data();
    void figures_areThese();
    void makers_areThese();
    void content_isIntact();
    void version_isKept();
    void links_leadSomewhere_data();
    void links_leadSomewhere();
    void cids_haveTheirForm();
    void ownModules_areTheEmbeddedOnes();
    void lookUp_usesAnIndex_data();
    void lookUp_usesAnIndex();
    void wordForNone_isText();
    void sharedBodyId_joinsTheSameModules();
    void primeLens_isInclusiveOnBothEnds();
    void zoomLens_isInclusiveOnBothEnds_data();
    void zoomLens_isInclusiveOnBothEnds();
    void identifiers_runMakerAndModelTogether_data();
    void identifiers_runMakerAndModelTogether();
    void rawAndRgb_haveAModuleEach();
    void rowsOfOneBody_haveAModuleEach();
    void module_servesSeveralBodies();
    void lensIds_areThoseOfAnyMountThatFits();
    void lensIds_haveTheirForm();
    void numbers_areStoredAsNumbers_data();
    void numbers_areStoredAsNumbers();
    void builtInPrime_hasOneFocalLength();
    void wholeLookUp_usesIndexes();

private:
    QTemporaryDir m_folder;
};

/*! SQLite can't read a resource: a reader copies it out first. */
void tst_CalibrationCatalogue::initTestCase()
{
    const QString copy = m_folder.filePath(CStorageLocation::getCafDbFileNameDefault());
    QVERIFY(QFile::copy(catalogue, copy));
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_qs);
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_qs);
    database.setDatabaseName(copy);
    QVERIFY2(database.open(), qPrintable(database.lastError().text()));
}

void tst_CalibrationCatalogue::cleanupTestCase()
{
    QSqlDatabase::database().close();
    QSqlDatabase::removeDatabase(QLatin1StringView(QSqlDatabase::defaultConnection));
}

void tst_CalibrationCatalogue::name_isThatOfTheStorageLocation()
{
    QCOMPARE(catalogue.section(u'/', -1), CStorageLocation::getCafDbFileNameDefault());
}

void tst_CalibrationCatalogue::schema_isThis_data()
{
    const auto row
        = [](const char *name, const char *statement) { QTest::newRow(name) << QString::fromLatin1(statement); };
    QTest::addColumn<QString>("statement");
    row("Metadata", "CREATE TABLE Metadata (id INTEGER PRIMARY KEY, key TEXT, value TEXT)");
    row("Module",
        "CREATE TABLE Module (id INTEGER PRIMARY KEY, cid TEXT, body INTEGER, name TEXT, fmin FLOAT, fmax FLOAT, "
        "amin FLOAT, amax FLOAT, lens_id TEXT, lens_name TEXT, bridge INTEGER, raw_only INTEGER, rgb_only INTEGER, "
        "lens_id_thumbnail INTEGER)");
    row("module_body_idx", "CREATE INDEX module_body_idx ON Module(body)");
    row("module_cid_idx", "CREATE INDEX module_cid_idx ON Module(cid)");
    row("module_raw_only_idx", "CREATE INDEX module_raw_only_idx ON Module(raw_only)");
    row("module_rgb_only_idx", "CREATE INDEX module_rgb_only_idx ON Module(rgb_only)");
    row("module_fmin_idx", "CREATE INDEX module_fmin_idx ON Module(fmin)");
    row("module_fmax_idx", "CREATE INDEX module_fmax_idx ON Module(fmax)");
    row("module_lens_id_idx", "CREATE INDEX module_lens_id_idx ON Module(lens_id)");
    row("module_bridge_idx", "CREATE INDEX module_bridge_idx ON Module(bridge)");
    row("Maker", "CREATE TABLE Maker (id INTEGER PRIMARY KEY, name TEXT)");
    row("Body", "CREATE TABLE Body (id INTEGER, maker INTEGER, model TEXT, identifier TEXT)");
    row("body_id_idx", "CREATE INDEX body_id_idx ON Body(id)");
    row("body_maker_idx", "CREATE INDEX body_maker_idx ON Body(maker)");
    row("body_identifier_idx", "CREATE INDEX body_identifier_idx ON Body(identifier)");
}

void tst_CalibrationCatalogue::schema_isThis()
{
    QFETCH(const QString, statement);
    QCOMPARE(column(u"SELECT sql FROM sqlite_master WHERE name = ?"_qs, {QString::fromLatin1(QTest::currentDataTag())}),
             QStringList(statement));
}

void tst_CalibrationCatalogue::schema_isInThisOrder()
{
    const QString names = u"Metadata Module module_body_idx module_cid_idx module_raw_only_idx module_rgb_only_idx "
                          "module_fmin_idx module_fmax_idx module_lens_id_idx module_bridge_idx Maker Body body_id_idx "
                          "body_maker_idx body_identifier_idx sqlite_stat1"_qs;
    QCOMPARE(column(u"SELECT name FROM sqlite_master ORDER BY rowid"_qs), names.split(u' ')); // and nothing else
}

void tst_CalibrationCatalogue::figures_areThese_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<double>("value");

    const auto row = [](const char *name, const char *query, double value) {
        QTest::newRow(name) << QString::fromLatin1(query) << value;
    };
    row("metadata", "SELECT count(*) FROM Metadata", 1);
    row("makers", "SELECT count(*) FROM Maker", 21);
    row("bodies", "SELECT count(*) FROM Body", 518);
    row("body numbers", "SELECT count(DISTINCT id) FROM Body", 517);
    row("identifiers", "SELECT count(DISTINCT identifier) FROM Body", 518);
    row("makers with bodies", "SELECT count(DISTINCT maker) FROM Body", 21);
    row("modules", "SELECT count(*) FROM Module", 85'940);
    row("module identifiers", "SELECT count(DISTINCT cid) FROM Module", 73'882);
    row("bodies of modules", "SELECT count(DISTINCT body) FROM Module", 517);
    row("no lens id", "SELECT count(*) FROM Module WHERE lens_id = 'NULL'", 10'671);
    row("lens id 65535", "SELECT count(DISTINCT lens_id) FROM Module WHERE lens_id = '65535'", 1);
    row("no lens name", "SELECT count(*) FROM Module WHERE lens_name = 'NULL'", 39'150);
    row("fixed lenses", "SELECT count(*) FROM Module WHERE bridge = 1", 350);
    row("other bridges", "SELECT count(*) FROM Module WHERE bridge <> 0 AND bridge <> 1", 0);
    row("RAW only", "SELECT count(*) FROM Module WHERE raw_only = 1", 8'891);
    row("RGB only", "SELECT count(*) FROM Module WHERE rgb_only = 1", 9'249);
    row("other kinds", "SELECT count(*) FROM Module WHERE raw_only NOT IN (0, 1) OR rgb_only NOT IN (0, 1)", 0);
    row("identifiers of examples", "SELECT count(*) FROM Module WHERE cid IN ('C24560b_001', 'C1000a_001')", 2);
    row("RAW and RGB only", "SELECT count(*) FROM Module WHERE raw_only = 1 AND rgb_only = 1", 0);
    row("thumbnails", "SELECT count(DISTINCT lens_id_thumbnail) FROM Module", 1'864);
    row("shortest focal length", "SELECT min(fmin) FROM Module", 0);
    row("longest focal length", "SELECT max(fmax) FROM Module", 2000);
    row("widest aperture", "SELECT min(amin) FROM Module", 0);
    row("narrowest aperture", "SELECT max(amax) FROM Module", 22);
    row("statistics", "SELECT count(*) FROM sqlite_stat1", 13);
    row("statistics of tables", "SELECT count(*) FROM sqlite_stat1 WHERE idx IS NULL", 2);
}

void tst_CalibrationCatalogue::figures_areThese()
{
    QFETCH(const QString, query);
    QFETCH(const double, value);
    const QStringList found = column(query);
    QCOMPARE(found.size(), 1);
    bool isNumber = false;
    const double number = found.first().toDouble(&isNumber);
    QVERIFY2(isNumber, qPrintable(found.first())); // or an error would be 0
    QCOMPARE(number, value);
}

void tst_CalibrationCatalogue::makers_areThese()
{
    const QString makers
        = u"Apple,Canon,DJI,Fujifilm,GoPro,Hasselblad,Kodak,Konica,Leica,Nikon,Nokia,Olympus,OM System,"
          "Panasonic,Parrot,Pentax,Ricoh,Samsung,Sigma,Sony,Zyx Labs"_qs;
    QCOMPARE(column(u"SELECT name FROM Maker ORDER BY id"_qs), makers.split(u','));
    QCOMPARE(column(u"SELECT count(*) FROM Body JOIN Maker ON Maker.id = maker WHERE name = 'Zyx Labs'"_qs),
             QStringList(u"1"_qs));
}

void tst_CalibrationCatalogue::content_isIntact()
{
    QCOMPARE(column(u"PRAGMA integrity_check"_qs), QStringList(u"ok"_qs));
}

void tst_CalibrationCatalogue::version_isKept()
{
    QCOMPARE(column(u"SELECT value FROM Metadata WHERE key = 'Version'"_qs), QStringList(u"500.4.0.3"_qs));
}

void tst_CalibrationCatalogue::links_leadSomewhere_data()
{
    QTest::addColumn<QString>("query");

    QTest::newRow("modules of bodies") << u"SELECT cid FROM Module WHERE body NOT IN (SELECT id FROM Body)"_qs;
    QTest::newRow("bodies of modules") << u"SELECT id FROM Body WHERE id NOT IN (SELECT body FROM Module)"_qs;
    QTest::newRow("bodies of makers") << u"SELECT id FROM Body WHERE maker NOT IN (SELECT id FROM Maker)"_qs;
    QTest::newRow("ranges backwards") << u"SELECT cid FROM Module WHERE fmin > fmax OR (amax > 0 AND amin > amax)"_qs;
    QTest::newRow("null values")
        << u"SELECT cid FROM Module WHERE lens_id IS NULL OR lens_name IS NULL OR cid IS NULL"_qs;
    QTest::newRow("lens that nothing tells")
        << u"SELECT cid FROM Module WHERE bridge = 0 AND lens_id = 'NULL' AND lens_name = 'NULL'"_qs;
}

/*! No clause of the schema keeps them. */
void tst_CalibrationCatalogue::links_leadSomewhere()
{
    QFETCH(const QString, query);
    QCOMPARE(column(query), QStringList());
}

void tst_CalibrationCatalogue::cids_haveTheirForm()
{
    static const QRegularExpression form(u"^C[0-9]{3,5}[a-z]_[0-9]{3}$"_qs);
    QSet<qsizetype> digits;
    for (const QString &cid : column(u"SELECT DISTINCT cid FROM Module"_qs)) {
        QVERIFY2(form.match(cid).hasMatch(), qPrintable(cid));
        digits.insert(cid.size() - 6);
    }
    QCOMPARE(digits, (QSet<qsizetype>{3, 4, 5}));
}

void tst_CalibrationCatalogue::ownModules_areTheEmbeddedOnes()
{
    const QString own = u"SELECT cid FROM Module JOIN Body ON Body.id = Module.body JOIN Maker ON Maker.id = maker "
                        "WHERE Maker.name = 'Zyx Labs' AND bridge = 1 AND raw_only = %1 AND rgb_only = %2"_qs;
    QCOMPARE(column(own.arg(1).arg(0)), QStringList(u"C33759b_023"_qs));
    QCOMPARE(column(own.arg(0).arg(1)), QStringList(u"C34062a_011"_qs));
    QVERIFY(QFile::exists(u":/calibration/caf/C33759b_023.caf"_qs));
    QVERIFY(QFile::exists(u":/calibration/caf/C34062a_011.caf"_qs));
}

void tst_CalibrationCatalogue::lookUp_usesAnIndex_data()
{
    QTest::addColumn<QString>("query");

    const auto row = [](const char *index, const char *query) { QTest::newRow(index) << QString::fromLatin1(query); };
    row("body_identifier_idx", "SELECT id FROM Body WHERE identifier = 'AppleIPhone5S'");
    row("body_id_idx", "SELECT model FROM Body WHERE id = 100");
    row("body_maker_idx", "SELECT model FROM Body WHERE maker = 2");
    row("module_body_idx", "SELECT cid FROM Module WHERE body = 100");
    row("module_lens_id_idx", "SELECT cid FROM Module WHERE lens_id = '490'");
    row("module_cid_idx", "SELECT name FROM Module WHERE cid = 'C33759b_023'");
    row("module_fmin_idx", "SELECT cid FROM Module WHERE fmin > 1000");
    row("module_fmax_idx", "SELECT cid FROM Module WHERE fmax < 5");
    row("module_bridge_idx", "SELECT cid FROM Module WHERE bridge = 1");
    row("module_raw_only_idx", "SELECT cid FROM Module WHERE raw_only = 1");
    row("module_rgb_only_idx", "SELECT cid FROM Module WHERE rgb_only = 1");
}

void tst_CalibrationCatalogue::lookUp_usesAnIndex()
{
    QFETCH(const QString, query);
    const QString answer = plan(query);
    QVERIFY2(answer.contains(u"USING INDEX "_qs + QString::fromLatin1(QTest::currentDataTag())), qPrintable(answer));
}

void tst_CalibrationCatalogue::wordForNone_isText()
{
    QCOMPARE(column(u"SELECT DISTINCT typeof(lens_id) FROM Module"_qs), QStringList(u"text"_qs));
    QCOMPARE(column(u"SELECT DISTINCT typeof(lens_name) FROM Module"_qs), QStringList(u"text"_qs));
    QCOMPARE(column(u"SELECT count(*) FROM Module WHERE lens_id IS NULL"_qs), QStringList(u"0"_qs));
    QCOMPARE(column(u"SELECT count(*) FROM Module WHERE bridge = 1 AND lens_id = 'NULL'"_qs), QStringList(u"350"_qs));
}

void tst_CalibrationCatalogue::sharedBodyId_joinsTheSameModules()
{
    const QString shared
        = u"SELECT identifier FROM Body WHERE id IN (SELECT id FROM Body GROUP BY id HAVING count(*) > 1)"_qs;
    QCOMPARE(column(shared), (QStringList{u"CanonEOSM50"_qs, u"CanonEOSKISSM"_qs}));
    const QString modules = u"SELECT Module.id FROM Body JOIN Module ON Module.body = Body.id WHERE identifier = ?"_qs;
    QCOMPARE(column(modules, {u"CanonEOSM50"_qs}).size(), 271);
    QCOMPARE(column(modules, {u"CanonEOSM50"_qs}), column(modules, {u"CanonEOSKISSM"_qs}));
}

void tst_CalibrationCatalogue::primeLens_isInclusiveOnBothEnds()
{
    // Canon EF 50mm f/1.4 USM
    QCOMPARE(
        column(u"SELECT DISTINCT fmin FROM Module WHERE lens_id = '198' AND fmin = fmax AND name LIKE 'Canon%'"_qs),
        QStringList(u"50"_qs));
    QCOMPARE(rawModules(u"CanonEOS5DMarkIV"_qs, u"198"_qs, 50), QStringList(u"C76091a_001"_qs));
    QCOMPARE(rawModules(u"CanonEOS5DMarkIV"_qs, u"198"_qs, 49.9), QStringList());
    QCOMPARE(rawModules(u"CanonEOS5DMarkIV"_qs, u"198"_qs, 50.1), QStringList());
}

void tst_CalibrationCatalogue::zoomLens_isInclusiveOnBothEnds_data()
{
    QTest::addColumn<double>("focalLength");
    QTest::addColumn<bool>("isServed");

    QTest::newRow("before") << 7.9 << false;
    QTest::newRow("first end") << 8.0 << true;
    QTest::newRow("between") << 12.0 << true;
    QTest::newRow("last end") << 15.0 << true;
    QTest::newRow("behind") << 15.1 << false;
}

void tst_CalibrationCatalogue::zoomLens_isInclusiveOnBothEnds()
{
    QCOMPARE(column(u"SELECT DISTINCT name FROM Module WHERE lens_id = '490'"_qs),
             QStringList(u"Canon EF8-15mm f/4L Fisheye USM"_qs));
    QFETCH(const double, focalLength);
    QFETCH(const bool, isServed);
    QCOMPARE(rawModules(u"CanonEOS5DMarkIV"_qs, u"490"_qs, focalLength),
             isServed ? QStringList(u"C24560b_001"_qs) : QStringList());
}

void tst_CalibrationCatalogue::identifiers_runMakerAndModelTogether_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("lens");

    QTest::newRow("AppleIPhone5S") << u"iPhone 5s"_qs << u"iPhone 5s Lens"_qs;
    QTest::newRow("AppleIPhone4") << u"iPhone 4"_qs << u"iPhone 4 Lens"_qs;
}

void tst_CalibrationCatalogue::identifiers_runMakerAndModelTogether()
{
    QFETCH(const QString, model);
    QFETCH(const QString, lens);
    const QString identifier = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(column(u"SELECT model FROM Body WHERE identifier = ?"_qs, {identifier}), QStringList(model));
    QCOMPARE(
        column(u"SELECT DISTINCT name FROM Body JOIN Module ON body = Body.id WHERE identifier = ?"_qs, {identifier}),
        QStringList(lens));
}

void tst_CalibrationCatalogue::rawAndRgb_haveAModuleEach()
{
    const QString split = u"SELECT count(DISTINCT cid) FROM Module WHERE raw_only + rgb_only = 1 AND bridge = 0 "
                          "GROUP BY body, name HAVING sum(raw_only) > 0 AND sum(rgb_only) > 0"_qs;
    const QStringList counts = column(split);
    QCOMPARE(counts.size(), 8758);
    QCOMPARE(counts.count(u"2"_qs), counts.size());
}

void tst_CalibrationCatalogue::rowsOfOneBody_haveAModuleEach()
{
    QCOMPARE(column(u"SELECT cid FROM Module GROUP BY body, cid HAVING count(*) > 1"_qs), QStringList());
    const QString severalIds
        = u"SELECT name FROM Module WHERE raw_only + rgb_only = 0 GROUP BY body, name HAVING count(DISTINCT lens_id) = 3"_qs;
    QVERIFY(!column(severalIds).isEmpty());
}

void tst_CalibrationCatalogue::module_servesSeveralBodies()
{
    QVERIFY(!column(u"SELECT cid FROM Module GROUP BY cid HAVING count(DISTINCT body) > 1"_qs).isEmpty());
    QCOMPARE(column(u"SELECT cid FROM Module GROUP BY cid HAVING count(DISTINCT name) > 1"_qs), QStringList());
}

/*! This lens has two mounts that fit the camera, and its ids by the second one. */
void tst_CalibrationCatalogue::lensIds_areThoseOfAnyMountThatFits()
{
    QCOMPARE(
        column(u"SELECT DISTINCT lens_id FROM Body JOIN Module ON body = Body.id WHERE identifier = 'PentaxK1' AND "
               "name = 'smc Pentax-D FA Macro 100mm f/2.8 WR' ORDER BY lens_id"_qs),
        (QStringList{u"4 52"_qs, u"7 58"_qs}));
}

/*! The word for none, a number, the pair of a Pentax, the triple of an Olympus, the eight bytes of a Nikon. */
void tst_CalibrationCatalogue::lensIds_haveTheirForm()
{
    static const QRegularExpression form(
        u"^(NULL|\\d+|\\d+ \\d+|\\d+( [0-9a-f]{2}){2}|[0-9A-F]{2}( [0-9A-F]{2}){7})$"_qs);
    const QStringList ids = column(u"SELECT DISTINCT lens_id FROM Module"_qs);
    QVERIFY(ids.size() > 1000);
    for (const QString &id : ids) {
        QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
    }
}

void tst_CalibrationCatalogue::numbers_areStoredAsNumbers_data()
{
    QTest::addColumn<QString>("type");

    for (const char *name : {"fmin", "fmax", "amin", "amax"}) {
        QTest::newRow(name) << u"real"_qs;
    }
    for (const char *name : {"id", "body", "bridge", "raw_only", "rgb_only", "lens_id_thumbnail"}) {
        QTest::newRow(name) << u"integer"_qs;
    }
}

void tst_CalibrationCatalogue::numbers_areStoredAsNumbers()
{
    QFETCH(const QString, type);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(column(u"SELECT DISTINCT typeof(%1) FROM Module"_qs.arg(name)), QStringList(type));
}

void tst_CalibrationCatalogue::builtInPrime_hasOneFocalLength()
{
    const QString lengths = u"SELECT DISTINCT fmin || ' ' || fmax FROM Body JOIN Module ON body = Body.id "
                            "WHERE identifier = '%1'"_qs;
    QCOMPARE(column(lengths.arg(u"RicohGRIII"_qs)), QStringList(u"18.3 18.3"_qs));
    QCOMPARE(column(lengths.arg(u"FujifilmX100V"_qs)), QStringList(u"23.0 23.0"_qs));
}

/*! From a camera's identifier and lens to its modules. */
void tst_CalibrationCatalogue::wholeLookUp_usesIndexes()
{
    const QString answer
        = plan(u"SELECT cid FROM Body JOIN Module ON Module.body = Body.id WHERE identifier = 'CanonEOS5DMarkIV' AND "
               "lens_id = '490' AND 12 BETWEEN fmin AND fmax AND bridge = 0 AND rgb_only = 0"_qs);
    static const QRegularExpression module(u"SEARCH Module USING INDEX module_(body|lens_id)_idx"_qs);
    QVERIFY2(answer.contains(u"SEARCH Body USING INDEX body_identifier_idx"_qs), qPrintable(answer));
    QVERIFY2(module.match(answer).hasMatch(), qPrintable(answer));
}

QTEST_GUILESS_MAIN(tst_CalibrationCatalogue)
#include "tst_CalibrationCatalogue.moc"
