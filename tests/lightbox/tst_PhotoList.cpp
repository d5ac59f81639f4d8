// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "PhotoFolder.h"
#include "PhotoList.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <filesystem>
#include <memory>
#include <system_error>

namespace {

QString nameOf(const CPhotoList &photos)
{
    return QFileInfo(photos.current()).fileName();
}

/*! The names that \a count steps lead to. */
QStringList walk(CPhotoList &photos, void (CPhotoList::*step)(), qsizetype count)
{
    QStringList names;
    for (qsizetype i = 0; i < count; ++i) {
        (photos.*step)();
        names += nameOf(photos);
    }
    return names;
}

} // namespace

class tst_PhotoList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void folder_beginsWithItsFirstPhotograph();
    void steps_meetPhotographsOnlyAndGoRound();
    void steps_betweenNamesThatDifferInCase_meetEachOnce();
    void links_countAsWhatTheyLeadTo();
    void linkedFolder_keepsItsName();
    void folderWithASeparatorAtItsEnd_isTheFolder();
    void relativePath_isMadeAbsolute();
    void namedFile_isTriedWhateverItHolds_data();
    void namedFile_isTriedWhateverItHolds();
    void emptyFolder_hasNothingUntilAPhotographAppears();
    void onlyPhotograph_staysCurrent();
    void changesOnDisk_areRespected();
    void vanishedCurrent_isLeftForItsNeighbours_data();
    void vanishedCurrent_isLeftForItsNeighbours();
    void vanishedFolder_hasNothing();
    void leaveCurrent_goesToTheNextElseToThePrevious_data();
    void leaveCurrent_goesToTheNextElseToThePrevious();

private:
    /*! Photographs and what looks like them, in the order of a listing "A.tif", "a0.TIFF", "b.JPG" and "c.Jpeg". */
    bool fill() const;

    TestSupport::Sandbox m_sandbox;
    std::unique_ptr<PhotoFolder> m_folder;
};

void tst_PhotoList::init()
{
    m_folder = std::make_unique<PhotoFolder>(m_sandbox.filePath(u"."_qs));
}

void tst_PhotoList::cleanup()
{
    m_folder.reset();
}

bool tst_PhotoList::fill() const
{
    bool isDone = true;
    for (const QString &name : {u"b.JPG"_qs, u"notes.txt"_qs, u"A.tif"_qs, u".hidden.jpg"_qs, u"a0.TIFF"_qs, u"jpg"_qs,
                                u"c.Jpeg"_qs, u"b.jpg.zip"_qs, u"raw.dng"_qs}) {
        isDone = m_folder->addFile(name) && isDone;
    }
    const bool isHidden = QFileInfo(m_folder->filePath(u".hidden.jpg"_qs)).isHidden();
    if (!isHidden) { // a dot in front hides nothing there
        isDone = m_folder->remove(u".hidden.jpg"_qs) && isDone;
    }
    return m_folder->addFolder(u"aa.jpg"_qs) && m_folder->addFolder(u"z"_qs) && isDone;
}

void tst_PhotoList::folder_beginsWithItsFirstPhotograph()
{
    QVERIFY(fill());
    const CPhotoList photos(m_folder->path());
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(u"A.tif"_qs)));
    QCOMPARE(photos.position(), 0);
    QCOMPARE(photos.count(), 4);
    QCOMPARE(photos.folder(), QDir::cleanPath(m_folder->path()));
}

void tst_PhotoList::steps_meetPhotographsOnlyAndGoRound()
{
    QVERIFY(fill());
    CPhotoList photos(m_folder->path());
    QCOMPARE(walk(photos, &CPhotoList::moveToNext, 5),
             (QStringList{u"a0.TIFF"_qs, u"b.JPG"_qs, u"c.Jpeg"_qs, u"A.tif"_qs, u"a0.TIFF"_qs}));
    QCOMPARE(photos.position(), 1);
    QCOMPARE(walk(photos, &CPhotoList::moveToPrevious, 5),
             (QStringList{u"A.tif"_qs, u"c.Jpeg"_qs, u"b.JPG"_qs, u"a0.TIFF"_qs, u"A.tif"_qs}));
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(u"A.tif"_qs)));
}

void tst_PhotoList::steps_betweenNamesThatDifferInCase_meetEachOnce()
{
    QStringList expected;
    for (int i = 10; i < 30; ++i) {
        for (const QString &form : {u"p%1.jpg"_qs, u"P%1.jpg"_qs, u"p%1.JPG"_qs}) {
            QVERIFY(m_folder->addFile(form.arg(i)));
            expected += form.arg(i);
        }
    }
    if (m_folder->names().size() != expected.size()) {
        QSKIP("Names here do not differ in case.");
    }
    CPhotoList photos(m_folder->path());
    QCOMPARE(photos.count(), 60);
    QStringList met;
    for (int i = 0; i < 60; ++i) {
        QCOMPARE(photos.position(), i);
        met += nameOf(photos);
        photos.moveToNext();
    }
    QCOMPARE(nameOf(photos), met.front());
    met.sort();
    expected.sort();
    QCOMPARE(met, expected);
}

void tst_PhotoList::links_countAsWhatTheyLeadTo()
{
    QVERIFY(m_folder->addFile(u"a.jpg"_qs));
    const auto link = [this](const char16_t *target, const QString &name) {
        std::error_code error;
        std::filesystem::create_symlink(target, m_folder->filePath(name).toStdU16String(), error);
        return !error;
    };
    if (!link(u"a.jpg", u"b.jpg"_qs) || !link(u"nowhere.jpg", u"c.jpg"_qs) || !link(u".", u"d.jpg"_qs)) {
        QSKIP("Needs the right to make links.");
    }
    CPhotoList photos(m_folder->path());
    QCOMPARE(photos.count(), 2);
    QCOMPARE(walk(photos, &CPhotoList::moveToNext, 2), (QStringList{u"b.jpg"_qs, u"a.jpg"_qs}));
}

void tst_PhotoList::linkedFolder_keepsItsName()
{
    QVERIFY(m_folder->addFolder(u"real"_qs));
    QVERIFY(m_folder->addFile(u"real/a.jpg"_qs));
    QVERIFY(m_folder->addFile(u"real/b.jpg"_qs));
    std::error_code error;
    std::filesystem::create_directory_symlink(u"real", m_folder->filePath(u"link"_qs).toStdU16String(), error);
    if (error) {
        QSKIP("Needs the right to make links.");
    }
    CPhotoList photos(m_folder->filePath(u"link"_qs));
    photos.moveToNext();
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(u"link/b.jpg"_qs)));
}

void tst_PhotoList::folderWithASeparatorAtItsEnd_isTheFolder()
{
    QVERIFY(fill());
    QCOMPARE(CPhotoList(m_folder->path() + u'/').current(), QDir::cleanPath(m_folder->filePath(u"A.tif"_qs)));
}

void tst_PhotoList::relativePath_isMadeAbsolute()
{
    QVERIFY(fill());
    CPhotoList photos(QDir().relativeFilePath(m_folder->filePath(u"b.JPG"_qs)));
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(u"b.JPG"_qs)));
    photos.moveToNext();
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(u"c.Jpeg"_qs)));
}

void tst_PhotoList::namedFile_isTriedWhateverItHolds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("previous");

    QTest::newRow("photograph") << u"b.JPG"_qs << 2 << 4 << u"c.Jpeg"_qs << u"a0.TIFF"_qs;
    QTest::newRow("other file") << u"notes.txt"_qs << 4 << 5 << u"A.tif"_qs << u"c.Jpeg"_qs;
    QTest::newRow("other file between") << u"b.jpg.zip"_qs << 3 << 5 << u"c.Jpeg"_qs << u"b.JPG"_qs;
    QTest::newRow("missing") << u"B0.jpg"_qs << 3 << 5 << u"c.Jpeg"_qs << u"b.JPG"_qs;
    QTest::newRow("missing, the last") << u"y.jpg"_qs << 4 << 5 << u"A.tif"_qs << u"c.Jpeg"_qs;
    QTest::newRow("missing, the first") << u"0.jpg"_qs << 0 << 5 << u"A.tif"_qs << u"c.Jpeg"_qs;
}

void tst_PhotoList::namedFile_isTriedWhateverItHolds()
{
    QFETCH(const QString, name);
    QFETCH(const int, position);
    QFETCH(const int, count);
    QFETCH(const QString, next);
    QFETCH(const QString, previous);

    QVERIFY(fill());
    CPhotoList photos(m_folder->filePath(name));
    QCOMPARE(photos.current(), QDir::cleanPath(m_folder->filePath(name)));
    QCOMPARE(photos.position(), position);
    QCOMPARE(photos.count(), count);
    CPhotoList back = photos;
    photos.moveToNext();
    QCOMPARE(nameOf(photos), next);
    QCOMPARE(photos.count(), 4);
    back.moveToPrevious();
    QCOMPARE(nameOf(back), previous);
}

void tst_PhotoList::emptyFolder_hasNothingUntilAPhotographAppears()
{
    QVERIFY(m_folder->addFile(u"notes.txt"_qs));
    CPhotoList photos(m_folder->path());
    QCOMPARE(photos.current(), QString());
    QCOMPARE(photos.count(), 0);
    QCOMPARE(photos.position(), 0);
    photos.moveToNext();
    photos.moveToPrevious();
    photos.leaveCurrent();
    QCOMPARE(photos.current(), QString());

    QVERIFY(m_folder->addFile(u"new.jpg"_qs));
    CPhotoList back = photos;
    photos.moveToNext();
    QCOMPARE(nameOf(photos), u"new.jpg"_qs);
    back.moveToPrevious();
    QCOMPARE(nameOf(back), u"new.jpg"_qs);
    QCOMPARE(back.count(), 1);
}

void tst_PhotoList::onlyPhotograph_staysCurrent()
{
    QVERIFY(m_folder->addFile(u"a.jpg"_qs));
    QVERIFY(m_folder->addFile(u"b.txt"_qs));
    CPhotoList photos(m_folder->path());
    QCOMPARE(walk(photos, &CPhotoList::moveToNext, 2), (QStringList{u"a.jpg"_qs, u"a.jpg"_qs}));
    QCOMPARE(walk(photos, &CPhotoList::moveToPrevious, 2), (QStringList{u"a.jpg"_qs, u"a.jpg"_qs}));
}

void tst_PhotoList::changesOnDisk_areRespected()
{
    QVERIFY(fill());
    CPhotoList photos(m_folder->path());
    QVERIFY(m_folder->remove(u"a0.TIFF"_qs));
    QCOMPARE(photos.count(), 3);
    QVERIFY(m_folder->addFile(u"a1.jpg"_qs));
    QVERIFY(m_folder->addFile(u"0.jpg"_qs));
    QCOMPARE(photos.count(), 5);
    QCOMPARE(photos.position(), 1);
    QCOMPARE(walk(photos, &CPhotoList::moveToNext, 5),
             (QStringList{u"a1.jpg"_qs, u"b.JPG"_qs, u"c.Jpeg"_qs, u"0.jpg"_qs, u"A.tif"_qs}));
}

void tst_PhotoList::vanishedCurrent_isLeftForItsNeighbours_data()
{
    QTest::addColumn<QStringList>("others");
    QTest::addColumn<QString>("next");
    QTest::addColumn<QString>("previous");

    const QString none;
    QTest::newRow("between") << QStringList{u"a.jpg"_qs, u"N.jpg"_qs} << u"N.jpg"_qs << u"a.jpg"_qs;
    QTest::newRow("at the end") << QStringList{u"A.jpg"_qs, u"b.jpg"_qs} << u"A.jpg"_qs << u"b.jpg"_qs;
    QTest::newRow("at the beginning") << QStringList{u"n.jpg"_qs, u"O.jpg"_qs} << u"n.jpg"_qs << u"O.jpg"_qs;
    QTest::newRow("alone") << QStringList{u"notes.txt"_qs} << none << none;
}

void tst_PhotoList::vanishedCurrent_isLeftForItsNeighbours()
{
    QFETCH(const QStringList, others);
    QFETCH(const QString, next);
    QFETCH(const QString, previous);

    for (const QString &name : others) {
        QVERIFY(m_folder->addFile(name));
    }
    QVERIFY(m_folder->addFile(u"m.jpg"_qs));
    CPhotoList photos(m_folder->filePath(u"m.jpg"_qs));
    CPhotoList back = photos;
    QVERIFY(m_folder->remove(u"m.jpg"_qs));
    photos.moveToNext();
    QCOMPARE(nameOf(photos), next);
    back.moveToPrevious();
    QCOMPARE(nameOf(back), previous);
}

void tst_PhotoList::vanishedFolder_hasNothing()
{
    QVERIFY(fill());
    CPhotoList photos(m_folder->path());
    m_folder.reset();
    photos.moveToNext();
    QCOMPARE(photos.current(), QString());
    QCOMPARE(photos.count(), 0);
}

void tst_PhotoList::leaveCurrent_goesToTheNextElseToThePrevious_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<bool>("isRemoved");
    QTest::addColumn<QString>("following");

    QTest::newRow("first") << u"A.tif"_qs << true << u"a0.TIFF"_qs;
    QTest::newRow("between") << u"b.JPG"_qs << true << u"c.Jpeg"_qs;
    QTest::newRow("last") << u"c.Jpeg"_qs << true << u"b.JPG"_qs;
    QTest::newRow("still there") << u"b.JPG"_qs << false << u"c.Jpeg"_qs;
    QTest::newRow("no photograph") << u"notes.txt"_qs << true << u"c.Jpeg"_qs;
}

void tst_PhotoList::leaveCurrent_goesToTheNextElseToThePrevious()
{
    QFETCH(const QString, current);
    QFETCH(const bool, isRemoved);
    QFETCH(const QString, following);

    QVERIFY(fill());
    CPhotoList photos(m_folder->filePath(current));
    QVERIFY(!isRemoved || m_folder->remove(current));
    photos.leaveCurrent();
    QCOMPARE(nameOf(photos), following);
}

QTEST_GUILESS_MAIN(tst_PhotoList)

#include "tst_PhotoList.moc"
