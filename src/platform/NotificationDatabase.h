#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace quillmere {

/// A row of a notification service's database, its payload still as stored.
struct NotificationRow {
    QString appID{};
    QString uuid{};           ///< a fresh one, each time it is read, for a row without any
    QByteArray data{};        ///< untrusted; never empty
    double deliveredDate = 0; ///< seconds since 2001-01-01 00:00:00 UTC

    bool operator==(const NotificationRow &) const = default;
};

/// Reads the database files that notification services keep. Any thread; waits for the disk.
class NotificationDatabase
{
public:
    static constexpr int mostRows = 50;

    virtual ~NotificationDatabase() = default;

    /// Those of the newest rows whose application is wanted, newest first. A file that is missing,
    /// locked, damaged or too large to read in a moment has none.
    virtual QList<NotificationRow>
    newestRows(const QString &path,
               const std::function<bool(const QString &appID)> &isWanted) const = 0;
};

} // namespace quillmere
