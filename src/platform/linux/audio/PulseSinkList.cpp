#include "platform/linux/audio/PulseSinkList.h"

#include <utility>

namespace quillmere {

PulseSinkList::PulseSinkList(pa_context &context, Report report)
    : context_(context)
    , report_(std::move(report))
{
}

void PulseSinkList::ask()
{
    isWanted_ = true;
    if (!isUnderWay_)
        send();
}

void PulseSinkList::send()
{
    isWanted_ = false;
    answer_.clear();
    request_.reset(pa_context_get_sink_info_list(&context_, takeSink, this));
    isUnderWay_ = request_ != nullptr;
}

void PulseSinkList::takeSink(pa_context *, const pa_sink_info *sink, int end, void *self)
{
    auto *list = static_cast<PulseSinkList *>(self);
    if (end)
        return list->finish(end > 0);
    list->answer_.push_back(readSink(*sink));
}

void PulseSinkList::finish(bool isComplete)
{
    isUnderWay_ = false;
    if (isWanted_)
        return send(); // this answer is out of date already
    if (isComplete)
        report_(std::exchange(answer_, {}));
}

} // namespace quillmere
