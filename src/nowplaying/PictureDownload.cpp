#include "nowplaying/PictureDownload.h"

#include "nowplaying/MediaLog.h"
#include "platform/HttpClient.h"
#include "platform/PictureDecoder.h"
#include "platform/RunLoop.h"

namespace quillmere {

void PictureDownload::start(const QUrl &url, bool isReplacedEndpoint, Done done)
{
    done_ = std::move(done);
    HttpRequest request{.url = url, .isReplacedEndpoint = isReplacedEndpoint};
    request.responseLimit = largestPictureFile;
    request_ = tools_.httpClient.send(request, [this](const HttpResult &result) {
        if (!result)
            qCDebug(mediaLog, "[Quillmere] No picture: %s", qUtf8Printable(result.error().text));
        // Servers send a placeholder picture along with "not found".
        if (!result || result->status != 200)
            return finish(std::nullopt);
        decode(result->body);
    });
}

void PictureDownload::decode(const QByteArray &data)
{
    tools_.runLoop.background(
        owner_, [data] { return decodePicture(data); },
        [this](const std::optional<QImage> &picture) { finish(picture); });
}

void PictureDownload::finish(const std::optional<QImage> &picture)
{
    const auto done = std::exchange(done_, nullptr);
    done(picture);
}

} // namespace quillmere
