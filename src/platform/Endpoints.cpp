#include "platform/Endpoints.h"

#include <QDebug>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

struct Row {
    EndpointName name;
    QLatin1StringView variable;
    QLatin1StringView address;
};

constexpr std::array rows{
    Row{EndpointName::UpdateFeed, QLatin1StringView{"QUILLMERE_UPDATE_FEED_URL"},
        QLatin1StringView{QUILLMERE_UPDATE_FEED_URL}},
    Row{EndpointName::StoreLookup, QLatin1StringView{"QUILLMERE_STORE_LOOKUP_URL"},
        QLatin1StringView{"https://itunes.apple.com"}},
    Row{EndpointName::VideoThumbnail, QLatin1StringView{"QUILLMERE_VIDEO_THUMBNAIL_URL"},
        QLatin1StringView{"https://i.ytimg.com"}},
    Row{EndpointName::OpenMeteo, QLatin1StringView{"QUILLMERE_OPEN_METEO_URL"},
        QLatin1StringView{"https://api.open-meteo.com"}},
    Row{EndpointName::WeatherKit, QLatin1StringView{"QUILLMERE_WEATHERKIT_URL"},
        QLatin1StringView{"https://weatherkit.apple.com"}},
    Row{EndpointName::PlaceSearch, QLatin1StringView{"QUILLMERE_PLACE_SEARCH_URL"},
        QLatin1StringView{"https://geocoding-api.open-meteo.com"}},
    Row{EndpointName::GoogleAuth, QLatin1StringView{"QUILLMERE_GOOGLE_AUTH_URL"},
        QLatin1StringView{"https://accounts.google.com"}},
    Row{EndpointName::GoogleToken, QLatin1StringView{"QUILLMERE_GOOGLE_TOKEN_URL"},
        QLatin1StringView{"https://oauth2.googleapis.com"}},
    Row{EndpointName::Gmail, QLatin1StringView{"QUILLMERE_GMAIL_URL"},
        QLatin1StringView{"https://gmail.googleapis.com"}},
    Row{EndpointName::GoogleCalendar, QLatin1StringView{"QUILLMERE_GOOGLE_CALENDAR_URL"},
        QLatin1StringView{"https://www.googleapis.com"}},
};

constexpr QLatin1StringView loopback{"127.0.0.1"};

} // namespace

Endpoint endpoint(EndpointName name)
{
    const auto row = std::ranges::find(rows, name, &Row::name);
    const QString replacement = qEnvironmentVariable(row->variable.latin1());
    if (replacement.isEmpty())
        return {QUrl(row->address), false};
    const QUrl url(replacement, QUrl::StrictMode);
    if (mayRequest(url, true))
        return {url, true};
    qWarning("[Endpoints] %s is neither https nor http on 127.0.0.1; ignored",
             row->variable.latin1());
    return {QUrl(row->address), false};
}

bool mayRequest(const QUrl &url, bool isReplaced)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    if (url.scheme() == QLatin1StringView("https"))
        return true;
    return isReplaced && url.scheme() == QLatin1StringView("http") && url.host() == loopback;
}

} // namespace quillmere
