#pragma once

#include "island/HUDContent.h"
#include "messages/EmailMonitor.h"
#include "messages/NotificationCenterMonitor.h"

#include <QObject>

#include <functional>

namespace quillmere {

class ApplicationIcons;
class HUDManager;
struct Platform;
class SettingsStore;

/// Tells who wrote, in chat applications and by mail, as far as the settings want it. Main thread
/// only.
class Messages
{
public:
    /// There are no HUDs of the types that `isSuppressed`. `home` is where the user's files are.
    Messages(Platform &platform, SettingsStore &settings, HUDManager &hudManager, QString home,
             std::function<bool(HUDContent::HUDType type)> isSuppressed);

    void startMail();
    void startNotifications();
    void stop();

    EmailMonitor &mail() { return mail_; }
    NotificationCenterMonitor &notifications() { return notifications_; }

private:
    void settingChanged(const QString &key);
    void restartNotifications();
    void learnIcons();
    void show(HUDContent hud, double duration);

    SettingsStore &settings_;
    ApplicationIcons &icons_;
    HUDManager &hudManager_;
    std::function<bool(HUDContent::HUDType)> isSuppressed_;
    EmailMonitor mail_;
    NotificationCenterMonitor notifications_;
    QObject context_;
};

} // namespace quillmere
