// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "loggerSupport/LoggerWrapper.h"

#include "loggerSupport/LogText_p.h"
#include "loggerSupport/ZyxRollingFileAppender.h"
#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface_p.h"
#include "utilsDll/frame/ProductData_p.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QThread>

#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>

#include <cctype>
#include <iostream>
#include <locale>
#include <optional>
#include <sstream>

namespace {

using namespace ZYX_zglv6;

constexpr log4cplus::LogLevel everythingPasses = 0;

std::optional<log4cplus::LogLevel> logLevelOf(char letter)
{
    switch (std::toupper(static_cast<unsigned char>(letter))) {
    case 'D':
        return log4cplus::DEBUG_LOG_LEVEL;
    case 'I':
        return log4cplus::INFO_LOG_LEVEL;
    case 'W':
        return log4cplus::WARN_LOG_LEVEL;
    case 'E':
        return log4cplus::ERROR_LOG_LEVEL;
    case 'F':
        return log4cplus::FATAL_LOG_LEVEL;
    default:
        return std::nullopt;
    }
}

class CLoggerWrapper final : public ILoggerInterface
{
public:
    CLoggerWrapper(const QString &folder, const QString &fileName, char level)
        : m_logger(log4cplus::Logger::getInstance(toLogText(fileName)))
    {
        const QFileInfo info(folder);
        // Without a folder the log is whatever log4cplus makes of it. The absolute path is the folder itself if it is
        // given with a closing separator, else its parent.
        ASSERT(!info.exists() || info.isWritable());
        ASSERT(info.exists() || QDir().mkpath(info.absolutePath()));
        // The folder brings a separator of its own; the system reads the two as one.
        const QString path = folder + QDir::separator() + fileName;
        log4cplus::SharedAppenderPtr appender(new ZyxRollingFileAppender(path.toStdWString()));
        appender->setName(LOG4CPLUS_TEXT("ZyxAppender"));
        appender->setLayout(std::make_unique<log4cplus::TTCCLayout>());
        m_logger.addAppender(appender);
        // 'A' asks for everything, and so does every letter that is none.
        m_logger.setLogLevel(logLevelOf(level).value_or(everythingPasses));
        LOG4CPLUS_INFO(m_logger, LOG4CPLUS_TEXT("Logger::getInstance(ZyxLogger)"));
    }

    static void initializeLogger(const QString &folder, const QString &fileName, char level)
    {
        if (loggerInstance() != nullptr) {
            ZYX_LOG('D', "Logger is initialized several times");
            return;
        }
        setLoggerInstance(std::make_unique<CLoggerWrapper>(folder, fileName, level));
    }

    void log(char level, const char *message) const override
    {
        const log4cplus::LogLevel logLevel = logLevelOf(level).value_or(log4cplus::INFO_LOG_LEVEL);
        if (!m_logger.isEnabledFor(logLevel)) {
            return;
        }
        m_logger.forcedLog(logLevel, toLogMessage(message), __FILE__, __LINE__);
    }

private:
    log4cplus::Logger m_logger;
};

class CConsoleLoggerWrapper final : public ILoggerInterface
{
public:
    static void initializeLogger()
    {
        // A console asked for takes over from whatever logged before: reported, and done all the same.
        ASSERT_X_RETURN_BUT_GO_ON(loggerInstance() == nullptr, "Logger is initialized several times");
        setLoggerInstance(std::make_unique<CConsoleLoggerWrapper>());
    }

    void log(char /*level*/, const char *message) const override
    {
        const QThread *thread = QThread::currentThread();
        std::ostringstream record; // one piece, so that records of several threads stay whole
        record.imbue(std::locale::classic());
        record << "\n[Process: " << QCoreApplication::applicationPid() << " Thread: " << QThread::currentThreadId()
               << '(' << (thread == nullptr ? QString() : thread->objectName()).toStdString()
               << ") Time: " << QDateTime::currentMSecsSinceEpoch() << "] " << message;
        std::cout << record.str() << std::flush;
    }
};

void initializeFileLogger(const QString &folder, const QString &fileName, const QString &level)
{
    std::cout << "Initializing logger in " << folder.toStdString() << " / " << fileName.toStdString() << std::endl;
    CLoggerWrapper::initializeLogger(folder, fileName, level.isEmpty() ? '\0' : level.front().toLatin1());
}

void initializeConsoleLogger()
{
    std::cout << "Initializing logger to console output" << std::endl;
    CConsoleLoggerWrapper::initializeLogger();
}

} // namespace

namespace ZYX_zglv6 {

void initLogger(const QString &name, LoggerType type)
{
    const QString fileName = name + u".txt";
    const QString folder = CStorageLocation::loggerFilesPath(); // also for the console: throws without a data directory
    const QString level = getLogLevel();
    if (type == LoggerTypeFile) {
        initializeFileLogger(folder, fileName, level);
    } else {
        initializeConsoleLogger();
    }
    ZYX_LOG('D', u"Current time (UTC): " + QDateTime::currentDateTimeUtc().toString(Qt::ISODate));
    ZYX_LOG('D', productDisplayName + u" Version: " + productVersion());
    ZYX_LOG('D', u"UserID: " + getUserID());
    ZYX_LOG('D', u"ZyxFramework version: " + frameworkVersion());
    CStorageLocation::logInformation();
}

} // namespace ZYX_zglv6
