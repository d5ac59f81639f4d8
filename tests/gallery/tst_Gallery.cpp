// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "FileBrowser.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>
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

/*! The smallest rectangle with all pixels of about that colour. */
QRect areaOf(const QImage &image, const QColor &colour)
{
    QRect area;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            const int distance = qAbs(pixel.red() - colour.red()) + qAbs(pixel.green() - colour.green())
                + qAbs(pixel.blue() - colour.blue());
            area |= distance < 12 ? QRect(x, y, 1, 1) : QRect();
        }
    }
    return area;
}

} // namespace

/*! The gallery, as a program. */
class tst_Gallery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void output_hasAPictureOfEachExhibit();
    void index_namesEachPicture();
    void rightToLeft_isMirrored();
    void ratio_scalesThePictures_data();
    void ratio_scalesThePictures();
    void ratio_ofTheScreen_isNoneOfThePictures();
    void ratio_ofAnotherNumber_endsWithoutStarting();
    void only_ofASheet_writesThatSheet();
    void only_thatFitsNothing_isAFailure_data();
    void only_thatFitsNothing_isAFailure();
    void output_hasAPictureOfEachSheet_data();
    void output_hasAPictureOfEachSheet();
    void pages_wearTheSheets();
    void output_thatCannotBeWritten_isAFailure();
    void languages_lookDifferent();
    void surplusArgument_endsWithoutStarting();

private:
    Run run(const QStringList &arguments,
            const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) const;
    QString folderOf(const QString &language) const;
    QImage picture(const QString &name) const;
    bool writeAsWell(const QStringList &arguments) const;
    Run runIn(const QString &language);

    TestSupport::Sandbox m_sandbox;
    QHash<QString, Run> m_runs;
};

Run tst_Gallery::run(const QStringList &arguments, const QProcessEnvironment &environment) const
{
    QProcess gallery;
    gallery.setProcessEnvironment(environment);
    gallery.setWorkingDirectory(m_sandbox.filePath(u"."_qs));
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

/*! Once for each language, and all of it in one: a run takes seconds. */
Run tst_Gallery::runIn(const QString &language)
{
    if (!m_runs.contains(language)) {
        QStringList arguments{u"--language"_qs, language, u"--output"_qs, folderOf(language)};
        if (language != u"en") {
            arguments += {u"--only"_qs, u"sheet"_qs};
        }
        m_runs.insert(language, run(arguments));
    }
    return m_runs.value(language);
}

QImage tst_Gallery::picture(const QString &name) const
{
    return QImage(QDir(folderOf(u"en"_qs)).filePath(name));
}

/*! Into the folder that has all of one language. */
bool tst_Gallery::writeAsWell(const QStringList &arguments) const
{
    const Run gallery = run(QStringList{u"--language"_qs, u"en"_qs, u"--output"_qs, folderOf(u"en"_qs)} + arguments);
    return gallery.isClean;
}

void tst_Gallery::output_hasAPictureOfEachExhibit()
{
    const Run gallery = runIn(u"en"_qs);
    QVERIFY2(gallery.isClean, qPrintable(gallery.errors));
    QVERIFY2(gallery.output.contains(u", ratio 1, ltr: 0 failures; "), qPrintable(gallery.output));
    const QDir folder(folderOf(u"en"_qs));
    const QHash<QString, qsizetype> counts{
        {u"box"_qs, 31}, {u"dialog"_qs, isFileBrowserPainted() ? 10 : 9}, {u"overlay"_qs, 6}, {u"widget"_qs, 31}};
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        const QStringList names = folder.entryList({u"en-1-ltr-%1-*.png"_qs.arg(count.key())}, QDir::Files);
        QVERIFY2(names.size() == count.value(), qPrintable(names.join(u' ')));
        for (const QString &name : names) {
            QVERIFY2(picture(name).width() >= 90 && picture(name).height() >= 60, qPrintable(name));
        }
    }
    QCOMPARE(picture(u"en-1-ltr-dialog-about.png"_qs).size(), QSize(541, 485));
}

void tst_Gallery::rightToLeft_isMirrored()
{
    QVERIFY(runIn(u"en"_qs).isClean);
    QVERIFY(writeAsWell({u"--right-to-left"_qs, u"--only"_qs, u"box-save"_qs}));
    const QImage usual = picture(u"en-1-ltr-box-save.png"_qs);
    const QImage mirrored = picture(u"en-1-rtl-box-save.png"_qs);
    QVERIFY(!usual.isNull());
    QCOMPARE(mirrored.size(), usual.size());
    const QColor iconColour(0xe4, 0xa4, 0x33);
    const QColor highlight(0x98, 0x3c, 0x11);
    const int middle = usual.width() / 2;
    QVERIFY(areaOf(usual, iconColour).isValid() && areaOf(usual, iconColour).right() < middle);
    QVERIFY(areaOf(mirrored, iconColour).left() > middle);
    QVERIFY(areaOf(usual, highlight).left() > middle);
    QVERIFY(areaOf(mirrored, highlight).isValid() && areaOf(mirrored, highlight).right() < middle);
}

void tst_Gallery::ratio_scalesThePictures_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::newRow("1.5") << u"1.5"_qs;
    QTest::newRow("2") << u"2"_qs;
}

void tst_Gallery::ratio_scalesThePictures()
{
    QFETCH(const QString, ratio);

    QVERIFY(runIn(u"en"_qs).isClean);
    QVERIFY(writeAsWell({u"--ratio"_qs, ratio, u"--only"_qs, u"widget-viewer"_qs}));
    const QDir folder(folderOf(u"en"_qs));
    const QStringList names = folder.entryList({u"en-%1-ltr-widget-viewer-*.png"_qs.arg(ratio)}, QDir::Files);
    QCOMPARE(names.size(), 13);
    for (const QString &name : names) {
        const QImage single = picture(u"en-1-ltr-"_qs + name.section(u"-ltr-"_qs, 1));
        QCOMPARE(single.size(), QSize(180, 180));
        QCOMPARE(picture(name).size(), single.size() * ratio.toDouble());
    }
}

/*! A desktop at 150 percent, and what its user may have set against it. */
void tst_Gallery::ratio_ofTheScreen_isNoneOfThePictures()
{
    QVERIFY(runIn(u"en"_qs).isClean);
    const QImage usual = picture(u"en-1-ltr-box-save.png"_qs);
    QVERIFY(!usual.isNull());
    QFile screen(m_sandbox.filePath(u"screen.json"_qs));
    QVERIFY(screen.open(QIODevice::WriteOnly));
    screen.write(R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": 1920, "height": 1080, "dpr": 1,)"
                 R"( "logicalDpi": 144, "logicalBaseDpi": 96}]})");
    screen.close();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_qs, u"offscreen:configfile=screen.json"_qs);
    environment.insert(u"QT_SCREEN_SCALE_FACTORS"_qs, u"1.5"_qs);
    environment.insert(u"QT_USE_PHYSICAL_DPI"_qs, u"1"_qs);
    const QString output = m_sandbox.filePath(u"desktop"_qs);
    const QStringList box{u"--language"_qs, u"en"_qs, u"--output"_qs, output, u"--only"_qs, u"box-save"_qs};
    for (const QStringList &ratio : {QStringList(), QStringList{u"--ratio"_qs, u"1"_qs}}) {
        const Run gallery = run(box + ratio, environment);
        QVERIFY2(gallery.isClean, qPrintable(gallery.errors));
        QCOMPARE(QImage(output + u"/en-1-ltr-box-save.png"), usual);
        QVERIFY(QDir(output).removeRecursively());
    }
}

void tst_Gallery::only_ofASheet_writesThatSheet()
{
    const QString output = m_sandbox.filePath(u"one sheet"_qs);
    const Run gallery = run({u"--language"_qs, u"en"_qs, u"--output"_qs, output, u"--only"_qs, u"sheet-cust"_qs});
    QVERIFY2(gallery.isClean, qPrintable(gallery.errors));
    QCOMPARE(QDir(output).entryList({u"*.png"_qs}, QDir::Files), QStringList(u"en-01-custom.png"_qs));
}

void tst_Gallery::only_thatFitsNothing_isAFailure_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no such name") << QStringList{u"--only"_qs, u"bocks"_qs};
    QTest::newRow("sheets in another ratio") << QStringList{u"--only"_qs, u"sheet"_qs, u"--ratio"_qs, u"2"_qs};
}

void tst_Gallery::only_thatFitsNothing_isAFailure()
{
    QFETCH(const QStringList, arguments);

    const QString output = m_sandbox.filePath(u"nothing"_qs);
    const Run gallery = run(QStringList{u"--language"_qs, u"en"_qs, u"--output"_qs, output} + arguments);
    QVERIFY(!gallery.isClean);
    QVERIFY2(
        gallery.errors.contains(u"no picture of this form has a name that begins with \"%1\""_qs.arg(arguments.at(1))),
        qPrintable(gallery.errors));
    QCOMPARE(QDir(output).entryList({u"*.png"_qs}, QDir::Files), QStringList());
}

/*! After runs of several kinds: it shows what all have left. */
void tst_Gallery::index_namesEachPicture()
{
    QVERIFY(runIn(u"en"_qs).isClean);
    QVERIFY(writeAsWell({u"--ratio"_qs, u"1.5"_qs, u"--right-to-left"_qs, u"--only"_qs, u"widget-setting-on"_qs}));
    const QDir folder(folderOf(u"en"_qs));
    QCOMPARE(folder.entryList({u"en-1.5-*"_qs}, QDir::Files), QStringList(u"en-1.5-rtl-widget-setting-on.png"_qs));
    QFile page(folder.filePath(u"index.html"_qs));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&page);
    QSet<QString> shown;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == u"img") {
            shown.insert(reader.attributes().value(u"src"_qs).toString());
        }
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    const QStringList names = folder.entryList({u"*.png"_qs}, QDir::Files);
    QCOMPARE(shown, QSet<QString>(names.cbegin(), names.cend()));
}

void tst_Gallery::ratio_ofAnotherNumber_endsWithoutStarting()
{
    const Run gallery = run({u"--ratio"_qs, u"3"_qs, u"--output"_qs, m_sandbox.filePath(u"none"_qs)});
    QVERIFY(!gallery.isClean);
    QVERIFY2(gallery.errors.contains(u"a ratio is 1, 1.5 or 2"), qPrintable(gallery.errors));
    QVERIFY(!QDir(m_sandbox.filePath(u"none"_qs)).exists());
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
    QCOMPARE(QDir(folder).entryList({u"*-[0-9][0-9]-*.png"_qs}, QDir::Files).size(), sheets.size());
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
    const Run gallery = run({u"--output"_qs, m_sandbox.filePath(u"file/folder"_qs)});
    QVERIFY(!gallery.isClean);
    QVERIFY2(gallery.errors.contains(u"the folder can't be made"), qPrintable(gallery.errors));
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
