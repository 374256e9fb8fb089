#pragma once

#include "nowplaying/NowPlayingInfo.h"

#include <QByteArray>
#include <QVariantMap>

#include <optional>

namespace quillmere {

/// What a player said about its track, before artwork is looked for.
struct PlayerReport {
    NowPlayingInfo record;    ///< artwork is the picture that came ready to draw, if any
    QByteArray artworkData{}; ///< an encoded picture; empty: none
    QString storeID{};        ///< decimal; empty: none
    QString albumID{};        ///< decimal; empty: none
};

/// From the media service's dictionary; absent without a title. Values of a wrong type, numbers
/// that are not finite and lengths that are not positive count as missing.
std::optional<PlayerReport> parseMediaInfo(const QVariantMap &info);

/// From the eight fields of the script; absent without a title.
std::optional<PlayerReport> parseScriptText(QStringView text);

} // namespace quillmere
