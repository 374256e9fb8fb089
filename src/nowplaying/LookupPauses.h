#pragma once

#include "platform/Time.h"

#include <QHash>
#include <QString>

namespace quillmere {

/// When a look-up that found nothing may be tried again. Polls come every second, and a server that
/// is down, or has no artwork for an album, should not hear from us with each of them: the pause
/// doubles with every failure of the same title, from 2 s to 10 min. So a short outage is made up
/// for within the same track, and a track of five minutes costs eight requests at most.
class LookupPauses
{
public:
    bool mayAsk(const QString &title, Instant now) const;
    void failed(const QString &title, Instant now);
    void succeeded(const QString &title) { pauses_.remove(title); }

private:
    struct Pause {
        Duration length{};
        Instant end{};
    };

    QHash<QString, Pause> pauses_;
};

} // namespace quillmere
