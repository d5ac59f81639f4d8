// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CollectorProcess.h"
#include "HttpExchange.h"
#include "ReportSender.h"
#include "TestArchives.h"

#include "support/Sandbox.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QUuid>
#include <QtTest/QTest>

#include <memory>

using namespace CrashCollectorTest;

namespace {

/*! What follows each "data-label" of the cells, as it stands in the page. */
QStringList cells(const QByteArray &page, const QString &label)
{
    const QRegularExpression cell(u"<td [^>]*data-label=\"%1\">(.*)</td>"_qs.arg(QRegularExpression::escape(label)));
    QStringList found;
    for (auto match = cell.globalMatch(QString::fromUtf8(page)); match.hasNext();) {
        found.append(match.next().captured(1));
    }
    return found;
}

/*! Reports that are no more than rows of the index, the later the newer. */
QStringList rowsOfReports(int count)
{
    QStringList statements;
    for (int i = 0; i < count; ++i) {
        statements.append(u"INSERT INTO reports VALUES ('%1', '2026-05-04T10:00:00.000Z', 'Win', 'Product %2', '1', 7, "
                          "'00ff')"_qs.arg(QUuid::createUuid().toString(QUuid::WithoutBraces), QString::number(i)));
    }
    return statements;
}

QList<ReportTexts> strangeTexts()
{
    return {{u"<script>document.title = 'run'</script>"_qs, u"\"><img src=x onerror=\"document.title='run'\">"_qs,
             u"' onmouseover='document.title=1"_qs},
            {u"F\u00e4rbung & Co"_qs, u"6.4 %1 %2"_qs, u"&lt;Win&gt;"_qs},
            {u"\u30d5\u30a3\u30eb\u30e0\u73fe\u50cf"_qs, u"\u5341"_qs, u"\U0001f39e\u05d0\u05d1"_qs}};
}

} // namespace

class tst_CrashCollectorPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void emptyPage_saysSo();
    void page_listsTheNewestFirst();
    void page_showsTextsAsTheyAre();
    void page_showsSizesForPeople_data();
    void page_showsSizesForPeople();
    void page_isLimited();
    void pages_haveSecurityHeaders_data();
    void pages_haveSecurityHeaders();
    void download_givesTheSameBytes();
    void download_ofAnythingElse_isNotFound_data();
    void download_ofAnythingElse_isNotFound();
    void head_hasNoBody();
    void browser_showsTheEmptyPage();
    void browser_showsReportsAndDownloads();

private:
    void runInBrowser(const QList<QJsonObject> &expected);

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    QString m_storage;
    std::unique_ptr<CollectorProcess> m_collector;
};

void tst_CrashCollectorPage::init()
{
    m_storage = m_sandbox.filePath(u"reports %1"_qs.arg(++m_count));
    m_collector = std::make_unique<CollectorProcess>(m_storage);
    QVERIFY2(m_collector->start(), qPrintable(m_collector->errors()));
}

void tst_CrashCollectorPage::emptyPage_saysSo()
{
    const HttpReply reply = get(m_collector->url(u"/"_qs));
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.headers.value("content-type"), QByteArray("text/html; charset=utf-8"));
    QVERIFY(reply.body.startsWith("<!DOCTYPE html>\n<html lang=\"en\">"));
    QVERIFY(reply.body.contains("<title>Crash reports</title>"));
    QVERIFY(reply.body.contains("No report has been received yet."));
    QVERIFY(!reply.body.contains("<table"));
}

void tst_CrashCollectorPage::page_listsTheNewestFirst()
{
    for (const QString &product : {u"first"_qs, u"second"_qs, u"third"_qs}) {
        QCOMPARE(sendReport(*m_collector, reportArchive(), {product}).word, u"NoError"_qs);
    }
    const QByteArray page = get(m_collector->url(u"/"_qs)).body;
    QCOMPARE(cells(page, u"Product"_qs),
             (QStringList{u"<bdi>third</bdi>"_qs, u"<bdi>second</bdi>"_qs, u"<bdi>first</bdi>"_qs}));
    QVERIFY(page.contains("<p>3 reports, the newest first.</p>"));
    QCOMPARE(page.count("scope=\"col\""), 7);

    const QString received = selectInIndex(m_storage, u"SELECT received FROM reports ORDER BY rowid DESC"_qs).value(0);
    QCOMPARE(cells(page, u"Received"_qs).value(0),
             u"<time datetime=\"%1\">%2 %3 UTC</time>"_qs.arg(received, received.left(10), received.mid(11, 8)));
    const QString hash
        = QString::fromLatin1(QCryptographicHash::hash(reportArchive(), QCryptographicHash::Sha256).toHex());
    QCOMPARE(cells(page, u"SHA-256"_qs).value(0), u"<code title=\"%1\">%2\u2026</code>"_qs.arg(hash, hash.left(12)));
}

void tst_CrashCollectorPage::page_showsTextsAsTheyAre()
{
    for (const ReportTexts &texts : strangeTexts()) {
        QCOMPARE(sendReport(*m_collector, reportArchive(), texts).word, u"NoError"_qs);
    }
    const QByteArray page = get(m_collector->url(u"/"_qs)).body;
    QVERIFY(!page.contains("<script"));
    QVERIFY(!page.contains("<img"));
    QCOMPARE(cells(page, u"Product"_qs),
             (QStringList{u"<bdi>\u30d5\u30a3\u30eb\u30e0\u73fe\u50cf</bdi>"_qs, u"<bdi>F\u00e4rbung &amp; Co</bdi>"_qs,
                          u"<bdi>&lt;script&gt;document.title = 'run'&lt;/script&gt;</bdi>"_qs}));
    QCOMPARE(cells(page, u"Version"_qs).value(1), u"<bdi>6.4 %1 %2</bdi>"_qs);
    QCOMPARE(cells(page, u"Platform"_qs).value(1), u"<bdi>&amp;lt;Win&amp;gt;</bdi>"_qs);
}

void tst_CrashCollectorPage::page_showsSizesForPeople_data()
{
    QTest::addColumn<qint64>("size");
    QTest::addColumn<QString>("text");

    QTest::newRow("bytes") << qint64(1023) << u"<span title=\"1023 bytes\">1023 bytes</span>"_qs;
    QTest::newRow("KiB") << qint64(1536) << u"<span title=\"1536 bytes\">1.5 KiB</span>"_qs;
    QTest::newRow("MiB") << qint64(47) * 1024 * 1024 << u"<span title=\"49283072 bytes\">47.0 MiB</span>"_qs;
}

void tst_CrashCollectorPage::page_showsSizesForPeople()
{
    QFETCH(const qint64, size);
    QFETCH(const QString, text);

    QVERIFY(changeIndex(m_storage, rowsOfReports(1) << u"UPDATE reports SET size = %1"_qs.arg(size)));
    QCOMPARE(cells(get(m_collector->url(u"/"_qs)).body, u"Size"_qs), QStringList{text});
}

void tst_CrashCollectorPage::page_isLimited()
{
    QVERIFY(changeIndex(m_storage, rowsOfReports(200)));
    QVERIFY(get(m_collector->url(u"/"_qs)).body.contains("<p>200 reports, the newest first.</p>"));

    QVERIFY(changeIndex(m_storage,
                        {u"INSERT INTO reports VALUES ('x', '2026-05-04T10:00:00.001Z', 'Win', 'newest', '1', "
                         "7, '00ff')"_qs}));
    const QByteArray page = get(m_collector->url(u"/"_qs)).body;
    QVERIFY(page.contains("<p>The newest 200 of 201 reports.</p>"));
    const QStringList products = cells(page, u"Product"_qs);
    QCOMPARE(products.size(), 200);
    QCOMPARE(products.constFirst(), u"<bdi>newest</bdi>"_qs);
    QCOMPARE(products.value(1), u"<bdi>Product 199</bdi>"_qs); // of the same time: the order in which they came
    QCOMPARE(products.constLast(), u"<bdi>Product 1</bdi>"_qs);
}

void tst_CrashCollectorPage::pages_haveSecurityHeaders_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("status");

    QTest::newRow("page") << u"/"_qs << 200;
    QTest::newRow("style") << u"/style.css"_qs << 200;
    QTest::newRow("icon") << u"/icon.svg"_qs << 200;
    QTest::newRow("nothing") << u"/nothing"_qs << 404;
    QTest::newRow("operation") << reportPath() << 405;
}

void tst_CrashCollectorPage::pages_haveSecurityHeaders()
{
    QFETCH(const QString, path);
    QFETCH(const int, status);

    const HttpReply reply = get(m_collector->url(path));
    QCOMPARE(reply.status, status);
    QCOMPARE(reply.headers.value("content-security-policy"),
             QByteArray("default-src 'none'; style-src 'self'; img-src 'self'; base-uri 'none'; form-action 'none'; "
                        "frame-ancestors 'none'"));
    QCOMPARE(reply.headers.value("x-content-type-options"), QByteArray("nosniff"));
    QCOMPARE(reply.headers.value("referrer-policy"), QByteArray("no-referrer"));
    QCOMPARE(reply.headers.value("cache-control"), QByteArray("no-store"));
    QCOMPARE(reply.headers.value("cross-origin-resource-policy"), QByteArray("same-origin"));
    QVERIFY(!reply.headers.contains("access-control-allow-origin"));
}

void tst_CrashCollectorPage::download_givesTheSameBytes()
{
    const Verdict verdict = sendReport(*m_collector, reportArchive());
    const HttpReply reply = get(m_collector->url(u"/reports/%1.zip"_qs.arg(verdict.identifier)));
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.body, reportArchive());
    QCOMPARE(reply.headers.value("content-type"), QByteArray("application/zip"));
    QCOMPARE(reply.headers.value("content-disposition"),
             u"attachment; filename=\"%1.zip\""_qs.arg(verdict.identifier).toUtf8());
    QCOMPARE(reply.headers.value("x-content-type-options"), QByteArray("nosniff"));
}

void tst_CrashCollectorPage::download_ofAnythingElse_isNotFound_data()
{
    QTest::addColumn<QByteArray>("path");

    QTest::newRow("unknown identifier") << QByteArray("/reports/00000000-0000-0000-0000-000000000000.zip");
    QTest::newRow("index") << QByteArray("/reports/index.sqlite");
    QTest::newRow("file that is not listed") << QByteArray("/reports/11111111-1111-1111-1111-111111111111.zip");
    QTest::newRow("folder") << QByteArray("/reports/");
    QTest::newRow("folder above") << QByteArray("/reports/../index.sqlite");
    QTest::newRow("folder above, encoded") << QByteArray("/reports/%2e%2e%2findex.sqlite");
    QTest::newRow("zero behind it") << QByteArray("/reports/00000000-0000-0000-0000-000000000000.zip%00");
    QTest::newRow("statement") << QByteArray("/reports/'%20OR%20'1'='1.zip");
}

void tst_CrashCollectorPage::download_ofAnythingElse_isNotFound()
{
    QFETCH(const QByteArray, path);

    QCOMPARE(sendReport(*m_collector, reportArchive()).word, u"NoError"_qs);
    QVERIFY(QFile::copy(m_collector->storedPath(u"index.sqlite"_qs),
                        m_collector->storedPath(u"11111111-1111-1111-1111-111111111111.zip"_qs)));
    const HttpReply reply = exchangeBytes(m_collector->port(), "GET " + path + " HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QCOMPARE(reply.status, 404);
    QCOMPARE(reply.body, QByteArray("Error 404\n"));
}

void tst_CrashCollectorPage::head_hasNoBody()
{
    const HttpReply reply = exchangeBytes(m_collector->port(), "HEAD / HTTP/1.1\r\nHost: localhost\r\n\r\n");
    QCOMPARE(reply.status, 200);
    QCOMPARE(reply.body, QByteArray());
    QVERIFY(reply.headers.value("content-length").toInt() > 0);
}

/*! The script fails unless the page shows \a expected, the newest first. */
void tst_CrashCollectorPage::runInBrowser(const QList<QJsonObject> &expected)
{
    QJsonArray rows;
    for (const QJsonObject &row : expected) {
        rows.append(row);
    }
    QProcess script;
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(QStandardPaths::findExecutable(u"python3"_qs, {u"/usr/bin"_qs}),
                 {QStringLiteral(REPORTS_PAGE_SCRIPT), m_collector->url(u"/"_qs).toString()});
    script.write(QJsonDocument(rows).toJson());
    script.closeWriteChannel();
    const bool isFinished = script.waitForFinished(2 * watchdogMs);
    const QByteArray output = script.readAll();
    if (!isFinished && script.error() == QProcess::FailedToStart) {
        QSKIP("Needs python3.");
    }
    if (script.exitCode() == 77) {
        QSKIP(output.trimmed().constData());
    }
    QVERIFY2(isFinished && script.exitStatus() == QProcess::NormalExit && script.exitCode() == 0, output.constData());
}

void tst_CrashCollectorPage::browser_showsTheEmptyPage()
{
    runInBrowser({});
}

void tst_CrashCollectorPage::browser_showsReportsAndDownloads()
{
    QList<ReportTexts> texts = strangeTexts();
    texts.append({ReportTexts(), ReportTexts{u"Zyx Grainlab 6"_qs, u"6.4.1.0"_qs, u"Mac"_qs}});
    QList<QJsonObject> expected;
    for (const ReportTexts &report : texts) {
        const QByteArray archive = reportArchiveOfSize(4000 + 100'000 * expected.size());
        const Verdict verdict = sendReport(*m_collector, archive, report);
        QCOMPARE(verdict.word, u"NoError"_qs);
        const QByteArray hash = QCryptographicHash::hash(archive, QCryptographicHash::Sha256).toHex();
        expected.prepend({{u"product"_qs, report.product},
                          {u"version"_qs, report.version},
                          {u"platform"_qs, report.platform},
                          {u"identifier"_qs, verdict.identifier},
                          {u"sha256"_qs, QString::fromLatin1(hash)}});
    }
    runInBrowser(expected);
}

QTEST_GUILESS_MAIN(tst_CrashCollectorPage)

#include "tst_CrashCollectorPage.moc"
