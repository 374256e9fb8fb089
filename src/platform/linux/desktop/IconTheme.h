#pragma once

#include <QString>

namespace quillmere {

/// The file of an icon, best fit for `side` pixels: of this theme, of those it inherits from, of
/// the one all programs install into, or an unthemed one. Empty if there is none. Reads files; any
/// thread.
QString themeIcon(const QString &name, const QString &theme, int side);

} // namespace quillmere
