#pragma once

#include "platform/linux/dbus/BusCalls.h"
#include "platform/linux/dbus/LaunchRequest.h"

#include <functional>

namespace quillmere {

/// The well-known name on the session bus: who has it is the running Quillmere. Main thread only.
class SingleInstance
{
public:
    enum class Claim {
        Ours,   ///< the name is ours
        Taken,  ///< another one has it, and was asked what this start was asked for
        Refused ///< the bus gave no usable answer
    };

    explicit SingleInstance(const QDBusConnection &connection);

    /// Asks for the name; whatever answers to it has to be registered before. When another program
    /// has it, hands `request` over to that one first. Takes 15 s at worst, if nobody answers.
    void claim(const LaunchRequest &request, std::function<void(Claim)> done);

    /// Gives the name back. When `done` runs, everything sent before has left the program.
    void release(std::function<void()> done);

private:
    void requestName(std::function<void(Claim)> done);
    void handOver(const LaunchRequest &request, std::function<void(Claim)> done);

    BusCalls calls_;
};

} // namespace quillmere
