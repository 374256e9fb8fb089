#include "island/IdleWings.h"

#include "island/HUDManager.h"
#include "platform/RunningApplications.h"
#include "settings/SettingsStore.h"

#include <utility>

namespace quillmere {

namespace {

constexpr double wingWidth = 44;
constexpr double wordyWingWidth = 84;

} // namespace

double WingContent::width() const
{
    if (assistant && !media)
        return wordyWingWidth;
    return media || activity ? wingWidth : 0;
}

IdleWings::IdleWings(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                     RunningApplications &applications)
    : runLoop_(runLoop)
    , settings_(settings)
    , hudManager_(hudManager)
    , applications_(applications)
    , applicationsListener_(applications.onChanged([this] { update(); }))
{
    connect(&hudManager_, &HUDManager::currentNowPlayingChanged, this, &IdleWings::trackChanged);
    connect(&hudManager_, &HUDManager::hudQueueChanged, this, &IdleWings::update);
    connect(&settings_, &SettingsStore::didChange, this, &IdleWings::update);
    trackChanged();
}

void IdleWings::setAssistantActive(bool active)
{
    assistantActive_ = active;
    update();
}

void IdleWings::trackChanged()
{
    const auto &track = hudManager_.currentNowPlaying();
    if (!track || track->isPlaying.value_or(true)) {
        pauseLimit_ = {};
        pausedTooLong_ = false;
    } else if (!pauseLimit_ && !pausedTooLong_) {
        pauseLimit_ = runLoop_.after(seconds(settings_.nowPlayingIdleDuration.get()), [this] {
            pauseLimit_ = {};
            pausedTooLong_ = true;
            update();
        });
    }
    update();
}

bool IdleWings::showsMedia() const
{
    const auto &track = hudManager_.currentNowPlaying();
    const auto type = settings_.idleActivityType.get();
    const bool isWanted = type == IdleActivityType::Playing || type == IdleActivityType::Duo;
    if (!track || pausedTooLong_ || !isWanted || !settings_.showMediaHUD.get())
        return false;
    const QString source = track->bundleID.value_or(QString());
    return !settings_.hideWhileSourceAppActive.get() || source.isEmpty() ||
           source != applications_.frontmost();
}

void IdleWings::update()
{
    WingContent content{.media = showsMedia(), .assistant = assistantActive_};
    content.activity = !content.media && !content.assistant &&
                       settings_.idleActivityMostRecent.get() && !hudManager_.hudQueue().isEmpty();
    if (std::exchange(content_, content) != content)
        Q_EMIT contentChanged();
}

} // namespace quillmere
