#pragma once

#include <QString>

namespace quillmere {

/// Text from outside, fit to be shown on one or a few lines: at most `longest` characters, line
/// breaks and control characters as spaces, and no character that could reorder what stands beside
/// it.
QString plainText(const QString &text, qsizetype longest);

} // namespace quillmere
