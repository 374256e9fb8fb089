#pragma once

#include "nowplaying/BrowserFallback.h"
#include "nowplaying/NowPlayingInfo.h"

#include <functional>
#include <vector>

namespace quillmere {

class MediaRemote;
class NotificationCenter;
class SettingsStore;

/// Decides when to ask what is playing, and hands the answers to the HUD manager: every second, and
/// soon after a player has told of a change. Main thread only.
class NowPlayingPoller
{
public:
    using Completion = std::function<void(const std::optional<NowPlayingInfo> &)>;

    struct Services {
        RunLoop &runLoop;
        SettingsStore &settings;
        NotificationCenter &notificationCenter;
        HUDManager &hudManager;
        IslandDebugLogger &logger;
        NowPlayingArtworkService &artworkService;
        ScriptRunner &scripts;
        RunningApplications &applications;
        AudioStreams &audioStreams;
    };

    explicit NowPlayingPoller(const Services &services);
    ~NowPlayingPoller();

    NowPlayingPoller(const NowPlayingPoller &) = delete;
    NowPlayingPoller &operator=(const NowPlayingPoller &) = delete;

    /// Starting twice is the same as once.
    void start();

    /// An answer that is still on its way is dropped. What is shown stays.
    void stop();

    /// Asks now; nothing happens while showMediaHUD is off. `completion` gets the next answer.
    void poll(Completion completion = {});

    /// Polls in a row in which nothing was playing.
    qint64 electedInactivePolls() const { return electedInactivePolls_; }

private:
    void mediaDidChange();
    void awaitQuiet();
    void answered(quint64 number, const std::optional<NowPlayingInfo> &info);
    void applyIdle(const std::optional<NowPlayingInfo> &info);
    void applyPlaying(const NowPlayingInfo &info);
    void show(const NowPlayingInfo &info);
    void clearWhenIdle();

    Services services_;

    Task timer_;
    std::vector<Task> notificationObservers_;
    std::optional<Instant> lastPollTime_;
    qint64 electedInactivePolls_ = 0;
    BrowserFallback fallback_;

    Task firstPoll_;
    Instant lastChange_{};
    std::optional<Task> debounce_; ///< present while a change waits to be asked about
    std::optional<Instant> lastShown_;
    quint64 pollNumber_ = 0;    ///< of the poll started last
    quint64 appliedNumber_ = 0; ///< answers up to this one are out of date
    std::vector<Completion> completions_;

    Owner owner_;
};

} // namespace quillmere
