#include "app/IslandStateFeed.h"

#include "claude/ClaudeCodeMonitor.h"
#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "platform/StatePublisher.h"
#include "tools/TimerFields.h"
#include "tools/Timers.h"
#include "weather/WeatherFields.h"
#include "weather/WeatherService.h"

namespace quillmere {

namespace {

template <class T>
void insertIfPresent(QVariantMap &map, const char *key, const std::optional<T> &value)
{
    if (value)
        map.insert(QLatin1StringView(key), *value);
}

template <class T>
QVariantMap fieldsOrNothing(const std::optional<T> &record, QVariantMap (*fields)(const T &))
{
    return record ? fields(*record) : QVariantMap();
}

QVariantList activityFields(const QList<HUDContent> &queue)
{
    QVariantList activities;
    for (const HUDContent &hud : queue)
        activities.append(hudFields(hud));
    return activities;
}

} // namespace

QVariantMap hudFields(const HUDContent &hud)
{
    QVariantMap map{{QStringLiteral("title"), hud.title},
                    {QStringLiteral("type"), hudTypeName(hud.type)},
                    {QStringLiteral("isBrowserFallback"), hud.isBrowserFallback}};
    insertIfPresent(map, "subtitle", hud.subtitle);
    insertIfPresent(map, "icon", hud.icon);
    insertIfPresent(map, "level", hud.level);
    insertIfPresent(map, "mediaProgress", hud.mediaProgress);
    insertIfPresent(map, "mediaElapsed", hud.mediaElapsed);
    insertIfPresent(map, "mediaRemaining", hud.mediaRemaining);
    insertIfPresent(map, "bundleID", hud.bundleID);
    insertIfPresent(map, "contentURL", hud.contentURL);
    insertIfPresent(map, "isPlaying", hud.isPlaying);
    return map;
}

QVariantMap claudeCodeFields(const ClaudeCodeMonitor &monitor)
{
    QVariantMap map{{QStringLiteral("isActive"), monitor.isActive()},
                    {QStringLiteral("status"), QString(claudeCodeStatusText(monitor.status()))}};
    if (const auto &session = monitor.currentSession()) {
        map.insert(QStringLiteral("sessionId"), session->sessionId);
        map.insert(QStringLiteral("projectName"), session->projectName);
        insertIfPresent(map, "currentTool", session->currentTool);
        insertIfPresent(map, "lastPrompt", session->lastPrompt);
    }
    return map;
}

QVariantMap systemStatsFields(const SystemStats &stats)
{
    return {{QStringLiteral("cpuUsage"), stats.cpuUsage},
            {QStringLiteral("memoryUsage"), stats.memoryUsage},
            {QStringLiteral("memoryUsedGB"), stats.memoryUsedGB},
            {QStringLiteral("memoryTotalGB"), stats.memoryTotalGB},
            {QStringLiteral("diskUsage"), stats.diskUsage},
            {QStringLiteral("diskUsedGB"), stats.diskUsedGB},
            {QStringLiteral("diskTotalGB"), stats.diskTotalGB}};
}

IslandStateFeed::IslandStateFeed(StatePublisher &publisher, HUDManager &hudManager,
                                 ContentView &contentView, FloatingPanel &panel,
                                 ClaudeCodeMonitor &claudeCode, WeatherService &weather,
                                 Timers &timers)
{
    const auto feed = [this](auto &source, auto signal, auto publish) {
        connect(&source, signal, this, publish);
        publish();
    };
    feed(contentView, &ContentView::presentationChanged, [&publisher, &contentView] {
        publisher.publish(QStringLiteral("Presentation"),
                          presentationName(contentView.presentation()));
    });
    feed(contentView.pages(), &IslandPages::pageChanged, [&publisher, &contentView] {
        publisher.publish(QStringLiteral("Page"), islandPageName(contentView.pages().islandPage()));
    });
    feed(hudManager, &HUDManager::currentHUDChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("CurrentHUD"),
                          fieldsOrNothing(hudManager.currentHUD(), hudFields));
    });
    feed(hudManager, &HUDManager::currentNowPlayingChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("NowPlaying"),
                          fieldsOrNothing(hudManager.currentNowPlaying(), hudFields));
    });
    feed(hudManager, &HUDManager::hudQueueChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("Activities"), activityFields(hudManager.hudQueue()));
    });
    feed(panel, &FloatingPanel::frameChanged, [&publisher, &panel] {
        publisher.publish(QStringLiteral("Frame"), panel.frame().toAlignedRect());
    });
    const auto publishClaudeCode = [&publisher, &claudeCode] {
        publisher.publish(QStringLiteral("ClaudeCode"), claudeCodeFields(claudeCode));
    };
    feed(claudeCode, &ClaudeCodeMonitor::currentSessionChanged, publishClaudeCode);
    feed(claudeCode, &ClaudeCodeMonitor::statusChanged, publishClaudeCode);
    feed(claudeCode, &ClaudeCodeMonitor::isActiveChanged, publishClaudeCode);
    feed(weather, &WeatherService::cachedWeatherChanged, [&publisher, &weather] {
        publisher.publish(QStringLiteral("Weather"),
                          fieldsOrNothing(weather.cachedWeather(), weatherFields));
    });
    feed(hudManager, &HUDManager::systemStatsChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("SystemStats"),
                          fieldsOrNothing(hudManager.systemStats(), systemStatsFields));
    });
    const auto publishTimers = [&publisher, &timers] {
        publisher.publish(QStringLiteral("Timers"),
                          timerFields(timers.pomodoro(), timers.countdown()));
    };
    feed(timers.pomodoro(), &PomodoroManager::stateChanged, publishTimers);
    feed(timers.pomodoro(), &PomodoroManager::timeRemainingChanged, publishTimers);
    feed(timers.countdown(), &CountdownTimerManager::modeChanged, publishTimers);
    feed(timers.countdown(), &CountdownTimerManager::isRunningChanged, publishTimers);
    feed(timers.countdown(), &CountdownTimerManager::elapsedSecondsChanged, publishTimers);
    feed(timers.countdown(), &CountdownTimerManager::targetSecondsChanged, publishTimers);
}

} // namespace quillmere
