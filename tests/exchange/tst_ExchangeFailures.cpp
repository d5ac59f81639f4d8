// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "ExchangeFolder.h"
#include "TestImages.h"

#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtTest/QTest>

#include <memory>

using namespace ExchangeTest;

/*! What exchange-plugin says when its call goes wrong: one line, the exit code 1, and nothing left behind. */
class tst_ExchangeFailures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void failOption_isCarriedToTheOtherSide();
    void badImage_isTold_data();
    void badImage_isTold();
    void imageWhereTheRecordGoes_isKept_data();
    void imageWhereTheRecordGoes_isKept();
    void missingProgram_isTold();
    void badOtherSide_isTold_data();
    void badOtherSide_isTold();
    void hangingOtherSide_isKilled();
    void pixelsInAGivenFolder_goInEveryCase_data();
    void pixelsInAGivenFolder_goInEveryCase();
    void impossibleFolder_isTold();
    void occupiedRecordPath_isTold_data();
    void occupiedRecordPath_isTold();
    void outputThatCannotBeWritten_isTold_data();
    void outputThatCannotBeWritten_isTold();

private:
    void compareFailure(const Run &run, const QString &error) const;

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    std::unique_ptr<ExchangeFolder> m_folder;
};

void tst_ExchangeFailures::init()
{
    m_folder = std::make_unique<ExchangeFolder>(m_sandbox.filePath(u"work %1"_qs.arg(++m_count)));
    QVERIFY(noise(3, 2, 8).save(m_folder->filePath(u"image.png"_qs)));
}

void tst_ExchangeFailures::compareFailure(const Run &run, const QString &error) const
{
    QVERIFY2(run.status() == 1, run.all());
    QCOMPARE(run.errors, QStringList{u"exchange-plugin: "_qs + error});
    QVERIFY2(run.lines.filter(u"written"_qs).isEmpty(), run.all());
    QVERIFY(!QFileInfo::exists(m_folder->filePath(u"out.png"_qs)));
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

void tst_ExchangeFailures::failOption_isCarriedToTheOtherSide()
{
    const Run run = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs, u"--fail"_qs});
    compareFailure(run, u"the other side has failed with exit code 3"_qs);
    QVERIFY2(run.lines.contains(u"exchange-app fails as asked, with exit code 3"_qs), run.all());
    QCOMPARE(run.line(u"ended"_qs), QString(appPath() + u" with status 0"));
    QVERIFY(run.line(u"answer"_qs).startsWith(u"exit code 3 from process "));
}

void tst_ExchangeFailures::badImage_isTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");

    QTest::newRow("missing") << u"none.png"_qs << u"File not found"_qs;
    QTest::newRow("no image") << u"text.png"_qs << u"Unsupported image format"_qs;
}

void tst_ExchangeFailures::badImage_isTold()
{
    QFETCH(const QString, name);
    QFETCH(const QString, reason);
    QVERIFY(writeFile(m_folder->filePath(u"text.png"_qs), "This is no image."));
    compareFailure(m_folder->plugin({name, u"--output"_qs, u"out.png"_qs}),
                   u"%1 can't be read: %2"_qs.arg(name, reason));
}

void tst_ExchangeFailures::imageWhereTheRecordGoes_isKept_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("data file") << u"record"_qs;
    QTest::newRow("image file") << u"record-image"_qs;
}

void tst_ExchangeFailures::imageWhereTheRecordGoes_isKept()
{
    QFETCH(const QString, name);
    const QImage image = noise(3, 2, 8);
    QVERIFY(image.save(m_folder->filePath(name), "PNG"));
    compareFailure(m_folder->plugin({name, u"--output"_qs, u"out.png"_qs, u"--folder"_qs, u"."_qs}),
                   u"%1 would be overwritten by the record"_qs.arg(name));
    QVERIFY(!QImage(m_folder->filePath(name), "PNG").isNull());
}

void tst_ExchangeFailures::missingProgram_isTold()
{
    const Run run
        = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs, u"--app"_qs, u"no-such-program"_qs});
    QVERIFY2(run.status() == 1, run.all());
    QCOMPARE(run.errors.size(), 1);
    QVERIFY2(run.errors.front().startsWith(u"exchange-plugin: no-such-program can't be started: "), run.all());
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

void tst_ExchangeFailures::badOtherSide_isTold_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::addColumn<QString>("error");

    const QString noAnswer = u"the other side has left no answer"_qs;
    QTest::newRow("crashes") << QByteArray("crash") << QString(peerPath() + u" has crashed");
    QTest::newRow("crashes behind its answer")
        << QByteArray("crashAfterAnswer") << QString(peerPath() + u" has crashed");
    QTest::newRow("writes nothing") << QByteArray("nothing") << noAnswer;
    QTest::newRow("status alone") << QByteArray("statusAlone") << noAnswer;
    QTest::newRow("no record's bytes") << QByteArray("strangeRecord") << noAnswer;
    QTest::newRow("status behind its answer")
        << QByteArray("statusAfterAnswer") << u"the other side has ended with status 5"_qs;
    QTest::newRow("exit code 7") << QByteArray("exitCode7") << u"the other side has failed with exit code 7"_qs;
    QTest::newRow("exit code as text") << QByteArray("exitCodeAsText")
                                       << u"the other side has failed with exit code -1"_qs;
    QTest::newRow("no image") << QByteArray("noImage") << u"the answer has no image file"_qs;
    QTest::newRow("image short by one") << QByteArray("shortImage")
                                        << u"the answer's image file has 17 bytes, not 18"_qs;
    QTest::newRow("image long by one") << QByteArray("longImage") << u"the answer's image file has 19 bytes, not 18"_qs;
    QTest::newRow("wider frame") << QByteArray("widerFrame")
                                 << u"the answer is of another size: 4 x 2 pixels, 8 bits a channel"_qs;
    QTest::newRow("record removed") << QByteArray("noRecord") << u"there is no record any more: RECORD"_qs;
    QTest::newRow("record cut") << QByteArray("cutRecord") << u"the record can't be read whole: RECORD"_qs;
}

void tst_ExchangeFailures::badOtherSide_isTold()
{
    QFETCH(const QByteArray, way);
    QFETCH(QString, error);
    const bool hasPath = error.contains(u"RECORD");
    QStringList arguments{u"image.png"_qs, u"--output"_qs, u"out.png"_qs};
    if (hasPath) {
        arguments += {u"--folder"_qs, m_folder->filePath(u"given"_qs)};
        error.replace(u"RECORD"_qs, QDir::toNativeSeparators(m_folder->filePath(u"given/record"_qs)));
    }
    compareFailure(m_folder->pluginWithPeer(way, arguments), error);
}

void tst_ExchangeFailures::hangingOtherSide_isKilled()
{
    const Run run = m_folder->pluginWithPeer(
        "hang", {u"image.png"_qs, u"--output"_qs, u"out.png"_qs, u"--time-limit"_qs, u"1"_qs});
    compareFailure(run, peerPath() + u" was killed: it had not ended after 1 s");
}

void tst_ExchangeFailures::pixelsInAGivenFolder_goInEveryCase_data()
{
    QTest::addColumn<QByteArray>("way");

    for (const char *way : {"crash", "nothing", "exitCode7", "longImage", "strangeRecord", "noRecord", "echo"}) {
        QTest::newRow(way) << QByteArray(way);
    }
}

void tst_ExchangeFailures::pixelsInAGivenFolder_goInEveryCase()
{
    QFETCH(const QByteArray, way);
    const Run run = m_folder->pluginWithPeer(way, {u"image.png"_qs, u"--folder"_qs, u"given"_qs});
    QVERIFY2(run.lines.filter(u"sent"_qs).size() == 1, run.all());
    const QStringList expected = way == "noRecord" ? QStringList() : QStringList{u"record"_qs};
    QCOMPARE(QDir(m_folder->filePath(u"given"_qs)).entryList(QDir::Files), expected);
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

void tst_ExchangeFailures::impossibleFolder_isTold()
{
    const Run run
        = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs, u"--folder"_qs, u"image.png/folder"_qs});
    compareFailure(run, u"there is no folder for the record"_qs);
}

void tst_ExchangeFailures::occupiedRecordPath_isTold_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("the record's") << u"record"_qs;
    QTest::newRow("the image's") << u"record-image"_qs;
}

/*! A folder stands where a file should: the record's save() does not tell of the second one. */
void tst_ExchangeFailures::occupiedRecordPath_isTold()
{
    QFETCH(const QString, name);
    const QString given = m_folder->filePath(u"given"_qs);
    QVERIFY(QDir().mkpath(given + u'/' + name + u"/inside"));
    const Run run = m_folder->plugin({u"image.png"_qs, u"--output"_qs, u"out.png"_qs, u"--folder"_qs, given});
    compareFailure(run, QDir::toNativeSeparators(given + u"/record") + u" or its image can't be written");
}

void tst_ExchangeFailures::outputThatCannotBeWritten_isTold_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("no such folder") << u"none/out.png"_qs;
    QTest::newRow("a folder") << u"temporary"_qs;
}

void tst_ExchangeFailures::outputThatCannotBeWritten_isTold()
{
    QFETCH(const QString, name);
    const Run run = m_folder->plugin({u"image.png"_qs, u"--output"_qs, name});
    QVERIFY2(run.status() == 1, run.all());
    QCOMPARE(run.errors.size(), 1);
    QVERIFY2(
        run.errors.front().startsWith(u"exchange-plugin: %1 can't be written: "_qs.arg(QDir::toNativeSeparators(name))),
        run.all());
    QCOMPARE(m_folder->leftBehind(), QStringList());
}

QTEST_GUILESS_MAIN(tst_ExchangeFailures)

#include "tst_ExchangeFailures.moc"
