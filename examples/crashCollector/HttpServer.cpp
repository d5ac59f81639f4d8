// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "HttpServer.h"

#include "Collector.h"
#include "Connection.h"
#include "RequestBody.h"

#include "utilsDll/frame/SharedConstants.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtNetwork/QHostAddress>

#include <httplib.h>

#include <exception>
#include <string>

namespace {

constexpr std::size_t workers = 16; // each may hold a request of the largest size
constexpr int patienceSeconds = 5; // of a single call that sends
constexpr qint64 timeAtEnd = 5'000; // ms, for what is under way
constexpr qint64 envelopeSize = qint64(64) * 1024; // far more than all but the archive takes in a request

constexpr auto documentType = "text/xml; charset=utf-8";
constexpr auto reportPath = R"(/reports/([0-9a-f]{8}(?:-[0-9a-f]{4}){3}-[0-9a-f]{12})\.zip)";

/*! A server whose connections can't last longer than they should. */
class CTimedServer final : public httplib::Server
{
public:
    explicit CTimedServer(const std::atomic<qint64> &end)
        : m_end(end)
    {
    }

private:
    /*! One request for each connection: what is left of a body that was not read is no further one. */
    bool process_and_close_socket(socket_t socket) override
    {
        CConnection connection(socket, m_end);
        bool isClosed = false;
        return process_request(connection, true, isClosed,
                               [&connection](httplib::Request & /*request*/) { connection.startBody(); });
    }

    const std::atomic<qint64> &m_end;
};

std::string servicePath()
{
    return ZYX_zglv6::crashServicePath.data();
}

/*! The body of the largest request that is read. */
qint64 bodyLimit(qint64 archiveSizeLimit)
{
    return (archiveSizeLimit + 2) / 3 * 4 + envelopeSize;
}

bool isLoopbackHost(const QString &host)
{
    return QHostAddress(host).isLoopback() || host.compare(u"localhost", Qt::CaseInsensitive) == 0;
}

QString inUrl(const QString &host)
{
    return host.contains(u':') ? QString(u'[' + host + u']') : host;
}

/*! By default httplib lets another process listen on the same port, and the two share the requests. */
void setSocketOptions(socket_t socket)
{
    const int yes = 1;
#ifdef Q_OS_WIN
    setsockopt(socket, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char *>(&yes), sizeof(yes));
#else
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof(yes)); // of a connection that has just ended
#endif
}

httplib::Headers securityHeaders()
{
    return {
        {"Cache-Control", "no-store"},
        {"Content-Security-Policy",
         "default-src 'none'; style-src 'self'; img-src 'self'; base-uri 'none'; form-action 'none'; "
         "frame-ancestors 'none'"},
        {"Cross-Origin-Resource-Policy", "same-origin"},
        {"Referrer-Policy", "no-referrer"},
        {"X-Content-Type-Options", "nosniff"},
    };
}

void setContent(httplib::Response &response, const QByteArray &content, const char *type)
{
    response.set_content(content.constData(), std::size_t(content.size()), type);
}

void setAnswer(httplib::Response &response, const ServiceAnswer &answer)
{
    response.status = answer.status;
    setContent(response, answer.document, documentType);
}

QByteArray resource(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/*! The methods for \a path; empty if there is nothing. */
std::string methodsOf(const std::string &path)
{
    if (path == servicePath()) {
        return "POST";
    }
    const bool isPage = path == "/" || path == "/style.css" || path == "/icon.svg" || path.rfind("/reports/", 0) == 0;
    return isPage ? "GET, HEAD" : "";
}

bool isXml(const httplib::Request &request)
{
    const QString type = QString::fromStdString(request.get_header_value("Content-Type"));
    return type.section(u';', 0, 0).trimmed().compare(u"text/xml", Qt::CaseInsensitive) == 0;
}

} // namespace

CHttpServer::CHttpServer(const Options &options, CCollector &collector)
    : m_options(options)
    , m_collector(collector)
    , m_server(std::make_unique<CTimedServer>(m_end))
    , m_isLoopback(isLoopbackHost(options.host))
{
    setLimits();
    setRoutes();
    setPageRoutes();
    setHandlersOfErrors();
}

CHttpServer::~CHttpServer() = default;

bool CHttpServer::bind()
{
    const std::string host = m_options.host.toStdString();
    if (m_options.port == 0) {
        m_port = m_server->bind_to_any_port(host);
        return m_port > 0;
    }
    m_port = m_options.port;
    return m_server->bind_to_port(host, m_port);
}

QString CHttpServer::address() const
{
    return u"http://%1:%2/"_qs.arg(inUrl(m_options.host), QString::number(m_port));
}

void CHttpServer::stop()
{
    m_end = QDeadlineTimer(timeAtEnd).deadline();
    while (isRunning() && !m_server->is_running()) {
        msleep(1); // before that it can't be stopped
    }
    m_server->stop();
}

bool CHttpServer::isOpenToNetwork() const
{
    return !m_isLoopback;
}

bool CHttpServer::isStopping() const
{
    return m_end != noEnd;
}

void CHttpServer::run()
{
    m_server->listen_after_bind();
}

template <typename Function>
void CHttpServer::onCollectorsThread(const Function &function) const
{
    std::exception_ptr trouble;
    const auto guarded = [&] {
        try {
            function();
        } catch (...) { // the event loop lets none through
            trouble = std::current_exception();
        }
    };
    QMetaObject::invokeMethod(&m_collector, guarded, Qt::BlockingQueuedConnection);
    if (trouble) {
        std::rethrow_exception(trouble);
    }
}

void CHttpServer::setLimits()
{
    m_server->new_task_queue = [] { return new httplib::ThreadPool(workers); }; // the server deletes it
    m_server->set_socket_options(setSocketOptions);
    m_server->set_write_timeout(patienceSeconds);
    m_server->set_default_headers(securityHeaders());
    m_server->set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        return isRefused(request, response) ? httplib::Server::HandlerResponse::Handled
                                            : httplib::Server::HandlerResponse::Unhandled;
    });
}

/*! Decides before a body is read. */
bool CHttpServer::isRefused(const httplib::Request &request, httplib::Response &response) const
{
    const std::string methods = methodsOf(request.path);
    if (!isForThisHost(request)) {
        response.status = 421;
    } else if (methods.empty()) {
        response.status = 404;
    } else if (methods.find(request.method) == std::string::npos) {
        response.status = 405;
        response.set_header("Allow", methods);
    } else if (request.method == "POST" && !isXml(request)) {
        response.status = 415;
    } else if (request.ranges.size() > 1) { // each would be a copy
        response.status = 416;
    }
    return response.status >= 400;
}

/*! A page elsewhere can give its own name this machine's address, and then read what is only meant for this machine. */
bool CHttpServer::isForThisHost(const httplib::Request &request) const
{
    if (!m_isLoopback) {
        return true;
    }
    static const QRegularExpression port(u":[0-9]*$"_qs);
    QString host = QString::fromStdString(request.get_header_value("Host")).toLower();
    host.remove(port);
    return request.get_header_value_count("Host") == 1
        && (host == inUrl(m_options.host).toLower() || host == u"localhost");
}

void CHttpServer::setRoutes()
{
    const auto receive = [this](const httplib::Request &request, httplib::Response &response,
                                const httplib::ContentReader &readContent) {
        CRequestBody body(bodyLimit(m_options.archiveSizeLimit));
        const bool isComplete
            = readContent([&body](const char *piece, std::size_t size) { return body.take(piece, size); });
        if (body.isTooLarge()) {
            onCollectorsThread([&] { setAnswer(response, m_collector.refuseAsTooLarge()); });
            return;
        }
        if (!isComplete) {
            response.status = isStopping() ? 503 : qMax(response.status, 400);
            return;
        }
        const QByteArray action = QByteArray::fromStdString(request.get_header_value("SOAPAction"));
        onCollectorsThread([&] { setAnswer(response, m_collector.receive(body.bytes(), action)); });
    };
    m_server->Post(QRegularExpression::escape(QString::fromStdString(servicePath())).toStdString(), receive);
    m_server->Get(reportPath, [this](const httplib::Request &request, httplib::Response &response) {
        const QString identifier = QString::fromStdString(request.matches[1]);
        std::optional<QByteArray> archive;
        onCollectorsThread([&] { archive = m_collector.archive(identifier); });
        if (!archive) {
            response.status = 404;
            return;
        }
        response.set_header("Content-Disposition", u"attachment; filename=\"%1.zip\""_qs.arg(identifier).toStdString());
        setContent(response, *archive, "application/zip");
    });
}

void CHttpServer::setPageRoutes()
{
    m_server->Get("/", [this](const httplib::Request & /*request*/, httplib::Response &response) {
        onCollectorsThread([&] { setContent(response, m_collector.page(), "text/html; charset=utf-8"); });
    });
    const auto serve = [this](const char *path, const QString &file, const char *type) {
        m_server->Get(
            path, [content = resource(file), type](const httplib::Request & /*request*/, httplib::Response &response) {
                setContent(response, content, type);
            });
    };
    serve(R"(/style\.css)", u":/page/style.css"_qs, "text/css; charset=utf-8");
    serve(R"(/icon\.svg)", u":/page/icon.svg"_qs, "image/svg+xml");
}

void CHttpServer::setHandlersOfErrors()
{
    m_server->set_error_handler([](const httplib::Request & /*request*/, httplib::Response &response) {
        if (response.body.empty()) {
            response.set_content("Error " + std::to_string(response.status) + "\n", "text/plain; charset=utf-8");
        }
    });
    m_server->set_exception_handler(
        [this](const httplib::Request & /*request*/, httplib::Response &response, const std::exception_ptr & /*what*/) {
            onCollectorsThread([&] { setAnswer(response, CReportService::serverFault()); });
        });
}
