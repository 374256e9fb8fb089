#include "nowplaying/BrowserFallback.h"

#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "nowplaying/Browsers.h"
#include "nowplaying/MediaContent.h"
#include "nowplaying/NowPlayingArtworkService.h"
#include "platform/AudioStreams.h"
#include "platform/RunningApplications.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr auto category = IslandDebugLogger::Category::Poller;
constexpr Duration querySpacing = std::chrono::seconds(3);

/// The supported browsers among them, the one in front first.
QStringList browsersAmong(const QStringList &running, const QString &frontmost)
{
    QStringList browsers;
    std::ranges::copy_if(running, std::back_inserter(browsers), &supportedBrowser);
    std::stable_partition(browsers.begin(), browsers.end(),
                          [&frontmost](const QString &browser) { return browser == frontmost; });
    return browsers;
}

QString displayName(const QString &browser)
{
    const Browser *known = supportedBrowser(browser);
    return known ? QString(known->name) : browser;
}

} // namespace

BrowserFallback::BrowserFallback(const Services &services)
    : services_(services)
    , round_(std::make_unique<Owner>())
{
}

void BrowserFallback::keep()
{
    if (!fallbackContent_)
        return;
    services_.audioStreams.isPlaying(shownBrowser_, *round_, [this](bool isPlaying) {
        if (!fallbackContent_)
            return;
        if (isPlaying)
            return services_.hudManager.showNowPlaying(*fallbackContent_);
        stop(QStringLiteral("browser audio stopped"));
    });
}

void BrowserFallback::query()
{
    const Instant now = services_.runLoop.now();
    if (fallbackFetchInFlight_ || (lastFallbackFetch_ && now - *lastFallbackFetch_ <= querySpacing))
        return;
    const QStringList browsers =
        browsersAmong(services_.applications.running(), services_.applications.frontmost());
    if (browsers.isEmpty())
        return;
    fallbackFetchInFlight_ = true;
    lastFallbackFetch_ = now;
    askNextBrowser(browsers);
}

void BrowserFallback::askNextBrowser(QStringList browsers)
{
    if (browsers.isEmpty()) {
        fallbackFetchInFlight_ = false;
        return;
    }
    const QString browser = browsers.takeFirst();
    services_.audioStreams.isPlaying(browser, *round_, [this, browser, browsers](bool isPlaying) {
        if (isPlaying)
            return askTabs(browser);
        askNextBrowser(browsers);
    });
}

void BrowserFallback::askTabs(const QString &browser)
{
    tabsScript_ = services_.scripts.run(scripts::browserTabs, {browser},
                                        [this, browser](const ScriptAnswer &answer) {
                                            fallbackFetchInFlight_ = false;
                                            scriptLog_.logSize(answer);
                                            tabsReceived(browser, answer);
                                        });
}

void BrowserFallback::tabsReceived(const QString &browser, const ScriptAnswer &answer)
{
    const auto tabs = parseTabs(QString::fromUtf8(answer.output));
    const auto videos = videoTabs(tabs);
    const QString shownUrl =
        fallbackContent_ ? fallbackContent_->contentURL.value_or(QString()) : QString();
    if (const auto tab = electVideoTab(videos, shownUrl))
        return show(*tab, browser);
    services_.logger.log(category, [&browser] {
        return QString(u"FALLBACK no usable tab info from " + displayName(browser));
    });
    const bool isShown = std::ranges::find(tabs, shownUrl, &BrowserTab::url) != tabs.end();
    if (fallbackContent_ && browser == shownBrowser_ && answer.hasSucceeded && !tabs.empty() &&
        !isShown)
        stop(QStringLiteral("its tab is gone"));
}

void BrowserFallback::show(const VideoTab &tab, const QString &browser)
{
    const bool isShown = fallbackContent_ && fallbackContent_->contentURL == tab.url &&
                         fallbackContent_->title == tab.title;
    if (!isShown) {
        shownBrowser_ = browser;
        fallbackContent_ = fallbackMediaContent(tab, browser);
        services_.logger.log(category, [&] {
            return QString(u"FALLBACK showing \"" + tab.title + u"\" from " + displayName(browser));
        });
        services_.hudManager.showNowPlaying(*fallbackContent_);
    }
    addArtwork(tab);
}

void BrowserFallback::addArtwork(const VideoTab &tab)
{
    if (fallbackContent_->artworkImage)
        return;
    services_.artwork.fetchVideoArtwork(
        tab.title, tab.videoID,
        [this, alive = round_->reference(), url = tab.url](const QImage &artwork) {
            if (alive.expired() || !fallbackContent_ || fallbackContent_->contentURL != url)
                return;
            fallbackContent_->artworkImage = artwork;
            services_.hudManager.showNowPlaying(*fallbackContent_);
        });
}

void BrowserFallback::electedItemPlays()
{
    abandonQuery();
    if (fallbackContent_)
        end(QStringLiteral("elected item playing again"));
}

/// It is shown once more, as paused.
void BrowserFallback::stop(const QString &why)
{
    HUDContent last = *fallbackContent_;
    last.isPlaying = false;
    end(why);
    services_.hudManager.showNowPlaying(std::move(last));
}

void BrowserFallback::end(const QString &why)
{
    fallbackContent_.reset();
    services_.logger.log(category, [&why] { return QString(u"FALLBACK end — " + why); });
}

void BrowserFallback::reset()
{
    abandonQuery();
    fallbackContent_.reset();
    lastFallbackFetch_.reset();
}

void BrowserFallback::abandonQuery()
{
    round_ = std::make_unique<Owner>();
    tabsScript_.cancel();
    fallbackFetchInFlight_ = false;
}

} // namespace quillmere
