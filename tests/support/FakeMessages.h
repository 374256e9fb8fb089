#pragma once

#include "platform/ApplicationIcons.h"
#include "platform/ApplicationLauncher.h"
#include "platform/Listeners.h"
#include "platform/NewMailSignal.h"
#include "platform/NotificationDatabase.h"
#include "platform/NotificationFeed.h"

#include <map>

namespace quillmere {

/// Files in memory.
class FakeNotificationDatabase : public NotificationDatabase
{
public:
    QList<NotificationRow>
    newestRows(const QString &path,
               const std::function<bool(const QString &)> &isWanted) const override
    {
        reads.append(path);
        QList<NotificationRow> wanted;
        const auto file = files.find(path);
        for (const auto &row : file == files.end() ? QList<NotificationRow>() : file->second) {
            if (isWanted(row.appID))
                wanted.append(row);
        }
        return wanted;
    }

    std::map<QString, QList<NotificationRow>> files; ///< newest row first
    mutable QStringList reads;
};

struct FakeNotificationFeed : NotificationFeed {
    Task onNotification(Listener listener) override { return listeners.add(std::move(listener)); }
    Listeners<const ParsedNotification &> listeners;
};

struct FakeNewMailSignal : NewMailSignal {
    Task onNewMail(Listener listener) override { return listeners.add(std::move(listener)); }
    Listeners<const QString &, const QString &> listeners;
};

struct FakeApplicationIcons : ApplicationIcons {
    QImage icon(const QString &bundleID) override
    {
        wanted.append(bundleID);
        return image;
    }
    QStringList wanted;
    QImage image;
};

struct FakeApplicationLauncher : ApplicationLauncher {
    bool open(const QString &bundleID) override
    {
        opened.append(bundleID);
        return true;
    }
    QStringList opened;
};

} // namespace quillmere
