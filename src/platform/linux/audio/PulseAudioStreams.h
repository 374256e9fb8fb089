#pragma once

#include "platform/AudioStreams.h"
#include "platform/RunLoop.h"
#include "platform/linux/audio/PulseAudioHardware.h"

#include <pulse/introspect.h>

#include <list>

namespace quillmere {

/// The streams of PulseAudio, or of PipeWire through its PulseAudio face. Asks over the connection
/// of the hardware, which must outlive this, and only when asked: streams are not followed. A
/// server that is silent for timeLimit counts as one without streams.
///
/// A stream that is corked (paused) or muted by its own hand is not playing; one on a muted device
/// is, for the application cannot know.
class PulseAudioStreams : public AudioStreams
{
public:
    PulseAudioStreams(RunLoop &runLoop, PulseAudioHardware &hardware);
    ~PulseAudioStreams() override;

    void isPlaying(const QString &bundleIdentifier, const Owner &owner,
                   std::function<void(bool)> done) override;

private:
    struct Question {
        PulseAudioStreams &streams;
        QString bundleIdentifier;
        Owner::Reference owner;
        std::function<void(bool)> done;
        bool isPlaying = false;
        pa_operation *operation = nullptr;
        Task limit{};
    };

    static constexpr Duration timeLimit = std::chrono::seconds(2);

    void answer(Question &question);

    static void takeStream(pa_context *, const pa_sink_input_info *stream, int end, void *question);
    static void operationChanged(pa_operation *operation, void *question);

    RunLoop &runLoop_;
    PulseAudioHardware &hardware_;
    std::list<Question> questions_;
};

/// Whether the application that made a stream, as its properties describe it, has the bundle
/// identifier.
bool isStreamOf(const pa_proplist &properties, const QString &bundleIdentifier);

} // namespace quillmere
