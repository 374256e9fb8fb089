#include "nowplaying/NowPlayingPoller.h"

#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "nowplaying/MediaContent.h"
#include "nowplaying/NowPlayingArtworkService.h"
#include "platform/MediaRemote.h"
#include "platform/NotificationCenter.h"
#include "settings/SettingsStore.h"

#include <array>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration pollInterval = 1s;
constexpr Duration pollTolerance = 150ms;
constexpr Duration firstPollDelay = 800ms;
constexpr Duration debounceDelay = 150ms;
constexpr Duration pollSpacing = 400ms;
constexpr qint64 idlePollsBeforeFallback = 2;

constexpr std::array changes{mediaEvents::infoDidChange, mediaEvents::applicationDidChange,
                             mediaEvents::isPlayingDidChange, mediaEvents::infoChanged,
                             mediaEvents::applicationChanged};

bool isIdle(const std::optional<NowPlayingInfo> &info)
{
    return !info || info->title.isEmpty() || !info->isPlaying.value_or(true);
}

} // namespace

NowPlayingPoller::NowPlayingPoller(const Services &services)
    : services_(services)
    , fallback_({services.runLoop, services.hudManager, services.logger, services.artworkService,
                 services.scripts, services.applications, services.audioStreams})
{
}

NowPlayingPoller::~NowPlayingPoller()
{
    stop();
}

void NowPlayingPoller::start()
{
    if (timer_)
        return;
    for (const QLatin1StringView change : changes)
        notificationObservers_.push_back(services_.notificationCenter.observe(
            change, [this](const QVariantMap &) { mediaDidChange(); }));
    timer_ = services_.runLoop.every(pollInterval, pollTolerance, [this] { poll(); });
    firstPoll_ = services_.runLoop.after(firstPollDelay, [this] { poll(); });
}

void NowPlayingPoller::stop()
{
    lastPollTime_.reset();
    fallback_.reset();
    timer_.cancel();
    firstPoll_.cancel();
    debounce_.reset();
    notificationObservers_.clear();
    completions_.clear();
    appliedNumber_ = pollNumber_;
    services_.artworkService.cancel();
}

void NowPlayingPoller::mediaDidChange()
{
    lastChange_ = services_.runLoop.now();
    if (!debounce_)
        awaitQuiet();
}

void NowPlayingPoller::awaitQuiet()
{
    const Instant end = lastChange_ + debounceDelay;
    debounce_ = services_.runLoop.after(end - services_.runLoop.now(), [this, end] {
        const bool isChangedSince = lastChange_ + debounceDelay > end;
        debounce_.reset();
        const Instant now = services_.runLoop.now();
        if (!lastPollTime_ || now - *lastPollTime_ > pollSpacing)
            poll();
        else if (isChangedSince)
            awaitQuiet();
    });
}

void NowPlayingPoller::poll(Completion completion)
{
    if (!services_.settings.showMediaHUD.get()) {
        fallback_.reset();
        return clearWhenIdle();
    }
    lastPollTime_ = services_.runLoop.now();
    if (completion)
        completions_.push_back(std::move(completion));
    services_.artworkService.fetch([this, alive = owner_.reference(), number = ++pollNumber_](
                                       const std::optional<NowPlayingInfo> &info) {
        if (!alive.expired())
            answered(number, info);
    });
}

void NowPlayingPoller::answered(quint64 number, const std::optional<NowPlayingInfo> &info)
{
    // An answer that waited for its artwork can come after that of a later poll.
    if (number <= appliedNumber_ || !services_.settings.showMediaHUD.get())
        return;
    appliedNumber_ = number;
    if (isIdle(info))
        applyIdle(info);
    else
        applyPlaying(*info);
    for (const Completion &completion : std::exchange(completions_, {}))
        completion(info);
}

void NowPlayingPoller::applyIdle(const std::optional<NowPlayingInfo> &info)
{
    ++electedInactivePolls_;
    fallback_.keep();
    if (electedInactivePolls_ >= idlePollsBeforeFallback)
        fallback_.query();
    if (fallback_.isShowing())
        lastShown_ = services_.runLoop.now();
    else if (info && !info->title.isEmpty())
        show(*info);
    else
        clearWhenIdle();
}

void NowPlayingPoller::applyPlaying(const NowPlayingInfo &info)
{
    electedInactivePolls_ = 0;
    fallback_.electedItemPlays();
    show(info);
}

void NowPlayingPoller::show(const NowPlayingInfo &info)
{
    lastShown_ = services_.runLoop.now();
    services_.logger.log(IslandDebugLogger::Category::Poller, [&info] { return pollLine(info); });
    if (info.duration)
        services_.hudManager.updateNowPlaying(mediaContent(info), shownElapsed(info),
                                              *info.duration);
    else
        services_.hudManager.showNowPlaying(mediaContent(info));
}

/// A gap between two tracks, or a player that misses one question, should not blink.
void NowPlayingPoller::clearWhenIdle()
{
    const Duration idle = seconds(services_.settings.nowPlayingIdleDuration.get());
    if (!lastShown_ || services_.runLoop.now() - *lastShown_ < idle)
        return;
    lastShown_.reset();
    services_.hudManager.clearNowPlaying();
}

} // namespace quillmere
