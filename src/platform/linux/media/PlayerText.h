#pragma once

#include <QString>

namespace quillmere {

/// Longest text of a player that is kept, in UTF-16 units.
inline constexpr qsizetype longestPlayerText = 512;

/// A text of a foreign program as one line that can be shown: white space simplified, control
/// characters and those that turn the writing direction dropped, and cut at the limit without
/// tearing a character apart.
QString cleanText(const QString &text);

} // namespace quillmere
