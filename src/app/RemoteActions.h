#pragma once

#include <QHash>
#include <QString>
#include <QVariantList>

#include <functional>

namespace quillmere {

class AppDelegate;
class NotificationCenter;
class RemoteControl;
class WebAuthSession;
struct ActionOutcome;

/// Answers what other programs, desktop actions and key bindings ask of the running program.
class RemoteActions
{
public:
    RemoteActions(RemoteControl &remoteControl, NotificationCenter &notificationCenter,
                  WebAuthSession &webAuthSession, AppDelegate &delegate);
    ~RemoteActions();
    RemoteActions(const RemoteActions &) = delete;
    RemoteActions &operator=(const RemoteActions &) = delete;

private:
    ActionOutcome activate(const QString &action, const QVariantList &parameter) const;

    RemoteControl &remoteControl_;
    AppDelegate &delegate_;
    QHash<QString, std::function<void()>> actions_;
};

} // namespace quillmere
