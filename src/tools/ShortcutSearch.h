#pragma once

#include "platform/Shortcuts.h"

#include <QString>

#include <optional>

namespace quillmere {

struct ShortcutIntent;

/// What someone who types `query` into the desktop's search may mean: shortcuts one of whose
/// phrases has all its words, each perhaps not typed to its end, and a countdown of a certain
/// length for "timer 10" and the like. The best come first.
QList<ShortcutMatch> searchShortcuts(const QString &query, int presetMinutes);

/// A match's id taken apart.
struct ShortcutMatchId {
    const ShortcutIntent &intent;
    std::optional<int> minutes;
};
std::optional<ShortcutMatchId> parseMatchId(const QString &id);

/// The match of that id, as a search finds it.
std::optional<ShortcutMatch> describeMatch(const QString &id, int presetMinutes);

} // namespace quillmere
