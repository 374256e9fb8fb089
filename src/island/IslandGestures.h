#pragma once

#include "island/SwipeRecognizer.h"
#include "platform/Task.h"

#include <QString>

#include <functional>

namespace quillmere {

class ContentView;
class HUDManager;
class NotificationCenter;
class RunLoop;
class SettingsStore;

/// What fingers and wheels do to the island.
///
/// Sideways: pages of the open dashboard (activities, when it has but one page), and activities in
/// the pill's wings, or tracks. Up and down on a touchpad: opens and closes, and dismisses what a
/// HUD or the wings show. `naturalMovement` turns every direction round. Main thread only.
class IslandGestures
{
public:
    IslandGestures(RunLoop &runLoop, SettingsStore &settings,
                   NotificationCenter &notificationCenter, HUDManager &hudManager,
                   ContentView &contentView);

    /// True: the event belongs to a swipe, and must not do anything else besides.
    bool takesScroll(const ScrollEvent &event);

    /// A swipe over the playing track in the wings, 1 or -1: to the next track or the previous one.
    std::function<void(int step)> onSkipMedia;

private:
    void scrolledSideways(const QString &direction);
    void stepActivity(int step);
    bool swipesAnything() const;
    void swipedDown();
    void swipedUp();

    RunLoop &runLoop_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    ContentView &contentView_;
    GestureGate sideways_;
    SwipeRecognizer vertical_;
    Task scrollObserver_;
};

} // namespace quillmere
