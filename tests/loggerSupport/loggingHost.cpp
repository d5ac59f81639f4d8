// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
//
// A host in small: carries out its arguments one after the other, each "command=value". The logger's tests start it for
// what takes several runs, several processes, or a process that may not do all that the tests may.

#include "LogTestSystem.h"
#include "support/Sandbox.h"

#include "loggerSupport/LoggerWrapper.h"
#include "storageLocation/storageLocation.h"
#include "utilsDll/frame/SharedConstants.h"
#include "utilsDll/settings/ApplicationState.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QScopeGuard>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <exception>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace ZYX_zglv6;
using namespace std::chrono_literals;

namespace {

constexpr int exceptionEscaped = 3; // out of the library
constexpr int systemRefused = 4;

struct SystemRefused
{
};

void orThrow(bool isDone)
{
    if (!isDone) {
        throw SystemRefused();
    }
}

/*! Writes \a count numbered records of at least \a size characters each, such as "2:17 xxxx". */
void writeRecords(int thread, int count, std::size_t size)
{
    for (int record = 0; record < count; ++record) {
        std::string message = std::to_string(thread) + ':' + std::to_string(record) + ' ';
        message.resize(std::max(size, message.size()), 'x');
        loggerInstance()->log('E', message.c_str());
    }
}

/*! \a value is "threads x records x size", such as "4x1000x100". */
void writeRecordsFromThreads(const QString &value)
{
    const QStringList numbers = value.split(u'x');
    const int threadCount = numbers.value(0).toInt();
    std::vector<std::thread> threads;
    threads.reserve(static_cast<std::size_t>(threadCount));
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back(writeRecords, thread, numbers.value(1).toInt(), numbers.value(2).toUInt());
    }
    for (std::thread &thread : threads) {
        thread.join();
    }
}

/*! Goes on logging until the file \a path grows; the starting process watches over the time. */
void logUntilTheFileGrows(const QString &path)
{
    const qint64 sizeAtStart = QFileInfo(path).size();
    while (QFileInfo(path).size() <= sizeAtStart) {
        loggerInstance()->log('E', "is there room?");
        std::this_thread::sleep_for(10ms); // log4cplus tries to open the file again once a second
    }
}

/*! Tells the starting process that all before is done, and goes on when it closes the standard input. */
void waitForTheStarter()
{
    std::cout << "\nwaiting" << std::endl;
    std::string line;
    std::getline(std::cin, line);
}

/*! Logs its text when the program's static objects are destroyed. */
class Farewell
{
public:
    Farewell() = default;

    ~Farewell()
    {
        const ILoggerInterface *logger = loggerInstance();
        if (logger != nullptr && !text.empty()) {
            logger->log('E', text.c_str());
        }
    }

    Farewell(const Farewell &) = delete;
    Farewell &operator=(const Farewell &) = delete;

    std::string text;
};

Farewell farewell;

using Command = std::function<void(const QString &)>;

const QHash<QString, Command> &commands()
{
    static const QHash<QString, Command> all{
        {QStringLiteral("data"), &CStorageLocation::setDataDirectory},
        {QStringLiteral("level"), [](const QString &value) { setSettingsValue(loggerLevelKey, value); }},
        {QStringLiteral("file"), [](const QString &value) { initLogger(value, LoggerTypeFile); }},
        {QStringLiteral("console"), [](const QString &value) { initLogger(value, LoggerTypeConsole); }},
        {QStringLiteral("log"),
         [](const QString &value) {
             loggerInstance()->log(value.front().toLatin1(), value.mid(2).toUtf8().constData());
         }},
        {QStringLiteral("logAtTheEnd"), [](const QString &value) { farewell.text = value.toStdString(); }},
        {QStringLiteral("records"), &writeRecordsFromThreads},
        {QStringLiteral("untilGrowing"), &logUntilTheFileGrows},
        {QStringLiteral("wait"), [](const QString &) { waitForTheStarter(); }},
        {QStringLiteral("threadCount"),
         [](const QString &) { std::cout << "\nthreads: " << LogTestSystem::threadCount() << std::endl; }},
        {QStringLiteral("unprivileged"), [](const QString &) { orThrow(LogTestSystem::dropPrivileges()); }},
        {QStringLiteral("fileSizeLimit"),
         [](const QString &value) { orThrow(LogTestSystem::limitFileSize(value.toULongLong())); }},
    };
    return all;
}

void carryOut(const QString &argument)
{
    const qsizetype end = argument.indexOf(u'=');
    const Command command = commands().value(argument.left(end));
    if (!command) {
        throw std::invalid_argument("unknown command: " + argument.toStdString());
    }
    command(argument.mid(end + 1));
}

} // namespace

int main(int argc, char *argv[])
{
    const TestSupport::Sandbox sandbox;
    const auto restore = qScopeGuard([] { LogTestSystem::restorePrivileges(); }); // the sandbox is the superuser's
    const QCoreApplication application(argc, argv);
    try {
        const QStringList arguments = QCoreApplication::arguments().mid(1);
        std::for_each(arguments.begin(), arguments.end(), &carryOut);
    } catch (const SystemRefused &) {
        return systemRefused;
    } catch (const std::exception &exception) {
        std::cerr << "exception: " << exception.what() << std::endl;
        return exceptionEscaped;
    }
    return EXIT_SUCCESS;
}
