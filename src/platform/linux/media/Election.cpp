#include "platform/linux/media/Election.h"

#include <algorithm>
#include <tuple>

namespace quillmere {

using namespace Qt::StringLiterals;

namespace {

bool isBridge(const Candidate &player)
{
    return player.browser || player.name.startsWith("plasma-browser-integration"_L1);
}

/// Whether the browser that a bridge speaks for is there itself. A browser in a sandbox is known to
/// the bus by the process of its proxy.
bool isSecondEntry(const Candidate &bridge, const std::vector<Candidate> &players)
{
    return std::any_of(players.begin(), players.end(), [&bridge](const Candidate &other) {
        if (isBridge(other) || isProxy(other.name))
            return false;
        const bool isProcess = bridge.browser && other.process == *bridge.browser;
        return isProcess || other.bundleIdentifier == bridge.bundleIdentifier;
    });
}

int urgency(PlayerStatus status)
{
    switch (status) {
    case PlayerStatus::Playing:
        return 3;
    case PlayerStatus::Unknown:
        return 2;
    case PlayerStatus::Paused:
        return 1;
    case PlayerStatus::Stopped:
        break;
    }
    return 0;
}

auto weight(const Candidate &player)
{
    return std::tuple(player.hasTitle, urgency(player.status), player.began);
}

} // namespace

bool isProxy(const QString &name)
{
    return name.section(u'.', 0, 0) == "playerctld"_L1;
}

std::optional<std::size_t> elect(const std::vector<Candidate> &players)
{
    std::optional<std::size_t> best;
    for (std::size_t i = 0; i < players.size(); ++i) {
        const auto &player = players[i];
        if (isProxy(player.name) || (isBridge(player) && isSecondEntry(player, players)))
            continue;
        if (!best || weight(player) >= weight(players[*best]))
            best = i;
    }
    return best;
}

} // namespace quillmere
