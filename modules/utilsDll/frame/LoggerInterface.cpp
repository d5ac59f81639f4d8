// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/frame/LoggerInterface.h"

#include "utilsDll/frame/LoggerInterface_p.h"

#include <QtCore/QByteArray>

#include <utility>

namespace ZYX_zglv6 {

namespace {

constinit const ILoggerInterface *currentLogger = nullptr;

/*! Goes with the module's static objects. Whoever logs after that finds no logger. */
class LoggerOwner
{
public:
    constexpr LoggerOwner() = default;

    ~LoggerOwner()
    {
        currentLogger = nullptr;
    }

    void own(std::unique_ptr<ILoggerInterface> logger)
    {
        currentLogger = logger.get();
        m_logger = std::move(logger);
    }

private:
    std::unique_ptr<ILoggerInterface> m_logger;
};

constinit LoggerOwner loggerOwner;

} // namespace

ILoggerInterface::~ILoggerInterface() = default;

const ILoggerInterface *loggerInstance()
{
    return currentLogger;
}

void setLoggerInstance(std::unique_ptr<ILoggerInterface> logger)
{
    loggerOwner.own(std::move(logger));
}

void writeLogLine(const ILoggerInterface &logger, char level, const char *function, const QString &message)
{
    writeLogLine(logger, level, function, message.toUtf8().constData());
}

void writeLogLine(const ILoggerInterface &logger, char level, const char *function, const char *message)
{
    const QByteArray line = QByteArray(function) + ": " + message;
    logger.log(level, line.constData());
}

} // namespace ZYX_zglv6
