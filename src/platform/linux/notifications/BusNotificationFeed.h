#pragma once

#include "platform/Listeners.h"
#include "platform/NotificationFeed.h"
#include "platform/RunLoop.h"
#include "platform/linux/notifications/MonitorConnection.h"
#include "platform/linux/notifications/NotificationCall.h"

#include <QString>

#include <deque>
#include <optional>

namespace quillmere {

/// Where the session bus is; empty if there is none.
QString sessionBusAddress();

/// Sees what programs ask the notification service to show, as a monitor of the session bus on a
/// connection of its own: it takes no name and answers nothing, so everything else goes on as if it
/// were not there. A bus that is lost is looked for again. Main thread only.
class BusNotificationFeed : public NotificationFeed
{
public:
    static constexpr Duration firstRetry = std::chrono::seconds(1);
    static constexpr Duration longestRetry = std::chrono::minutes(1);

    BusNotificationFeed(RunLoop &runLoop, QString address);

    Task onNotification(Listener listener) override;

private:
    /// A notification told of not long ago.
    struct Told {
        QString sender;
        ParsedNotification notification;
        Instant time;
    };

    /// What there is only while somebody listens.
    struct Watch {
        std::optional<MonitorConnection> connection;
        Task retry;
        Owner owner;
    };

    void connect();
    void connected(tl::expected<OwnedBusConnection, QString> connection);
    void retryLater();
    void take(DBusMessage *message);
    bool isRepetition(const NotificationCall &call, const ParsedNotification &notification);

    RunLoop &runLoop_;
    const QString address_;
    Listeners<const ParsedNotification &> listeners_;
    std::optional<Watch> watch_;
    Duration retryDelay_ = firstRetry;
    QString complaint_;     ///< the last one
    std::deque<Told> told_; ///< oldest first
    Owner owner_;
};

} // namespace quillmere
