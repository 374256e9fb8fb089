#pragma once

#include "platform/MediaRemote.h"
#include "platform/NotificationCenter.h"
#include "platform/linux/media/ArtworkLoader.h"
#include "platform/linux/media/MprisPlayer.h"
#include "platform/linux/media/MprisPlayers.h"

#include <memory>
#include <utility>
#include <vector>

namespace quillmere {

/// The media players of the session bus, of which one is elected to be the one that plays. None of
/// them is trusted, waited for or started. Begins to look for them with the first question or
/// registration. Main thread only.
class MprisMediaRemote : public QObject, public MediaRemote
{
    Q_OBJECT

public:
    MprisMediaRemote(RunLoop &runLoop, NotificationCenter &notificationCenter,
                     HttpClient &httpClient, const QDBusConnection &sessionBus);
    ~MprisMediaRemote() override;

    bool isAvailable() const override;
    void registerForNowPlayingNotifications() override;
    void getNowPlayingInfo(const Owner &owner,
                           std::function<void(const QVariantMap &info)> done) override;
    bool sendCommand(Command command) override;
    void setElapsedTime(double seconds) override;
    std::optional<bool> isShuffling() const override;
    std::optional<RepeatMode> repeatMode() const override;
    bool toggleShuffle() override;
    bool cycleRepeat() override;
    QStringList players() override;

private:
    /// What has changed since the last posts.
    struct News {
        bool info = false;
        bool application = false;
        bool isPlaying = false;
    };

    void begin();
    void ownerChanged(const QString &suffix, const QString &owner);
    void reported(MprisPlayer &player, const MprisPlayer::Change &change);
    void electAgain();
    void announce(const News &news);
    void announcePlayMode();
    void announcePlayers();
    QStringList playerNames() const;
    void post();
    QVariantMap infoOf(const MprisPlayer &player) const;
    Q_SLOT void disconnected();

    RunLoop &runLoop_;
    NotificationCenter &notificationCenter_;
    QDBusConnection bus_;
    Complaints complaints_;
    ArtworkLoader artwork_;
    bool isRegistered_ = false;
    News news_;
    std::pair<std::optional<bool>, std::optional<RepeatMode>> playMode_; ///< that was told of last
    QStringList toldPlayers_;
    Instant lastPost_{};
    Task nextPost_;
    std::vector<std::unique_ptr<MprisPlayer>> players_; // in the order in which they came
    MprisPlayer *elected_ = nullptr;
    std::unique_ptr<MprisPlayers> names_;
    Owner owner_;
};

} // namespace quillmere
