#pragma once

#include "platform/NotificationDatabase.h"

namespace quillmere {

/// Reads by SQLite, as somebody who may only read. Whoever made the file, reading it takes a
/// bounded time and a bounded amount of memory.
class SqliteNotificationDatabase : public NotificationDatabase
{
public:
    QList<NotificationRow>
    newestRows(const QString &path,
               const std::function<bool(const QString &appID)> &isWanted) const override;
};

} // namespace quillmere
