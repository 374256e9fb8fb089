#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace quillmere {

/// A date and time with an offset, as in "2026-05-01T10:00:00+02:00" or "2026-05-01T08:00:00.250Z";
/// nothing for any other text, and for a moment that does not exist.
std::optional<QDateTime> parseISO8601(const QString &text);

/// "2026-05-01T08:00:00Z".
QString iso8601(const QDateTime &time);

} // namespace quillmere
