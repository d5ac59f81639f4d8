// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// What a log record costs: written, suppressed by the threshold, and without a logger; each beside its peers.

#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"
#include "support/Sandbox.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"

#include <QtCore/QCoreApplication>

#include <benchmark/benchmark.h>

#include <log4cplus/fileappender.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>

#include <spdlog/logger.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <atomic>
#include <cstdlib>
#include <new>
#include <optional>

namespace {

using namespace ZYX_zglv6;

constexpr char message[]
    = "ZYX_zglv6::CStorageLocation::setDataDirectory: Data directory path is set to /home/someone/Zyx";
constexpr long maximumFileSize = 1'048'576;
constexpr int maximumBackupIndex = 10;

std::atomic<std::int64_t> allocations = 0;

/*! Adds the calls of operator new for each round to the table. */
class AllocationCount
{
public:
    explicit AllocationCount(benchmark::State &state)
        : m_state(state)
        , m_atStart(allocations)
    {
    }

    ~AllocationCount()
    {
        const auto count = static_cast<double>(allocations - m_atStart);
        m_state.counters["news"] = benchmark::Counter(count, benchmark::Counter::kAvgIterations);
    }

    Q_DISABLE_COPY_MOVE(AllocationCount)

private:
    benchmark::State &m_state;
    const std::int64_t m_atStart;
};

/*! Where everything is written to; set in main(). */
const TestSupport::Sandbox *sandbox = nullptr;

std::string filePath(const QString &fileName)
{
    return sandbox->filePath(fileName).toStdString();
}

/*! The process's logger with the threshold W: 'E' is written, 'D' is suppressed. */
const ILoggerInterface &fileLogger()
{
    if (loggerInstance() == nullptr) {
        CStorageLocation::setDataDirectory(sandbox->filePath(QStringLiteral("data")));
        setSettingsValue(loggerLevelKey, QStringLiteral("W"));
        initLogger(QStringLiteral("library"), LoggerTypeFile);
    }
    return *loggerInstance();
}

/*! log4cplus with an appender set up as the library does it, and the same threshold. */
log4cplus::Logger &bareLogger()
{
    static std::optional<log4cplus::Logger> logger;
    if (!logger) {
        logger = log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("bare.txt"));
        log4cplus::SharedAppenderPtr appender(
            new log4cplus::RollingFileAppender(LOG4CPLUS_STRING_TO_TSTRING(filePath(QStringLiteral("bare.txt"))),
                                               maximumFileSize, maximumBackupIndex, true));
        appender->setLayout(std::make_unique<log4cplus::TTCCLayout>());
        logger->addAppender(appender);
        logger->setLogLevel(log4cplus::WARN_LOG_LEVEL);
    }
    return *logger;
}

/*! spdlog with the same file sizes, flushes and fields of a record. */
spdlog::logger &spdLogger()
{
    static std::optional<spdlog::logger> logger;
    if (!logger) {
        logger.emplace("spdlog.txt",
                       std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
                           filePath(QStringLiteral("spdlog.txt")), static_cast<std::size_t>(maximumFileSize),
                           static_cast<std::size_t>(maximumBackupIndex)));
        logger->set_pattern("%i [%t] %l %n <> - %v");
        logger->set_level(spdlog::level::warn);
        logger->flush_on(spdlog::level::trace);
    }
    return *logger;
}

// Has to run before any that makes the logger.
void noLogger_macro(benchmark::State &state)
{
    if (loggerInstance() != nullptr) {
        state.SkipWithError("There is a logger already.");
        return;
    }
    const QString path = QStringLiteral("/home/someone/Zyx");
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        ZYX_LOG('D', u"Data directory path is set to " + path);
    }
}
BENCHMARK(noLogger_macro);

void suppressed_log4cplus_isEnabledFor(benchmark::State &state)
{
    const log4cplus::Logger &logger = bareLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(logger.isEnabledFor(log4cplus::DEBUG_LOG_LEVEL));
    }
}
BENCHMARK(suppressed_log4cplus_isEnabledFor);

void suppressed_library_log(benchmark::State &state)
{
    fileLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        loggerInstance()->log('D', message);
    }
}
BENCHMARK(suppressed_library_log);

void suppressed_library_macro(benchmark::State &state)
{
    fileLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        ZYX_LOG('D', "Data directory path is set to /home/someone/Zyx");
    }
}
BENCHMARK(suppressed_library_macro);

void suppressed_spdlog(benchmark::State &state)
{
    spdlog::logger &logger = spdLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        logger.debug(message);
    }
}
BENCHMARK(suppressed_spdlog);

void written_log4cplus(benchmark::State &state)
{
    const log4cplus::Logger &logger = bareLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        LOG4CPLUS_ERROR(logger, message);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(written_log4cplus);

void written_library_log(benchmark::State &state)
{
    fileLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        loggerInstance()->log('E', message);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(written_library_log);

void written_spdlog(benchmark::State &state)
{
    spdlog::logger &logger = spdLogger();
    const AllocationCount count(state);
    for ([[maybe_unused]] auto round : state) {
        logger.error(message);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(written_spdlog);

} // namespace

// Counted for the whole process: the library's calls come here too.
void *operator new(std::size_t size)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void *memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

int main(int argc, char *argv[])
{
    const TestSupport::Sandbox ownSandbox;
    sandbox = &ownSandbox;
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
