#pragma once

#include <QString>

namespace quillmere {

struct Platform;
class UserFiles;

/// What a source needs on this machine, as one line for a person.
struct SetupNeed {
    enum class State {
        Ready,
        Open,    ///< nothing to do, and nothing to promise either
        Missing, ///< the user can mend it
        Absent   ///< there is nothing here to be told of
    };
    QString text;
    State state = State::Ready;
    bool operator==(const SetupNeed &) const = default;
};

SetupNeed soundNeed(const Platform &platform);
SetupNeed headphonesNeed(const Platform &platform);
SetupNeed brightnessNeed(const Platform &platform);
SetupNeed mediaNeed(const Platform &platform);
SetupNeed batteryNeed(const Platform &platform);
SetupNeed weatherNeed(const Platform &platform);
SetupNeed messagesNeed(const Platform &platform);
SetupNeed mailNeed(const Platform &platform);
SetupNeed fileTrayNeed(const Platform &platform);
SetupNeed timersNeed(const Platform &platform);

/// Waits for the disk. Any thread.
SetupNeed assistantNeed(const UserFiles &files);

} // namespace quillmere
