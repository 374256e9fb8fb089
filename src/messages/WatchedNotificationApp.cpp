#include "messages/WatchedNotificationApp.h"

#include "settings/SettingsStore.h"

#include <algorithm>

namespace quillmere {

namespace {

struct AppRow {
    QLatin1StringView matchKey;
    QLatin1StringView displayName;
    const UserDefaultsSetting<bool> SettingsStore::*show;
};

const AppRow &rowOf(WatchedNotificationApp app)
{
    static const std::array<AppRow, allWatchedApps.size()> rows{
        {{QLatin1StringView("discord"), QLatin1StringView("Discord"),
          &SettingsStore::showDiscordHUD},
         {QLatin1StringView("slack"), QLatin1StringView("Slack"), &SettingsStore::showSlackHUD}}};
    return rows.at(static_cast<std::size_t>(app));
}

} // namespace

QLatin1StringView matchKey(WatchedNotificationApp app)
{
    return rowOf(app).matchKey;
}

QString displayName(WatchedNotificationApp app)
{
    return rowOf(app).displayName;
}

QList<WatchedNotificationApp> watchedApps(const SettingsStore &settings)
{
    QList<WatchedNotificationApp> apps;
    for (const auto app : allWatchedApps) {
        if ((settings.*rowOf(app).show).get())
            apps.append(app);
    }
    return apps;
}

std::optional<WatchedNotificationApp> matchingApp(const QString &appID,
                                                  const QList<WatchedNotificationApp> &apps)
{
    const QString lowered = appID.toLower();
    const auto found = std::ranges::find_if(
        apps, [&](WatchedNotificationApp app) { return lowered.contains(matchKey(app)); });
    return found == apps.end() ? std::nullopt : std::optional(*found);
}

} // namespace quillmere
