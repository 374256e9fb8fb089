#include "platform/linux/media/MprisPlayer.h"

#include "platform/linux/dbus/BusNames.h"
#include "platform/linux/media/MprisNames.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 2s;
constexpr Duration positionLimit = 200ms;
constexpr Duration readSpacing = 250ms;
constexpr Duration seekSpacing = 50ms;

/// Some players learn how long a track is after they began it, and don't say so.
constexpr Duration lengthSpacing = 3s;

/// A player can be on the bus before it answers.
constexpr int mostRetries = 5;
constexpr Duration firstRetry = 1s;

constexpr double farthestSeek = 1e7; // s
constexpr double microseconds = 1e6;

bool differs(const Track &one, const Track &other)
{
    return !one.isSamePiece(other) || one.artist != other.artist ||
           one.duration != other.duration || !one.art.isSame(other.art);
}

qlonglong inMicroseconds(double seconds)
{
    return static_cast<qlonglong>(seconds * microseconds);
}

} // namespace

MprisPlayer::MprisPlayer(RunLoop &runLoop, const QDBusConnection &bus, Complaints &complaints,
                         const QString &suffix, const QString &owner,
                         std::function<void(MprisPlayer &, const Change &)> onReport)
    : runLoop_(runLoop)
    , complaints_(complaints)
    , suffix_(suffix)
    , busOwner_(owner)
    , onReport_(std::move(onReport))
    , name_(playerReport::name({}, suffix))
    , bundleIdentifier_(playerReport::bundleIdentifier({}, suffix))
    , calls_(bus)
{
    subscribe();
    askWhoItIs();
    read();
}

QDBusMessage MprisPlayer::question(QLatin1StringView interface, const QString &method) const
{
    // To the unique name, which starts nothing and means this very process.
    auto message = QDBusMessage::createMethodCall(busOwner_, mpris::objectPath,
                                                  bus::propertiesInterface, method);
    message << QString(interface);
    return message;
}

QDBusMessage MprisPlayer::command(const QString &method) const
{
    return QDBusMessage::createMethodCall(busOwner_, mpris::objectPath, mpris::playerInterface,
                                          method);
}

void MprisPlayer::subscribe()
{
    QDBusConnection bus = calls_.connection();
    bus.connect(busOwner_, mpris::objectPath, bus::propertiesInterface,
                QStringLiteral("PropertiesChanged"), QStringList(QString(mpris::playerInterface)),
                {}, this, SLOT(propertiesChanged(QDBusMessage)));
    bus.connect(busOwner_, mpris::objectPath, mpris::playerInterface, QStringLiteral("Seeked"),
                this, SLOT(seeked(QDBusMessage)));
}

void MprisPlayer::askWhoItIs()
{
    calls_.call(question(mpris::applicationInterface, QStringLiteral("GetAll")), answerLimit,
                [this](const BusReply &reply) {
                    const auto properties =
                        reply ? playerReport::dictionary(reply->value(0)) : std::nullopt;
                    if (!properties)
                        return;
                    const auto application = playerReport::application(*properties);
                    name_ = playerReport::name(application, suffix_);
                    bundleIdentifier_ = playerReport::bundleIdentifier(application, suffix_);
                    onReport_(*this, {.info = isKnown_});
                });
    auto process = QDBusMessage::createMethodCall(bus::daemonName, bus::daemonPath, bus::daemonName,
                                                  QStringLiteral("GetConnectionUnixProcessID"));
    process << busOwner_;
    calls_.call(process, answerLimit, [this](const BusReply &reply) {
        process_ = reply ? reply->value(0).toLongLong() : 0;
    });
}

Candidate MprisPlayer::candidate() const
{
    return {suffix_, bundleIdentifier_,       process_, track_.browser,
            status_, !track_.title.isEmpty(), began_};
}

std::optional<double> MprisPlayer::playbackRate() const
{
    if (status_ == PlayerStatus::Unknown)
        return std::nullopt;
    return status_ == PlayerStatus::Playing ? rate_ : 0;
}

double MprisPlayer::position() const
{
    return positionAt(playhead_, runLoop_.now(), track_.duration);
}

void MprisPlayer::propertiesChanged(const QDBusMessage &)
{
    refresh();
}

void MprisPlayer::refresh()
{
    const bool isComing = isReading_ || (nextRead_ && isStale_); // a retry may be far
    failures_ = 0;
    isStale_ = true;
    if (!isComing)
        nextRead_ = runLoop_.after(std::max(lastRead_ + readSpacing - runLoop_.now(), 0ns),
                                   [this] { read(); });
}

void MprisPlayer::read()
{
    nextRead_.cancel();
    isReading_ = true;
    isStale_ = false;
    lastRead_ = runLoop_.now();
    calls_.call(question(mpris::playerInterface, QStringLiteral("GetAll")), answerLimit,
                [this](const BusReply &reply) {
                    if (!reply)
                        return failed(reply.error());
                    const auto parse = [packed = reply->value(0)]() {
                        const auto properties = playerReport::dictionary(packed);
                        return properties ? std::optional(playerReport::player(*properties))
                                          : std::nullopt;
                    };
                    runLoop_.background(owner_, parse,
                                        [this, heardAt = runLoop_.now()](const auto &report) {
                                            isReading_ = false;
                                            if (report)
                                                take(*report, heardAt);
                                            else
                                                complaints_.tell("No properties", suffix_);
                                            if (isStale_)
                                                refresh();
                                        });
                });
}

void MprisPlayer::failed(const QDBusError &error)
{
    isReading_ = false;
    complaints_.tell("A player does not tell what it plays", suffix_, error.message());
    if (isStale_)
        return refresh();
    if (failures_ < mostRetries)
        nextRead_ = runLoop_.after(firstRetry * (1 << failures_++), [this] { read(); });
}

void MprisPlayer::take(const MprisReport &report, Instant heardAt)
{
    failures_ = 0;
    if (!report.track)
        complaints_.tell("A track without sense is ignored", suffix_);
    const Track track = believed(report.track, heardAt);
    const Change change{.info = !isKnown_ || differs(track, track_) || report.rate != rate_,
                        .isPlaying = report.status != status_,
                        .art = track.art};
    const bool isPlaying = report.status == PlayerStatus::Playing;
    if (isPlaying && (status_ != PlayerStatus::Playing || !isKnown_))
        began_ = heardAt;
    moveTo(track, isPlaying ? report.rate : 0, report.position, heardAt);
    isKnown_ = true;
    status_ = report.status;
    rate_ = report.rate;
    canSeek_ = report.canSeek;
    shuffle_ = report.shuffle;
    loop_ = report.loop;
    onReport_(*this, change);
}

Track MprisPlayer::believed(const std::optional<Track> &told, Instant heardAt)
{
    if (!told)
        return track_;
    Track track = *told;
    if (!track.isSamePiece(track_))
        length_ = {};
    length_ = toldAgain(length_, track.duration, heardAt);
    track.duration = trustedLength(length_, heardAt);
    return track;
}

void MprisPlayer::moveTo(const Track &track, double rate, std::optional<double> position,
                         Instant heardAt)
{
    const bool isOutdated = playhead_.at > heardAt; // it has jumped since
    const Instant now = std::max(heardAt, playhead_.at);
    playhead_ = atRate(playhead_, rate, now, track_.duration);
    if (!track.isSamePiece(track_) && !isOutdated)
        playhead_ = jumped(playhead_, 0, now);
    track_ = track;
    track_.art.data.clear();
    if (!isOutdated)
        playhead_ = heard(playhead_, position, now, track_.duration);
}

void MprisPlayer::seeked(const QDBusMessage &message)
{
    const auto told = playerReport::position(message.arguments().value(0));
    if (!told || *told < 0 || *told > track_.duration.value_or(*told))
        return;
    playhead_ = jumped(playhead_, *told, runLoop_.now());
    announceSeek();
}

void MprisPlayer::announceSeek()
{
    if (!seekNews_)
        seekNews_ = runLoop_.after(seekSpacing, [this] {
            seekNews_.cancel();
            onReport_(*this, {.info = true});
        });
}

void MprisPlayer::askPosition(std::function<void()> done)
{
    waiters_.push_back(std::move(done));
    if (waiters_.size() > 1)
        return;
    const bool lacksLength = !track_.duration && status_ == PlayerStatus::Playing;
    if (lacksLength && runLoop_.now() - lastRead_ > lengthSpacing)
        refresh();
    auto ask = question(mpris::playerInterface, QStringLiteral("Get"));
    ask << QStringLiteral("Position");
    calls_.call(ask, positionLimit, [this](const BusReply &reply) {
        const auto told = reply ? playerReport::position(reply->value(0)) : std::nullopt;
        playhead_ = heard(playhead_, told, runLoop_.now(), track_.duration);
        answerWaiters();
    });
}

void MprisPlayer::answerWaiters()
{
    for (const auto &done : std::exchange(waiters_, {}))
        done();
}

void MprisPlayer::send(const char *method)
{
    await(command(QString::fromLatin1(method)), "A player does not obey");
}

void MprisPlayer::seekTo(double seconds)
{
    const double wanted = std::clamp(seconds, 0.0, track_.duration.value_or(farthestSeek));
    const bool isAbsolute = canSeek_ && !track_.path.isEmpty();
    auto message = command(isAbsolute ? QStringLiteral("SetPosition") : QStringLiteral("Seek"));
    if (isAbsolute)
        message << QVariant::fromValue(QDBusObjectPath(track_.path)) << inMicroseconds(wanted);
    else
        message << inMicroseconds(wanted - position());
    await(message, "A player does not seek");
}

void MprisPlayer::toggleShuffle()
{
    shuffle_ = !shuffle_.value_or(false); // for the next press, which may come before the answer
    set("Shuffle", *shuffle_);
}

void MprisPlayer::cycleRepeat()
{
    loop_ = nextLoopStatus(loop_.value_or(LoopStatus::None));
    set("LoopStatus", loopStatusName(*loop_));
}

void MprisPlayer::set(const char *property, const QVariant &value)
{
    auto message = question(mpris::playerInterface, QStringLiteral("Set"));
    message << QString::fromLatin1(property) << QVariant::fromValue(QDBusVariant(value));
    calls_.call(message, answerLimit, [this](const BusReply &reply) {
        if (!reply)
            complaints_.tell("A player does not obey", suffix_, reply.error().message());
        refresh();
    });
}

void MprisPlayer::await(const QDBusMessage &message, const char *complaint)
{
    calls_.call(message, answerLimit, [this, complaint](const BusReply &reply) {
        if (!reply)
            complaints_.tell(complaint, suffix_, reply.error().message());
        announceSeek(); // for those that do it and keep silent
    });
}

} // namespace quillmere
