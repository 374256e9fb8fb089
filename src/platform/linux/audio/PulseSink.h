#pragma once

#include "platform/AudioOutput.h"

#include <QByteArray>

#include <pulse/introspect.h>

#include <cstdint>

namespace quillmere {

/// What is known of one sink, copied out of the server's answer.
struct PulseSink {
    std::uint32_t index = PA_INVALID_INDEX;
    QByteArray name{}; ///< what the server calls it
    AudioDevice device{};
    pa_cvolume volume{};
    bool muted = false;

    /// The silent sink that a server without any device offers.
    bool isPlaceholder() const { return name == "auto_null"; }
};

PulseSink readSink(const pa_sink_info &info);

} // namespace quillmere
