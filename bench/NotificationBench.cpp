#include "messages/NotificationCenterMonitor.h"
#include "platform/linux/notifications/SqliteNotificationDatabase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

using namespace quillmere;

namespace {

const QString folder = QStringLiteral("/Library/Group Containers/group.com.apple.usernoted/db2");

/// A home whose notification database has so many rows, of three applications in turn.
struct Home {
    explicit Home(std::int64_t rows)
    {
        QDir().mkpath(directory.path() + folder);
        sqlite3 *database = nullptr;
        ::sqlite3_open(qPrintable(directory.path() + folder + QStringLiteral("/db")), &database);
        QFile payload(QStringLiteral(PAYLOAD));
        if (!payload.open(QIODevice::ReadOnly))
            std::abort();
        const QString query =
            QStringLiteral(
                "CREATE TABLE app (app_id INTEGER PRIMARY KEY, identifier);"
                "INSERT INTO app VALUES (0, 'com.tinyspeck.slackmacgap'), (1, 'com.hnc.Discord'),"
                " (2, 'com.other');"
                "CREATE TABLE record (rec_id INTEGER PRIMARY KEY, app_id, uuid, data,"
                " delivered_date REAL);"
                "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT %1)"
                " INSERT INTO record SELECT i, i %% 3, randomblob(16), x'%2', i FROM n;")
                .arg(rows)
                .arg(QString::fromLatin1(payload.readAll().toHex()))
                .replace(QStringLiteral("%%"), QStringLiteral("%"));
        if (::sqlite3_exec(database, qPrintable(query), nullptr, nullptr, nullptr) != SQLITE_OK)
            std::abort();
        ::sqlite3_close(database);
    }
    QTemporaryDir directory;
};

double bytesReadSoFar()
{
    QFile file(QStringLiteral("/proc/self/io"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split('\n').first().split(' ').last().toDouble(); // rchar
}

/// What one poll costs its background thread.
void pollNotificationDatabase(benchmark::State &state)
{
    const Home home(state.range(0));
    const SqliteNotificationDatabase database;
    const QList<WatchedNotificationApp> apps(allWatchedApps.begin(), allWatchedApps.end());
    const double before = bytesReadSoFar();
    qsizetype found = 0;
    while (state.KeepRunning())
        found += storedNotifications(database, home.directory.path(), apps).size();
    const auto polls = static_cast<double>(state.iterations());
    state.counters["bytesRead"] = (bytesReadSoFar() - before) / polls;
    state.counters["notifications"] = static_cast<double>(found) / polls;
}
BENCHMARK(pollNotificationDatabase)->Arg(50)->Arg(500)->Arg(5000);

} // namespace
