#pragma once

#include "platform/Time.h"
#include "platform/linux/media/MprisReport.h"

#include <optional>
#include <vector>

namespace quillmere {

/// What counts about a player when one is chosen.
struct Candidate {
    QString name; ///< on the bus, without the beginning common to all players
    QString bundleIdentifier;
    qint64 process = 0; ///< 0 if unknown
    std::optional<qint64> browser{};
    PlayerStatus status = PlayerStatus::Unknown;
    bool hasTitle = false;
    std::optional<Instant> began{}; ///< to play, the last time
};

/// Whether the player of that name on the bus, without the common beginning, speaks for whichever
/// player was active last.
bool isProxy(const QString &name);

/// Which of the players, in the order in which they came, is the one people mean: one with
/// something to show before one without, one that plays before one that doesn't, and of those the
/// one that began to play last. Proxies and second entries of the same browser are never elected.
std::optional<std::size_t> elect(const std::vector<Candidate> &players);

} // namespace quillmere
