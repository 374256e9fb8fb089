#pragma once

#include "platform/HttpClient.h"

#include <QDateTime>

#include <optional>

namespace quillmere {

/// The first header of that name, which is in lower case.
std::optional<QByteArray> headerNamed(const HttpHeaders &headers, const QByteArray &name);

/// A date as servers write it in a header; invalid if it is none.
QDateTime httpDate(const QByteArray &text);

} // namespace quillmere
