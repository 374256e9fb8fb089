#pragma once

#include <QByteArray>
#include <QImage>

#include <optional>

namespace quillmere {

/// What a picture from outside may have, whatever it claims.
inline constexpr qint64 largestPictureFile = 10'000'000; ///< bytes
inline constexpr qint64 largestPicture = 40'000'000;     ///< pixels

/// Pixels of the longer side of artwork: as large as it is ever drawn.
inline constexpr int artworkSide = 480;

/// Decodes a picture of any format Qt knows, scaled down to fit `side` by `side` pixels. The size
/// is read before anything is decoded. Absent if it is too large, broken or no picture. Any thread;
/// takes up to tens of milliseconds.
std::optional<QImage> decodePicture(const QByteArray &data, int side = artworkSide);

} // namespace quillmere
