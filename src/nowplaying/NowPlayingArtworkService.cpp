#include "nowplaying/NowPlayingArtworkService.h"

#include "nowplaying/ArtworkAddresses.h"
#include "platform/Loggable.h"
#include "platform/PictureDecoder.h"
#include "platform/RunLoop.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

NowPlayingArtworkService::NowPlayingArtworkService(RunLoop &runLoop, MediaRemote &mediaRemote,
                                                   ScriptRunner &scripts,
                                                   RunningApplications &applications,
                                                   HttpClient &httpClient)
    : runLoop_(runLoop)
    , mediaRemote_(mediaRemote)
    , scripts_(scripts)
    , tools_{runLoop, httpClient, scripts, applications, scriptLog_}
{
    if (!mediaRemote_.isAvailable())
        return;
    getInfoFn_ = [this](const Owner &owner, std::function<void(const QVariantMap &)> done) {
        mediaRemote_.getNowPlayingInfo(owner, std::move(done));
    };
    mediaRemote_.registerForNowPlayingNotifications();
}

bool NowPlayingArtworkService::send(MediaRemote::Command command)
{
    return mediaRemote_.isAvailable() && mediaRemote_.sendCommand(command);
}

void NowPlayingArtworkService::seek(double fraction)
{
    if (mediaRemote_.isAvailable() && length_ && *length_ > 0 && !std::isnan(fraction))
        mediaRemote_.setElapsedTime(std::clamp(fraction, 0.0, 1.0) * *length_);
}

void NowPlayingArtworkService::fetch(Completion completion)
{
    completion_ = std::move(completion);
    if (asking_)
        return;
    asking_ = std::make_unique<Owner>();
    if (!getInfoFn_)
        return askScript();
    getInfoFn_(*asking_, [this](const QVariantMap &info) {
        if (auto report = parseMediaInfo(info))
            return received(std::move(report), true);
        askScript();
    });
}

void NowPlayingArtworkService::askScript()
{
    script_ = scripts_.run(scripts::nowPlaying, {}, [this](const ScriptAnswer &answer) {
        scriptLog_.log(answer);
        received(parseScriptText(QString::fromUtf8(answer.output)), false);
    });
}

void NowPlayingArtworkService::cancel()
{
    completion_ = nullptr;
    asking_.reset();
    script_.cancel();
    currentTitle_.clear();
    search_.reset();
    videoSearch_.reset();
}

void NowPlayingArtworkService::received(std::optional<PlayerReport> report, bool isFromMediaRemote)
{
    asking_.reset();
    const auto completion = std::exchange(completion_, nullptr);
    const QString title = report ? report->record.title : QString();
    if (title != currentTitle_)
        search_.reset();
    currentTitle_ = title;
    if (!report) {
        length_.reset();
        return completion(std::nullopt);
    }

    Fetch fetch{std::move(*report), isFromMediaRemote, completion, runLoop_.now()};
    const QByteArray &data = fetch.report.artworkData;
    if (data.isEmpty() || data == decodedData_)
        return attachArtwork(std::move(fetch));
    decode(fetch);
}

void NowPlayingArtworkService::decode(const Fetch &fetch)
{
    runLoop_.background(
        owner_, [data = fetch.report.artworkData] { return decodePicture(data); },
        [this, fetch](const std::optional<QImage> &artwork) {
            if (fetch.report.record.title != currentTitle_)
                return;
            if (!artwork)
                qCWarning(mediaLog, "[Quillmere] The artwork of \"%s\" is no usable picture",
                          qUtf8Printable(loggable(fetch.report.record.title)));
            decodedData_ = fetch.report.artworkData;
            decodedArtwork_ = artwork;
            attachArtwork(fetch);
        });
}

void NowPlayingArtworkService::attachArtwork(Fetch fetch)
{
    NowPlayingInfo &record = fetch.report.record;
    record.contentURL = appleMusicPage(record.bundleID.value_or(QString()), fetch.report.storeID,
                                       fetch.report.albumID);
    if (!fetch.report.artworkData.isEmpty() && decodedArtwork_)
        record.artwork = decodedArtwork_;
    if (record.artwork) {
        remember(record.title, *record.artwork);
        search_.reset();
    } else if (record.title == cachedTitle_) {
        record.artwork = cachedArtwork_;
    }
    if (record.artwork)
        return deliver(std::move(fetch));
    lookUp(fetch);
}

void NowPlayingArtworkService::lookUp(const Fetch &fetch)
{
    const NowPlayingInfo &record = fetch.report.record;
    const ArtworkRequest request{record.title, record.bundleID.value_or(QString()),
                                 fetch.report.albumID};
    if (isLookedFor(request.title) || artworkSources(request).empty() ||
        !pauses_.mayAsk(request.title, runLoop_.now()))
        return deliver(fetch);
    search_ = std::make_unique<ArtworkSearch>(tools_);
    search_->start(request, [this, fetch](const ArtworkFinding &finding) {
        const auto search = std::move(search_); // lives until this call is over
        conclude(fetch.report.record.title, finding);
        Fetch completed = fetch;
        completed.report.record.artwork = finding.artwork;
        deliver(std::move(completed));
    });
}

void NowPlayingArtworkService::fetchVideoArtwork(const QString &title, const QString &videoID,
                                                 std::function<void(const QImage &)> done)
{
    if (title == cachedTitle_ && cachedArtwork_)
        return done(*cachedArtwork_);
    if (isLookedFor(title) || !pauses_.mayAsk(title, runLoop_.now()))
        return;
    videoTitle_ = title;
    videoSearch_ = std::make_unique<ArtworkSearch>(tools_);
    videoSearch_->start({.title = title, .videoID = videoID},
                        [this, title, done = std::move(done)](const ArtworkFinding &finding) {
                            const auto search = std::move(videoSearch_);
                            conclude(title, finding);
                            if (finding.artwork)
                                done(*finding.artwork);
                        });
}

bool NowPlayingArtworkService::isLookedFor(const QString &title) const
{
    return (search_ && currentTitle_ == title) || (videoSearch_ && videoTitle_ == title);
}

void NowPlayingArtworkService::remember(const QString &title, const QImage &artwork)
{
    cachedArtwork_ = artwork;
    cachedTitle_ = title;
}

void NowPlayingArtworkService::conclude(const QString &title, const ArtworkFinding &finding)
{
    if (finding.contentURL) {
        link_ = finding.contentURL;
        linkedTitle_ = title;
    }
    if (!finding.artwork)
        return pauses_.failed(title, runLoop_.now());
    pauses_.succeeded(title);
    remember(title, *finding.artwork);
}

void NowPlayingArtworkService::deliver(Fetch fetch)
{
    NowPlayingInfo &record = fetch.report.record;
    if (!record.contentURL && record.title == linkedTitle_)
        record.contentURL = link_;
    // The search took time, in which the track went on.
    if (record.elapsedTime && record.isPlaying.value_or(true))
        *record.elapsedTime += toSeconds(runLoop_.now() - fetch.time);
    length_ = record.duration;
    if (fetch.isFromMediaRemote)
        qCDebug(mediaLog, "[Quillmere] MediaRemote: \"%s\"",
                qUtf8Printable(loggable(record.title)));
    fetch.completion(record);
}

} // namespace quillmere
