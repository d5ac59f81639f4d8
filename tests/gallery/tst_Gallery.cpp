// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtGui/QImage>
#include <QtTest/QTest>

namespace {

constexpr int watchdogMs = 120'000;

struct Run
{
    bool isClean = false;
    QString output;
    QString errors;
};

} // namespace

/*! The gallery of controls, as a program. */
class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void output_hasAPictureOfEachSheet_data();
    void output_hasAPictureOfEachSheet();
    void pages_wearTheSheets();
    void output_thatCannotBeWritten_isAFailure();
    void languages_lookDifferent();
    void surplusArgument_endsWithoutStarting();

private:
    Run run(const QStringList &arguments) const;
    QString folderOf(const QString &language) const;
    Run runIn(const QString &language);

    TestSupport::Sandbox m_sandbox;
    QHash<QString, Run> m_runs;
};

Run tst_Gallery::run(const QStringList &arguments) const
{
    QProcess gallery;
    gallery.start(QDir(QCoreApplication::applicationDirPath()).filePath(u"gallery"_qs), arguments);
    Run result;
    result.isClean = gallery.waitForFinished(watchdogMs) && gallery.exitStatus() == QProcess::NormalExit
        && gallery.exitCode() == 0;
    result.output = QString::fromUtf8(gallery.readAllStandardOutput()).remove(u'\r');
    result.errors = QString::fromUtf8(gallery.readAllStandardError());
    gallery.kill();
    gallery.waitForFinished();
    return result;
}

QString tst_Gallery::folderOf(const QString &language) const
{
    return m_sandbox.filePath(u"pictures "_qs + language);
}

/*! Once for each language: a run takes seconds. */
Run tst_Gallery::runIn(const QString &language)
{
    if (!m_runs.contains(language)) {
        m_runs.insert(language, run({u"--language"_qs, language, u"--output"_qs, folderOf(language)}));
    }
    return m_runs.value(language);
}

void tst_Gallery::output_hasAPictureOfEachSheet_data()
{
    QTest::addColumn<QString>("extraSheet");

    QTest::newRow("de") << u"extra-de"_qs;
    QTest::newRow("en") << QString(); // that one is empty
    QTest::newRow("fr") << u"extra-fr"_qs;
    QTest::newRow("ja") << u"extra-ja"_qs;
    QTest::newRow("zh_CN") << QString();
}

void tst_Gallery::output_hasAPictureOfEachSheet()
{
    QFETCH(const QString, extraSheet);

    const QString language = QString::fromLatin1(QTest::currentDataTag());
    const QString folder = folderOf(language);
    const Run gallery = runIn(language);
    QVERIFY2(gallery.isClean, qPrintable(gallery.errors));
    QVERIFY2(gallery.output.contains(u" selectors, without a control: none\n"), qPrintable(gallery.output));
    QVERIFY2(!gallery.errors.contains(u"style"), qPrintable(gallery.errors)); // Qt tells what it could not parse

    QStringList sheets{u"custom"_qs,   u"win"_qs,    u"menu"_qs,  u"toolBar"_qs, u"previewArea"_qs, u"sideBar"_qs,
                       u"combobox"_qs, u"slider"_qs, u"tools"_qs, u"dialogs"_qs, u"timeMachine"_qs};
    if (!extraSheet.isEmpty()) {
        sheets.append(extraSheet);
    }
    sheets += {u"essintial"_qs, u"crash_sender"_qs, u"printing"_qs};
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), sheets.size());
    for (qsizetype i = 0; i < sheets.size(); ++i) {
        const QString name
            = u"%1-%2-%3.png"_qs.arg(language, QString::number(i + 1).rightJustified(2, u'0'), sheets.at(i));
        const QImage picture(QDir(folder).filePath(name));
        QVERIFY2(!picture.isNull(), qPrintable(name));
        QCOMPARE(picture.pixelColor(1, 1), QColor(0x23, 0x23, 0x23)); // the page's ground
        QVERIFY2(picture.width() > 300 && picture.height() > 60, qPrintable(name));
    }
}

/*! By colours that only the sheets bring: the chunk of a progress bar, and what is selected. */
void tst_Gallery::pages_wearTheSheets()
{
    QVERIFY(runIn(u"en"_qs).isClean);
    const QImage page(folderOf(u"en"_qs) + u"/en-01-custom.png");
    int accent = 0;
    int selection = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            accent += page.pixelColor(x, y) == QColor(0xa3, 0x3f, 0x12) ? 1 : 0;
            selection += page.pixelColor(x, y) == QColor(0x98, 0x79, 0x47) ? 1 : 0;
        }
    }
    QVERIFY2(accent > 500, QByteArray::number(accent));
    QVERIFY2(selection > 5000, QByteArray::number(selection));
}

void tst_Gallery::output_thatCannotBeWritten_isAFailure()
{
    QFile file(m_sandbox.filePath(u"file"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(!run({u"--output"_qs, m_sandbox.filePath(u"file/folder"_qs)}).isClean);
}

void tst_Gallery::languages_lookDifferent()
{
    QVERIFY(runIn(u"de"_qs).isClean && runIn(u"fr"_qs).isClean);
    QVERIFY(QImage(folderOf(u"de"_qs) + u"/de-10-dialogs.png") != QImage(folderOf(u"fr"_qs) + u"/fr-10-dialogs.png"));
}

void tst_Gallery::surplusArgument_endsWithoutStarting()
{
    const Run gallery = run({u"surplus"_qs});
    QVERIFY(!gallery.isClean);
    QVERIFY2(gallery.errors.contains(u"one argument too many: surplus"), qPrintable(gallery.errors));
}

QTEST_GUILESS_MAIN(tst_Gallery)
#include "tst_Gallery.moc"
