#pragma once

#include <QByteArray>
#include <QString>

namespace quillmere {

/// The text of quillmere-hook.sh, sending to this socket. The path goes between double quotes of a
/// shell as it is.
QByteArray hookScript(const QString &socketPath);

} // namespace quillmere
