#include "platform/linux/media/ArtworkLoader.h"

#include "platform/PictureDecoder.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr int okStatus = 200;
constexpr int serverError = 500;
constexpr Duration shortestPause = std::chrono::seconds(2);
constexpr Duration longestPause = std::chrono::minutes(10);

HttpRequest requestFor(const QString &address)
{
    HttpRequest request;
    request.url = QUrl(address, QUrl::StrictMode);
    request.responseLimit = largestPictureFile;
    return request;
}

/// Whether there may be a picture all the same.
bool isPassing(const HttpResult &result)
{
    if (result)
        return result->status >= serverError;
    return result.error().kind == HttpError::Kind::Failed ||
           result.error().kind == HttpError::Kind::TimedOut;
}

} // namespace

std::optional<ArtworkLoader::Picture> ArtworkLoader::decoded(const QByteArray &data,
                                                             const FileStamp &stamp)
{
    return Picture{stamp, decodePicture(data).value_or(QImage())};
}

ArtworkLoader::ArtworkLoader(RunLoop &runLoop, HttpClient &httpClient,
                             std::function<void()> onLoaded)
    : runLoop_(runLoop)
    , httpClient_(httpClient)
    , onLoaded_(std::move(onLoaded))
{
}

QImage ArtworkLoader::image(const ArtSource &source) const
{
    return loaded_.isSame(source) ? picture_.image : QImage();
}

void ArtworkLoader::want(const ArtSource &source)
{
    const bool isOther = !wanted_.isSame(source);
    if (isOther) {
        download_.cancel();
        pause_ = {};
        pauseEnd_ = {};
    } else if (download_ || (isBusy_ && source.kind != ArtSource::Kind::File)) {
        return;
    }
    wanted_ = source;
    load();
}

void ArtworkLoader::retry()
{
    if (pause_ > Duration::zero() && !download_)
        load();
}

void ArtworkLoader::load()
{
    const bool isHere = loaded_.isSame(wanted_) && wanted_.kind != ArtSource::Kind::File;
    isAsked_ = isBusy_;
    if (isHere)
        wanted_.data.clear();
    if (isBusy_ || isHere)
        return;
    switch (wanted_.kind) {
    case ArtSource::Kind::None:
        loaded_ = {};
        picture_ = {};
        break;
    case ArtSource::Kind::File:
        decode(wanted_, [path = wanted_.location,
                         known = loaded_.isSame(wanted_) ? picture_.stamp : FileStamp()]() {
            auto file = readPictureFile(path, known);
            return file ? decoded(file->bytes, file->stamp) : std::nullopt;
        });
        break;
    case ArtSource::Kind::Data:
        decode(wanted_, [data = std::exchange(wanted_.data, {})]() { return decoded(data); });
        break;
    case ArtSource::Kind::Web:
        download();
        break;
    }
}

void ArtworkLoader::download()
{
    if (runLoop_.now() < pauseEnd_)
        return;
    download_ = httpClient_.send(
        requestFor(wanted_.location),
        [this, source = wanted_](const HttpResult &result) { downloaded(source, result); });
}

void ArtworkLoader::downloaded(const ArtSource &source, const HttpResult &result)
{
    download_ = {};
    if (isPassing(result)) {
        pause_ = std::clamp(2 * pause_, shortestPause, longestPause);
        pauseEnd_ = runLoop_.now() + pause_;
        return;
    }
    pause_ = {};
    const auto body = result && result->status == okStatus ? result->body : QByteArray();
    decode(source, [body]() { return decoded(body); });
}

template <class Work>
void ArtworkLoader::decode(const ArtSource &source, Work work)
{
    isBusy_ = true;
    runLoop_.background(owner_, std::move(work),
                        [this, key = ArtSource{source.kind, source.location, {}}](
                            std::optional<Picture> picture) { take(key, std::move(picture)); });
}

void ArtworkLoader::take(const ArtSource &source, std::optional<Picture> picture)
{
    isBusy_ = false;
    const bool isNews = picture && source.isSame(wanted_);
    if (isNews) {
        loaded_ = source;
        picture_ = std::move(*picture);
    }
    if (std::exchange(isAsked_, false))
        load();
    if (isNews)
        onLoaded_();
}

} // namespace quillmere
