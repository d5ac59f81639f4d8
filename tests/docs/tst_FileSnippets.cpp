// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "Snippets.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtGui/QPolygonF>
#include <QtTest/QTest>

#include <algorithm>

namespace {

bool write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/*! Runs the examples of the pages on files, embedded data, geometry and the exchange, and looks at what they promise
 * there. */
class tst_FileSnippets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saveCopy_copiesUnderAValidName_data();
    void saveCopy_copiesUnderAValidName();
    void photographsBehind_leavesOtherEntriesOut();
    void installForAllUsers_nobodyToAsk_isFalse();
    void handleAt_staysOnTheOutline();
    void answer_comesBackWithTheImage();
    void answer_ofAFailure_hasNoImage();
    void note_isHtmlInTheLanguage();
    void unpackCatalogue_isReadableBySQLite();
    void unpackCatalogue_noFolder_isEmpty();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_FileSnippets::saveCopy_copiesUnderAValidName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("valid") << u"copy.jpg"_qs << QString();
    QTest::newRow("a device's name") << u"NUL"_qs << u"NUL can't be the name of a file"_qs;
    QTest::newRow("already there") << u"photo.jpg"_qs << u"It could not be copied"_qs;
}

void tst_FileSnippets::saveCopy_copiesUnderAValidName()
{
    QFETCH(QString, name);
    QFETCH(QString, complaint);
    const QString photograph = m_sandbox.filePath(u"photo.jpg"_qs);
    QVERIFY(write(photograph, "pixels"));
    QCOMPARE(Snippets::saveCopy(photograph, name), complaint);
    QCOMPARE(contentOf(m_sandbox.filePath(name)), complaint.isEmpty() || name == u"photo.jpg" ? "pixels" : "");
}

void tst_FileSnippets::photographsBehind_leavesOtherEntriesOut()
{
    const QDir folder(m_sandbox.filePath(u"walk"_qs));
    QVERIFY(folder.mkpath(u"c"_qs));
    for (const QString &name : {u"a.jpg"_qs, u"B.JPG"_qs, u"b.txt"_qs, u"d.jpg"_qs}) {
        QVERIFY(write(folder.filePath(name), "x"));
    }
    QStringList names;
    for (const QString &path : Snippets::photographsBehind(folder.filePath(u"a.jpg"_qs))) {
        names.append(QFileInfo(path).fileName());
    }
    QCOMPARE(names, QStringList({u"B.JPG"_qs, u"d.jpg"_qs}));
}

void tst_FileSnippets::installForAllUsers_nobodyToAsk_isFalse()
{
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(m_sandbox.filePath(u"nothing"_qs))); // nobody is asked
    const bool isInstalled = Snippets::installForAllUsers(m_sandbox.filePath(u"a\"b"_qs).toStdString(), "presets");
    qputenv("PATH", path);
    QVERIFY(!isInstalled);
}

void tst_FileSnippets::handleAt_staysOnTheOutline()
{
    const QPolygonF photograph({{10, 10}, {10, 110}, {210, 110}, {210, 10}});
    QCOMPARE(Snippets::handleAt(photograph, {100, 30}), QPointF(100, 10));
    QCOMPARE(Snippets::handleAt(photograph, {300, 300}), QPointF(210, 110)); // beyond a corner
}

void tst_FileSnippets::answer_comesBackWithTheImage()
{
    const std::string path = QFile::encodeName(m_sandbox.filePath(u"record"_qs)).toStdString();
    const QString imageFile = m_sandbox.filePath(u"record-image"_qs);
    QVERIFY(Snippets::handOver(path, "abcdef", 2, 1));
    QCOMPARE(contentOf(imageFile), "abcdef");
    QVERIFY(Snippets::answer(path, [](char *pixels, std::uint64_t size) {
        std::reverse(pixels, pixels + size);
        return true;
    }));
    QByteArray result;
    QCOMPARE(Snippets::readAnswer(
                 path, [&](const char *pixels, std::uint64_t size) { result = QByteArray(pixels, qsizetype(size)); }),
             0);
    QCOMPARE(result, "fedcba");
    QVERIFY(!QFile::exists(imageFile));
}

void tst_FileSnippets::answer_ofAFailure_hasNoImage()
{
    const std::string path = QFile::encodeName(m_sandbox.filePath(u"failed"_qs)).toStdString();
    QVERIFY(Snippets::handOver(path, "abcdef", 2, 1));
    QVERIFY(Snippets::answer(path, [](char *, std::uint64_t) { return false; }));
    bool isUsed = false;
    QCOMPARE(Snippets::readAnswer(path, [&](const char *, std::uint64_t) { isUsed = true; }), 1);
    QVERIFY(!isUsed);
    QVERIFY(!QFile::exists(m_sandbox.filePath(u"failed-image"_qs)));
}

void tst_FileSnippets::note_isHtmlInTheLanguage()
{
    QVERIFY(Snippets::note(u"FujiVelvia50"_qs, u"en"_qs).startsWith(u"<b>Creator:</b> Fuji<br/>"));
    QVERIFY(Snippets::note(u"FujiVelvia50"_qs, u"zh_CN"_qs).contains(u"</b>Fuji<br/>"));
    QCOMPARE(Snippets::note(u"noCorrection"_qs, u"en"_qs), QString());
    QCOMPARE(Snippets::note(u"1839 - Daguerreotype"_qs, u"en"_qs), QString());
}

void tst_FileSnippets::unpackCatalogue_isReadableBySQLite()
{
    const QTemporaryDir folder;
    const QString path = Snippets::unpackCatalogue(QDir(folder.path()));
    QCOMPARE(QFileInfo(path).fileName(), u"CAFList5.db"_qs);
    QVERIFY(contentOf(path).startsWith("SQLite format 3"));
    QVERIFY(write(path, "older")); // takes the place of another
    QCOMPARE(Snippets::unpackCatalogue(QDir(folder.path())), path);
    QVERIFY(contentOf(path).startsWith("SQLite format 3"));
}

void tst_FileSnippets::unpackCatalogue_noFolder_isEmpty()
{
    const QTemporaryDir folder;
    QCOMPARE(Snippets::unpackCatalogue(QDir(folder.filePath(u"missing"_qs))), QString());
}

QTEST_MAIN(tst_FileSnippets)
#include "tst_FileSnippets.moc"
