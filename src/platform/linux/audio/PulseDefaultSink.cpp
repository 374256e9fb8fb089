#include "platform/linux/audio/PulseDefaultSink.h"

#include <algorithm>

namespace quillmere {

PulseDefaultSink::PulseDefaultSink(pa_context &context, Report report)
    : context_(context)
    , report_(std::move(report))
{
    ask(Question::Server);
}

void PulseDefaultSink::handle(const PulseConnection::Event &event)
{
    ask(questionAfter(event));
}

PulseDefaultSink::Question
PulseDefaultSink::questionAfter(const PulseConnection::Event &event) const
{
    if (event.facility == PA_SUBSCRIPTION_EVENT_SERVER)
        return Question::Server;
    const bool isOurs = sink_ && sink_->index == event.index;
    if (event.type == PA_SUBSCRIPTION_EVENT_REMOVE)
        return isOurs ? Question::Server : Question::None;
    // The default may be named before its sink is there. While it is looked up, and as long as it
    // was not found, any sink may turn out to be it.
    if (!sink_ || underWay_ == Question::Server)
        return Question::Server;
    return isOurs ? Question::Sink : Question::None;
}

void PulseDefaultSink::ask(Question question)
{
    wanted_ = std::max(wanted_, question);
    if (underWay_ == Question::None)
        askNext();
}

void PulseDefaultSink::askNext()
{
    underWay_ = std::exchange(wanted_, Question::None);
    answer_.reset();
    if (underWay_ == Question::Server)
        request_.reset(pa_context_get_server_info(&context_, takeServer, this));
    else if (underWay_ == Question::Sink && sink_)
        request_.reset(pa_context_get_sink_info_by_index(&context_, sink_->index, takeSink, this));
    else
        underWay_ = Question::None;
}

void PulseDefaultSink::takeServer(pa_context *, const pa_server_info *server, void *self)
{
    const char *name = server ? server->default_sink_name : nullptr;
    static_cast<PulseDefaultSink *>(self)->askForSink(name);
}

void PulseDefaultSink::askForSink(const char *name)
{
    if (!name || !*name)
        return finish();
    request_.reset(pa_context_get_sink_info_by_name(&context_, name, takeSink, this));
    if (!request_)
        finish();
}

void PulseDefaultSink::takeSink(pa_context *, const pa_sink_info *sink, int end, void *self)
{
    auto *reader = static_cast<PulseDefaultSink *>(self);
    if (end)
        return reader->finish();
    reader->answer_ = readSink(*sink);
}

void PulseDefaultSink::finish()
{
    sink_ = answer_;
    report_(sink_);
    askNext();
}

} // namespace quillmere
