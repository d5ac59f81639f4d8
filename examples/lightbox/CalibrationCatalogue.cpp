// SPDX-FileCopyrightText: 2026 The UtilsDllzglv6 authors
// SPDX-License-Identifier: MIT
#include "CalibrationCatalogue.h"

#include "storageLocation/storageLocation.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QUuid>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <algorithm>
#include <optional>

using ZYX_zglv6::CStorageLocation;

namespace {

constexpr QLatin1StringView catalogueFolder(":/calibration/db/");
constexpr QLatin1StringView driver("QSQLITE");

// By the index of identifiers; the second one goes through the few hundred bodies.
constexpr QLatin1StringView bodyByIndex("SELECT id, identifier FROM Body WHERE identifier = ?");
constexpr QLatin1StringView bodyWithoutCase("SELECT id, identifier FROM Body WHERE identifier = ? COLLATE NOCASE");

// By the index of bodies, or of lens ids. Cameras tell a focal length in other fractions than the three decimals of the
// catalogue.
constexpr QLatin1StringView
    moduleForm("SELECT DISTINCT cid, name, fmin, fmax, raw_only, rgb_only FROM Module WHERE body = :body"
               " AND (:anyFocal OR :focal BETWEEN fmin - 0.0006 AND fmax + 0.0006) AND %1 = 0%2 ORDER BY name, cid");

// The word 'NULL' is a text of the catalogue: the lens tells no id, or no name.
constexpr QLatin1StringView lensByBoth(" AND (bridge = 1 OR ((:id = '' OR lens_id IN ('NULL', :id))"
                                       " AND (:name = '' OR lens_name = 'NULL' OR lens_name = :name COLLATE NOCASE)"
                                       " AND ((:id <> 'NULL' AND lens_id = :id)"
                                       " OR (:name <> 'NULL' COLLATE NOCASE AND lens_name = :name COLLATE NOCASE))))");

// By the name that is shown, with its maker or without: nearly half of the rows have no other. "F4 L" is "f/4L".
constexpr QLatin1StringView lensByName(
    " AND replace(replace(name, '/', ''), ' ', '') COLLATE NOCASE IN"
    " (replace(replace(:name, '/', ''), ' ', ''), (SELECT replace(Maker.name, ' ', '') FROM Maker"
    " JOIN Body ON Body.maker = Maker.id WHERE Body.id = :body) || replace(replace(:name, '/', ''), ' ', ''))");
constexpr QLatin1StringView lensById(" AND lens_id = :id");
constexpr QLatin1StringView anyLens;

struct Body
{
    qint64 id = 0;
    QString identifier;
};

std::optional<Body> bodyBy(const QSqlDatabase &database, QLatin1StringView statement, const QString &identifier,
                           QString &error)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(statement)) {
        error = query.lastError().text();
        return {};
    }
    query.addBindValue(identifier);
    if (!query.exec()) {
        error = query.lastError().text();
        return {};
    }
    return query.next() ? std::optional(Body{query.value(0).toLongLong(), query.value(1).toString()}) : std::nullopt;
}

/*! No body, or the error of the database. */
std::optional<Body> bodyOf(const QSqlDatabase &database, const QString &identifier, QString &error)
{
    std::optional<Body> body = bodyBy(database, bodyByIndex, identifier, error);
    return body || !error.isEmpty() ? body : bodyBy(database, bodyWithoutCase, identifier, error);
}

QString moduleStatement(ImageKind kind, QLatin1StringView lens)
{
    return QString(moduleForm).arg(kind == ImageKind::Raw ? u"rgb_only"_qs : u"raw_only"_qs, QString(lens));
}

/*! How a lens is looked for, the surest first: some cameras tell an id of many lenses, or a name of their own. */
QList<QLatin1StringView> lensConditions(const CalibrationQuery &wanted)
{
    QList<QLatin1StringView> conditions{lensByBoth};
    if (!wanted.lensName.isEmpty() && wanted.lensName.compare(u"NULL", Qt::CaseInsensitive) != 0) {
        conditions.append(lensByName);
    }
    if (!wanted.lensId.isEmpty() && wanted.lensId != u"NULL") {
        conditions.append(lensById);
    }
    return conditions;
}

QList<CalibrationModule> modulesIn(QSqlQuery &query)
{
    QList<CalibrationModule> modules;
    while (query.next()) {
        modules.append({query.value(0).toString(), query.value(1).toString(), query.value(2).toDouble(),
                        query.value(3).toDouble(), query.value(4).toBool(), query.value(5).toBool()});
    }
    return modules;
}

/*! Those of the body at the focal length for the image's kind; the condition \a lens narrows them further. */
QList<CalibrationModule> modulesOf(const QSqlDatabase &database, const Body &body, const CalibrationQuery &wanted,
                                   QLatin1StringView lens, QString &error)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    if (!query.prepare(moduleStatement(wanted.kind, lens))) {
        error = query.lastError().text();
        return {};
    }
    query.bindValue(u":body"_qs, body.id);
    query.bindValue(u":anyFocal"_qs, wanted.focalLength <= 0.0 ? 1 : 0);
    query.bindValue(u":focal"_qs, wanted.focalLength);
    if (lens.contains(u":id")) {
        query.bindValue(u":id"_qs, wanted.lensId.isNull() ? u""_qs : wanted.lensId);
    }
    if (lens.contains(u":name")) {
        query.bindValue(u":name"_qs, wanted.lensName.isNull() ? u""_qs : wanted.lensName);
    }
    QList<CalibrationModule> modules;
    if (query.exec()) {
        modules = modulesIn(query);
    }
    error = query.lastError().text().trimmed(); // reading may end with one, too
    return modules;
}

CalibrationAnswer answerOf(const QSqlDatabase &database, const Body &body, const CalibrationQuery &query)
{
    CalibrationAnswer answer{CalibrationAnswer::Served, body.identifier, {}, {}};
    for (const QLatin1StringView lens : lensConditions(query)) {
        answer.modules = modulesOf(database, body, query, lens, answer.error);
        if (!answer.modules.isEmpty() || !answer.error.isEmpty()) {
            break;
        }
    }
    if (answer.modules.isEmpty() && answer.error.isEmpty()) {
        answer.modules = modulesOf(database, body, query, anyLens, answer.error);
        answer.state = CalibrationAnswer::LensUnknown;
    }
    if (!answer.error.isEmpty()) {
        answer.state = CalibrationAnswer::Failed;
    }
    return answer;
}

} // namespace

struct CCalibrationCatalogue::Copy
{
    explicit Copy(const QString &workFolder)
        : folder(QDir(workFolder).filePath(u"lightbox-calibration-XXXXXX"_qs))
        , path(folder.filePath(CStorageLocation::getCafDbFileNameDefault()))
        , connection(QUuid::createUuid().toString())
    {
    }

    ~Copy()
    {
        QSqlDatabase::removeDatabase(connection); // before its file goes; one that was never added is no error
    }

    Q_DISABLE_COPY_MOVE(Copy)

    QTemporaryDir folder;
    const QString path;
    const QString connection;
};

QString CalibrationModule::fileName() const
{
    return cid + u".caf";
}

bool CalibrationAnswer::isOfOneLens() const
{
    return std::all_of(modules.cbegin(), modules.cend(),
                       [this](const CalibrationModule &module) { return module.lens == modules.constFirst().lens; });
}

CCalibrationCatalogue::CCalibrationCatalogue(const QString &workFolder)
    : m_copy(std::make_unique<Copy>(workFolder))
{
    open(workFolder);
}

CCalibrationCatalogue::~CCalibrationCatalogue() = default;

QStringList CCalibrationCatalogue::statements()
{
    QStringList all{bodyByIndex};
    for (const QLatin1StringView lens : {lensByBoth, lensByName, lensById, anyLens}) {
        all.append(moduleStatement(ImageKind::Rgb, lens));
    }
    return all;
}

const QString &CCalibrationCatalogue::error() const
{
    return m_error;
}

void CCalibrationCatalogue::open(const QString &workFolder)
{
    QFile catalogue(catalogueFolder + CStorageLocation::getCafDbFileNameDefault());
    if (!m_copy->folder.isValid() || !catalogue.copy(m_copy->path)) {
        m_error = QCoreApplication::translate("CCalibrationCatalogue", "The catalogue can't be copied to %1: %2")
                      .arg(QDir::toNativeSeparators(workFolder),
                           m_copy->folder.isValid() ? catalogue.errorString() : m_copy->folder.errorString());
        return;
    }
    QSqlDatabase database = QSqlDatabase::addDatabase(driver, m_copy->connection);
    database.setDatabaseName(m_copy->path);
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_qs);
    if (!database.open()) {
        m_error = QCoreApplication::translate("CCalibrationCatalogue", "The catalogue can't be opened: %1")
                      .arg(database.lastError().text());
    }
}

CalibrationAnswer CCalibrationCatalogue::find(const CalibrationQuery &query) const
{
    if (!m_error.isEmpty()) {
        return {CalibrationAnswer::Failed, {}, {}, m_error};
    }
    const QSqlDatabase database = QSqlDatabase::database(m_copy->connection);
    std::optional<CalibrationAnswer> first;
    for (const QString &identifier : query.bodies) {
        QString error;
        const std::optional<Body> body = bodyOf(database, identifier, error);
        if (!error.isEmpty()) {
            return {CalibrationAnswer::Failed, {}, {}, error};
        }
        if (!body) {
            continue;
        }
        const CalibrationAnswer answer = answerOf(database, *body, query);
        if (answer.state != CalibrationAnswer::LensUnknown) {
            return answer;
        }
        if (!first) {
            first = answer;
        }
    }
    return first.value_or(CalibrationAnswer{CalibrationAnswer::BodyUnknown, {}, {}, {}});
}
