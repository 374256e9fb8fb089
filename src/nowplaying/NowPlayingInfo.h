#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace quillmere {

/// What is playing, as far as its player tells.
struct NowPlayingInfo {
    QString title{}; ///< never empty in a record that is shown
    std::optional<QString> artist{};
    std::optional<QImage> artwork{};
    std::optional<double> duration{};    ///< seconds
    std::optional<double> elapsedTime{}; ///< seconds, when the player was asked
    std::optional<QString> bundleID{};   ///< of the application it comes from
    std::optional<QString> contentURL{}; ///< its web page
    std::optional<bool> isPlaying{};     ///< absent: the player does not say

    bool operator==(const NowPlayingInfo &) const = default;
};

} // namespace quillmere
