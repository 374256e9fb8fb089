#pragma once

#include "platform/Owner.h"

#include <QString>

#include <functional>

namespace quillmere {

/// Which applications are making sound. Main thread only.
class AudioStreams
{
public:
    virtual ~AudioStreams() = default;

    /// Whether a stream of the application (a bundle identifier, see RunningApplications) is
    /// playing right now; false where the sound server does not answer. `done` is called once,
    /// never from within this call, and only while `owner` lives.
    virtual void isPlaying(const QString &bundleIdentifier, const Owner &owner,
                           std::function<void(bool)> done) = 0;
};

} // namespace quillmere
