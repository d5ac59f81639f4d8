// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"
#include "support/VirtualSlot.h"

#include "utilsDll/frame/LoggerInterface.h"

#include <QtTest/QTest>

#include <type_traits>

using namespace ZYX_zglv6;

static_assert(std::is_abstract_v<ILoggerInterface> && std::has_virtual_destructor_v<ILoggerInterface>);
static_assert(std::is_same_v<decltype(&ILoggerInterface::log), void (ILoggerInterface::*)(char, const char *) const>);
static_assert(std::is_same_v<decltype(&loggerInstance), const ILoggerInterface *(*)()>);

namespace {

/*! Keeps what it is given. */
class ListLogger final : public ILoggerInterface
{
public:
    explicit ListLogger(bool *isDestroyed = nullptr)
        : m_isDestroyed(isDestroyed)
    {
    }

    ~ListLogger() override
    {
        if (m_isDestroyed != nullptr) {
            *m_isDestroyed = true;
        }
    }

    void log(char level, const char *message) const override
    {
        lines.append(QChar::fromLatin1(level) + u' ' + QString::fromUtf8(message));
    }

    mutable QStringList lines;

private:
    Q_DISABLE_COPY_MOVE(ListLogger)

    bool *m_isDestroyed;
};

const ILoggerInterface *const loggerAtLoad = loggerInstance();

} // namespace

class tst_LoggerInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slots_areDestructorThenLog();
    void destructor_isVirtual();
    void loggerInstance_beforeInitLogger_isNull();
    void loggerInstance_afterInitLogger_staysTheSame();
    void zyxLog_withoutLogger_buildsNoText();
    void zyxLog_withLogger_buildsTheTextOnce();
    void zyxLog_isASingleStatement();
    void zyxLog_writesFunctionAndMessage_data();
    void zyxLog_writesFunctionAndMessage();
    void writeLogLine_joinsFunctionAndMessage_data();
    void writeLogLine_joinsFunctionAndMessage();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_LoggerInterface::slots_areDestructorThenLog()
{
    const auto slot = TestSupport::virtualSlot(&ILoggerInterface::log);
    if (!slot) {
        QSKIP("Only pointers to members of the Itanium ABI tell the slot.");
    }
    QCOMPARE(*slot, 2);
}

void tst_LoggerInterface::destructor_isVirtual()
{
    bool isDestroyed = false;
    std::unique_ptr<const ILoggerInterface> logger = std::make_unique<ListLogger>(&isDestroyed);
    logger.reset();
    QVERIFY(isDestroyed);
}

void tst_LoggerInterface::loggerInstance_beforeInitLogger_isNull()
{
    QVERIFY(loggerAtLoad == nullptr);
    QVERIFY(loggerInstance() == nullptr);
}

void tst_LoggerInterface::loggerInstance_afterInitLogger_staysTheSame()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const ILoggerInterface *const logger = loggerInstance();
    QVERIFY(logger != nullptr);
    ZYX_LOG('D', "text");
    QCOMPARE(loggerInstance(), logger);
}

void tst_LoggerInterface::zyxLog_withoutLogger_buildsNoText()
{
    int built = 0;
    const auto text = [&built] {
        ++built;
        return u"text"_qs;
    };
    ZYX_LOG('D', text());
    ZYX_LOG('E', u"more " + text());
    QCOMPARE(built, 0);
}

void tst_LoggerInterface::zyxLog_withLogger_buildsTheTextOnce()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    int built = 0;
    ZYX_LOG('D', QString::number(++built));
    QCOMPARE(built, 1);
    QCOMPARE(log.records(), QStringList{u"DEBUG tst_LoggerInterface::zyxLog_withLogger_buildsTheTextOnce: 1"_qs});
}

void tst_LoggerInterface::zyxLog_isASingleStatement()
{
    bool isElse = false;
    // NOLINTBEGIN(readability-braces-around-statements): with braces, any macro would do
    if (isElse)
        ZYX_LOG('D', "not here");
    else
        isElse = true;
    // NOLINTEND(readability-braces-around-statements)
    QVERIFY(isElse);
}

void tst_LoggerInterface::zyxLog_writesFunctionAndMessage_data()
{
    QTest::addColumn<char>("level");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("levelName");

    QTest::newRow("debug") << 'D' << u"text"_qs << u"DEBUG"_qs;
    QTest::newRow("information") << 'I' << u"text"_qs << u"INFO"_qs;
    QTest::newRow("warning") << 'W' << u"text"_qs << u"WARN"_qs;
    QTest::newRow("error") << 'E' << u"text"_qs << u"ERROR"_qs;
    QTest::newRow("fatal") << 'F' << u"text"_qs << u"FATAL"_qs;
    QTest::newRow("percent signs are plain") << 'D' << u"100%s %n %1"_qs << u"DEBUG"_qs;
}

void tst_LoggerInterface::zyxLog_writesFunctionAndMessage()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const char, level);
    QFETCH(const QString, message);
    QFETCH(const QString, levelName);

    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    ZYX_LOG(level, message);
    ZYX_LOG(level, "a literal");
    const QString start = levelName + u" tst_LoggerInterface::zyxLog_writesFunctionAndMessage: ";
    QCOMPARE(log.records(), (QStringList{start + message, start + u"a literal"}));
}

void tst_LoggerInterface::writeLogLine_joinsFunctionAndMessage_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("plain") << u"text"_qs;
    QTest::newRow("empty") << QString();
    QTest::newRow("other than Latin") << u"\u043f\u0443\u0442\u044c \u6620\u753b \u00e4"_qs;
    QTest::newRow("outside of the basic plane") << u"\U0001f39e"_qs;
    QTest::newRow("several lines") << u"one\ntwo"_qs;
    QTest::newRow("long") << QString(100'000, u'x');
}

void tst_LoggerInterface::writeLogLine_joinsFunctionAndMessage()
{
    QFETCH(const QString, message);

    const ListLogger logger;
    writeLogLine(logger, 'W', "N::f", message);
    writeLogLine(logger, 'x', "N::f", message.toUtf8().constData());
    QCOMPARE(logger.lines, (QStringList{u"W N::f: " + message, u"x N::f: " + message}));
}

QTEST_GUILESS_MAIN(tst_LoggerInterface)

#include "tst_LoggerInterface.moc"
