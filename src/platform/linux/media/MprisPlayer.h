#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/dbus/BusCalls.h"
#include "platform/linux/media/Complaints.h"
#include "platform/linux/media/Election.h"
#include "platform/linux/media/Playhead.h"

#include <QObject>

#include <functional>
#include <vector>

namespace quillmere {

/// One player on the bus and the last that it said and that made sense. Main thread only.
///
/// A player that announces changes is asked for everything it has, at once after a quiet time and
/// else a few times a second at most, and what it answers is taken apart in the background: what it
/// costs does not depend on how much it says.
class MprisPlayer : public QObject
{
    Q_OBJECT

public:
    struct Change {
        bool info = false;
        bool isPlaying = false;
        std::optional<ArtSource> art{}; ///< as just told; data comes along only here
    };

    /// `owner` is the unique name, `suffix` the well-known one without the common beginning.
    MprisPlayer(RunLoop &runLoop, const QDBusConnection &bus, Complaints &complaints,
                const QString &suffix, const QString &owner,
                std::function<void(MprisPlayer &, const Change &)> onReport);

    /// It has answered at least once.
    bool isKnown() const { return isKnown_; }
    const QString &suffix() const { return suffix_; }
    /// As it calls itself, else what is known of it.
    const QString &name() const { return name_; }
    const QString &bundleIdentifier() const { return bundleIdentifier_; }
    const Track &track() const { return track_; }
    Candidate candidate() const;

    /// The rate a media service tells: absent if the player does not say whether it plays.
    std::optional<double> playbackRate() const;
    double position() const;

    bool isPaused() const { return status_ == PlayerStatus::Paused; }

    /// Asks for everything again, soon.
    void refresh();

    /// Asks for the position. `done` is called once, never from within: when the position is there
    /// or clearly won't come, or from answerWaiters().
    void askPosition(std::function<void()> done);

    /// For a player that is gone: those who wait get what is known.
    void answerWaiters();

    /// Sends one of the methods without arguments.
    void send(const char *method);

    void seekTo(double seconds);

    /// Absent if it cannot.
    const std::optional<bool> &isShuffling() const { return shuffle_; }
    const std::optional<LoopStatus> &loop() const { return loop_; }

    /// Of a player that can.
    void toggleShuffle();
    void cycleRepeat();

private:
    QDBusMessage question(QLatin1StringView interface, const QString &method) const;
    QDBusMessage command(const QString &method) const;
    void subscribe();
    void askWhoItIs();
    void read();
    void failed(const QDBusError &error);
    void take(const MprisReport &report, Instant heardAt);
    Track believed(const std::optional<Track> &told, Instant heardAt);
    void moveTo(const Track &track, double rate, std::optional<double> position, Instant heardAt);
    void set(const char *property, const QVariant &value);
    void announceSeek();
    void await(const QDBusMessage &message, const char *complaint);

    Q_SLOT void propertiesChanged(const QDBusMessage &message);
    Q_SLOT void seeked(const QDBusMessage &message);

    RunLoop &runLoop_;
    Complaints &complaints_;
    QString suffix_;
    QString busOwner_;
    std::function<void(MprisPlayer &, const Change &)> onReport_;

    QString name_;
    QString bundleIdentifier_;
    qint64 process_ = 0;
    bool isKnown_ = false;
    Track track_;
    PlayerStatus status_ = PlayerStatus::Unknown;
    bool canSeek_ = false;
    std::optional<bool> shuffle_;
    std::optional<LoopStatus> loop_;
    double rate_ = 1;
    ToldLength length_; // of track_
    Playhead playhead_;
    std::optional<Instant> began_;

    bool isReading_ = false;
    bool isStale_ = false; // changed again since it was asked
    int failures_ = 0;     // in a row
    Instant lastRead_{};
    Task nextRead_;
    Task seekNews_;
    std::vector<std::function<void()>> waiters_;
    BusCalls calls_;
    Owner owner_;
};

} // namespace quillmere
