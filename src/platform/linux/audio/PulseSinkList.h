#pragma once

#include "platform/linux/audio/PulseHandles.h"
#include "platform/linux/audio/PulseSink.h"

#include <functional>
#include <vector>

namespace quillmere {

/// Asks one connection for all its sinks. At most one question is under way; asking meanwhile asks
/// once more after it, so a burst of changes ends with the last state.
class PulseSinkList
{
public:
    using Report = std::function<void(std::vector<PulseSink>)>;

    PulseSinkList(pa_context &context, Report report);

    void ask();

private:
    void send();
    void finish(bool isComplete);

    static void takeSink(pa_context *, const pa_sink_info *sink, int end, void *self);

    pa_context &context_;
    Report report_;
    std::vector<PulseSink> answer_;
    bool isUnderWay_ = false;
    bool isWanted_ = false;
    PulseRequest request_;
};

} // namespace quillmere
