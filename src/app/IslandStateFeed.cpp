#include "app/IslandStateFeed.h"

#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "platform/StatePublisher.h"

namespace quillmere {

namespace {

template <class T>
void insertIfPresent(QVariantMap &map, const char *key, const std::optional<T> &value)
{
    if (value)
        map.insert(QLatin1StringView(key), *value);
}

QVariantMap hudOrNothing(const std::optional<HUDContent> &hud)
{
    return hud ? hudFields(*hud) : QVariantMap();
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

IslandStateFeed::IslandStateFeed(StatePublisher &publisher, HUDManager &hudManager,
                                 ContentView &contentView, FloatingPanel &panel)
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
        publisher.publish(QStringLiteral("CurrentHUD"), hudOrNothing(hudManager.currentHUD()));
    });
    feed(hudManager, &HUDManager::currentNowPlayingChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("NowPlaying"),
                          hudOrNothing(hudManager.currentNowPlaying()));
    });
    feed(hudManager, &HUDManager::hudQueueChanged, [&publisher, &hudManager] {
        publisher.publish(QStringLiteral("Activities"), activityFields(hudManager.hudQueue()));
    });
    feed(panel, &FloatingPanel::frameChanged, [&publisher, &panel] {
        publisher.publish(QStringLiteral("Frame"), panel.frame().toAlignedRect());
    });
}

} // namespace quillmere
