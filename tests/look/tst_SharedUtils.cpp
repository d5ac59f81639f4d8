// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/AssertionReports.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/QtResources.h"
#include "utilsDll/look/LanguageManager.h"
#include "utilsDll/look/SharedUtils.h"
#include "utilsDll/settings/Settings.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QThread>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

#include <memory>

using namespace TestSupport;
using namespace ZYX_zglv6;

static_assert(QssLoadBaseSheets == 1 && QssKeepWidgetSheet == 2 && QssSkipAdditionalSheet == 4
              && QssLoadCrashSender == 8 && QssLoadPrinting == 16);

namespace {

using Options = QFlags<QssLoadOption>;

const QString ownSheet = u"/* the widget's own */\n"_qs;
const QString inputReport = u": setup of QSS: wrong input parameters"_qs;

QString fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString joined(const QStringList &sheets)
{
    QString text;
    for (const QString &sheet : sheets) {
        text += fileText(u":/qss/%1.qss"_qs.arg(sheet));
    }
    return text;
}

/*! The sheets of the application, without the language's own. */
const QStringList applicationSheets{u"custom"_qs,      u"win"_qs,     u"menu"_qs,       u"toolBar"_qs,
                                    u"previewArea"_qs, u"sideBar"_qs, u"combobox"_qs,   u"slider"_qs,
                                    u"tools"_qs,       u"dialogs"_qs, u"timeMachine"_qs};

void chooseLanguage(int number)
{
    CSettings().setValue(u"ZyxAppLanguage"_qs, number);
    CLanguageManager::getInstance().loadLanguages();
}

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QString styled(const Options &options, const QString &extraFile = {})
{
    QWidget widget;
    setCustomStyleSheet(&widget, options, extraFile);
    return widget.styleSheet();
}

} // namespace

class tst_SharedUtils : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void setCustomStyleSheet_joinsByOptionsAndLanguage_data();
    void setCustomStyleSheet_joinsByOptionsAndLanguage();
    void setCustomStyleSheet_withoutOptions_replacesTheWidgetsSheet();
    void setCustomStyleSheet_inJapanese_hasItsSheetBeforeTheAdditionalOne();
    void setCustomStyleSheet_inLanguageWithoutSheet_goesOnWithTheAdditionalOne();
    void setCustomStyleSheet_beforeLanguagesAreLoaded_hasNoLanguageSheet();
    void setCustomStyleSheet_keptSheet_comesBehindTheExtraFile();
    void setCustomStyleSheet_extraFile_data();
    void setCustomStyleSheet_extraFile();
    void setCustomStyleSheet_unreadableExtraFile_addsNothing();
    void setCustomStyleSheet_lockedExtraFile_addsNothing();
    void setCustomStyleSheet_readsAtEachCall();
    void setCustomStyleSheet_onNull_doesNothing();
    void setCustomStyleSheet_onAnotherThread_reportsAndWorks();
    void setCustomStyleSheet_withoutText_reportsAndKeepsTheSheet_data();
    void setCustomStyleSheet_withoutText_reportsAndKeepsTheSheet();
    void setCustomStyleSheet_withoutTheMainCollection_joinsWhatIsThere();

    void getQtPluginsDir_answersTheFirstCallForAll_data();
    void getQtPluginsDir_answersTheFirstCallForAll();

private:
    Sandbox m_sandbox;
};

void tst_SharedUtils::init()
{
    chooseLanguage(1033);
}

void tst_SharedUtils::setCustomStyleSheet_joinsByOptionsAndLanguage_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("languageSheet");

    const std::tuple<int, const char *, QString> languages[]
        = {{1033, "English", u"extra-en"_qs},  {1031, "German", u"extra-de"_qs},     {1036, "French", u"extra-fr"_qs},
           {1041, "Japanese", u"extra-ja"_qs}, {2052, "Chinese", u"extra-zh_CN"_qs}, {7, "unknown", u"extra-"_qs}};
    for (const auto &[number, name, sheet] : languages) {
        for (int options = 0; options < 32; ++options) {
            QTest::addRow("%s, options %d", name, options) << options << number << sheet;
        }
    }
}

void tst_SharedUtils::setCustomStyleSheet_joinsByOptionsAndLanguage()
{
    QFETCH(const int, options);
    QFETCH(const int, language);
    QFETCH(const QString, languageSheet);
    chooseLanguage(language);

    QStringList sheets{u"custom"_qs};
    if (options & 1) {
        sheets = applicationSheets + QStringList{languageSheet};
        sheets += (options & 4) ? QStringList() : QStringList{u"essintial"_qs};
    }
    sheets += (options & 8) ? QStringList{u"crash_sender"_qs} : QStringList();
    sheets += (options & 16) ? QStringList{u"printing"_qs} : QStringList();

    QWidget widget;
    widget.setStyleSheet(ownSheet);
    const AssertionReports reports;
    setCustomStyleSheet(&widget, Options(options), QString());
    const QString expected = joined(sheets) + ((options & 2) ? ownSheet : QString());
    QVERIFY(widget.styleSheet() == expected); // too long to be printed
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SharedUtils::setCustomStyleSheet_withoutOptions_replacesTheWidgetsSheet()
{
    QWidget widget;
    widget.setStyleSheet(ownSheet);
    setCustomStyleSheet(&widget, {}, QString());
    QVERIFY(!fileText(u":/qss/custom.qss"_qs).isEmpty());
    QVERIFY(widget.styleSheet() == fileText(u":/qss/custom.qss"_qs));
}

void tst_SharedUtils::setCustomStyleSheet_inJapanese_hasItsSheetBeforeTheAdditionalOne()
{
    chooseLanguage(1041);
    const QString ending = joined({u"timeMachine"_qs, u"extra-ja"_qs, u"essintial"_qs});
    QVERIFY(!fileText(u":/qss/extra-ja.qss"_qs).isEmpty());
    QVERIFY(styled(QssLoadBaseSheets).endsWith(ending));
    QVERIFY(styled(QssLoadBaseSheets | QssSkipAdditionalSheet).endsWith(joined({u"timeMachine"_qs, u"extra-ja"_qs})));
}

void tst_SharedUtils::setCustomStyleSheet_inLanguageWithoutSheet_goesOnWithTheAdditionalOne()
{
    chooseLanguage(2052);
    QVERIFY(!QFile::exists(u":/qss/extra-zh_CN.qss"_qs));
    QVERIFY(!fileText(u":/qss/essintial.qss"_qs).isEmpty());
    QVERIFY(styled(QssLoadBaseSheets).endsWith(joined({u"timeMachine"_qs, u"essintial"_qs})));
}

void tst_SharedUtils::setCustomStyleSheet_beforeLanguagesAreLoaded_hasNoLanguageSheet()
{
    RUN_IN_FRESH_PROCESS();
    chooseLanguage(1041);
    CLanguageManager::getInstance().model()->clear(); // as it was at first
    QVERIFY(styled(QssLoadBaseSheets) == joined(applicationSheets + QStringList{u"essintial"_qs}));
}

void tst_SharedUtils::setCustomStyleSheet_keptSheet_comesBehindTheExtraFile()
{
    const QString extra = m_sandbox.filePath(u"extra.qss"_qs);
    QVERIFY(writeFile(extra, "/* extra */\n"));
    QWidget widget;
    widget.setStyleSheet(ownSheet);
    setCustomStyleSheet(&widget, QssKeepWidgetSheet | QssLoadPrinting, extra);
    QVERIFY(widget.styleSheet() == joined({u"custom"_qs, u"printing"_qs}) + u"/* extra */\n" + ownSheet);

    setCustomStyleSheet(&widget, {}, extra);
    QVERIFY(widget.styleSheet() == joined({u"custom"_qs}) + u"/* extra */\n");
}

void tst_SharedUtils::setCustomStyleSheet_extraFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");

    QTest::newRow("plain") << QByteArray("QLabel { color: red; }") << u"QLabel { color: red; }"_qs;
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("in UTF-8") << QByteArray("/* \xc3\xa9\xe6\x97\xa5 */") << u"/* \u00e9\u65e5 */"_qs;
    QTest::newRow("with line ends of Windows") << QByteArray("/* a */\r\n") << u"/* a */\r\n"_qs;
}

void tst_SharedUtils::setCustomStyleSheet_extraFile()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, text);
    const QString extra = m_sandbox.filePath(u"extra.qss"_qs);
    QVERIFY(writeFile(extra, content));
    QVERIFY(styled({}, extra) == joined({u"custom"_qs}) + text);
}

void tst_SharedUtils::setCustomStyleSheet_unreadableExtraFile_addsNothing()
{
    const AssertionReports reports;
    QVERIFY(styled({}, m_sandbox.filePath(u"none.qss"_qs)) == joined({u"custom"_qs}));
    QVERIFY(styled({}, m_sandbox.filePath(QString())) == joined({u"custom"_qs})); // a folder can't be opened
    QVERIFY(styled({}, u":/qss/none.qss"_qs) == joined({u"custom"_qs}));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SharedUtils::setCustomStyleSheet_lockedExtraFile_addsNothing()
{
    const QString locked = m_sandbox.filePath(u"locked.qss"_qs);
    QVERIFY(writeFile(locked, "/* locked */"));
    if (!QFile::setPermissions(locked, {}) || QFileInfo(locked).isReadable()) {
        QSKIP("Nothing can be locked for this user.");
    }
    const AssertionReports reports;
    QVERIFY(styled({}, locked) == joined({u"custom"_qs}));
    QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SharedUtils::setCustomStyleSheet_readsAtEachCall()
{
    const QString extra = m_sandbox.filePath(u"extra.qss"_qs);
    for (const QByteArray &content : {QByteArray("/* one */"), QByteArray("/* two */")}) {
        QVERIFY(writeFile(extra, content));
        QVERIFY(styled({}, extra).endsWith(QString::fromUtf8(content)));
    }
}

void tst_SharedUtils::setCustomStyleSheet_onNull_doesNothing()
{
    const AssertionReports reports;
    setCustomStyleSheet(nullptr, QssLoadBaseSheets, QString());
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SharedUtils::setCustomStyleSheet_onAnotherThread_reportsAndWorks()
{
    QWidget widget;
    const AssertionReports reports;
    const std::unique_ptr<QThread> thread(QThread::create([&widget] {
        setCustomStyleSheet(&widget, {}, QString());
        setCustomStyleSheet(nullptr, {}, QString());
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(widget.styleSheet() == joined({u"custom"_qs}));
    QCOMPARE(reports.texts().size(), 2); // the thread is looked at before the widget
    for (const QString &report : reports.texts()) {
        QVERIFY2(report.startsWith(u"ASSERT in ") && report.contains(u"SharedUtils.cpp"), qPrintable(report));
    }
}

void tst_SharedUtils::setCustomStyleSheet_withoutText_reportsAndKeepsTheSheet_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<QString>("extraFile");

    QTest::newRow("no option") << 0 << QString();
    QTest::newRow("keeping the widget's") << int(QssKeepWidgetSheet) << QString();
    QTest::newRow("missing extra file") << int(QssLoadPrinting | QssLoadCrashSender) << u"none.qss"_qs;
}

void tst_SharedUtils::setCustomStyleSheet_withoutText_reportsAndKeepsTheSheet()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const int, options);
    QFETCH(const QString, extraFile);
    cleanupQtResources();

    QWidget widget;
    widget.setStyleSheet(ownSheet);
    const AssertionReports reports;
    setCustomStyleSheet(&widget, Options(options), extraFile);
    QCOMPARE(widget.styleSheet(), ownSheet);
    QCOMPARE(reports.texts().size(), 1);
    QVERIFY(reports.texts().first().startsWith(u"ASSERT_X_RETURN in "));
    QVERIFY(reports.texts().first().endsWith(inputReport));
}

void tst_SharedUtils::setCustomStyleSheet_withoutTheMainCollection_joinsWhatIsThere()
{
    RUN_IN_FRESH_PROCESS();
    const QString winSheet = fileText(u":/qss/win.qss"_qs);
    cleanupQtResources();
    const QString extra = m_sandbox.filePath(u"extra.qss"_qs);
    QVERIFY(writeFile(extra, "/* extra */"));
    const AssertionReports reports;
    QCOMPARE(styled({}, extra), u"/* extra */"_qs);
    QVERIFY(!winSheet.isEmpty());
    QCOMPARE(styled(QssLoadBaseSheets), winSheet);
    QCOMPARE(reports.texts(), QStringList());
}

void tst_SharedUtils::getQtPluginsDir_answersTheFirstCallForAll_data()
{
    QTest::addColumn<bool>("first");
    QTest::addColumn<QString>("expected");

    const QString folder = QCoreApplication::applicationDirPath();
    const QString parent = QDir::cleanPath(QDir(folder).canonicalPath() + u"/..");
    QTest::newRow("program") << false << folder;
    QTest::newRow("plug-in whose connector is not loaded")
        << true << QString(QDir::toNativeSeparators(parent) + QDir::separator());
}

void tst_SharedUtils::getQtPluginsDir_answersTheFirstCallForAll()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const bool, first);
    QFETCH(const QString, expected);
    QVERIFY(!QCoreApplication::applicationDirPath().endsWith(u'/'));
    QCOMPARE(getQtPluginsDir(first), expected);
    QCOMPARE(getQtPluginsDir(!first), expected);
    QCOMPARE(getQtPluginsDir(first), expected);
}

QTEST_MAIN(tst_SharedUtils)

#include "tst_SharedUtils.moc"
