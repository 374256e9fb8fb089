#pragma once

#include "google/GoogleAuthManager.h"
#include "google/GoogleServicesMonitor.h"

#include <optional>

namespace quillmere {

class HUDManager;
struct HUDContent;
struct Platform;

/// The user's Google account: signed in on request, and asked for news while the settings want any.
/// Without an account nothing is asked, neither Google nor the keyring. Main thread only.
class GoogleAccount
{
public:
    /// While `isSuppressed` there are no HUDs.
    GoogleAccount(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                  std::function<bool()> isSuppressed);

    void start();
    void stop();

    GoogleAuthManager &authManager() { return authManager_; }

    /// For those who have no window to see what comes of it: tells it in the log.
    void signIn();
    void signOut();

private:
    void settingChanged(const QString &key);
    void update();
    void showMessage(const QString &sender, const QString &subject);
    void showEvent(const QString &title, const QDateTime &start,
                   const std::optional<QString> &link);
    void show(HUDContent hud, double duration);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::function<bool()> isSuppressed_;
    bool isStarted_ = false;
    GoogleAuthManager authManager_;
    std::optional<GoogleServicesMonitor> monitor_; ///< of one account, while something is wanted
    QObject context_;
};

} // namespace quillmere
