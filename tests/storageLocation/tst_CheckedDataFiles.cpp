// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <functional>
#include <type_traits>

using namespace TestSupport;
using namespace ZYX_zglv6;

namespace {

constexpr auto answerPeriod = std::chrono::milliseconds(10);

QString pathOf(const QString &file)
{
    return QCoreApplication::applicationDirPath() + u'/' + file;
}

/*! What a message box showed. */
struct ShownBox
{
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon;
    bool hasParent;
    Qt::TextFormat format;
    bool hasSheet; // as the product's boxes without a parent
};

/*! Presses the button of each message box that opens while it lives. */
class BoxReader
{
public:
    BoxReader()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] { read(); });
        m_timer.start(answerPeriod);
    }

    QList<ShownBox> boxes;

private:
    void read()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) {
            return;
        }
        boxes.append({box->windowTitle(), box->text(), box->standardButtons(), box->icon(),
                      box->parentWidget() != nullptr, box->textFormat(), !box->styleSheet().isEmpty()});
        for (QAbstractButton *button : box->buttons()) {
            button->click();
        }
    }

    QTimer m_timer;
};

/*! Something at the place of a data file beside this program, for a while. */
class DataFile
{
public:
    enum Kind { File, Folder };

    DataFile(const QString &name, Kind kind)
        : m_path(pathOf(name))
    {
        const QFileInfo info(m_path);
        QDir().mkpath(kind == Folder ? m_path : info.path());
        QFile file(m_path);
        isThere = kind == Folder ? info.isDir() : file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
    }

    ~DataFile()
    {
        if (QFileInfo(m_path).isDir()) {
            QDir().rmdir(m_path);
        } else {
            QFile::remove(m_path);
        }
        QDir().rmdir(pathOf(u"Resources"_qs)); // if it is empty
    }

    DataFile(const DataFile &) = delete;
    DataFile &operator=(const DataFile &) = delete;

    bool isThere;

private:
    const QString m_path;
};

using PathOperation = std::function<QString(bool check)>;

struct Row
{
    const char *function;
    PathOperation path;
    QString file;
    QString line; // of the log
    QString error;
    bool isAlwaysChecked;
};

QList<Row> rows()
{
    return {
        {"dopGPAPath", CStorageLocation::dopGPAPath, u"dop.gpa"_qs, u"Grain data path: "_qs,
         u"Error opening dop.gpa file at path: "_qs, false},
        {"featureTogglePath", CStorageLocation::featureTogglePath, u"ZL5.lua"_qs, u"Feature Toggle file path: "_qs,
         u"Error opening ZL5.lua file at path: "_qs, false},
        {"framePackPath", CStorageLocation::framePackPath, u"Resources/Frames.lua"_qs, u"Frames data path: "_qs,
         u"Error opening Frames.lua file at path: "_qs, false},
        {"texturesPackPath", CStorageLocation::texturesPackPath, u"Resources/Textures.lua"_qs,
         u"Textures data path: "_qs, u"Error opening Textures.lua file at path: "_qs, false},
        {"defectsPackPath", [](bool) { return CStorageLocation::defectsPackPath(); }, u"Resources/Defects.lua"_qs,
         u"Defects data path: "_qs, u"Error opening Defects.lua file at path: "_qs, true},
    };
}

Row rowOf(const QString &function)
{
    for (const Row &row : rows()) {
        if (function == QLatin1StringView(row.function)) {
            return row;
        }
    }
    return {};
}

void addFunctionRows()
{
    QTest::addColumn<QString>("function");
    for (const Row &row : rows()) {
        QTest::newRow(row.function) << QString::fromLatin1(row.function);
    }
}

} // namespace

class tst_CheckedDataFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void paths_ofDataFilesAreReferences_ofPacksAreValues();
    void path_isBesideTheExecutable_data();
    void path_isBesideTheExecutable();
    void path_isMadeOnce();
    void missingFile_unchecked_warnsOnlyOfDefects_data();
    void missingFile_unchecked_warnsOnlyOfDefects();
    void missingFile_checked_warnsAtEachCall_data();
    void missingFile_checked_warnsAtEachCall();
    void presentFile_warnsNever_data();
    void presentFile_warnsNever();
    void folderInItsPlace_isSeenOnlyByOpening_data();
    void folderInItsPlace_isSeenOnlyByOpening();
    void fileThatCannotBeRead_warns_data();
    void fileThatCannotBeRead_warns();
    void logger_getsTheLineAndTheError_data();
    void logger_getsTheLineAndTheError();
    void withoutLogger_isWarnedAllTheSame();
    void title_isTranslated_data();
    void title_isTranslated();

private:
    const Sandbox m_sandbox;
};

void tst_CheckedDataFiles::initTestCase()
{
    for (const Row &row : rows()) {
        QVERIFY2(!QFileInfo::exists(pathOf(row.file)), qPrintable(row.file));
    }
}

void tst_CheckedDataFiles::paths_ofDataFilesAreReferences_ofPacksAreValues()
{
    static_assert(std::is_same_v<decltype(CStorageLocation::dopGPAPath), const QString &(bool)>);
    static_assert(std::is_same_v<decltype(CStorageLocation::featureTogglePath), const QString &(bool)>);
    static_assert(std::is_same_v<decltype(CStorageLocation::framePackPath), QString(bool)>);
    static_assert(std::is_same_v<decltype(CStorageLocation::texturesPackPath), QString(bool)>);
    static_assert(std::is_same_v<decltype(CStorageLocation::defectsPackPath), QString()>);
}

void tst_CheckedDataFiles::path_isBesideTheExecutable_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::path_isBesideTheExecutable()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    BoxReader reader;
    const QString path = row.path(false);
    QCOMPARE(path, pathOf(row.file));
    QCOMPARE(path, QDir::cleanPath(CStorageLocation::getExecutableDir() + u'/' + row.file));
}

void tst_CheckedDataFiles::path_isMadeOnce()
{
    BoxReader reader;
    QCOMPARE(&CStorageLocation::dopGPAPath(false), &CStorageLocation::dopGPAPath(false));
    QCOMPARE(&CStorageLocation::featureTogglePath(false), &CStorageLocation::featureTogglePath(false));
    QVERIFY(&CStorageLocation::dopGPAPath(false) != &CStorageLocation::featureTogglePath(false));
    for (const Row &row : rows()) { // the text of a static one is shared
        const QString first = row.path(false);
        QCOMPARE(row.path(false).constData(), first.constData());
    }
}

void tst_CheckedDataFiles::missingFile_unchecked_warnsOnlyOfDefects_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::missingFile_unchecked_warnsOnlyOfDefects()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    BoxReader reader;
    QCOMPARE(row.path(false), pathOf(row.file));
    QCOMPARE(reader.boxes.size(), row.isAlwaysChecked ? 1 : 0);
}

void tst_CheckedDataFiles::missingFile_checked_warnsAtEachCall_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::missingFile_checked_warnsAtEachCall()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    BoxReader reader;
    for (int i = 1; i <= 2; ++i) {
        QCOMPARE(row.path(true), pathOf(row.file));
        QCOMPARE(reader.boxes.size(), i);
        const ShownBox &box = reader.boxes.constLast();
        QCOMPARE(box.title, u"Warning"_qs);
        QCOMPARE(box.text, row.error + pathOf(row.file));
        QCOMPARE(box.buttons, QMessageBox::Ok);
        QCOMPARE(box.icon, QMessageBox::Warning);
        QVERIFY(!box.hasParent);
        QCOMPARE(box.format, Qt::AutoText); // as QMessageBox has it
        QVERIFY(box.hasSheet);
    }
}

void tst_CheckedDataFiles::presentFile_warnsNever_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::presentFile_warnsNever()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    BoxReader reader;
    {
        const DataFile file(row.file, DataFile::File);
        QVERIFY(file.isThere);
        QCOMPARE(row.path(true), pathOf(row.file));
        QCOMPARE(row.path(false), pathOf(row.file));
        QCOMPARE(reader.boxes.size(), 0);
    }
    QCOMPARE(row.path(true), pathOf(row.file)); // it has gone
    QCOMPARE(reader.boxes.size(), 1);
}

void tst_CheckedDataFiles::folderInItsPlace_isSeenOnlyByOpening_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::folderInItsPlace_isSeenOnlyByOpening()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    const DataFile folder(row.file, DataFile::Folder);
    QVERIFY(folder.isThere);
    BoxReader reader;
    QCOMPARE(row.path(true), pathOf(row.file));
    QCOMPARE(reader.boxes.size(), row.isAlwaysChecked ? 1 : 0);
}

void tst_CheckedDataFiles::fileThatCannotBeRead_warns_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::fileThatCannotBeRead_warns()
{
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    const QString path = pathOf(row.file);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    const auto remove = qScopeGuard([&path] {
        QFile::remove(path);
        QDir().rmdir(pathOf(u"Resources"_qs));
    });
    // Of this one not even the administrator may read.
    if (!QFile::link(u"/proc/sys/vm/compact_memory"_qs, path) || !QFileInfo::exists(path)
        || QFileInfo(path).isReadable()) {
        QSKIP("There is no file here that nobody may read.");
    }
    BoxReader reader;
    QCOMPARE(row.path(true), path);
    QCOMPARE(reader.boxes.size(), 1);
}

void tst_CheckedDataFiles::logger_getsTheLineAndTheError_data()
{
    addFunctionRows();
}

void tst_CheckedDataFiles::logger_getsTheLineAndTheError()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const QString, function);
    const Row row = rowOf(function);
    const TestLog log(m_sandbox.filePath(u"data"_qs));
    BoxReader reader;
    const QString name = u"ZYX_zglv6::CStorageLocation::"_qs + function + u": ";
    const QString line = u"DEBUG "_qs + name + row.line + pathOf(row.file);
    const QString error = u"ERROR "_qs + name + row.error + pathOf(row.file);

    row.path(true);
    QCOMPARE(log.records(), (QStringList{line, error}));
    row.path(false);
    QStringList expected{line, error, line};
    if (row.isAlwaysChecked) {
        expected.append(error);
    }
    QCOMPARE(log.records(), expected);
    const DataFile file(row.file, DataFile::File);
    QVERIFY(file.isThere);
    row.path(true);
    expected.append(line);
    QCOMPARE(log.records(), expected);
}

void tst_CheckedDataFiles::withoutLogger_isWarnedAllTheSame()
{
    QVERIFY(!loggerInstance());
    BoxReader reader;
    for (const Row &row : rows()) {
        row.path(true);
    }
    QCOMPARE(reader.boxes.size(), 5);
}

void tst_CheckedDataFiles::title_isTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");

    QTest::newRow("English") << u"en"_qs << u"Warning"_qs;
    QTest::newRow("German") << u"de"_qs << u"Warnung"_qs;
    QTest::newRow("French") << u"fr"_qs << u"Avertissement"_qs;
    QTest::newRow("Japanese") << u"ja"_qs << u"\u8b66\u544a"_qs;
    QTest::newRow("Chinese") << u"zh_CN"_qs << u"\u8b66\u544a"_qs;
}

void tst_CheckedDataFiles::title_isTranslated()
{
    QFETCH(const QString, language);
    QTranslator translator;
    QVERIFY(translator.load(u":/translations/zyx_"_qs + language));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    BoxReader reader;
    CStorageLocation::dopGPAPath(true);
    QCOMPARE(reader.boxes.size(), 1);
    QTEST(reader.boxes.constFirst().title, "title");
    QCOMPARE(reader.boxes.constFirst().text, u"Error opening dop.gpa file at path: "_qs + pathOf(u"dop.gpa"_qs));
}

QTEST_MAIN(tst_CheckedDataFiles)
#include "tst_CheckedDataFiles.moc"
