#pragma once

#include "google/CalendarDay.h"
#include "google/GoogleAuthManager.h"
#include "google/GoogleServicesMonitor.h"
#include "island/HUDContent.h"

#include <optional>

namespace quillmere {

class HUDManager;
struct Platform;

/// The user's Google account: signed in on request, and asked for news while the settings want any.
/// Without an account nothing is asked, neither Google nor the keyring. Main thread only.
class GoogleAccount
{
public:
    /// There are no HUDs of the types that `isSuppressed`.
    GoogleAccount(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                  std::function<bool(HUDContent::HUDType type)> isSuppressed);

    void start();
    void stop();

    GoogleAuthManager &authManager() { return authManager_; }

    /// Whether a HUD of this type may come as far as the calendar is concerned.
    bool allows(HUDContent::HUDType type) const;

    /// For those who have no window to see what comes of it: tells it in the log.
    void signIn();
    void signOut();

private:
    void settingChanged(const QString &key);
    void update();
    void updateMonitor(bool isWanted);
    void updateDay(bool isWanted);
    void showMessage(const QString &sender, const QString &subject);
    void showEvent(const QString &title, const QDateTime &start,
                   const std::optional<QString> &link);
    void show(HUDContent hud, double duration);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::function<bool(HUDContent::HUDType)> isSuppressed_;
    bool isStarted_ = false;
    GoogleAuthManager authManager_;
    std::optional<GoogleServicesMonitor> monitor_; ///< of one account, while something is wanted
    std::optional<CalendarDay> day_;               ///< of one account, while a setting follows it
    QObject context_;
};

} // namespace quillmere
