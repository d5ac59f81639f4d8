// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/Sandbox.h"

#include "utilsDll/files/FileUtils.h"
#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QSettings>
#include <QtCore/QStandardPaths>
#include <QtGui/QImage>
#include <QtTest/QTest>

using namespace ZYX_zglv6;

namespace {

constexpr int watchdogMs = 60'000;

struct Run
{
    bool isClean = false;
    QStringList lines;
    QString errors;

    /*! What the host said in its step \a number. */
    QString step(int number) const
    {
        const QStringList found = lines.filter(QRegularExpression(u"^%1 "_qs.arg(number)));
        return found.size() == 1 ? found.front() : u"%1 lines for step %2"_qs.arg(found.size()).arg(number);
    }
};

} // namespace

class tst_Lightbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void start_printsOneLineForEachStep();
    void start_readsTheGivenPreferencesFile();
    void secondStart_isNotTheFirstLaunchAndHasRolledTheLog();
    void temporarySettings_leaveNoTraceOfTheLaunch();
    void consoleLog_goesToTheStandardOutput();
    void snapshot_showsThePhotograph();
    void tour_showsWhatTheGateDoesWithCommands();
    void tour_showsWhatCanBeDoneWithFiles();
    void tourOfANameThatIsNotValid_copiesUnderAnother();
    void tour_showsWhatAChoiceOfLanguageDoes();
    void tour_showsTheDialogs();
    void tour_showsTheDataWithinTheProgram();
    void chosenLanguage_staysForLaterStarts();
    void secondTour_findsThePanelAsTheFirstLeftIt();
    void tourWithAService_showsAnswerFaultAndRefusal();
    void snapshotOfTheTour_showsTheFrameAndThePanel();
    void unreadablePhotograph_isToldAndLeaves();
    void missingPhotograph_isTold();
    void emptyFolder_isNoError();
    void foreignNamesWithPlaceMarkers_areShownAsTheyAre();
    void preferencesFileThatCannotBeWritten_isTold();
    void wrongOption_endsWithoutStarting();
    void surplusArgument_endsWithoutStarting();
    void emptyPreferencesFile_endsWithoutStarting();

private:
    Run run(const QStringList &arguments) const;
    QString dataFolder() const;

    TestSupport::Sandbox m_sandbox;
    int m_count = 0;
    QString m_workFolder;
};

void tst_Lightbox::init()
{
    m_workFolder = m_sandbox.filePath(u"work %1"_qs.arg(++m_count));
#ifdef Q_OS_WIN
    // The example's settings are one registry key there, which each test starts without.
    QProcess::execute(u"reg"_qs, {u"delete"_qs, u"HKCU\\Software\\UtilsDllzglv6 Lightbox"_qs, u"/f"_qs});
#endif
}

Run tst_Lightbox::run(const QStringList &arguments) const
{
    QProcess host;
    host.start(QDir(QCoreApplication::applicationDirPath()).filePath(u"lightbox"_qs),
               QStringList{u"--leave"_qs, u"--data"_qs, m_workFolder} + arguments);
    Run result;
    result.isClean
        = host.waitForFinished(watchdogMs) && host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0;
    result.lines = QString::fromLocal8Bit(host.readAllStandardOutput()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    result.errors = QString::fromLocal8Bit(host.readAllStandardError());
    host.kill();
    host.waitForFinished();
    return result;
}

QString tst_Lightbox::dataFolder() const
{
    return m_workFolder + u"/data/";
}

void tst_Lightbox::start_printsOneLineForEachStep()
{
    const Run first = run({});
    QVERIFY2(first.isClean, qPrintable(first.errors));
    QVERIFY2(first.step(1).contains(u" " LIGHTBOX_VERSION "; embedded files in place"), qPrintable(first.step(1)));
    QVERIFY(first.step(2).endsWith(QDir::toNativeSeparators(m_workFolder + u"/Preferences.ini")));
    QVERIFY2(first.step(3).contains(u"data in "_qs + dataFolder()), qPrintable(first.step(3)));
    QVERIFY(first.step(4).endsWith(u"in the system store"));
    QVERIFY(first.step(5).endsWith(u"lightbox.txt, logs of earlier runs: 0"));
    QVERIFY(first.step(6).endsWith(u" no dump of an earlier run"));
    QVERIFY(!first.step(7).endsWith(u" 0x0"));
    QVERIFY2(first.step(8).contains(u"the first, last mode \"\", user "), qPrintable(first.step(8)));
    QVERIFY(first.step(9).endsWith(u" no state stored yet"));
    QVERIFY(first.step(26).endsWith(u" with 0"));
    QCOMPARE(first.lines.size(), 11); // the logger has a line of its own
    QVERIFY(QFile::exists(dataFolder() + u"Logs/lightbox.txt"));
}

void tst_Lightbox::start_readsTheGivenPreferencesFile()
{
    const QString preferencesFile = m_sandbox.filePath(u"own.ini"_qs);
    const QString data = m_sandbox.filePath(u"photo data"_qs);
    {
        QSettings preferences(preferencesFile, QSettings::IniFormat);
        preferences.setValue(dataDirectoryKey, data);
    }
    const Run host = run({u"--preferencesFile"_qs, preferencesFile});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(3).contains(u"data in "_qs + data + u"/;"), qPrintable(host.step(3)));
    QVERIFY(QFile::exists(data + u"/Logs/lightbox.txt"));
}

void tst_Lightbox::secondStart_isNotTheFirstLaunchAndHasRolledTheLog()
{
    QVERIFY(run({}).isClean);
    const Run second = run({});
    QVERIFY2(second.isClean, qPrintable(second.errors));
    QVERIFY(second.step(5).endsWith(u"logs of earlier runs: 1"));
    QVERIFY2(second.step(8).contains(u"not the first, last mode \"Standalone\""), qPrintable(second.step(8)));
    QVERIFY(QFile::exists(dataFolder() + u"Logs/lightbox.txt.1"));
}

void tst_Lightbox::temporarySettings_leaveNoTraceOfTheLaunch()
{
    const Run throwAway = run({u"--temporarySettings"_qs});
    QVERIFY2(throwAway.isClean, qPrintable(throwAway.errors));
    QVERIFY2(throwAway.step(4).contains(u"zglv6.ini"), qPrintable(throwAway.step(4)));
    QVERIFY(!QFile::exists(throwAway.step(4).section(u"throw-away, in "_qs, 1)));
    QVERIFY(run({}).step(8).contains(u"the first"));
}

void tst_Lightbox::consoleLog_goesToTheStandardOutput()
{
    const Run host = run({u"--console-log"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QCOMPARE(
        host.lines.filter(QStringLiteral("ZYX_zglv6::initLogger: Zyx Grainlab 6 Version: " PRODUCT_VERSION)).size(), 1);
    QVERIFY(!QFile::exists(dataFolder() + u"Logs/lightbox.txt"));
}

void tst_Lightbox::snapshot_showsThePhotograph()
{
    const QString picture = m_sandbox.filePath(u"window.png"_qs);
    const Run host = run({u"--snapshot"_qs, picture, QStringLiteral(LIGHTBOX_SAMPLES "/mountain-lake.jpg")});
    QVERIFY2(host.isClean, qPrintable(host.errors));

    const QImage window(picture);
    QVERIFY(!window.isNull());
    const QImage photo = QImage(QStringLiteral(LIGHTBOX_SAMPLES "/mountain-lake.jpg"))
                             .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QRect middle
        = QRect(0, 0, window.width() / 2, window.height() / 2).translated(window.width() / 4, window.height() / 4);
    const QColor shown
        = window.copy(middle).scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixelColor(0, 0);
    const QColor expected = photo.pixelColor(0, 0);
    QVERIFY(qAbs(shown.red() - expected.red()) < 40);
    QVERIFY(qAbs(shown.green() - expected.green()) < 40);
    QVERIFY(qAbs(shown.blue() - expected.blue()) < 40);
    QCOMPARE(window.pixelColor(4, window.height() / 2), QColor(0x23, 0x23, 0x23));
}

void tst_Lightbox::tour_showsWhatTheGateDoesWithCommands()
{
    const Run host = run({u"--tour"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(10).endsWith(u"\"Next\" was carried out at once: mountain-lake.jpg"), qPrintable(host.step(10)));
    QVERIFY2(host.step(11).endsWith(u"it shows off again"), qPrintable(host.step(11)));
    QVERIFY2(host.step(12).endsWith(u"it shows on"), qPrintable(host.step(12)));
    const int delayMs = host.step(12).section(u' ', -8, -8).toInt();
    QVERIFY2(delayMs >= 900, qPrintable(host.step(12))); // 1000, with a coarse timer
    QVERIFY2(host.step(13).contains(u"with 50 ms: \"lighthouse.jpg takes too long\""), qPrintable(host.step(13)));
    QVERIFY2(host.step(13).endsWith(u"without a limit: \"1 of 2: lighthouse.jpg, 1067 x 1600 px, %1\""_qs.arg(
                 fileSizeToString(QFileInfo(QStringLiteral(LIGHTBOX_SAMPLES "/lighthouse.jpg")).size()))),
             qPrintable(host.step(13)));
}

void tst_Lightbox::tour_showsWhatCanBeDoneWithFiles()
{
    const Run host = run({u"--tour"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    const QString sizes = u"1067 x 1600 px, "_qs
        + fileSizeToString(QFileInfo(QStringLiteral(LIGHTBOX_SAMPLES "/lighthouse.jpg")).size());
    QCOMPARE(host.step(17),
             u"17 files       \"lighthouse copy.jpg\", "_qs + sizes
                 + u"; next \"lighthouse.jpg\", then nothing, back \"lighthouse copy.jpg\"; valid \"NUL.jpg\", "
                   "not valid \"NUL\", not valid \"a:b.jpg\"; emptied and removed");
    QCOMPARE(QDir(m_workFolder).entryList({u"files-*"_qs}, QDir::AllEntries | QDir::Hidden), QStringList());
    QCOMPARE(QDir(m_workFolder).entryList({u"*.jpg"_qs}), QStringList());
    QVERIFY(!QFile::exists(m_workFolder + u"/share/Trash"));
    QCOMPARE(QDir(QStringLiteral(LIGHTBOX_SAMPLES)).entryList(QDir::Files),
             (QStringList{u"lighthouse.jpg"_qs, u"mountain-lake.jpg"_qs}));
}

void tst_Lightbox::tourOfANameThatIsNotValid_copiesUnderAnother()
{
    const QString folder = m_sandbox.filePath(u"odd"_qs);
    QVERIFY(QDir().mkpath(folder));
    if (!QFile::copy(QStringLiteral(LIGHTBOX_SAMPLES "/lighthouse.jpg"), folder + u"/a:b.jpg")
        || !QFile::exists(folder + u"/a:b.jpg")) {
        QSKIP("No file can have such a name here.");
    }
    const Run host = run({u"--tour"_qs, folder});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(17).startsWith(u"17 files       \"photograph copy.jpg\", "), qPrintable(host.step(17)));
    QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList(u"a:b.jpg"_qs));
}

void tst_Lightbox::tour_showsWhatAChoiceOfLanguageDoes()
{
    const Run host = run({u"--tour"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    static const QRegularExpression form(
        u"^18 language    (\\S+) was chosen for the next start, now it is still English; "
        "help lies at https://[^/]+/en/redirect/gl6/help$"_qs);
    const QRegularExpressionMatch match = form.match(host.step(18));
    QVERIFY2(match.hasMatch() && match.captured(1) != u"English", qPrintable(host.step(18)));
}

void tst_Lightbox::tour_showsTheDialogs()
{
    const Run host = run({u"--tour"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    static const QRegularExpression form(u"^19 dialogs     zoom (\\d+) %, then (\\d+) %; about Zyx Grainlab 6, (\\d+) "
                                         "letters of licences; 5 data files are missing$"_qs);
    const QRegularExpressionMatch match = form.match(host.step(19));
    QVERIFY2(match.hasMatch(), qPrintable(host.step(19)));
    QVERIFY(match.captured(1).toInt() < match.captured(2).toInt());
#ifndef Q_OS_WIN // where the installer's place is a key for all users, which the examples leave alone
    QVERIFY2(match.captured(3).toInt() > 50'000, qPrintable(host.step(19)));
#endif
}

void tst_Lightbox::tour_showsTheDataWithinTheProgram()
{
    const Run host = run({u"--tour"_qs});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QCOMPARE(host.step(20), u"20 presets     229, of which 226 are looks and 150 are for experts; 139 notes"_qs);
    QCOMPARE(
        host.step(21),
        u"21 tags        Color 84, Film 84, TimeMachine 78, B&W 64, Negative 53, Designer 39, Slide 31, Digital 19, "
        "Toned 17, Vignette 13, Grain 12, Cinematic 6, Frame 6"_qs);
    static const QRegularExpression note(u"^22 note        [^:]+: Creator: [^:]+$"_qs);
    QVERIFY2(note.match(host.step(22)).hasMatch(), qPrintable(host.step(22)));
    QCOMPARE(host.step(23),
             u"23 history     14 decades from \"19 Century\" to \"2010 - 2020\" with 214 films and 73 events"_qs);
    static const QRegularExpression module(
        u"^24 calibration (lighthouse\\.jpg, Canon EOS 5D Mark IV, EF24-70mm f/2\\.8L II USM, 35 mm: "
        "C\\d{3,5}[a-z]_\\d{3}\\.caf|not in this build)$"_qs);
    QVERIFY2(module.match(host.step(24)).hasMatch(), qPrintable(host.step(24)));
}

void tst_Lightbox::chosenLanguage_staysForLaterStarts()
{
    const Run first = run({});
    QVERIFY2(first.step(7).contains(u" in English; main window 0x"), qPrintable(first.step(7)));
    const Run chosen = run({u"--language"_qs, u"de"_qs});
    QVERIFY2(chosen.step(7).contains(u" in Deutsch; main window 0x"), qPrintable(chosen.step(7)));
    const Run later = run({});
    QVERIFY2(later.step(7).contains(u" in Deutsch; main window 0x"), qPrintable(later.step(7)));
    const Run wrong = run({u"--language"_qs, u"xx"_qs});
    QVERIFY2(wrong.isClean && wrong.step(7).contains(u" in Deutsch; "), qPrintable(wrong.step(7)));
    QVERIFY2(wrong.errors.contains(u"there is no language xx"), qPrintable(wrong.errors));
}

void tst_Lightbox::secondTour_findsThePanelAsTheFirstLeftIt()
{
    QVERIFY(run({u"--tour"_qs}).isClean);
    const Run second = run({u"--tour"_qs});
    QVERIFY2(second.isClean, qPrintable(second.errors));
    static const QRegularExpression restored(u" restored from [1-9][0-9]* bytes; frame on$"_qs);
    QVERIFY2(restored.match(second.step(9)).hasMatch(), qPrintable(second.step(9)));
    QVERIFY2(second.step(11).endsWith(u"it shows on again"), qPrintable(second.step(11)));
    QVERIFY2(second.step(12).endsWith(u"it shows off"), qPrintable(second.step(12)));
    const Run third = run({});
    QVERIFY2(third.step(9).endsWith(u"frame off"), qPrintable(third.step(9)));
}

void tst_Lightbox::tourWithAService_showsAnswerFaultAndRefusal()
{
    QProcess service; // ends with its standard input
    service.start(QStandardPaths::findExecutable(u"python3"_qs, {u"/usr/bin"_qs}),
                  {QStringLiteral(LIGHTBOX_SERVICE), u"--port"_qs, u"0"_qs});
    while (!service.canReadLine()) {
        if (!service.waitForReadyRead(watchdogMs)) {
            QSKIP("Needs python3-spyne.");
        }
    }
    const QString port = QString::fromLatin1(service.readLine()).trimmed().section(u' ', -1);
    QVERIFY2(port.toInt() > 0, qPrintable(port));
    const Run host = run({u"--tour"_qs, u"--service"_qs, u"http://127.0.0.1:%1/"_qs.arg(port)});
    service.closeWriteChannel();
    QVERIFY(service.waitForFinished(watchdogMs));

    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(14).endsWith(u"The service says: lighthouse.jpg: 1067 x 1600 pixels, 1.7 megapixels"),
             qPrintable(host.step(14)));
    QVERIFY2(host.step(15).endsWith(u"No description: A photo has at least one pixel: 0 x 0"),
             qPrintable(host.step(15)));
    QVERIFY2(host.step(16).contains(u"No description: Network transport error (1): "), qPrintable(host.step(16)));
}

void tst_Lightbox::snapshotOfTheTour_showsTheFrameAndThePanel()
{
    const QString picture = m_sandbox.filePath(u"tour.png"_qs);
    const Run host = run({u"--tour"_qs, u"--snapshot"_qs, picture});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    const QImage window(picture);
    const auto countOf = [&window](const QColor &color, const QRect &area) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                count += window.pixelColor(x, y) == color ? 1 : 0;
            }
        }
        return count;
    };
    const QRect panel(window.width() - 170, 30, 170, window.height() - 60);
    QVERIFY(countOf(QColor(0xa3, 0x3f, 0x12), panel) > 20 * 20); // the pressed button
    const QRect view(0, 30, window.width() - 180, window.height() - 60);
    QVERIFY(countOf(Qt::white, view) > 4 * 12 * 300); // twelve pixels around the photograph
}

void tst_Lightbox::unreadablePhotograph_isToldAndLeaves()
{
    const QString path = m_sandbox.filePath(u"broken.jpg"_qs);
    QFile broken(path);
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture at all");
    broken.close();

#ifdef Q_OS_WIN
    QSKIP("The message box of Windows waits for its user.");
#endif
    const Run host = run({path});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.errors.contains(u"Error: Sorry, but this file type is not supported. Please, try again."),
             qPrintable(host.errors));
    QFile log(dataFolder() + u"Logs/lightbox.txt");
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().contains("broken.jpg: "));
}

void tst_Lightbox::missingPhotograph_isTold()
{
#ifdef Q_OS_WIN
    QSKIP("The message box of Windows waits for its user.");
#endif
    const Run host = run({QStringLiteral(LIGHTBOX_SAMPLES "/no-such.jpg")});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.errors.contains(u"Error: Sorry, but this file type is not supported. Please, try again."),
             qPrintable(host.errors));
}

void tst_Lightbox::emptyFolder_isNoError()
{
    const QString folder = m_sandbox.filePath(u"no photographs"_qs);
    QVERIFY(QDir().mkpath(folder));
    for (const QStringList &options : {QStringList(), QStringList(u"--tour"_qs)}) {
        const Run host = run(options + QStringList(folder));
        QVERIFY2(host.isClean, qPrintable(host.errors));
        QVERIFY2(!host.errors.contains(u"Error: "), qPrintable(host.errors));
    }
}

void tst_Lightbox::foreignNamesWithPlaceMarkers_areShownAsTheyAre()
{
    m_workFolder = m_sandbox.filePath(u"work %1 %2"_qs);
    const Run host = run({});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(5).contains(u"work %1 %2"), qPrintable(host.step(5)));
    QVERIFY2(host.step(5).endsWith(u"earlier runs: 0"), qPrintable(host.step(5)));
}

void tst_Lightbox::preferencesFileThatCannotBeWritten_isTold()
{
    QFile file(m_sandbox.filePath(u"a file"_qs));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const Run host = run({u"--preferencesFile"_qs, file.fileName() + u"/Preferences.ini"});
    QVERIFY2(host.isClean, qPrintable(host.errors));
    QVERIFY2(host.step(2).endsWith(u"which can't be written: defaults apply"), qPrintable(host.step(2)));
}

void tst_Lightbox::wrongOption_endsWithoutStarting()
{
    const Run host = run({u"--no-such-option"_qs});
    QVERIFY(!host.isClean);
    QCOMPARE(host.lines, QStringList());
    QVERIFY(!QFile::exists(m_workFolder));
}

void tst_Lightbox::surplusArgument_endsWithoutStarting()
{
    const Run host = run({u"one.jpg"_qs, u"two.jpg"_qs});
    QVERIFY(!host.isClean);
    QVERIFY2(host.errors.contains(u"one argument too many: two.jpg"), qPrintable(host.errors));
    QVERIFY(!QFile::exists(m_workFolder));
}

void tst_Lightbox::emptyPreferencesFile_endsWithoutStarting()
{
    const Run host = run({u"--preferencesFile="_qs});
    QVERIFY(!host.isClean);
    QVERIFY2(host.errors.contains(u"the preferences file has no name"), qPrintable(host.errors));
    QVERIFY(!QFile::exists(m_workFolder));
}

QTEST_MAIN(tst_Lightbox)

#include "tst_Lightbox.moc"
