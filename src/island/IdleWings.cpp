#include "island/IdleWings.h"

#include "island/HUDManager.h"
#include "platform/RunningApplications.h"
#include "settings/SettingsStore.h"

#include <utility>

namespace quillmere {

namespace {

constexpr double wingWidth = 44;
constexpr double wordyWingWidth = 84;
constexpr double longTimerWidth = 66;
constexpr qsizetype shortTimer = 5; // letters: "59:59"

} // namespace

double WingContent::width() const
{
    if (longTimer)
        return longTimerWidth;
    if (assistant && !media && !timer)
        return wordyWingWidth;
    return media || assistant || timer || activity ? wingWidth : 0;
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

void IdleWings::setTimerText(const QString &text)
{
    timerLetters_ = text.size();
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
    WingContent content{.media = showsMedia(),
                        .assistant = assistantActive_,
                        .timer = timerLetters_ > 0,
                        .longTimer = timerLetters_ > shortTimer};
    content.activity = !content.media && !content.assistant && !content.timer &&
                       settings_.idleActivityMostRecent.get() && !hudManager_.hudQueue().isEmpty();
    if (std::exchange(content_, content) != content)
        Q_EMIT contentChanged();
}

} // namespace quillmere
