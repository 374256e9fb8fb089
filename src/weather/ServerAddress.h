#pragma once

#include <QString>
#include <QUrl>

namespace quillmere {

/// The address of a server, to which a path is appended.
inline QString serverAddress(const QUrl &server)
{
    QString address = server.toString();
    while (address.endsWith(u'/'))
        address.chop(1);
    return address;
}

} // namespace quillmere
