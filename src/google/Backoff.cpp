#include "google/Backoff.h"

#include "google/HttpDate.h"

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration shortest = 1min;
constexpr Duration longest = 30min;
constexpr Duration longestAsked = 24h;
constexpr int forbidden = 403;
constexpr int tooManyRequests = 429;
constexpr int serverError = 500;

} // namespace

void Backoff::answered(const HttpResponse &response, Instant now, const QDateTime &date)
{
    if (!wantsPause(response)) {
        length_ = {};
        end_ = {};
        return;
    }
    length_ = std::clamp(length_ * 2, shortest, longest);
    end_ = now + std::min(retryAfter(response.headers, date).value_or(length_), longestAsked);
}

bool wantsPause(const HttpResponse &response)
{
    return response.status == tooManyRequests || response.status >= serverError ||
           // The quota of a user or of a project, under another status.
           (response.status == forbidden && (response.body.contains("ateLimitExceeded") ||
                                             response.body.contains("quotaExceeded")));
}

std::optional<Duration> retryAfter(const HttpHeaders &headers, const QDateTime &date)
{
    const auto header = headerNamed(headers, "retry-after");
    if (!header)
        return std::nullopt;
    bool isNumber = false;
    const double number = header->trimmed().toDouble(&isNumber);
    if (isNumber)
        return seconds(number);
    const QDateTime end = httpDate(*header);
    if (!end.isValid())
        return std::nullopt;
    return seconds(static_cast<double>(date.msecsTo(end)) / 1000);
}

} // namespace quillmere
