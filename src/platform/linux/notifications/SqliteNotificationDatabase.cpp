#include "platform/linux/notifications/SqliteNotificationDatabase.h"

#include <QFileInfo>
#include <QHash>
#include <QUuid>

#include <sqlite3.h>

#include <chrono>
#include <memory>

namespace quillmere {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr int largestValue = 4 * 1024 * 1024; // bytes
constexpr int stepsBetweenLooks = 10'000;     // of SQLite's machine: a few milliseconds at most
constexpr auto timeLimit = 2s;
constexpr int mostApps = 100'000;
constexpr int uuidSize = 16;

const char *const joinedQuery = "SELECT a.identifier, r.uuid, r.data, r.delivered_date "
                                "FROM record r LEFT JOIN app a ON a.app_id = r.app_id "
                                "ORDER BY r.delivered_date DESC LIMIT 50";
const char *const appQuery = "SELECT app_id, identifier FROM app";
const char *const recordQuery = "SELECT app_id, uuid, data, delivered_date "
                                "FROM record ORDER BY delivered_date DESC LIMIT 50";
enum Column { Application, Uuid, Data, DeliveredDate };

struct Close {
    void operator()(sqlite3 *database) const { ::sqlite3_close(database); }
};
struct Finalize {
    void operator()(sqlite3_stmt *statement) const { ::sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;
using Database = std::unique_ptr<sqlite3, Close>;

/// Absent where the column holds nothing.
std::optional<QString> textIn(sqlite3_stmt *row, int column)
{
    const auto *text = ::sqlite3_column_text(row, column);
    if (!text)
        return std::nullopt;
    return QString::fromUtf8(reinterpret_cast<const char *>(text),
                             ::sqlite3_column_bytes(row, column));
}

QByteArray blobIn(sqlite3_stmt *row, int column)
{
    const auto *bytes = static_cast<const char *>(::sqlite3_column_blob(row, column));
    return {bytes, ::sqlite3_column_bytes(row, column)};
}

QString uuidIn(sqlite3_stmt *row)
{
    const int type = ::sqlite3_column_type(row, Uuid);
    if (type == SQLITE_TEXT)
        return textIn(row, Uuid).value_or(QString());
    const bool isBinary = type == SQLITE_BLOB && ::sqlite3_column_bytes(row, Uuid) == uuidSize;
    const QUuid uuid = isBinary ? QUuid::fromRfc4122(blobIn(row, Uuid)) : QUuid::createUuid();
    return uuid.toString(QUuid::WithoutBraces);
}

/// One look at a file: a connection and what it may cost.
class Reader
{
public:
    explicit Reader(const QString &path)
    {
        sqlite3 *opened = nullptr;
        const int result = ::sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                             SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
        database_.reset(opened); // there is one to close after a failure, too
        if (result != SQLITE_OK)
            database_.reset();
        else
            setLimits();
    }

    QList<NotificationRow> rows(const std::function<bool(const QString &)> &isWanted)
    {
        if (!database_)
            return {};
        if (const Statement joined = prepare(joinedQuery))
            return read(joined.get(), isWanted,
                        [&joined] { return textIn(joined.get(), Application); });
        const auto apps = applications();
        const Statement records = prepare(recordQuery);
        if (!records)
            return {};
        return read(records.get(), isWanted, [&]() -> std::optional<QString> {
            const auto app = apps.find(::sqlite3_column_int64(records.get(), Application));
            return app == apps.end() ? std::nullopt : std::optional(*app);
        });
    }

private:
    void setLimits()
    {
        ::sqlite3_limit(database_.get(), SQLITE_LIMIT_LENGTH, largestValue);
        ::sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
        ::sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
        ::sqlite3_progress_handler(
            database_.get(), stepsBetweenLooks,
            [](void *end) { return Clock::now() > *static_cast<Clock::time_point *>(end) ? 1 : 0; },
            &end_);
    }

    Statement prepare(const char *query)
    {
        sqlite3_stmt *statement = nullptr;
        ::sqlite3_prepare_v2(database_.get(), query, -1, &statement, nullptr);
        return Statement(statement);
    }

    QHash<qint64, QString> applications()
    {
        QHash<qint64, QString> apps;
        const Statement query = prepare(appQuery);
        while (query && apps.size() < mostApps && ::sqlite3_step(query.get()) == SQLITE_ROW) {
            if (const auto identifier = textIn(query.get(), 1))
                apps.insert(::sqlite3_column_int64(query.get(), 0), *identifier);
        }
        return apps;
    }

    template <class Identifier>
    static QList<NotificationRow> read(sqlite3_stmt *row,
                                       const std::function<bool(const QString &)> &isWanted,
                                       Identifier identifier)
    {
        QList<NotificationRow> rows;
        while (::sqlite3_step(row) == SQLITE_ROW) {
            const std::optional<QString> appID = identifier();
            if (!appID || !isWanted(*appID))
                continue;
            NotificationRow found{.appID = *appID,
                                  .uuid = uuidIn(row),
                                  .data = blobIn(row, Data),
                                  .deliveredDate = ::sqlite3_column_double(row, DeliveredDate)};
            if (!found.data.isEmpty())
                rows.append(std::move(found));
        }
        return rows;
    }

    Clock::time_point end_ = Clock::now() + timeLimit;
    Database database_;
};

} // namespace

QList<NotificationRow> SqliteNotificationDatabase::newestRows(
    const QString &path, const std::function<bool(const QString &appID)> &isWanted) const
{
    if (!QFileInfo(path).isFile())
        return {};
    return Reader(path).rows(isWanted);
}

} // namespace quillmere
