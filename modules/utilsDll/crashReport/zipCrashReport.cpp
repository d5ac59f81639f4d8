// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "utilsDll/crashReport/zipCrashReport.h"

#include "storageLocation/storageLocation.h"
#include "utilsDll/crashReport/CrashService_p.h"
#include "utilsDll/crashReport/compress.h"
#include "utilsDll/frame/Assertions.h"
#include "utilsDll/frame/LoggerInterface.h"
#include "utilsDll/frame/ProductData_p.h"
#include "utilsDll/settings/ApplicationState.h"
#include "utilsDll/soap/QtSoapHttpTransport.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QTextStream>

#include <filesystem>
#include <utility>

namespace ZYX_zglv6 {

namespace {

constexpr qsizetype keptReports = 10;

QFileInfo newZipFile()
{
    return QFileInfo(CStorageLocation::crashFilesPath() + QDir::separator() + u"CrashReport_"
                     + QDateTime::currentDateTime().toString(u"yyyyMMddhhmmss") + u".zip");
}

/*! What \a work says; an error of the file system that it throws is a failed assertion instead. */
template <typename Work>
bool isDone(const Work &work)
{
    try {
        return work();
    } catch (const std::filesystem::filesystem_error &error) {
        ASSERT_X_RETURN_VALUE(false, false, error.what());
    }
    return false;
}

bool packAndClear(const QDir &folder, const QFileInfo &zipFile)
{
    return isDone([&] { return CompressDirAndClearContent(folder, zipFile); });
}

/*! False if a folder could not be made. All other failures show only in what is there. */
bool unpack(const QFileInfo &zipFile, const QDir &folder)
{
    return isDone([&] {
        DecompressFiles(zipFile, folder, QString()); // no verdict
        return true;
    });
}

} // namespace

CBaseCrashParser::CBaseCrashParser() = default;
CBaseCrashParser::CBaseCrashParser(const CBaseCrashParser &) = default;
CBaseCrashParser::CBaseCrashParser(CBaseCrashParser &&) noexcept = default;
CBaseCrashParser &CBaseCrashParser::operator=(const CBaseCrashParser &) = default;
CBaseCrashParser &CBaseCrashParser::operator=(CBaseCrashParser &&) noexcept = default;
CBaseCrashParser::~CBaseCrashParser() = default;

QString CBaseCrashParser::parsePLCrashFile(const QString &path) const
{
    return path;
}

QString CBaseCrashParser::getCrashDumpExtension() const
{
    return u".dmp"_qs;
}

class CZipCrashReport::Pimpl
{
public:
    Pimpl(QString productName, QString emailAddress, QString userComments, bool isDeletedWhenDone,
          const CBaseCrashParser &crashParser)
        : product(std::move(productName))
        , email(std::move(emailAddress))
        , comments(std::move(userComments))
        , zipFile(newZipFile())
        , crashFolder(CStorageLocation::crashFilesPath())
        , transport(nullptr)
        , deleteWhenDone(isDeletedWhenDone)
        , parser(&crashParser)
    {
    }

    bool isCancelled()
    {
        const QNetworkReply *reply = transport.networkReply();
        return reply != nullptr && reply->error() == QNetworkReply::OperationCanceledError;
    }

    const QString product;
    QString email;
    QString comments;
    const QFileInfo zipFile;
    QDir crashFolder;
    QtSoapHttpTransport transport;
    const bool deleteWhenDone;
    const CBaseCrashParser *const parser;
};

CZipCrashReport::CZipCrashReport(const QString &product, const QString &email, const QString &comments,
                                 bool deleteWhenDone, const CBaseCrashParser &parser, QObject *parent)
    : QObject(parent)
    , pimpl(std::make_unique<Pimpl>(product, email, comments, deleteWhenDone, parser))
{
    createCrashReport();
}

CZipCrashReport::~CZipCrashReport()
{
    const QStringList reports = pimpl->crashFolder.entryList({u"*.zip"_qs}); // by name, so the oldest come first
    for (qsizetype i = 0; i < reports.size() - keptReports; ++i) {
        pimpl->crashFolder.remove(reports.at(i));
    }
}

bool CZipCrashReport::isCrashDumpCreated(const CBaseCrashParser &parser)
{
    const QDir folder(CStorageLocation::crashTempFilesPath());
    return !folder.entryList({QString(u'*' + parser.getCrashDumpExtension())}).isEmpty();
}

void CZipCrashReport::createCrashReport()
{
    ASSERT(pimpl->crashFolder.isAbsolute());
    ASSERT(!pimpl->zipFile.filePath().isEmpty());
    // Once, however often this is called: there is one verdict for each answer.
    connect(&pimpl->transport, qOverload<>(&QtSoapHttpTransport::responseReady), this, &CZipCrashReport::httpResponce,
            Qt::UniqueConnection);
    createXmlReport();
    const QDir folder(CStorageLocation::crashTempFilesPath());
    ASSERT(folder.mkpath(u"."_qs));
    const QDir logs(CStorageLocation::loggerFilesPath());
    for (const QString &name : logs.entryList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString from = logs.absolutePath() + u'/' + name;
        const QString to = folder.absolutePath() + u'/' + name;
        ZYX_LOG('D', u"Copy file \""_qs + from + u"\" to \"" + to + u"\"");
        QFile::copy(from, to); // false: it is there already, is locked, or is a folder; the report goes without it
    }
    ASSERT(packAndClear(folder, pimpl->zipFile));
}

void CZipCrashReport::repack(const QString &email, const QString &comments)
{
    pimpl->email = email;
    pimpl->comments = comments;
    const QDir folder(CStorageLocation::crashTempFilesPath());
    if (!unpack(pimpl->zipFile, folder)) {
        return;
    }
    createXmlReport();
    QFile::remove(pimpl->zipFile.absoluteFilePath());
    packAndClear(folder, pimpl->zipFile);
}

QString CZipCrashReport::getZipFilePath() const
{
    return pimpl->zipFile.absolutePath();
}

void CZipCrashReport::sendZipToServer()
{
    QtSoapMessage message = crashReportMessage();
    QFile file(pimpl->zipFile.absolutePath()); // the folder, by design: it can't be read
    const QByteArray archive = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (archive.isNull()) {
        Q_EMIT resultOfSend(false); // keep last
        return;
    }
    postCrashReport(pimpl->transport, message, archive);
}

void CZipCrashReport::httpResponce()
{
    ServiceVerdict verdict;
    if (!pimpl->isCancelled()) {
        verdict = verdictOf(pimpl->transport.getResponse());
    }
    if (verdict.fault) {
        ZYX_LOG('D', u"Error: %1"_qs.arg(verdict.fault->toString()));
        qDebug() << *verdict.fault;
    }
    if (verdict.isAccepted) {
        ZYX_LOG('D', u"Crash Report UID %1"_qs.arg(verdict.identifier));
    }
    const QPointer<CZipCrashReport> self(this);
    Q_EMIT resultOfSend(verdict.isAccepted);
    if (self && pimpl->deleteWhenDone) {
        deleteLater();
    }
}

void CZipCrashReport::createXmlReport() const
{
    const QString path = CStorageLocation::crashTempFilesPath() + QDir::separator() + u"report.xml";
    ASSERT(QDir().mkpath(CStorageLocation::crashTempFilesPath()));
    qDebug() << path;
    QFile file(path);
    const bool isOpen = file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    ASSERT(isOpen);
    if (!isOpen) {
        return;
    }
    QTextStream stream(&file);
    stream.setEncoding(QStringConverter::Utf8);
    // Raw, by design: with a "<" in a text this is no XML, and the text can still be read as it was written.
    stream << "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
           << "<ZyxCrashReport>\n"
           << "<Product>" << pimpl->product << "</Product>\n"
           << "<Version>" << libraryVersion() << "</Version>\n"
           << "<Config>" << getLastLaunchMode() << "</Config>\n"
           << "<UserId>" << getUserID() << "</UserId>\n"
           << "<Email>" << pimpl->email << "</Email>\n"
           << "<Comments>" << pimpl->comments << "</Comments>\n"
           << "</ZyxCrashReport>\n";
    stream.flush();
    ASSERT(stream.status() == QTextStream::Ok && file.flush());
}

} // namespace ZYX_zglv6
