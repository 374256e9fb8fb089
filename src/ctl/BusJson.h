#pragma once

#include <QJsonValue>
#include <QVariant>

namespace quillmere {

/// A value as it came over the bus, as JSON: dictionaries become objects, arrays and structures
/// become arrays, a variant becomes what it holds.
QJsonValue toJson(const QVariant &value);

/// The same as text on one line, UTF-8, without a line break.
QByteArray toJsonLine(const QVariant &value);

} // namespace quillmere
