#pragma once

#include "nowplaying/ArtworkSearch.h"
#include "nowplaying/LookupPauses.h"
#include "nowplaying/MediaLog.h"
#include "nowplaying/NowPlayingInfo.h"
#include "nowplaying/PlayerReport.h"
#include "platform/MediaRemote.h"
#include "platform/Owner.h"
#include "platform/Task.h"
#include "platform/Time.h"

namespace quillmere {

/// Asks what is playing, completes the answer with artwork and a web page, and sends commands to
/// the player. Main thread only.
///
/// At most one question to the player is on its way, and one search for artwork. A poll that comes
/// while artwork is still being looked for gets its record without, so that a slow server delays
/// the artwork only.
class NowPlayingArtworkService
{
public:
    using Completion = std::function<void(const std::optional<NowPlayingInfo> &)>;

    NowPlayingArtworkService(RunLoop &runLoop, MediaRemote &mediaRemote, ScriptRunner &scripts,
                             RunningApplications &applications, HttpClient &httpClient);

    /// `completion` gets the record, or nothing if nothing plays; once, or not at all if another
    /// fetch or another track has overtaken it.
    void fetch(Completion completion);

    /// Looks for the thumbnail of a video. `done` gets the picture if there is one: once, and not
    /// at all if another video has overtaken it, while one is looked for, or in the pause after a
    /// failure.
    void fetchVideoArtwork(const QString &title, const QString &videoID,
                           std::function<void(const QImage &)> done);

    /// Forgets what was asked; no completion is called any more.
    void cancel();

    /// Whether there was a player to send it to.
    bool togglePlayPause() { return send(MediaRemote::Command::TogglePlayPause); }
    bool nextTrack() { return send(MediaRemote::Command::NextTrack); }
    bool previousTrack() { return send(MediaRemote::Command::PreviousTrack); }

    std::optional<bool> isShuffling() const
    {
        return mediaRemote_.isAvailable() ? mediaRemote_.isShuffling() : std::nullopt;
    }
    std::optional<RepeatMode> repeatMode() const
    {
        return mediaRemote_.isAvailable() ? mediaRemote_.repeatMode() : std::nullopt;
    }
    bool toggleShuffle() { return mediaRemote_.isAvailable() && mediaRemote_.toggleShuffle(); }
    bool cycleRepeat() { return mediaRemote_.isAvailable() && mediaRemote_.cycleRepeat(); }

    /// To a fraction, 0..1, of the track fetched last; without effect if its length is unknown.
    void seek(double fraction);

private:
    struct Fetch {
        PlayerReport report;
        bool isFromMediaRemote;
        Completion completion;
        Instant time; ///< at which the record's elapsedTime was true
    };

    bool send(MediaRemote::Command command);
    void askScript();
    void received(std::optional<PlayerReport> report, bool isFromMediaRemote);
    void decode(const Fetch &fetch);
    void attachArtwork(Fetch fetch);
    void lookUp(const Fetch &fetch);
    bool isLookedFor(const QString &title) const;
    void remember(const QString &title, const QImage &artwork);
    void conclude(const QString &title, const ArtworkFinding &finding);
    void deliver(Fetch fetch);

    RunLoop &runLoop_;
    MediaRemote &mediaRemote_;
    ScriptRunner &scripts_;
    ScriptLog scriptLog_;
    const ArtworkTools tools_;

    std::function<void(const Owner &, std::function<void(const QVariantMap &)>)> getInfoFn_;
    std::optional<QImage> cachedArtwork_;
    QString cachedTitle_;

    Completion completion_;         ///< of the question on its way
    std::unique_ptr<Owner> asking_; ///< present while one is
    Task script_;
    QString currentTitle_;         ///< of the report received last
    std::optional<double> length_; ///< of the record delivered last, seconds

    QByteArray decodedData_; ///< players repeat their artwork with every answer
    std::optional<QImage> decodedArtwork_;

    std::unique_ptr<ArtworkSearch> search_; ///< for currentTitle_
    std::unique_ptr<ArtworkSearch> videoSearch_;
    QString videoTitle_; ///< what videoSearch_ is for
    LookupPauses pauses_;
    QString linkedTitle_; ///< the track that link_ was found for
    std::optional<QString> link_;

    Owner owner_;
};

} // namespace quillmere
