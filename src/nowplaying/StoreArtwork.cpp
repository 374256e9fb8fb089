#include "nowplaying/StoreArtwork.h"

#include "nowplaying/ArtworkAddresses.h"
#include "nowplaying/MediaLog.h"
#include "platform/Endpoints.h"
#include "platform/HttpClient.h"
#include "platform/Loggable.h"

namespace quillmere {

void StoreArtwork::begin(const ArtworkRequest &request)
{
    albumID_ = request.albumID;
    qCDebug(mediaLog, "[Quillmere] Fetching iTunes artwork for adamId=%s",
            qUtf8Printable(albumID_));
    const Endpoint store = endpoint(EndpointName::StoreLookup);
    const HttpRequest question{.url = storeLookupUrl(store.url, albumID_),
                               .isReplacedEndpoint = store.isReplaced};
    request_ = tools_.httpClient.send(
        question, [this, isReplaced = store.isReplaced](const HttpResult &result) {
            if (!result || result->status != 200)
                return failed();
            answered(result->body, isReplaced);
        });
}

void StoreArtwork::answered(const QByteArray &reply, bool isReplacedEndpoint)
{
    const QString address = storeArtworkUrl(reply);
    if (address.isEmpty())
        return failed();
    qCDebug(mediaLog, "[Quillmere] iTunes artwork URL: %s", qUtf8Printable(loggable(address)));
    download_.start(securePictureUrl(address, isReplacedEndpoint), isReplacedEndpoint,
                    [this](const std::optional<QImage> &picture) {
                        if (!picture)
                            return failed();
                        finish({.artwork = picture});
                    });
}

void StoreArtwork::failed()
{
    qCWarning(mediaLog, "[Quillmere] iTunes lookup failed for adamId=%s", qUtf8Printable(albumID_));
    finish({});
}

} // namespace quillmere
