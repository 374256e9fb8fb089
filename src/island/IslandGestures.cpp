#include "island/IslandGestures.h"

#include "app/AppEvents.h"
#include "island/ContentView.h"
#include "island/HUDManager.h"
#include "island/IdleWings.h"
#include "platform/NotificationCenter.h"
#include "settings/SettingsStore.h"

#include <cmath>

namespace quillmere {

IslandGestures::IslandGestures(RunLoop &runLoop, SettingsStore &settings,
                               NotificationCenter &notificationCenter, HUDManager &hudManager,
                               ContentView &contentView)
    : runLoop_(runLoop)
    , settings_(settings)
    , hudManager_(hudManager)
    , contentView_(contentView)
    , scrollObserver_(
          notificationCenter.observe(events::islandScrolled, [this](const QVariantMap &userInfo) {
              scrolledSideways(userInfo.value(events::scrollDirection).toString());
          }))
{
}

void IslandGestures::scrolledSideways(const QString &direction)
{
    int step = direction == u"right" ? 1 : -1;
    if (!sideways_.passes(step, runLoop_.now()))
        return;
    if (settings_.naturalMovement.get())
        step = -step;
    auto &pages = contentView_.pages();
    switch (contentView_.presentation()) {
    case Presentation::Expanded:
        if (pages.offered().size() > 1)
            pages.step(step);
        else
            stepActivity(step);
        break;
    case Presentation::Collapsed:
        if (contentView_.idleActivity())
            stepActivity(step);
        else if (contentView_.wings().content().media && settings_.swipeToSkipMedia.get() &&
                 onSkipMedia)
            onSkipMedia(step);
        break;
    case Presentation::HUD:
        break;
    }
}

void IslandGestures::stepActivity(int step)
{
    if (!settings_.swipeToCycleActivity.get())
        return;
    if (step > 0)
        hudManager_.showNextActivity();
    else
        hudManager_.showPreviousActivity();
}

bool IslandGestures::takesScroll(const ScrollEvent &event)
{
    const bool vertical = std::abs(event.deltaY) > std::abs(event.deltaX);
    if (!event.precise || !vertical)
        return false;
    // What dismissed the last thing there was to swipe has an end that belongs to it.
    if (!swipesAnything() && !vertical_.isGoingOn(runLoop_.now()))
        return false;
    const int swipe = vertical_.feed(event, runLoop_.now());
    const int up = settings_.naturalMovement.get() ? -1 : 1;
    if (swipe == up)
        swipedUp();
    else if (swipe != 0)
        swipedDown();
    return true;
}

bool IslandGestures::swipesAnything() const
{
    switch (contentView_.presentation()) {
    case Presentation::Collapsed:
        return settings_.swipeToToggleOpen.get() ||
               (settings_.swipeToDismissActivity.get() && contentView_.idleActivity());
    case Presentation::HUD:
        return settings_.swipeToDismissActivity.get();
    case Presentation::Expanded:
        return settings_.swipeToToggleOpen.get();
    }
    return false;
}

void IslandGestures::swipedDown()
{
    if (contentView_.presentation() == Presentation::Collapsed && settings_.swipeToToggleOpen.get())
        contentView_.toggle();
}

void IslandGestures::swipedUp()
{
    switch (contentView_.presentation()) {
    case Presentation::Collapsed:
        if (settings_.swipeToDismissActivity.get())
            contentView_.dismissIdleActivity();
        break;
    case Presentation::HUD:
        if (settings_.swipeToDismissActivity.get())
            contentView_.dismissHUD();
        break;
    case Presentation::Expanded:
        if (settings_.swipeToToggleOpen.get())
            contentView_.toggle();
        break;
    }
}

} // namespace quillmere
