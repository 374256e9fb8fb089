#pragma once

#include "platform/LocationManager.h"
#include "platform/Task.h"

#include <tl/expected.hpp>

#include <QUrl>

#include <functional>

namespace quillmere {

class HttpClient;

/// A place somebody may mean.
struct FoundPlace {
    Location location;
    QString region{}; ///< what tells it from its namesakes, "Bavaria, Germany"; may be empty

    bool operator==(const FoundPlace &) const = default;
};

QUrl placeSearchUrl(const QUrl &server, const QString &text);

/// The places in an answer, best first; nothing if it is not an answer.
std::optional<QList<FoundPlace>> placesIn(const QByteArray &answer);

/// Finds places by what a person types. One search at a time: a new one ends the one before. Main
/// thread only.
class PlaceSearch
{
public:
    using Result = tl::expected<QList<FoundPlace>, QString>;

    /// The server knows nothing by a single letter.
    static constexpr qsizetype shortestText = 2;
    static constexpr qsizetype longestText = 100;

    explicit PlaceSearch(HttpClient &httpClient)
        : httpClient_(httpClient)
    {
    }

    /// `done` gets at most ten places, or why there are none to tell; never from within the call,
    /// and not at all for a text that is too short.
    void search(const QString &text, std::function<void(const Result &)> done);
    void cancel() { request_.cancel(); }

private:
    HttpClient &httpClient_;
    Task request_;
};

} // namespace quillmere
