#pragma once

#include <QString>

#include <optional>

namespace quillmere {

/// One notification of an application, from whichever source.
struct ParsedNotification {
    QString appID{}; ///< as the source stores it
    QString title{}; ///< never empty
    std::optional<QString> subtitle{};
    std::optional<QString> body{};
    QString uuid{};
    double deliveredDate = 0; ///< seconds since 2001-01-01 00:00:00 UTC

    bool operator==(const ParsedNotification &) const = default;
};

} // namespace quillmere
