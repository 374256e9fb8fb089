#include "island/HUDManager.h"

#include "island/IslandDebugLogger.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

using HUDType = HUDContent::HUDType;
using Category = IslandDebugLogger::Category;

constexpr Duration launchMute = std::chrono::seconds(3);
constexpr Duration overshootTime = std::chrono::milliseconds(350);
constexpr Duration interpolationInterval = std::chrono::milliseconds(250);
constexpr Duration interpolationTolerance = std::chrono::milliseconds(50);

HUDContent levelHUD(HUDType type, double percent)
{
    HUDContent content;
    const bool volume = type == HUDType::Volume;
    content.title = volume ? QStringLiteral("Volume") : QStringLiteral("Brightness");
    content.icon = volume ? volumeSymbol(percent) : symbols::sunMax;
    content.level = percent / 100;
    content.type = type;
    return content;
}

} // namespace

HUDManager::HUDManager(RunLoop &runLoop, SettingsStore &settings, IslandDebugLogger &logger,
                       QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , settings_(settings)
    , logger_(logger)
    , launchTime_(runLoop.now())
{
}

template <class Operation>
void HUDManager::onMain(Operation operation)
{
    if (runLoop_.isMainThread())
        operation();
    else
        runLoop_.post(owner_, std::move(operation));
}

template <class T, class U>
void HUDManager::publish(T &field, U &&value, Signal changed)
{
    if (field == value)
        return;
    field = std::forward<U>(value);
    Q_EMIT(this->*changed)();
}

void HUDManager::show(HUDContent content, bool keepAsActivity, double durationSeconds)
{
    onMain([this, content = std::move(content), keepAsActivity, durationSeconds]() mutable {
        present(std::move(content), keepAsActivity, durationSeconds);
    });
}

void HUDManager::showVolume(double percent, double durationSeconds)
{
    onMain([=, this] { presentLevel(HUDType::Volume, percent, durationSeconds); });
}

void HUDManager::showBrightness(double percent, double durationSeconds)
{
    onMain([=, this] { presentLevel(HUDType::Brightness, percent, durationSeconds); });
}

void HUDManager::showLowBattery(int percent, double durationSeconds)
{
    HUDContent content;
    content.title = tr("Low Battery");
    content.subtitle = tr("%1% remaining").arg(percent);
    content.icon = symbols::battery25;
    content.level = std::clamp(percent, 0, 100) / 100.0;
    content.type = HUDType::Battery;
    show(std::move(content), false, durationSeconds);
}

void HUDManager::dismissCurrentHUD()
{
    onMain([this] {
        dismissTask_.cancel();
        publish(currentHUD_, std::nullopt, &HUDManager::currentHUDChanged);
    });
}

void HUDManager::updateNowPlaying(HUDContent record, double elapsed, double duration)
{
    onMain([this, poll = PlayheadPoll{std::move(record), elapsed, duration}]() mutable {
        applyPoll(std::move(poll));
    });
}

void HUDManager::clearNowPlaying()
{
    onMain([this] { publishWithoutPlayhead(std::nullopt); });
}

void HUDManager::showNowPlaying(HUDContent record)
{
    onMain([this, record = std::move(record)]() mutable {
        publishWithoutPlayhead(std::move(record));
    });
}

void HUDManager::freezePlayhead(HUDContent record)
{
    onMain([this, record = std::move(record)]() mutable {
        playhead_ = frozenPlayhead(std::move(playhead_), runLoop_.now());
        progressInterpolationTimer_.cancel();
        publish(currentNowPlaying_, std::move(record), &HUDManager::currentNowPlayingChanged);
    });
}

void HUDManager::setNetworkSpeed(const NetworkSpeed &speed)
{
    onMain([=, this] { publish(networkSpeed_, speed, &HUDManager::networkSpeedChanged); });
}

void HUDManager::setSystemStats(const std::optional<SystemStats> &stats)
{
    onMain([=, this] { publish(systemStats_, stats, &HUDManager::systemStatsChanged); });
}

void HUDManager::showNextActivity()
{
    onMain([this] { stepActivity(1); });
}

void HUDManager::showPreviousActivity()
{
    onMain([this] { stepActivity(-1); });
}

void HUDManager::removeActivity(int index)
{
    onMain([this, index] {
        if (index < 0 || index >= hudQueue_.size())
            return;
        hudQueue_.removeAt(index);
        const int last = std::max(static_cast<int>(hudQueue_.size()) - 1, 0);
        const int previous = currentQueueIndex_;
        currentQueueIndex_ = std::min(index < previous ? previous - 1 : previous, last);
        const bool moved = currentQueueIndex_ != previous;
        Q_EMIT hudQueueChanged();
        if (moved)
            Q_EMIT currentQueueIndexChanged();
    });
}

bool HUDManager::present(HUDContent content, bool keepAsActivity, double durationSeconds)
{
    if (runLoop_.now() - launchTime_ < launchMute)
        return false;
    const bool queueChanged = keepAsActivity && fileActivity(content);
    const bool contentChanged = currentHUD_ != content;
    currentHUD_ = std::move(content);
    currentHUDDuration_ = durationSeconds;
    dismissTask_ = runLoop_.after(seconds(durationSeconds), [this] {
        publish(currentHUD_, std::nullopt, &HUDManager::currentHUDChanged);
    });
    if (contentChanged)
        Q_EMIT currentHUDChanged();
    if (queueChanged)
        Q_EMIT hudQueueChanged();
    Q_EMIT hudPresented();
    return true;
}

void HUDManager::presentLevel(HUDType type, double percent, double durationSeconds)
{
    if (std::isnan(percent))
        return;
    percent = std::clamp(percent, 0.0, 100.0);
    if (!present(levelHUD(type, percent), false, durationSeconds))
        return;
    const bool overshootDisabled = type == HUDType::Volume
                                       ? settings_.soundDisableOvershoot.get()
                                       : settings_.displayDisableOvershoot.get();
    if (!overshootDisabled && (percent <= 0 || percent >= 100))
        overshoot();
}

bool HUDManager::fileActivity(const HUDContent &content)
{
    if (isLevel(content.type) || !settings_.swipeToCycleActivity.get())
        return false;
    const auto sameType = [&](const HUDContent &entry) { return entry.type == content.type; };
    const auto found = std::find_if(hudQueue_.begin(), hudQueue_.end(), sameType);
    if (found == hudQueue_.end()) {
        hudQueue_.append(content);
        return true;
    }
    if (*found == content)
        return false;
    *found = content;
    return true;
}

void HUDManager::stepActivity(int step)
{
    const auto count = static_cast<int>(hudQueue_.size());
    if (count > 0)
        publish(currentQueueIndex_, (currentQueueIndex_ + step + count) % count,
                &HUDManager::currentQueueIndexChanged);
}

void HUDManager::overshoot()
{
    overshootTask_ = runLoop_.after(
        overshootTime, [this] { publish(isOvershoot_, false, &HUDManager::isOvershootChanged); });
    publish(isOvershoot_, true, &HUDManager::isOvershootChanged);
}

void HUDManager::applyPoll(PlayheadPoll poll)
{
    const Instant now = runLoop_.now();
    auto decision = trackPlayhead(std::move(playhead_), std::move(poll), now);
    const PlayheadReport &report = decision.report;
    playhead_ = std::move(decision.state);
    logger_.log(Category::Progress, [&] { return logLine(report); });
    for (const auto &event : report.events)
        logger_.log(Category::Progress, [&] { return logLine(event); });

    if (!report.sameTrack || !playhead_.advancing)
        progressInterpolationTimer_.cancel();
    if (playhead_.advancing && !progressInterpolationTimer_)
        progressInterpolationTimer_ = runLoop_.every(interpolationInterval, interpolationTolerance,
                                                     [this] { emitPlayhead(runLoop_.now()); });
    emitPlayhead(now);
}

void HUDManager::publishWithoutPlayhead(std::optional<HUDContent> record)
{
    progressInterpolationTimer_.cancel();
    playhead_.advancing = false;
    playhead_.progressTemplate.reset();
    publish(currentNowPlaying_, std::move(record), &HUDManager::currentNowPlayingChanged);
}

void HUDManager::emitPlayhead(Instant now)
{
    auto frame = playheadFrame(playhead_, now);
    if (!frame)
        return;
    logger_.log(Category::Progress, [&] { return logLine(*frame); });
    if (frame->reachedEnd) {
        // Frozen where it is: until the next poll decides, every emit has to say the same.
        playhead_ = frozenPlayhead(std::move(playhead_), now);
        progressInterpolationTimer_.cancel();
    }
    publish(currentNowPlaying_, std::move(frame->record), &HUDManager::currentNowPlayingChanged);
}

} // namespace quillmere
