// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
// The other side of a plug-in's call as it should not be: the environment variable EXCHANGE_PEER_WAY says how.
#include "PeerEnd.h"

#include "hostExchange/PhotoshopDataStructure.h"
#include "utilsDll/frame/PluginKeys.h"

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <map>
#include <thread>

using namespace ZYX_zglv6;

namespace {

using DataVariant = PhotoshopDataStructure::DataVariant;

constexpr int strangeStatus = 5;

QString g_recordPath; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): set once, in main()

QString imagePath()
{
    return g_recordPath + u"-image";
}

int hang()
{
    std::this_thread::sleep_for(std::chrono::minutes(5)); // killed before
    return 0;
}

/*! Adds \a change bytes at the end of a file, or takes them away. */
bool resizeBy(const QString &path, qint64 change)
{
    return QFile::resize(path, QFile(path).size() + change);
}

/*! The pixels as they came, with \a exitCode, in a frame that is wider by \a surplus. */
bool answer(const DataVariant &exitCode, int surplus = 0)
{
    PhotoshopDataStructure record(QFile::encodeName(g_recordPath).toStdString());
    char *pixels = nullptr;
    if (!record.load(&pixels) || pixels == nullptr) {
        return false;
    }
    std::string frame(pixels, pixels + record.imageSize());
    ::operator delete(pixels);
    record.setValue(PluginKeys::exitCode, exitCode);
    frame.resize(frame.size() + std::size_t(surplus) * std::size_t(record.height()) * 3);
    return record.save(frame.data(), record.width() + surplus, record.height(), record.depth());
}

bool answerWell()
{
    return answer(DataVariant::fromInt(0));
}

bool keepCopies()
{
    const QString copy = qEnvironmentVariable("EXCHANGE_PEER_COPY");
    return QFile::copy(g_recordPath, copy) && QFile::copy(imagePath(), copy + u"-image");
}

bool replaceRecord(const QByteArray &bytes)
{
    QFile file(g_recordPath);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

int status(bool isDone)
{
    return isDone ? 0 : strangeStatus + 1;
}

const std::map<QByteArray, std::function<int()>> &ways()
{
    static const std::map<QByteArray, std::function<int()>> all{
        {"crash",
         [] {
             crash();
             return 0;
         }},
        {"crashAfterAnswer",
         [] {
             answerWell();
             crash();
             return 0;
         }},
        {"hang", hang},
        {"nothing", [] { return 0; }},
        {"statusAlone", [] { return strangeStatus; }},
        {"statusAfterAnswer", [] { return answerWell() ? strangeStatus : 0; }},
        {"noRecord", [] { return status(QFile::remove(g_recordPath)); }},
        {"strangeRecord", [] { return status(replaceRecord("This is no record.")); }},
        {"cutRecord", [] { return status(answerWell() && resizeBy(g_recordPath, -1)); }},
        {"noImage", [] { return status(answerWell() && QFile::remove(imagePath())); }},
        {"shortImage", [] { return status(answerWell() && resizeBy(imagePath(), -1)); }},
        {"longImage", [] { return status(answerWell() && resizeBy(imagePath(), 1)); }},
        {"widerFrame", [] { return status(answer(DataVariant::fromInt(0), 1)); }},
        {"exitCode7", [] { return status(answer(DataVariant::fromInt(7))); }},
        {"exitCodeAsText", [] { return status(answer(DataVariant::fromString("0"))); }},
        {"echo", [] { return status(answerWell()); }},
        {"keepCopies", [] { return status(keepCopies() && answerWell()); }},
    };
    return all;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    g_recordPath = QCoreApplication::arguments().value(1);
    const auto way = ways().find(qgetenv("EXCHANGE_PEER_WAY"));
    return way == ways().end() ? strangeStatus + 2 : way->second();
}
