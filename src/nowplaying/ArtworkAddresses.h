#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace quillmere {

/// Where artwork and web pages of tracks are found. Identifiers are already checked: digits, or
/// what videoIdentifier() lets pass.

/// The page of a track of one of Apple's players: of the track if it has an identifier, else of the
/// album; absent with neither, and for other players.
std::optional<QString> appleMusicPage(const QString &bundleID, const QString &storeID,
                                      const QString &albumID);

/// The question for an album, at the server `base`.
QUrl storeLookupUrl(const QUrl &base, const QString &albumID);

/// The artwork's address out of the answer, in the larger rendition; empty if it has none.
QString storeArtworkUrl(const QByteArray &reply);

/// Old records name pictures by http; they are there by https, too. Keeps what may be asked as it
/// is.
QUrl securePictureUrl(const QString &address, bool isReplacedEndpoint);

enum class Rendition { Large, Small };
QUrl videoThumbnailUrl(const QUrl &base, const QString &videoID, Rendition rendition);

/// The address of a picture that Spotify names; some versions name a host that has no pictures.
QUrl spotifyPictureUrl(const QString &address);

/// "spotify:track:<id>", or an address of the web player, as an address of the web player. Absent
/// for what has no page there, such as local files.
std::optional<QString> spotifyPage(const QString &link);

} // namespace quillmere
