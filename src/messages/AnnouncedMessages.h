#pragma once

#include "platform/Time.h"

#include <QString>

#include <deque>

namespace quillmere {

/// Keeps a message that two sources tell of from being announced twice. Who wrote the same twice is
/// announced twice: each message of one source stands for one of the other.
class AnnouncedMessages
{
public:
    enum class Source { Polled, Live };

    /// Whether the other source has told of this text, no longer than `span` ago and not counted
    /// yet. If not, it is remembered for the other.
    bool isKnown(Source source, const QString &text, Instant now, Duration span);

    void clear() { messages_.clear(); }

private:
    struct Message {
        Source source;
        QString text;
        Instant time;
    };

    std::deque<Message> messages_; ///< oldest first
};

} // namespace quillmere
