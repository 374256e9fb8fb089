#pragma once

#include "platform/HttpClient.h"
#include "platform/Time.h"

#include <QDateTime>

#include <optional>

namespace quillmere {

/// How long a server that has had enough of us is left alone: as long as it says, else twice as
/// long with every such answer, from 1 to 30 minutes. A day at most.
class Backoff
{
public:
    bool mayAsk(Instant now) const { return now >= end_; }

    /// Takes note of an answer. `date` is the wall clock's.
    void answered(const HttpResponse &response, Instant now, const QDateTime &date);

private:
    Duration length_{};
    Instant end_{};
};

/// Whether the answer asks for fewer requests.
bool wantsPause(const HttpResponse &response);

/// The header of that name, in seconds or as a date.
std::optional<Duration> retryAfter(const HttpHeaders &headers, const QDateTime &date);

} // namespace quillmere
