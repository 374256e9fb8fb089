#include "platform/linux/media/MprisMediaRemote.h"

#include "platform/linux/dbus/BusNames.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

/// However often players change.
constexpr Duration postSpacing = 50ms;

const char *methodFor(MediaRemote::Command command)
{
    switch (command) {
    case MediaRemote::Command::TogglePlayPause:
        return "PlayPause";
    case MediaRemote::Command::NextTrack:
        return "Next";
    case MediaRemote::Command::PreviousTrack:
        break;
    }
    return "Previous";
}

} // namespace

MprisMediaRemote::MprisMediaRemote(RunLoop &runLoop, NotificationCenter &notificationCenter,
                                   HttpClient &httpClient, const QDBusConnection &sessionBus)
    : runLoop_(runLoop)
    , notificationCenter_(notificationCenter)
    , bus_(sessionBus)
    , artwork_(runLoop, httpClient, [this] { announce({.info = true}); })
{
}

MprisMediaRemote::~MprisMediaRemote() = default;

bool MprisMediaRemote::isAvailable() const
{
    return bus_.isConnected();
}

void MprisMediaRemote::begin()
{
    if (names_ || !isAvailable())
        return;
    bus_.connect({}, bus::localPath, bus::localInterface, QStringLiteral("Disconnected"), this,
                 SLOT(disconnected()));
    names_ = std::make_unique<MprisPlayers>(
        runLoop_, bus_,
        [this](const auto &suffix, const auto &owner) { ownerChanged(suffix, owner); });
}

void MprisMediaRemote::registerForNowPlayingNotifications()
{
    isRegistered_ = true;
    begin();
}

void MprisMediaRemote::getNowPlayingInfo(const Owner &owner,
                                         std::function<void(const QVariantMap &)> done)
{
    begin();
    artwork_.retry();
    if (!elected_)
        return runLoop_.post(owner, [done = std::move(done)] { done({}); });
    elected_->askPosition(
        [this, player = elected_, owner = owner.reference(), done = std::move(done)] {
            if (!owner.expired())
                done(infoOf(*player));
        });
}

bool MprisMediaRemote::sendCommand(Command command)
{
    begin();
    if (!elected_)
        return false;
    elected_->send(methodFor(command));
    return true;
}

void MprisMediaRemote::setElapsedTime(double seconds)
{
    if (elected_ && std::isfinite(seconds))
        elected_->seekTo(seconds);
}

bool MprisMediaRemote::toggleShuffle()
{
    if (!isShuffling())
        return false;
    elected_->toggleShuffle();
    announcePlayMode();
    return true;
}

bool MprisMediaRemote::cycleRepeat()
{
    if (!repeatMode())
        return false;
    elected_->cycleRepeat();
    announcePlayMode();
    return true;
}

std::optional<bool> MprisMediaRemote::isShuffling() const
{
    return elected_ ? elected_->isShuffling() : std::nullopt;
}

std::optional<RepeatMode> MprisMediaRemote::repeatMode() const
{
    const auto loop = elected_ ? elected_->loop() : std::nullopt;
    if (!loop)
        return std::nullopt;
    switch (*loop) {
    case LoopStatus::Playlist:
        return RepeatMode::List;
    case LoopStatus::Track:
        return RepeatMode::Track;
    case LoopStatus::None:
        break;
    }
    return RepeatMode::Nothing;
}

void MprisMediaRemote::announcePlayMode()
{
    const auto mode = std::pair(isShuffling(), repeatMode());
    if (std::exchange(playMode_, mode) != mode)
        notificationCenter_.post(mediaEvents::playModeDidChange);
}

QStringList MprisMediaRemote::players()
{
    begin();
    return playerNames();
}

QStringList MprisMediaRemote::playerNames() const
{
    QStringList names;
    for (const auto &player : players_)
        if (!isProxy(player->suffix()))
            names.append(player->name());
    names.removeDuplicates();
    names.removeAll(QString());
    return names;
}

void MprisMediaRemote::announcePlayers()
{
    const QStringList names = playerNames();
    if (std::exchange(toldPlayers_, names) != names)
        notificationCenter_.post(mediaEvents::playersDidChange);
}

void MprisMediaRemote::ownerChanged(const QString &suffix, const QString &owner)
{
    const auto found = std::find_if(players_.begin(), players_.end(),
                                    [&](const auto &player) { return player->suffix() == suffix; });
    if (found != players_.end()) {
        const auto gone = std::move(*found);
        players_.erase(found);
        if (elected_ == gone.get())
            elected_ = nullptr;
        gone->answerWaiters();
    }
    if (!owner.isEmpty()) {
        players_.push_back(std::make_unique<MprisPlayer>(
            runLoop_, bus_, complaints_, suffix, owner,
            [this](MprisPlayer &player, const auto &change) { reported(player, change); }));
    }
    electAgain();
    announcePlayers();
}

void MprisMediaRemote::reported(MprisPlayer &player, const MprisPlayer::Change &change)
{
    electAgain();
    announcePlayers();
    if (&player != elected_)
        return;
    announcePlayMode();
    if (change.art)
        artwork_.want(*change.art);
    announce({.info = change.info, .isPlaying = change.isPlaying});
}

void MprisMediaRemote::electAgain()
{
    std::vector<Candidate> candidates;
    std::vector<MprisPlayer *> known;
    for (const auto &player : players_) {
        if (player->isKnown()) {
            candidates.push_back(player->candidate());
            known.push_back(player.get());
        }
    }
    const auto best = elect(candidates);
    MprisPlayer *player = best ? known[*best] : nullptr;
    if (player == std::exchange(elected_, player))
        return;
    if (player)
        player->refresh(); // for the picture, which is not kept of those that are not elected
    else
        artwork_.want({});
    announcePlayMode();
    announce({.info = true, .application = true, .isPlaying = true});
}

void MprisMediaRemote::announce(const News &news)
{
    news_.info |= news.info;
    news_.application |= news.application;
    news_.isPlaying |= news.isPlaying;
    if (!isRegistered_ || nextPost_ || !(news_.info || news_.application || news_.isPlaying))
        return;
    nextPost_ =
        runLoop_.after(std::max(lastPost_ + postSpacing - runLoop_.now(), 0ns), [this] { post(); });
}

void MprisMediaRemote::post()
{
    nextPost_.cancel();
    lastPost_ = runLoop_.now();
    const News news = std::exchange(news_, {});
    if (news.application)
        notificationCenter_.post(mediaEvents::applicationDidChange);
    if (news.isPlaying)
        notificationCenter_.post(mediaEvents::isPlayingDidChange,
                                 {{mediaEvents::isPlaying, !elected_ || !elected_->isPaused()}});
    if (news.info)
        notificationCenter_.post(mediaEvents::infoDidChange);
}

QVariantMap MprisMediaRemote::infoOf(const MprisPlayer &player) const
{
    const Track &track = player.track();
    if (track.title.isEmpty())
        return {};
    QVariantMap info{{mediaInfo::title, track.title},
                     {mediaInfo::bundleIdentifier, player.bundleIdentifier()},
                     {mediaInfo::elapsedTime, player.position()}};
    if (!track.artist.isEmpty())
        info[mediaInfo::artist] = track.artist;
    if (track.duration)
        info[mediaInfo::duration] = *track.duration;
    if (const auto rate = player.playbackRate())
        info[mediaInfo::playbackRate] = *rate;
    if (const QImage image = artwork_.image(track.art); !image.isNull())
        info[mediaInfo::artworkImage] = image;
    return info;
}

void MprisMediaRemote::disconnected()
{
    elected_ = nullptr;
    for (const auto &gone : std::exchange(players_, {}))
        gone->answerWaiters();
    artwork_.want({});
    announcePlayers();
    announce({.info = true, .application = true, .isPlaying = true});
}

} // namespace quillmere
