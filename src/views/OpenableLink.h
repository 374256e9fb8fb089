#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace quillmere {

/// What content from outside may open: pages and letters, no files and no programs. Empty if it is
/// nothing of the kind.
QUrl openableLink(const std::optional<QString> &text);

} // namespace quillmere
