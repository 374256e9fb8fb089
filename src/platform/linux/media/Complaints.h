#pragma once

#include "platform/linux/media/PlayerText.h"

#include <QByteArray>
#include <QtGlobal>

#include <set>

namespace quillmere {

/// What was found wrong with players, told in the log once per kind: one that misbehaves does so
/// again and again.
class Complaints
{
public:
    void tell(const char *kind, const QString &player, const QString &detail = {})
    {
        if (told_.insert(kind).second)
            qWarning("[MPRIS] %s: %s %s", kind, qUtf8Printable(cleanText(player)),
                     qUtf8Printable(cleanText(detail)));
    }

private:
    std::set<QByteArray> told_;
};

} // namespace quillmere
