#pragma once

#include <QLatin1StringView>
#include <QList>
#include <QString>

#include <array>
#include <optional>

namespace quillmere {

class SettingsStore;

/// The chat applications whose messages are announced.
enum class WatchedNotificationApp { Discord, Slack };

inline constexpr std::array allWatchedApps{WatchedNotificationApp::Discord,
                                           WatchedNotificationApp::Slack};

/// What the lower-cased identifier of the application contains.
QLatin1StringView matchKey(WatchedNotificationApp app);

/// "Discord", "Slack".
QString displayName(WatchedNotificationApp app);

/// Those whose HUD the user wants.
QList<WatchedNotificationApp> watchedApps(const SettingsStore &settings);

/// The first of `apps` that an application identifier belongs to.
std::optional<WatchedNotificationApp> matchingApp(const QString &appID,
                                                  const QList<WatchedNotificationApp> &apps);

} // namespace quillmere
