#pragma once

#include <QString>
#include <QUrl>

namespace quillmere {

/// The servers the program talks to. Each address can be replaced by an environment variable
/// QUILLMERE_<NAME>_URL, for one's own server and for tests; never by a setting, for those sync.
enum class EndpointName {
    UpdateFeed,
    StoreLookup,
    VideoThumbnail,
    OpenMeteo,
    WeatherKit,
    PlaceSearch,
    GoogleAuth,
    GoogleToken,
    Gmail,
    GoogleCalendar
};

struct Endpoint {
    QUrl url;                ///< empty: this build knows none
    bool isReplaced = false; ///< by the environment; then it may be http on 127.0.0.1
};

/// The address in use. A replacement that is neither https nor http on 127.0.0.1 is logged and
/// ignored. Main thread only.
Endpoint endpoint(EndpointName name);

/// Whether a request may go to `url`: https, or http on 127.0.0.1 for a replaced endpoint.
bool mayRequest(const QUrl &url, bool isReplaced);

} // namespace quillmere
