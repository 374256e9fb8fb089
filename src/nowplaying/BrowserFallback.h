#pragma once

#include "island/HUDContent.h"
#include "nowplaying/BrowserTabs.h"
#include "nowplaying/MediaLog.h"
#include "platform/Owner.h"
#include "platform/Task.h"
#include "platform/Time.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace quillmere {

class AudioStreams;
class HUDManager;
class IslandDebugLogger;
class NowPlayingArtworkService;
class RunLoop;
class RunningApplications;

/// Finds the web video that plays while no player says it does: a supported browser makes sound,
/// and one of its tabs shows a video. Main thread only.
///
/// A browser that is silent is not asked for its tabs: an open page is not yet a playing one.
class BrowserFallback
{
public:
    struct Services {
        RunLoop &runLoop;
        HUDManager &hudManager;
        IslandDebugLogger &logger;
        NowPlayingArtworkService &artwork;
        ScriptRunner &scripts;
        RunningApplications &applications;
        AudioStreams &audioStreams;
    };

    explicit BrowserFallback(const Services &services);

    /// Shows again what is shown, as long as its browser makes sound.
    void keep();

    /// Looks for a video, if a browser runs and none was looked for within the last 3 s.
    void query();

    /// A player plays again.
    void electedItemPlays();

    /// Forgets everything, also when it looked last.
    void reset();

    bool isShowing() const { return fallbackContent_.has_value(); }

private:
    void askNextBrowser(QStringList browsers);
    void askTabs(const QString &browser);
    void tabsReceived(const QString &browser, const ScriptAnswer &answer);
    void show(const VideoTab &tab, const QString &browser);
    void addArtwork(const VideoTab &tab);
    void stop(const QString &why);
    void end(const QString &why);
    void abandonQuery();

    Services services_;
    std::optional<HUDContent> fallbackContent_;
    QString shownBrowser_; ///< as the desktop calls it
    bool fallbackFetchInFlight_ = false;
    std::optional<Instant> lastFallbackFetch_;
    ScriptLog scriptLog_;
    Task tabsScript_;
    std::unique_ptr<Owner> round_; ///< of the questions on their way; replaced to drop the answers
};

} // namespace quillmere
