#include "messages/AnnouncedMessages.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr std::size_t most = 64;
constexpr qsizetype longest = 512; // of what is compared

} // namespace

bool AnnouncedMessages::isKnown(Source source, const QString &text, Instant now, Duration span)
{
    while (!messages_.empty() && (messages_.size() >= most || now - messages_.front().time > span))
        messages_.pop_front();
    // Each source breaks lines in its own way.
    Message message{source, text.left(longest).simplified(), now};
    const auto other = std::ranges::find_if(messages_, [&](const Message &told) {
        return told.source != source && told.text == message.text;
    });
    if (other == messages_.end()) {
        messages_.push_back(std::move(message));
        return false;
    }
    messages_.erase(other);
    return true;
}

} // namespace quillmere
