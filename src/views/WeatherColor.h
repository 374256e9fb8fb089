#pragma once

#include <QColor>
#include <QString>

namespace quillmere {

/// The colour that weather of this symbol is drawn in.
QColor weatherColor(const QString &symbol);

} // namespace quillmere
