#pragma once

#include "island/HUDContent.h"
#include "island/PlayheadTracker.h"
#include "platform/RunLoop.h"
#include "platform/SystemStats.h"

#include <QList>
#include <QObject>

#include <optional>

namespace quillmere {

class IslandDebugLogger;
class SettingsStore;

/// The one owner of what the island shows right now: the transient HUD, the playing track with its
/// playhead, and the recent activities.
///
/// Commands may be called from any thread; from others than the main thread they take effect a
/// little later. Queries and signals belong to the main thread. No command fails. All state is up
/// to date before the first signal of a change goes out, so a slot may call any command.
class HUDManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(
        std::optional<quillmere::HUDContent> currentHUD READ currentHUD NOTIFY currentHUDChanged)
    Q_PROPERTY(std::optional<quillmere::HUDContent> currentNowPlaying READ currentNowPlaying NOTIFY
                   currentNowPlayingChanged)
    Q_PROPERTY(bool isOvershoot READ isOvershoot NOTIFY isOvershootChanged)
    Q_PROPERTY(std::optional<quillmere::NetworkSpeed> networkSpeed READ networkSpeed NOTIFY
                   networkSpeedChanged)
    Q_PROPERTY(std::optional<quillmere::SystemStats> systemStats READ systemStats NOTIFY
                   systemStatsChanged)
    Q_PROPERTY(QList<quillmere::HUDContent> hudQueue READ hudQueue NOTIFY hudQueueChanged)
    Q_PROPERTY(int currentQueueIndex READ currentQueueIndex NOTIFY currentQueueIndexChanged)

public:
    HUDManager(RunLoop &runLoop, SettingsStore &settings, IslandDebugLogger &logger,
               QObject *parent = nullptr);

    /// Shows `content` at once, in place of any other HUD, for `durationSeconds` from now. Dropped
    /// in the first seconds after creation. `keepAsActivity` files it in hudQueue as well.
    void show(HUDContent content, bool keepAsActivity, double durationSeconds);

    /// `percent` 0..100; beyond is shown as the end stop, NaN is ignored.
    void showVolume(double percent, double durationSeconds);
    void showBrightness(double percent, double durationSeconds);
    void showLowBattery(int percent, double durationSeconds);
    void dismissCurrentHUD();

    /// One poll of the player: `elapsed` and `duration` in seconds, duration 0 or less = unknown.
    void updateNowPlaying(HUDContent record, double elapsed, double duration);
    void clearNowPlaying();

    /// Shows a track that has no length, and so no playhead, as it is.
    void showNowPlaying(HUDContent record);

    /// Stops the playhead where it is, without waiting for a poll, and publishes `record`.
    void freezePlayhead(HUDContent record);

    void setNetworkSpeed(const NetworkSpeed &speed);
    void setSystemStats(const std::optional<SystemStats> &stats);

    /// Step currentQueueIndex through hudQueue, wrapping at both ends.
    void showNextActivity();
    void showPreviousActivity();

    /// currentQueueIndex stays with its activity; if that one is removed, with the one after it or,
    /// at the end, before it. An index outside the queue is ignored.
    void removeActivity(int index);

    const std::optional<HUDContent> &currentHUD() const { return currentHUD_; }
    /// How long the last request asked its HUD to stay, in seconds.
    double currentHUDDuration() const { return currentHUDDuration_; }
    const std::optional<HUDContent> &currentNowPlaying() const { return currentNowPlaying_; }
    /// Of the playing track, in seconds; 0 or less: unknown.
    double progressDuration() const { return playhead_.progressDuration; }
    bool isOvershoot() const { return isOvershoot_; }
    const std::optional<NetworkSpeed> &networkSpeed() const { return networkSpeed_; }
    const std::optional<SystemStats> &systemStats() const { return systemStats_; }

    /// At most one activity per type, in the order in which the types first came.
    const QList<HUDContent> &hudQueue() const { return hudQueue_; }

    /// Always a valid index; 0 while the queue is empty.
    int currentQueueIndex() const { return currentQueueIndex_; }

Q_SIGNALS:
    void currentHUDChanged();
    /// A request was shown, be it the HUD that is on screen already.
    void hudPresented();
    void currentNowPlayingChanged();
    void isOvershootChanged();
    void networkSpeedChanged();
    void systemStatsChanged();
    void hudQueueChanged();
    void currentQueueIndexChanged();

private:
    using Signal = void (HUDManager::*)();

    template <class Operation>
    void onMain(Operation operation);
    template <class T, class U>
    void publish(T &field, U &&value, Signal changed);

    bool present(HUDContent content, bool keepAsActivity, double durationSeconds);
    void presentLevel(HUDContent::HUDType type, double percent, double durationSeconds);
    bool fileActivity(const HUDContent &content);
    void stepActivity(int step);
    void overshoot();

    void applyPoll(PlayheadPoll poll);
    void publishWithoutPlayhead(std::optional<HUDContent> record);
    void emitPlayhead(Instant now);

    RunLoop &runLoop_;
    SettingsStore &settings_;
    IslandDebugLogger &logger_;
    const Instant launchTime_;

    std::optional<HUDContent> currentHUD_;
    double currentHUDDuration_ = 0;
    std::optional<HUDContent> currentNowPlaying_;
    bool isOvershoot_ = false;
    std::optional<NetworkSpeed> networkSpeed_;
    std::optional<SystemStats> systemStats_;
    QList<HUDContent> hudQueue_;
    int currentQueueIndex_ = 0;

    PlayheadState playhead_;
    Task dismissTask_;
    Task overshootTask_;
    Task progressInterpolationTimer_; ///< present exactly while playhead_.advancing

    Owner owner_;
};

} // namespace quillmere
