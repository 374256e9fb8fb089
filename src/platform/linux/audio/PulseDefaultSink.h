#pragma once

#include "platform/linux/audio/PulseConnection.h"
#include "platform/linux/audio/PulseSink.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Follows the default sink of one connection.
///
/// At most one question is under way. Events that come meanwhile only mark what has to be asked
/// again, so a burst of changes costs one more question and no memory, and the last value wins.
class PulseDefaultSink
{
public:
    /// Called with every answer, changed or not; nullopt = there is no default sink. First called
    /// once the server has told its default sink and that sink's state.
    using Report = std::function<void(const std::optional<PulseSink> &)>;

    PulseDefaultSink(pa_context &context, Report report);

    void handle(const PulseConnection::Event &event);

private:
    enum class Question { None, Sink, Server }; // the server's answer leads to the sink's

    void ask(Question question);
    void askNext();
    void askForSink(const char *name);
    void finish();
    Question questionAfter(const PulseConnection::Event &event) const;

    static void takeServer(pa_context *, const pa_server_info *server, void *self);
    static void takeSink(pa_context *, const pa_sink_info *sink, int end, void *self);

    pa_context &context_;
    Report report_;
    std::optional<PulseSink> sink_;
    std::optional<PulseSink> answer_;
    Question underWay_ = Question::None;
    Question wanted_ = Question::None;
    PulseRequest request_;
};

} // namespace quillmere
