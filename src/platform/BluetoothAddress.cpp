#include "platform/BluetoothAddress.h"

#include <QRegularExpression>

namespace quillmere {

QString bluetoothAddressIn(const QString &text)
{
    static const QRegularExpression address(
        QStringLiteral("(?<![0-9A-Fa-f])(?:[0-9A-Fa-f]{2}[:_]){5}[0-9A-Fa-f]{2}(?![0-9A-Fa-f])"));
    return address.match(text).captured().toUpper().replace(u'_', u':');
}

} // namespace quillmere
