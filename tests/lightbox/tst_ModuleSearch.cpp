// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCatalogue.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtTest/QTest>

#include <memory>

namespace {

/*! The answers of the catalogue itself, through another connection. */
class Peer
{
public:
    explicit Peer(const QString &folder)
    {
        const QString path = folder + u"/peer.db";
        QFile::copy(u":/calibration/db/CAFList5.db"_qs, path);
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_qs, u"peer"_qs);
        database.setDatabaseName(path);
        database.open();
    }

    ~Peer()
    {
        QSqlDatabase::removeDatabase(u"peer"_qs);
    }

    Q_DISABLE_COPY_MOVE(Peer)

    /*! The first column, sorted. */
    static QStringList column(const QString &statement)
    {
        QSqlQuery query(statement, QSqlDatabase::database(u"peer"_qs));
        QStringList values;
        while (query.next()) {
            values.append(query.value(0).toString());
        }
        values.sort();
        return values;
    }

    static QStringList modules(const QString &body, const QString &condition)
    {
        return column(u"SELECT DISTINCT cid FROM Module WHERE body = (SELECT id FROM Body WHERE identifier = '%1') AND "
                      "(%2)"_qs.arg(body, condition));
    }
};

QStringList cidsOf(const CalibrationAnswer &answer)
{
    QStringList cids;
    for (const CalibrationModule &module : answer.modules) {
        cids.append(module.cid);
    }
    cids.sort();
    cids.removeDuplicates();
    return cids;
}

/*! What two ways to write a name have in common. */
QString letters(QString name)
{
    return name.remove(u'/').remove(u' ');
}

} // namespace

/*! The catalogue of calibration modules. */
class tst_ModuleSearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void bodies_ofMakerAndModel_data();
    void bodies_ofMakerAndModel();
    void bodies_areInTheCatalogue_data();
    void bodies_areInTheCatalogue();
    void find_lensByNameAndKind_data();
    void find_lensByNameAndKind();
    void find_lensById_isNarrowedByItsName();
    void find_idOfManyLenses_leavesTheNameToTell();
    void find_nameOfTheCamera_leavesTheIdToTell();
    void find_nameAsTheCameraWritesIt_isFound_data();
    void find_nameAsTheCameraWritesIt_isFound();
    void find_idOfManyLenses_isOfSeveral_data();
    void find_idOfManyLenses_isOfSeveral();
    void find_severalBodies_firstThatServesAnswers_data();
    void find_severalBodies_firstThatServesAnswers();
    void find_wordNull_isNoLensId();
    void find_sharedBodyId_givesTheSameModules();
    void find_focalLength_isInclusive_data();
    void find_focalLength_isInclusive();
    void find_unknownFocalLength_isNotNarrowed();
    void find_fixedLens_servesWhateverItIsCalled();
    void find_unknownBody_isTold_data();
    void find_unknownBody_isTold();
    void find_unknownLens_offersWhatTheBodyHas();
    void find_quotesInTexts_areTexts();
    void module_fileName_isTheCid();
    void catalogue_copyThatFails_isTold();
    void catalogue_thatIsNone_isTold();
    void catalogue_copy_goesWithIt();
    void statements_useTheIndexes_data();
    void statements_useTheIndexes();

private:
    QString path(const QString &name) const;

    QTemporaryDir m_folder;
    std::unique_ptr<Peer> m_peer;
    std::unique_ptr<CCalibrationCatalogue> m_catalogue;
};

QString tst_ModuleSearch::path(const QString &name) const
{
    return m_folder.filePath(name);
}

void tst_ModuleSearch::initTestCase()
{
    m_peer = std::make_unique<Peer>(m_folder.path());
    m_catalogue = std::make_unique<CCalibrationCatalogue>(m_folder.path());
    QCOMPARE(m_catalogue->error(), QString());
    QCOMPARE(Peer::column(u"SELECT count(*) FROM Module"_qs), QStringList(u"85940"_qs));
}

void tst_ModuleSearch::cleanupTestCase()
{
    m_catalogue.reset();
    m_peer.reset();
}

void tst_ModuleSearch::bodies_ofMakerAndModel_data()
{
    QTest::addColumn<QString>("make");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QStringList>("bodies");

    QTest::newRow("maker repeated") << u"Canon"_qs << u"Canon EOS 5D Mark IV"_qs
                                    << QStringList{u"CanonEOS5DMarkIV"_qs, u"CanonCanonEOS5DMarkIV"_qs};
    QTest::newRow("corporation") << u"NIKON CORPORATION"_qs << u"NIKON D90"_qs
                                 << QStringList{u"NikonD90"_qs, u"NikonNIKOND90"_qs};
    QTest::newRow("capital behind a digit") << u"Apple"_qs << u"iPhone 5s"_qs << QStringList{u"AppleIPhone5S"_qs};
    QTest::newRow("hyphens") << u"Canon"_qs << u"Canon EOS-1Ds Mark II"_qs
                             << QStringList{u"CanonEOS1DsMarkII"_qs, u"CanonCanonEOS1DsMarkII"_qs};
    QTest::newRow("company") << u"OLYMPUS IMAGING CORP.  "_qs << u"E-M10"_qs << QStringList{u"OlympusEM10"_qs};
    QTest::newRow("another brand") << u"RICOH IMAGING COMPANY, LTD.  "_qs << u"PENTAX K-1"_qs
                                   << QStringList{u"PentaxK1"_qs, u"PentaxPENTAXK1"_qs};
    QTest::newRow("maker of two words") << u"OM Digital Solutions"_qs << u"OM-1"_qs << QStringList{u"OMSystemOM1"_qs};
    QTest::newRow("plus") << u"GoPro"_qs << u"Hero3+ black"_qs << QStringList{u"GoProHero3PlusBlack"_qs};
    QTest::newRow("brackets") << u"LEICA CAMERA AG"_qs << u"LEICA Q (Typ 116)"_qs
                              << QStringList{u"LeicaQTyp116"_qs, u"LeicaLEICAQTyp116"_qs};
    QTest::newRow("unknown maker") << u"some maker"_qs << u"one 2"_qs << QStringList{u"SomeMakerOne2"_qs};
    QTest::newRow("maker as model") << u"Canon"_qs << u"Canon"_qs << QStringList{u"CanonCanon"_qs};
    QTest::newRow("no model") << u"Canon"_qs << u" - "_qs << QStringList();
}

void tst_ModuleSearch::bodies_ofMakerAndModel()
{
    QFETCH(const QString, make);
    QFETCH(const QString, model);
    QTEST(CCalibrationCatalogue::bodiesOf(make, model), "bodies");
}

void tst_ModuleSearch::bodies_areInTheCatalogue_data()
{
    QTest::addColumn<QString>("make");
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("body");

    QTest::newRow("Canon") << u"Canon"_qs << u"Canon EOS 5D Mark IV"_qs << u"CanonEOS5DMarkIV"_qs;
    QTest::newRow("Nikon") << u"NIKON CORPORATION"_qs << u"NIKON D90"_qs << u"NikonD90"_qs;
    QTest::newRow("other case") << u"CANON"_qs << u"canon eos 5d mark iv"_qs << u"CanonEOS5DMarkIV"_qs;
    QTest::newRow("its maker's name in the model") << u"LEICA CAMERA AG"_qs << u"LEICA Q2"_qs << u"LeicaQ2"_qs;
    QTest::newRow("phone") << u"Apple"_qs << u"iPhone 6s"_qs << u"AppleIPhone6S"_qs;
    QTest::newRow("code of its maker") << u"SONY"_qs << u"ILCE-7M3"_qs << u"SonyAlpha7III"_qs;
    QTest::newRow("name of another market") << u"NIKON"_qs << u"E8700"_qs << u"NikonCoolpix8700"_qs;
    QTest::newRow("both of two") << u"OLYMPUS IMAGING CORP."_qs << u"u-miniD,Stylus V"_qs << u"OlympusUMiniDigital"_qs;
    QTest::newRow("model of another maker") << u"Nobody"_qs << u"X2"_qs << QString();
    QTest::newRow("its maker's older name") << u"Minolta Co., Ltd."_qs << u"DiMAGE Z2"_qs << u"KonicaDiMAGEZ2"_qs;
    QTest::newRow("one of two") << u"OLYMPUS IMAGING CORP."_qs << u"u-miniD,Stylus V"_qs.section(u',', 0, 0)
                                << u"OlympusUMiniDigital"_qs;
    QTest::newRow("drone") << u"DJI"_qs << u"FC220"_qs << u"DJIMavicProFC220"_qs;
    QTest::newRow("code with a letter more") << u"SONY"_qs << u"SLT-A99V"_qs << u"SonyAlpha99"_qs;
    QTest::newRow("sold in America") << u"Canon"_qs << u"Canon EOS REBEL T7i"_qs << u"CanonEOS800D"_qs;
    QTest::newRow("Fujifilm") << u"FUJIFILM"_qs << u"X-T20"_qs << u"FujifilmXT20"_qs;
}

void tst_ModuleSearch::bodies_areInTheCatalogue()
{
    QFETCH(const QString, make);
    QFETCH(const QString, model);
    CalibrationQuery query;
    query.bodies = CCalibrationCatalogue::bodiesOf(make, model);
    QTEST(m_catalogue->find(query).body, "body");
}

void tst_ModuleSearch::find_lensByNameAndKind_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("as it stands") << u"Voigtlander Ultron 40mm f/2 SLII Aspherical"_qs;
    QTest::newRow("other case") << u"VOIGTLANDER ultron 40mm F/2 SLII Aspherical"_qs;
}

/*! This lens has a module for each kind of image. */
void tst_ModuleSearch::find_lensByNameAndKind()
{
    QFETCH(const QString, name);
    CalibrationQuery query{{u"CanonEOS5DMarkIV"_qs}, {}, name, 40.0, ImageKind::Rgb};
    const CalibrationAnswer rgb = m_catalogue->find(query);
    QCOMPARE(rgb.state, CalibrationAnswer::Served);
    QCOMPARE(rgb.modules.size(), 1);
    QVERIFY(rgb.modules.constFirst().isRgbOnly && !rgb.modules.constFirst().isRawOnly);
    QCOMPARE(rgb.modules.constFirst().lens, u"Voigtlander Ultron 40mm f/2 SLII Aspherical"_qs);
    QCOMPARE(rgb.modules.constFirst().shortest, 40.0);
    QCOMPARE(rgb.modules.constFirst().longest, 40.0);
    query.kind = ImageKind::Raw;
    const CalibrationAnswer raw = m_catalogue->find(query);
    QCOMPARE(raw.modules.size(), 1);
    QVERIFY(raw.modules.constFirst().isRawOnly && !raw.modules.constFirst().isRgbOnly);
    QVERIFY(raw.modules.constFirst().cid != rgb.modules.constFirst().cid);
}

/*! One number stands for lenses of several makers. */
void tst_ModuleSearch::find_lensById_isNarrowedByItsName()
{
    const QString body = u"CanonEOS5DMarkIV"_qs;
    CalibrationQuery query{{body}, u"161"_qs, {}, 0.0, ImageKind::Rgb};
    const QStringList all = cidsOf(m_catalogue->find(query));
    QCOMPARE(all, Peer::modules(body, u"lens_id = '161' AND raw_only = 0"_qs));
    QVERIFY(all.size() > 1);

    query.lensName = u"Sigma 24-70mm f/2.8 EX"_qs;
    const QStringList narrowed = cidsOf(m_catalogue->find(query));
    QCOMPARE(narrowed,
             Peer::modules(body,
                           u"lens_id = '161' AND raw_only = 0 AND lens_name IN "
                           "('Sigma 24-70mm f/2.8 EX', 'NULL')"_qs));
    QVERIFY(!narrowed.isEmpty() && narrowed.size() < all.size());
}

/*! Many cameras of this maker tell 65535 for any lens. */
void tst_ModuleSearch::find_idOfManyLenses_leavesTheNameToTell()
{
    const CalibrationAnswer answer
        = m_catalogue->find({{u"SonyNEX7"_qs}, u"65535"_qs, u"FE 85mm f/1.8"_qs, 85.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Served);
    QCOMPARE(answer.modules.size(), 1);
    QCOMPARE(answer.modules.constFirst().lens, u"FE 85mm f/1.8"_qs);
}

/*! And newer ones of this one write the name in a form of their own. */
void tst_ModuleSearch::find_nameOfTheCamera_leavesTheIdToTell()
{
    CalibrationQuery query{{u"NikonD750"_qs}, u"B2 48 5C 80 30 30 B4 0E"_qs, {}, 100.0, ImageKind::Rgb};
    const QList<CalibrationModule> byId = m_catalogue->find(query).modules;
    QVERIFY(!byId.isEmpty());
    query.lensName = u"70.0-200.0 mm f/4.0"_qs;
    QCOMPARE(m_catalogue->find(query).state, CalibrationAnswer::Served);
    QCOMPARE(m_catalogue->find(query).modules, byId);
}

void tst_ModuleSearch::find_nameAsTheCameraWritesIt_isFound_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("focalLength");

    QTest::newRow("without its maker, of a row with an id alone")
        << u"CanonEOS5DMarkIV"_qs << QString() << u"EF16-35mm f/2.8L III USM"_qs << 24.0;
    QTest::newRow("id of all lenses of the mount")
        << u"CanonEOSR"_qs << u"61182"_qs << u"RF100-400mm F5.6-8 IS USM"_qs << 200.0;
    QTest::newRow("without a slash") << u"SonyNEX7"_qs << u"65535"_qs << u"E 18-55mm F3.5-5.6 OSS"_qs << 20.0;
    QTest::newRow("without an id") << u"SonyAlpha6000"_qs << QString() << u"E PZ 16-50mm F3.5-5.6 OSS"_qs << 20.0;
    QTest::newRow("full frame") << u"SonyAlpha7III"_qs << QString() << u"FE 24-105mm F4 G OSS"_qs << 50.0;
    QTest::newRow("with a blank before its L") << u"CanonEOSR"_qs << QString() << u"RF24-105mm F4 L IS USM"_qs << 50.0;
    QTest::newRow("in small letters") << u"NikonZ6"_qs << QString() << u"Nikkor z 24-70mm F/4 s"_qs << 50.0;
}

void tst_ModuleSearch::find_nameAsTheCameraWritesIt_isFound()
{
    QFETCH(const QString, body);
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    QFETCH(const double, focalLength);
    const CalibrationAnswer answer = m_catalogue->find({{body}, id, name, focalLength, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Served);
    QVERIFY(answer.isOfOneLens());
    const QString shown = answer.modules.constFirst().lens;
    QVERIFY2(letters(shown).endsWith(letters(name), Qt::CaseInsensitive), qPrintable(shown));
}

void tst_ModuleSearch::find_idOfManyLenses_isOfSeveral_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");

    QTest::newRow("without a name") << u"SonyAlpha700"_qs << u"128"_qs << QString();
    QTest::newRow("with a name that none of them has")
        << u"CanonEOS5DMarkIV"_qs << u"137"_qs << u"TAMRON SP 24-70mm F/2.8 Di VC USD A007"_qs;
}

void tst_ModuleSearch::find_idOfManyLenses_isOfSeveral()
{
    QFETCH(const QString, body);
    QFETCH(const QString, id);
    QFETCH(const QString, name);
    const CalibrationAnswer answer = m_catalogue->find({{body}, id, name, 50.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Served);
    QVERIFY(answer.modules.size() > 1 && !answer.isOfOneLens());
    QCOMPARE(cidsOf(answer),
             Peer::modules(body, u"lens_id = '%1' AND fmin <= 50 AND fmax >= 50 AND raw_only = 0"_qs.arg(id)));
}

/*! A phone with two cameras tells one model. */
void tst_ModuleSearch::find_severalBodies_firstThatServesAnswers_data()
{
    QTest::addColumn<double>("focalLength");
    QTest::addColumn<QString>("body");
    QTest::addColumn<bool>("isServed");

    QTest::newRow("of the first") << 4.25 << u"AppleIPhoneXS"_qs << true;
    QTest::newRow("of the second") << 6.0 << u"AppleIPhoneXSTele"_qs << true;
    QTest::newRow("of none") << 50.0 << u"AppleIPhoneXS"_qs << false;
    QTest::newRow("unknown") << 0.0 << u"AppleIPhoneXS"_qs << true;
}

void tst_ModuleSearch::find_severalBodies_firstThatServesAnswers()
{
    QFETCH(const double, focalLength);
    CalibrationQuery query;
    query.bodies = CCalibrationCatalogue::bodiesOf(u"Apple"_qs, u"iPhone XS"_qs);
    query.focalLength = focalLength;
    const CalibrationAnswer answer = m_catalogue->find(query);
    QTEST(answer.body, "body");
    QTEST(answer.state == CalibrationAnswer::Served, "isServed");
}

void tst_ModuleSearch::find_wordNull_isNoLensId()
{
    const QString body = u"CanonEOS5DMarkIV"_qs;
    const QString name = u"Cosina 19-35mm f/3.5-4.5 MC"_qs;
    const QStringList expected = Peer::modules(body, u"lens_id = 'NULL' AND lens_name = '%1'"_qs.arg(name));
    QCOMPARE(expected.size(), 1);
    // Its row has no id: whatever the camera tells, the name decides.
    for (const QString &id : {QString(), u"4711"_qs, u"NULL"_qs}) {
        const CalibrationAnswer answer = m_catalogue->find({{body}, id, name, 24.0, ImageKind::Rgb});
        QCOMPARE(answer.state, CalibrationAnswer::Served);
        QCOMPARE(cidsOf(answer), expected);
    }
    // The word itself names no lens.
    QCOMPARE(m_catalogue->find({{body}, u"NULL"_qs, {}, 24.0, ImageKind::Rgb}).state, CalibrationAnswer::LensUnknown);
    for (const QString &word : {u"NULL"_qs, u"null"_qs}) {
        QCOMPARE(m_catalogue->find({{body}, u"NULL"_qs, word, 24.0, ImageKind::Rgb}).state,
                 CalibrationAnswer::LensUnknown);
        QCOMPARE(m_catalogue->find({{body}, {}, word, 24.0, ImageKind::Rgb}).state, CalibrationAnswer::LensUnknown);
    }
}

void tst_ModuleSearch::find_sharedBodyId_givesTheSameModules()
{
    CalibrationQuery query{{u"CanonEOSM50"_qs}, {}, {}, 0.0, ImageKind::Raw};
    const CalibrationAnswer first = m_catalogue->find(query);
    query.bodies = {u"CanonEOSKISSM"_qs};
    const CalibrationAnswer second = m_catalogue->find(query);
    QCOMPARE(first.body, u"CanonEOSM50"_qs);
    QCOMPARE(second.body, u"CanonEOSKISSM"_qs);
    QVERIFY(!first.modules.isEmpty());
    QCOMPARE(first.modules, second.modules);
}

void tst_ModuleSearch::find_focalLength_isInclusive_data()
{
    QTest::addColumn<QString>("lens");
    QTest::addColumn<double>("focalLength");
    QTest::addColumn<bool>("isServed");

    const QString prime = u"Yongnuo YN 50mm f/1.8"_qs;
    const QString zoom = u"Cosina 19-35mm f/3.5-4.5 MC"_qs;
    QTest::newRow("prime") << prime << 50.0 << true;
    QTest::newRow("prime, in fractions") << prime << 49.9995 << true; // the catalogue has three decimals
    QTest::newRow("prime, too short") << prime << 49.9 << false;
    QTest::newRow("prime, too long") << prime << 50.1 << false;
    QTest::newRow("zoom, short end") << zoom << 19.0 << true;
    QTest::newRow("zoom, long end") << zoom << 35.0 << true;
    QTest::newRow("zoom, between") << zoom << 24.0 << true;
    QTest::newRow("zoom, too short") << zoom << 18.9 << false;
    QTest::newRow("zoom, too long") << zoom << 35.1 << false;
}

void tst_ModuleSearch::find_focalLength_isInclusive()
{
    QFETCH(const QString, lens);
    QFETCH(const double, focalLength);
    const CalibrationAnswer answer
        = m_catalogue->find({{u"CanonEOS5DMarkIV"_qs}, {}, lens, focalLength, ImageKind::Rgb});
    QTEST(answer.state == CalibrationAnswer::Served, "isServed");
}

void tst_ModuleSearch::find_unknownFocalLength_isNotNarrowed()
{
    const QString body = u"NikonD90"_qs;
    const CalibrationAnswer answer = m_catalogue->find({{body}, {}, {}, 0.0, ImageKind::Rgb});
    QCOMPARE(cidsOf(answer), Peer::modules(body, u"raw_only = 0"_qs));
}

void tst_ModuleSearch::find_fixedLens_servesWhateverItIsCalled()
{
    const QString body = Peer::column(u"SELECT b.identifier FROM Body b JOIN Module m ON m.body = b.id "
                                      "WHERE m.bridge = 1 AND m.raw_only = 0"_qs)
                             .constFirst();
    const CalibrationAnswer answer = m_catalogue->find({{body}, u"7"_qs, u"its lens"_qs, 0.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Served);
    QCOMPARE(cidsOf(answer), Peer::modules(body, u"bridge = 1 AND raw_only = 0"_qs));
}

void tst_ModuleSearch::find_unknownBody_isTold_data()
{
    QTest::addColumn<QStringList>("bodies");

    QTest::newRow("none") << QStringList();
    QTest::newRow("unknown") << QStringList{u"NoSuchBody"_qs, u"NorThisOne"_qs};
    QTest::newRow("a pattern is a text") << QStringList(u"Canon%"_qs);
    QTest::newRow("empty") << QStringList(QString());
}

void tst_ModuleSearch::find_unknownBody_isTold()
{
    QFETCH(const QStringList, bodies);
    const CalibrationAnswer answer = m_catalogue->find({bodies, {}, {}, 50.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::BodyUnknown);
    QVERIFY(answer.modules.isEmpty() && answer.body.isEmpty() && answer.error.isEmpty());
}

void tst_ModuleSearch::find_unknownLens_offersWhatTheBodyHas()
{
    const QString body = u"CanonEOS5DMarkIV"_qs;
    CalibrationQuery query{{body}, u"4711"_qs, u"a lens of nobody"_qs, 50.0, ImageKind::Rgb};
    const CalibrationAnswer answer = m_catalogue->find(query);
    QCOMPARE(answer.state, CalibrationAnswer::LensUnknown);
    QCOMPARE(cidsOf(answer), Peer::modules(body, u"fmin <= 50 AND fmax >= 50 AND raw_only = 0"_qs));
    QVERIFY(!answer.modules.isEmpty());
    query.focalLength = 5000.0;
    QCOMPARE(m_catalogue->find(query).state, CalibrationAnswer::LensUnknown);
    QVERIFY(m_catalogue->find(query).modules.isEmpty());
}

void tst_ModuleSearch::find_quotesInTexts_areTexts()
{
    const QString quote = u"' OR 1 = 1 --"_qs;
    QCOMPARE(m_catalogue->find({{quote}, quote, quote, 50.0, ImageKind::Rgb}).state, CalibrationAnswer::BodyUnknown);
    const CalibrationAnswer answer = m_catalogue->find({{u"NikonD90"_qs}, quote, quote, 5000.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::LensUnknown);
    QVERIFY(answer.modules.isEmpty() && answer.error.isEmpty());
}

void tst_ModuleSearch::module_fileName_isTheCid()
{
    CalibrationModule module;
    module.cid = u"C24560b_001"_qs;
    QCOMPARE(module.fileName(), u"C24560b_001.caf"_qs);
}

/*! There is no folder to copy to. */
void tst_ModuleSearch::catalogue_copyThatFails_isTold()
{
    QFile file(path(u"a file"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const CCalibrationCatalogue catalogue(file.fileName());
    const QString told = u"The catalogue can't be copied to %1: "_qs.arg(QDir::toNativeSeparators(file.fileName()));
    QVERIFY2(catalogue.error().startsWith(told) && catalogue.error() != told, qPrintable(catalogue.error()));
    const CalibrationAnswer answer = catalogue.find({{u"NikonD90"_qs}, {}, {}, 0.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Failed);
    QCOMPARE(answer.error, catalogue.error());
    QVERIFY(answer.modules.isEmpty());
}

/*! It opens, but nothing can be read. */
void tst_ModuleSearch::catalogue_thatIsNone_isTold()
{
    const QDir folder(path(u"damaged"_qs));
    QVERIFY(folder.mkpath(u"."_qs));
    const CCalibrationCatalogue catalogue(folder.path());
    QCOMPARE(catalogue.error(), QString());
    const QString copy = folder.filePath(folder.entryList({u"lightbox-calibration-*"_qs}, QDir::Dirs).constFirst());
    QFile file(copy + u"/CAFList5.db");
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(10'000, 'x')) == 10'000);
    file.close();
    const CalibrationAnswer answer = catalogue.find({{u"NikonD90"_qs}, {}, {}, 0.0, ImageKind::Rgb});
    QCOMPARE(answer.state, CalibrationAnswer::Failed);
    QVERIFY2(answer.error.contains(u"not a database"), qPrintable(answer.error));
    QVERIFY(answer.modules.isEmpty());
}

void tst_ModuleSearch::catalogue_copy_goesWithIt()
{
    const QDir folder(path(u"copies"_qs));
    QVERIFY(folder.mkpath(u"."_qs));
    const qsizetype connections = QSqlDatabase::connectionNames().size();
    {
        const CCalibrationCatalogue first(folder.path());
        const CCalibrationCatalogue second(folder.path());
        QCOMPARE(folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
        QCOMPARE(second.find({{u"NikonD90"_qs}, {}, {}, 0.0, ImageKind::Rgb}).body, u"NikonD90"_qs);
    }
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QCOMPARE(QSqlDatabase::connectionNames().size(), connections);
}

void tst_ModuleSearch::statements_useTheIndexes_data()
{
    QTest::addColumn<int>("statement");
    QTest::addColumn<QString>("plan");

    QTest::newRow("body") << 0 << u"SEARCH Body USING INDEX body_identifier_idx (identifier=?)"_qs;
    QTest::newRow("modules of a lens") << 1 << u"SEARCH Module USING INDEX module_body_idx (body=?)"_qs;
    QTest::newRow("by its name") << 2 << u"SEARCH Module USING INDEX module_body_idx (body=?)"_qs;
    QTest::newRow("by its id") << 3 << u"SEARCH Module USING INDEX module_lens_id_idx (lens_id=?)"_qs;
    QTest::newRow("modules of a body") << 4 << u"SEARCH Module USING INDEX module_body_idx (body=?)"_qs;
}

void tst_ModuleSearch::statements_useTheIndexes()
{
    QFETCH(const int, statement);
    static const QRegularExpression places(u"\\?|:\\w+"_qs);
    QSqlQuery query(QSqlDatabase::database(u"peer"_qs));
    QString text = CCalibrationCatalogue::statements().at(statement);
    QVERIFY(query.exec(u"EXPLAIN QUERY PLAN "_qs + text.replace(places, u"'1'"_qs)));
    QVERIFY(query.next());
    QTEST(query.value(3).toString(), "plan");
}

QTEST_GUILESS_MAIN(tst_ModuleSearch)

#include "tst_ModuleSearch.moc"
