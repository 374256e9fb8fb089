#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace quillmere {

/// Where a track's picture is to be had.
struct ArtSource {
    enum class Kind { None, File, Data, Web };
    Kind kind = Kind::None;
    QString location; ///< path or https address; of Data what tells it from other data
    QByteArray data;  ///< of Data the encoded picture

    bool isSame(const ArtSource &other) const
    {
        return kind == other.kind && location == other.location;
    }
};

/// What a player says of a track, as far as it made sense.
struct Track {
    QString id;   ///< as the player has it
    QString path; ///< the id if it can be handed back to the player, else empty
    QString title;
    QString artist;
    QString address;                ///< of the file or page
    std::optional<double> duration; ///< s, at least 1
    std::optional<qint64> browser;  ///< the process a bridge between browser and bus speaks for
    ArtSource art;

    /// Whether both are the same piece, so that the position goes on.
    bool isSamePiece(const Track &other) const
    {
        return id == other.id && title == other.title && address == other.address;
    }
};

enum class PlayerStatus { Unknown, Playing, Paused, Stopped };

enum class LoopStatus { None, Playlist, Track };

/// Everything a player said at one time.
struct MprisReport {
    PlayerStatus status = PlayerStatus::Unknown;
    double rate = 1;                ///< of playing, above 0
    std::optional<double> position; ///< s, as told
    bool canSeek = false;
    std::optional<bool> shuffle;    ///< absent if the player has no random order
    std::optional<LoopStatus> loop; ///< absent if it cannot repeat
    std::optional<Track> track;     ///< absent if the metadata was no metadata
};

/// What the next press on a button that repeats makes of it.
LoopStatus nextLoopStatus(LoopStatus status);

/// As it is told to players.
QString loopStatusName(LoopStatus status);

/// What a player says of itself.
struct PlayerApplication {
    QString desktopEntry;
    QString identity;
};

/// Reads foreign values, whose types and contents can be anything. Any thread; takes as long as
/// they are large.
namespace playerReport {

/// The dictionary in an argument of a D-Bus message, of its entries the first hundred; absent if it
/// is none with texts as keys.
std::optional<QVariantMap> dictionary(const QVariant &argument);

std::optional<double> number(const QVariant &value);

/// Microseconds as seconds.
std::optional<double> position(const QVariant &value);

ArtSource artSource(const QString &url);

/// Absent if the title is no text: then nothing of it can be believed.
std::optional<Track> track(const QVariantMap &metadata);

MprisReport player(const QVariantMap &properties);

PlayerApplication application(const QVariantMap &properties);

/// The player's bundle identifier. Its bus name, without the common beginning, is the last resort.
QString bundleIdentifier(const PlayerApplication &application, const QString &suffix);

/// What people know the player by. Its bus name is the last resort here, too.
QString name(const PlayerApplication &application, const QString &suffix);

} // namespace playerReport

} // namespace quillmere
