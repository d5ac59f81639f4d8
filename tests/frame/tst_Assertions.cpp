// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "support/FreshProcess.h"
#include "support/Sandbox.h"
#include "support/TestLog.h"

#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"

#include <QtCore/QScopeGuard>
#include <QtTest/QTest>

#include <atomic>
#include <functional>
#include <locale>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

struct Message
{
    QtMsgType type;
    QString category;
    QString text;
    QByteArray file;
    int line;
    QByteArray function;
};

/*! While it lives, what is written to the Qt debug channel goes here, and nowhere else. */
class DebugChannel
{
public:
    enum Keeping { KeepMessages, OnlyCalls };

    explicit DebugChannel(std::function<void()> onMessage = {}, Keeping keeping = KeepMessages)
        : m_onMessage(std::move(onMessage))
        , m_keeping(keeping)
    {
        s_current = this;
        m_before = qInstallMessageHandler(&DebugChannel::take);
    }

    ~DebugChannel()
    {
        qInstallMessageHandler(m_before);
        s_current = nullptr;
    }

    QStringList texts() const
    {
        QStringList result;
        for (const Message &message : messages) {
            result.append(message.text);
        }
        return result;
    }

    QList<Message> messages;

private:
    Q_DISABLE_COPY_MOVE(DebugChannel)

    static void take(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (s_current->m_keeping == KeepMessages) {
            s_current->messages.append(
                {type, QString::fromUtf8(context.category), text, context.file, context.line, context.function});
        }
        if (s_current->m_onMessage) {
            s_current->m_onMessage();
        }
    }

    static inline DebugChannel *s_current = nullptr;
    std::function<void()> m_onMessage;
    Keeping m_keeping; // calls may come from any thread, the list of messages takes one
    QtMessageHandler m_before = nullptr;
};

/*! Writes 1'234'567, as a host's global locale may do. */
class GroupingNumbers : public std::numpunct<char>
{
protected:
    char do_thousands_sep() const override
    {
        return '\'';
    }

    std::string do_grouping() const override
    {
        return "\3";
    }
};

const QString thisFile = QString::fromUtf8(__FILE__);

/*! Where the last of the functions below failed. */
int failingLine = 0;

bool goesOnAfterAssert(bool condition)
{
    // clang-format off
    failingLine = __LINE__; ASSERT(condition);
    // clang-format on
    return true;
}

void leavesFunction(bool condition, bool &isBehind)
{
    isBehind = false;
    // clang-format off
    failingLine = __LINE__; ASSERT_X_RETURN(condition, "the reason");
    // clang-format on
    isBehind = true;
}

int returnsValue(bool condition)
{
    // clang-format off
    failingLine = __LINE__; ASSERT_X_RETURN_VALUE(condition, -7, "na\xc3\xafve \"reason\" 100%");
    // clang-format on
    return 1;
}

bool goesOnAfterReport(bool condition)
{
    // clang-format off
    failingLine = __LINE__; ASSERT_X_RETURN_BUT_GO_ON(condition, "all the same");
    // clang-format on
    return true;
}

class Checked
{
public:
    explicit Checked(bool condition)
    {
        // clang-format off
        failingLine = __LINE__; ASSERT(condition);
        // clang-format on
    }
};

QString place()
{
    return thisFile + u" line " + QString::number(failingLine);
}

using Failure = void (*)();

void failAssert()
{
    goesOnAfterAssert(false);
}

void failReturn()
{
    bool isBehind = false;
    leavesFunction(false, isBehind);
}

void failReturnValue()
{
    returnsValue(false);
}

void failAndGoOn()
{
    goesOnAfterReport(false);
}

void failInConstructor()
{
    const Checked checked(false);
}

void addFailures()
{
    QTest::addColumn<Failure>("fail");
    QTest::addColumn<QString>("function");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("text");

    QTest::newRow("ASSERT") << &failAssert << u"`anonymous-namespace'::goesOnAfterAssert"_qs << u"ASSERT in "_qs
                            << QString();
    QTest::newRow("ASSERT in a constructor")
        << &failInConstructor << u"`anonymous-namespace'::Checked::Checked"_qs << u"ASSERT in "_qs << QString();
    QTest::newRow("ASSERT_X_RETURN") << &failReturn << u"`anonymous-namespace'::leavesFunction"_qs
                                     << u"ASSERT_X_RETURN in "_qs << u": the reason"_qs;
    QTest::newRow("ASSERT_X_RETURN_VALUE") << &failReturnValue << u"`anonymous-namespace'::returnsValue"_qs
                                           << u"ASSERT_X_RETURN_VALUE in "_qs << u": na\u00efve \"reason\" 100%"_qs;
    QTest::newRow("ASSERT_X_RETURN_BUT_GO_ON") << &failAndGoOn << u"`anonymous-namespace'::goesOnAfterReport"_qs
                                               << u"ASSERT_X_RETURN in "_qs << u": all the same"_qs;
}

} // namespace

Q_DECLARE_METATYPE(Failure)

class tst_Assertions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdingCondition_reportsNothing();
    void holdingCondition_withLogger_reportsNothing();
    void condition_isEvaluatedOnce();
    void value_isBuiltOnlyForAFailure();
    void value_isBuiltBehindTheReport();
    void macros_areSingleStatements();

    void failed_withoutLogger_reachesDebugChannel_data();
    void failed_withoutLogger_reachesDebugChannel();
    void failed_withoutLogger_goesOnAsItsFormSays();
    void failed_isNoWarningAndTellsNoPlaceToQt();
    void failed_underGroupingLocale_tellsAPlainLineNumber();
    void failed_inAnyThread_goesOn();

    void failed_withLogger_writesErrorRecord_data();
    void failed_withLogger_writesErrorRecord();
    void failed_withLogger_logsBeforeTheDebugChannel();

private:
    TestSupport::Sandbox m_sandbox;
};

void tst_Assertions::holdingCondition_reportsNothing()
{
    const DebugChannel channel;
    bool isBehind = false;
    leavesFunction(true, isBehind);
    QVERIFY(isBehind);
    QCOMPARE(returnsValue(true), 1);
    QVERIFY(goesOnAfterAssert(true));
    QVERIFY(goesOnAfterReport(true));
    QCOMPARE(channel.texts(), QStringList());
}

void tst_Assertions::holdingCondition_withLogger_reportsNothing()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    bool isBehind = false;
    leavesFunction(true, isBehind);
    QVERIFY(isBehind);
    QCOMPARE(returnsValue(true), 1);
    QVERIFY(goesOnAfterAssert(true));
    QVERIFY(goesOnAfterReport(true));
    QCOMPARE(log.records(), QStringList());
}

void tst_Assertions::condition_isEvaluatedOnce()
{
    const DebugChannel channel;
    int evaluations = 0;
    ASSERT(++evaluations > 100);
    ASSERT_X_RETURN_BUT_GO_ON(++evaluations > 100, "");
    QCOMPARE(evaluations, 2);
    ASSERT(++evaluations == 3); // also in builds for release
    QCOMPARE(evaluations, 3);
    QCOMPARE(channel.messages.size(), 2);
}

void tst_Assertions::value_isBuiltOnlyForAFailure()
{
    const DebugChannel channel;
    int built = 0;
    const auto check = [&built](bool condition) -> QString {
        ASSERT_X_RETURN_VALUE(condition, QString::number(++built), "text");
        return u"end"_qs;
    };
    QCOMPARE(check(true), u"end"_qs);
    QCOMPARE(built, 0);
    QCOMPARE(check(false), u"1"_qs);
    QCOMPARE(built, 1);
}

void tst_Assertions::value_isBuiltBehindTheReport()
{
    QStringList order;
    const DebugChannel channel([&order] { order.append(u"report"_qs); });
    const auto check = [&order]() -> QString {
        ASSERT_X_RETURN_VALUE(order.size() > 100, order.emplaceBack(u"value"_qs), "text");
        return u"end"_qs;
    };
    QCOMPARE(check(), u"value"_qs);
    QCOMPARE(order, (QStringList{u"report"_qs, u"value"_qs}));
}

void tst_Assertions::macros_areSingleStatements()
{
    const DebugChannel channel;
    bool isElse = false;
    // NOLINTBEGIN(readability-braces-around-statements): with braces, any macro would do
    if (!isElse)
        ASSERT(isElse);
    else
        isElse = true;
    QVERIFY(!isElse);
    QCOMPARE(channel.messages.size(), 1);
    if (isElse)
        ASSERT_X_RETURN_BUT_GO_ON(false, "not here");
    else
        isElse = true;
    // NOLINTEND(readability-braces-around-statements)
    QVERIFY(isElse);
    QCOMPARE(channel.messages.size(), 1);
}

void tst_Assertions::failed_withoutLogger_reachesDebugChannel_data()
{
    addFailures();
}

void tst_Assertions::failed_withoutLogger_reachesDebugChannel()
{
    QFETCH(const Failure, fail);
    QFETCH(const QString, form);
    QFETCH(const QString, text);

    QVERIFY(ZYX_zglv6::loggerInstance() == nullptr);
    const DebugChannel channel;
    fail();
    QCOMPARE(channel.texts(), QStringList{form + place() + text}); // without the function's name
}

void tst_Assertions::failed_withoutLogger_goesOnAsItsFormSays()
{
    const DebugChannel channel;
    QVERIFY(goesOnAfterAssert(false));
    bool isBehind = true;
    leavesFunction(false, isBehind);
    QVERIFY(!isBehind);
    QCOMPARE(returnsValue(false), -7);
    QVERIFY(goesOnAfterReport(false));
    QCOMPARE(channel.messages.size(), 4);
}

void tst_Assertions::failed_isNoWarningAndTellsNoPlaceToQt()
{
    const DebugChannel channel;
    goesOnAfterAssert(false);
    QCOMPARE(channel.messages.size(), 1);
    const Message &message = channel.messages.first();
    QCOMPARE(message.type, QtDebugMsg);
    QCOMPARE(message.category, u"default"_qs);
    QCOMPARE(message.file, QByteArray());
    QCOMPARE(message.line, 0);
    QCOMPARE(message.function, QByteArray());
}

void tst_Assertions::failed_underGroupingLocale_tellsAPlainLineNumber()
{
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new GroupingNumbers));
    const auto restore = qScopeGuard([&before] { std::locale::global(before); });
    std::ostringstream grouped;
    grouped << 1234567;
    QCOMPARE(grouped.str(), std::string("1'234'567"));

    const DebugChannel channel;
    ZYX_zglv6::reportFailedAssertion("f", "ASSERT in ", "file.cpp", 1234567);
    QCOMPARE(channel.texts(), QStringList{u"ASSERT in file.cpp line 1234567"_qs});
}

void tst_Assertions::failed_inAnyThread_goesOn()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    std::atomic<int> messageCount{0};
    const DebugChannel channel([&messageCount] { ++messageCount; }, DebugChannel::OnlyCalls);
    constexpr int threadCount = 4;
    constexpr int failureCount = 50;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([] {
            for (int failure = 0; failure < failureCount; ++failure) {
                ASSERT_X_RETURN_BUT_GO_ON(failure < 0, "again");
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
    QCOMPARE(messageCount.load(), threadCount * failureCount);
    const QStringList records = log.records();
    QCOMPARE(records.size(), threadCount * failureCount);
    QCOMPARE(records.count(records.first()), records.size()); // none of them torn
    QVERIFY(records.first().endsWith(u": again"));
}

void tst_Assertions::failed_withLogger_writesErrorRecord_data()
{
    addFailures();
}

void tst_Assertions::failed_withLogger_writesErrorRecord()
{
    RUN_IN_FRESH_PROCESS();
    QFETCH(const Failure, fail);
    QFETCH(const QString, function);
    QFETCH(const QString, form);
    QFETCH(const QString, text);

    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    const DebugChannel channel;
    fail();
    const QString report = form + place() + text;
    QCOMPARE(log.records(), QStringList{u"ERROR " + function + u": " + report});
    QCOMPARE(channel.texts(), QStringList{report});
}

void tst_Assertions::failed_withLogger_logsBeforeTheDebugChannel()
{
    RUN_IN_FRESH_PROCESS();
    const TestSupport::TestLog log(m_sandbox.filePath(u"data"_qs));
    QList<qsizetype> recordsAtMessage;
    const DebugChannel channel([&log, &recordsAtMessage] { recordsAtMessage.append(log.records().size()); });
    goesOnAfterAssert(false);
    returnsValue(false);
    QCOMPARE(recordsAtMessage, (QList<qsizetype>{1, 2}));
}

QTEST_GUILESS_MAIN(tst_Assertions)

#include "tst_Assertions.moc"
