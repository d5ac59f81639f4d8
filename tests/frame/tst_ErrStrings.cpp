// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "frame/ErrorBoxDrives.h"
#include "platform/ErrorBoxAllocations.h"
#include "platform/ErrorBoxCatcher.h"
#include "support/FreshProcess.h"
#include "support/Sandbox.h"

#include "utilsDll/frame/ErrStrings.h"

#include <QtCore/QDir>
#include <QtCore/QHash>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QTranslator>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <array>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>

using namespace ZYX_zglv6;
using TestSupport::ErrorBox;
using TestSupport::ErrorBoxAllocations;
using TestSupport::ErrorBoxCatcher;

static_assert(sizeof(CErrStrings) == 6 * sizeof(QString));
static_assert(!std::is_polymorphic_v<CErrStrings>);
static_assert(std::is_default_constructible_v<CErrStrings>);
static_assert(std::is_copy_constructible_v<CErrStrings> && std::is_copy_assignable_v<CErrStrings>);
static_assert(std::is_nothrow_move_constructible_v<CErrStrings> && std::is_nothrow_move_assignable_v<CErrStrings>);

namespace {

constexpr std::string_view beforeApplication = "beforeApplication"; // argument of this program

constexpr char errorSource[] = "Error";
constexpr char smallFreeSpaceSource[] = "Windows small space message on drive %1";
constexpr char outOfMemorySource[] = "Out of memory. Program will be closed.";
constexpr char outOfMemoryInPhotoshopSource[] = "%1 has run out of memory. The application may now become unstable. "
                                                "Please close %2 and Photoshop, quit all other "
                                                "programs running, and try again.";
constexpr char unhandledExceptionSource[] = "Unhandled exception. Program will be closed.";
constexpr char unsupportedImageSource[] = "Sorry, but this file type is not supported. Please, try again.";

/*! The five messages: how each is shown and from which source text it comes. */
struct Message
{
    const char *tag;
    void (CErrStrings::*show)() const;
    const char *source;
};

constexpr std::array<Message, 5> messages{{
    {"small free space", &CErrStrings::ShowSmallFreeSpaceDialog, smallFreeSpaceSource},
    {"out of memory", &CErrStrings::ShowOutOfMemoryDialog, outOfMemorySource},
    {"out of memory in Photoshop", &CErrStrings::ShowOutOfMemoryInPhotoshopDialog, outOfMemoryInPhotoshopSource},
    {"unhandled exception", &CErrStrings::ShowUnhandledExceptionDialog, unhandledExceptionSource},
    {"unsupported image", &CErrStrings::ShowUnsupportedImageDialog, unsupportedImageSource},
}};

QString temporaryDrive()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return folder.left(folder.indexOf(u':')) + u':' + QDir::separator();
}

/*! \a text with all that the messages fill in. */
QString filledIn(QString text, const char *source)
{
    const QString first = source == smallFreeSpaceSource ? temporaryDrive() : u"Zyx Grainlab 6"_qs;
    return text.replace(u"%1"_qs, first).replace(u"%2"_qs, u"Zyx Grainlab 6"_qs);
}

/*! The only box that \a message shows. */
ErrorBox boxOf(const CErrStrings &strings, const Message &message)
{
    const ErrorBoxCatcher catcher;
    (strings.*message.show)();
    const QList<ErrorBox> boxes = catcher.boxes();
    return boxes.size() == 1 ? boxes.first() : ErrorBox{u"not one box"_qs, QString::number(boxes.size())};
}

/*! Translates each text of QObject by putting marks around it, and keeps what it was asked for. */
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override
    {
        return false;
    }

    QString translate(const char *context, const char *source, const char *comment, int /*n*/) const override
    {
        m_asked.append(QString::fromUtf8(context) + u'|' + QString::fromUtf8(source) + u'|'
                       + QString::fromUtf8(comment));
        return u"<<" + QString::fromUtf8(source) + u">>";
    }

    QStringList asked() const
    {
        return m_asked;
    }

private:
    mutable QStringList m_asked;
};

/*! Translates into an empty text: all but the title, or only the title. */
class EmptyingTranslator : public QTranslator
{
public:
    explicit EmptyingTranslator(bool isTitleKept)
        : m_isTitleKept(isTitleKept)
    {
    }

    bool isEmpty() const override
    {
        return false;
    }

    QString translate(const char * /*context*/, const char *source, const char * /*comment*/, int /*n*/) const override
    {
        const bool isTitle = qstrcmp(source, errorSource) == 0;
        return isTitle == m_isTitleKept ? QString::fromUtf8(source) : QString(u""_qs);
    }

private:
    const bool m_isTitleKept;
};

/*! Answers with literals, which own no memory, and fills in nothing but what the texts themselves take. */
class LiteralTranslator : public QTranslator
{
public:
    bool isEmpty() const override
    {
        return false;
    }

    QString translate(const char * /*context*/, const char *source, const char * /*comment*/, int /*n*/) const override
    {
        const QHash<QByteArray, QString> texts{
            {errorSource, u"the title"_qs},
            {smallFreeSpaceSource, u"drive %1"_qs},
            {outOfMemorySource, u"memory"_qs},
            {outOfMemoryInPhotoshopSource, u"%1 and %2"_qs},
            {unhandledExceptionSource, u"exception"_qs},
            {unsupportedImageSource, u"image"_qs},
        };
        return texts.value(source);
    }
};

/*! The texts of \a strings as they lie in the object. */
std::span<const QString, 6> textsIn(const CErrStrings &strings)
{
    return std::span<const QString, 6>(reinterpret_cast<const QString *>(&strings), 6);
}

/*! What is wrong with a box shown before there is an application object, as an exit status. */
int showBeforeApplication()
{
    const ErrorBox box = boxOf(CErrStrings(), messages[1]);
    if (QCoreApplication::instance() != nullptr) {
        return 2;
    }
    if (box.title != QLatin1StringView(errorSource) || box.text != QLatin1StringView(outOfMemorySource)) {
        return 3;
    }
    return box.parent == 0 ? 0 : 4;
}

void addMessageRows()
{
    QTest::addColumn<Message>("message");
    for (const Message &message : messages) {
        QTest::newRow(message.tag) << message;
    }
}

} // namespace

class tst_ErrStrings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructor_translatesTheSixSourceTexts();
    void show_handsOverItsOwnText_data();
    void show_handsOverItsOwnText();
    void show_withoutTranslator_showsTheSourceText_data();
    void show_withoutTranslator_showsTheSourceText();
    void photoshopText_namesTheProductTwice();
    void smallSpaceText_namesTheDriveOfTheTemporaryFolder_data();
    void smallSpaceText_namesTheDriveOfTheTemporaryFolder();

    void texts_lieInTheirOrder();
    void texts_ownTheirMemory();

    void retranslate_fillsAnewFromTheCatalogue_data();
    void retranslate_fillsAnewFromTheCatalogue();
    void retranslate_toEnglish_givesTheSmallSpaceText();
    void texts_stayUntilRetranslate();
    void copy_keepsItsTexts();
    void move_takesTheTexts();

    void emptyMessage_showsNothing_data();
    void emptyMessage_showsNothing();
    void emptyTitle_showsTheMessage();

    void parent_isTheActiveWindow_data();
    void parent_isTheActiveWindow();
    void beforeAnApplicationExists_hasNoParent();

    void show_takesNoMemory_data();
    void show_takesNoMemory();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_ErrStrings::constructor_translatesTheSixSourceTexts()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const qsizetype countBefore = translator.asked().size();

    const CErrStrings strings;

    QStringList asked = translator.asked().mid(countBefore);
    asked.sort();
    QStringList expected{
        u"QObject|Error|"_qs,
        u"QObject|Windows small space message on drive %1|"_qs,
        u"QObject|Out of memory. Program will be closed.|"_qs,
        u"QObject|%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, "
        u"quit "
        "all other programs running, and try again.|"_qs,
        u"QObject|Unhandled exception. Program will be closed.|"_qs,
        u"QObject|Sorry, but this file type is not supported. Please, try again.|"_qs,
    };
    expected.sort();
    QCOMPARE(asked, expected);
}

void tst_ErrStrings::show_handsOverItsOwnText_data()
{
    addMessageRows();
}

void tst_ErrStrings::show_handsOverItsOwnText()
{
    QFETCH(const Message, message);
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));

    const ErrorBox box = boxOf(CErrStrings(), message);

    QCOMPARE(box.title, u"<<Error>>"_qs);
    QCOMPARE(box.text, filledIn(u"<<" + QString::fromUtf8(message.source) + u">>", message.source));
}

void tst_ErrStrings::show_withoutTranslator_showsTheSourceText_data()
{
    addMessageRows();
}

void tst_ErrStrings::show_withoutTranslator_showsTheSourceText()
{
    QFETCH(const Message, message);
    const ErrorBox box = boxOf(CErrStrings(), message);
    QCOMPARE(box.title, u"Error"_qs);
    QCOMPARE(box.text, filledIn(QString::fromUtf8(message.source), message.source));
    QVERIFY(box.hasErrorIcon);
    QCOMPARE(box.buttonCount, 1);
}

void tst_ErrStrings::photoshopText_namesTheProductTwice()
{
    QCOMPARE(
        boxOf(CErrStrings(), messages[2]).text,
        u"Zyx Grainlab 6 has run out of memory. The application may now become unstable. Please close Zyx Grainlab 6 "
        "and Photoshop, quit all other programs running, and try again."_qs);
}

void tst_ErrStrings::smallSpaceText_namesTheDriveOfTheTemporaryFolder_data()
{
    QTest::addColumn<ErrorBoxDrive>("row");
    const QList<ErrorBoxDrive> rows = errorBoxDrives(m_sandbox.filePath(u"."_qs));
    for (const ErrorBoxDrive &row : rows) {
        QTest::newRow(row.tag) << row;
    }
}

void tst_ErrStrings::smallSpaceText_namesTheDriveOfTheTemporaryFolder()
{
    RUN_IN_FRESH_PROCESS(); // changes the environment
    QFETCH(const ErrorBoxDrive, row);
    const ErrorBoxCatcher catcher;
    qputenv(row.variable, row.folder);

    CErrStrings().ShowSmallFreeSpaceDialog();

    QCOMPARE(catcher.boxes().size(), 1);
    QCOMPARE(catcher.boxes().first().text, u"Windows small space message on drive "_qs + row.drive);
}

void tst_ErrStrings::texts_lieInTheirOrder()
{
    LiteralTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const CErrStrings strings;

    const auto texts = textsIn(strings);
    QCOMPARE(QStringList(texts.begin(), texts.end()),
             (QStringList{u"the title"_qs, u"drive "_qs + temporaryDrive(), u"memory"_qs,
                          u"Zyx Grainlab 6 and Zyx Grainlab 6"_qs, u"exception"_qs, u"image"_qs}));
}

void tst_ErrStrings::texts_ownTheirMemory()
{
    LiteralTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QVERIFY(QObject::tr("Error").data_ptr().needsDetach()); // a literal has no memory of its own
    CErrStrings strings;
    for (int round = 0; round < 2; ++round) {
        for (const QString &text : textsIn(strings)) {
            QVERIFY2(!text.data_ptr().needsDetach(), qPrintable(text));
            const void *characters = text.constData();
            QCOMPARE(static_cast<const void *>(text.utf16()), characters); // as they are, not copied first
        }
        strings.Retranslate();
    }
}

void tst_ErrStrings::retranslate_fillsAnewFromTheCatalogue_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("outOfMemory");

    QTest::newRow("English") << u"en"_qs << u"Error"_qs << u"Out of memory. Program will be closed."_qs;
    QTest::newRow("French") << u"fr"_qs << u"Erreur"_qs << u"Mémoire insuffisante. Le programme va être fermé."_qs;
    QTest::newRow("German") << u"de"_qs << u"Fehler"_qs
                            << u"Nicht genügend Arbeitsspeicher. Das Programm wird beendet."_qs;
    QTest::newRow("Japanese")
        << u"ja"_qs << u"\u30a8\u30e9\u30fc"_qs
        << u"\u30e1\u30e2\u30ea\u304c\u4e0d\u8db3\u3057\u3066\u3044\u307e\u3059\u3002\u30d7\u30ed\u30b0\u30e9\u30e0\u3092\u7d42\u4e86\u3057\u307e\u3059\u3002"_qs;
    QTest::newRow("Chinese") << u"zh_CN"_qs << u"\u9519\u8bef"_qs
                             << u"\u5185\u5b58\u4e0d\u8db3\u3002\u7a0b\u5e8f\u5c06\u5173\u95ed\u3002"_qs;
}

void tst_ErrStrings::retranslate_fillsAnewFromTheCatalogue()
{
    QFETCH(const QString, language);
    QFETCH(const QString, title);
    QFETCH(const QString, outOfMemory);
    CErrStrings strings;
    QTranslator catalogue;
    QVERIFY(catalogue.load(u":/translations/zyx_"_qs + language + u".qm"));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));

    strings.Retranslate();

    for (const Message &message : messages) {
        const QString translated = catalogue.translate("QObject", message.source);
        QVERIFY2(!translated.isEmpty(), message.tag);
        const ErrorBox box = boxOf(strings, message);
        QCOMPARE(box.title, title);
        QCOMPARE(box.text, filledIn(translated, message.source));
    }
    QCOMPARE(boxOf(strings, messages[1]).text, outOfMemory);
    const QString drive = temporaryDrive();
    QVERIFY(boxOf(strings, messages[0]).text.contains(drive));
    QCOMPARE(boxOf(strings, messages[2]).text.count(u"Zyx Grainlab 6"_qs), 2);
}

void tst_ErrStrings::retranslate_toEnglish_givesTheSmallSpaceText()
{
    CErrStrings strings;
    QTranslator catalogue;
    QVERIFY(catalogue.load(u":/translations/zyx_en.qm"_qs));
    QVERIFY(QCoreApplication::installTranslator(&catalogue));

    strings.Retranslate();

    QCOMPARE(boxOf(strings, messages[0]).text,
             u"Zyx Grainlab cannot start since there is not enough free space on disk "_qs + temporaryDrive()
                 + u".\nPlease remove unnecessary files from the disk and try again.");
}

void tst_ErrStrings::texts_stayUntilRetranslate()
{
    CErrStrings strings;
    {
        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(boxOf(strings, messages[1]).text, QString::fromUtf8(outOfMemorySource));
        strings.Retranslate();
    }
    QCOMPARE(boxOf(strings, messages[1]).text, u"<<Out of memory. Program will be closed.>>"_qs); // translator gone
    strings.Retranslate();
    QCOMPARE(boxOf(strings, messages[1]).text, QString::fromUtf8(outOfMemorySource));
}

void tst_ErrStrings::copy_keepsItsTexts()
{
    CErrStrings strings;
    const CErrStrings copy(strings);
    CErrStrings assigned;
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    assigned.Retranslate();
    assigned = copy;
    strings.Retranslate();

    for (const Message &message : messages) {
        const QString text = filledIn(QString::fromUtf8(message.source), message.source);
        QCOMPARE(boxOf(copy, message).title, u"Error"_qs);
        QCOMPARE(boxOf(copy, message).text, text);
        QCOMPARE(boxOf(assigned, message).title, u"Error"_qs);
        QCOMPARE(boxOf(assigned, message).text, text);
    }
    QCOMPARE(boxOf(strings, messages[1]).title, u"<<Error>>"_qs);
}

void tst_ErrStrings::move_takesTheTexts()
{
    CErrStrings strings;
    CErrStrings moved(std::move(strings));
    QCOMPARE(boxOf(moved, messages[4]).text, QString::fromUtf8(unsupportedImageSource));

    CErrStrings assigned;
    assigned = std::move(moved);
    QCOMPARE(boxOf(assigned, messages[4]).text, QString::fromUtf8(unsupportedImageSource));
    QCOMPARE(boxOf(assigned, messages[4]).title, u"Error"_qs);
}

void tst_ErrStrings::emptyMessage_showsNothing_data()
{
    addMessageRows();
}

void tst_ErrStrings::emptyMessage_showsNothing()
{
    QFETCH(const Message, message);
    CErrStrings strings;
    EmptyingTranslator translator(true);
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(QCoreApplication::translate("QObject", message.source), QString());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"QString::arg: Argument missing"_qs));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"QString::arg: 2 argument\\(s\\) missing"_qs));
    strings.Retranslate();

    const ErrorBoxCatcher catcher;
    (strings.*message.show)();
    QCOMPARE(catcher.boxes().size(), 0);
}

void tst_ErrStrings::emptyTitle_showsTheMessage()
{
    CErrStrings strings;
    EmptyingTranslator translator(false);
    QVERIFY(QCoreApplication::installTranslator(&translator));
    strings.Retranslate();

    const ErrorBox box = boxOf(strings, messages[3]);
    QCOMPARE(box.title, QString());
    QCOMPARE(box.text, QString::fromUtf8(unhandledExceptionSource));
}

void tst_ErrStrings::parent_isTheActiveWindow_data()
{
    addMessageRows();
}

void tst_ErrStrings::parent_isTheActiveWindow()
{
    QFETCH(const Message, message);
    const CErrStrings strings;
    QCOMPARE(QApplication::activeWindow(), nullptr);
    QCOMPARE(boxOf(strings, message).parent, quintptr(0));

    QWidget other;
    other.show();
    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QCOMPARE(boxOf(strings, message).parent, quintptr(window.winId()));
}

void tst_ErrStrings::beforeAnApplicationExists_hasNoParent()
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(beforeApplication)});
    QVERIFY(process.waitForFinished(120'000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void tst_ErrStrings::show_takesNoMemory_data()
{
    addMessageRows();
}

void tst_ErrStrings::show_takesNoMemory()
{
    if (!ErrorBoxAllocations::areCountedInLibraries()) {
        QSKIP("What a library takes from the heap is not counted in this build.");
    }
    QFETCH(const Message, message);
    {
        ErrorBoxAllocations allocations;
        const QString taken(100, u'x'); // by the library of QString
        QVERIFY(allocations.stop() > 0);
    }
    const CErrStrings strings;
    const ErrorBoxCatcher catcher;
    ErrorBoxAllocations allocations;
    (strings.*message.show)();
    const int withoutWindow = allocations.stop();

    QWidget window;
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    ErrorBoxAllocations allocationsWithWindow;
    (strings.*message.show)();
    const int withWindow = allocationsWithWindow.stop();

    QCOMPARE(withoutWindow, 0);
    QCOMPARE(withWindow, 0);
    QCOMPARE(catcher.boxes().size(), 2);
}

int main(int argc, char *argv[])
{
    if (argc == 2 && argv[1] == beforeApplication) {
        return showBeforeApplication();
    }
    const QApplication application(argc, argv);
    tst_ErrStrings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ErrStrings.moc"
