#include "nowplaying/MediaContent.h"

#include "nowplaying/Browsers.h"
#include "platform/Symbols.h"

#include <algorithm>

namespace quillmere {

HUDContent mediaContent(const NowPlayingInfo &info)
{
    HUDContent content;
    content.title = info.title;
    content.subtitle = info.artist;
    content.artworkImage = info.artwork;
    content.bundleID = info.bundleID;
    content.contentURL = info.contentURL;
    content.isPlaying = info.isPlaying;
    return content;
}

HUDContent fallbackMediaContent(const VideoTab &tab, const QString &browser)
{
    HUDContent content;
    content.title = tab.title;
    content.subtitle = QStringLiteral("YouTube");
    content.icon = symbols::playCircle;
    content.bundleID = browserBundleID(browser);
    content.contentURL = tab.url;
    content.isPlaying = true;
    content.isBrowserFallback = true;
    return content;
}

QString pollLine(const NowPlayingInfo &info)
{
    const QString title = u"title=\"" + info.title + u'"';
    if (!info.duration)
        return title + u" NO_DURATION — direct set";
    const auto fixed = [](double value) { return QString::number(value, 'f', 2); };
    return title + u" elapsed=" + fixed(shownElapsed(info)) + u" dur=" + fixed(*info.duration) +
           u" playing=" +
           (info.isPlaying.value_or(true) ? QLatin1StringView("true") : QLatin1StringView("false"));
}

double shownElapsed(const NowPlayingInfo &info)
{
    return std::max(info.elapsedTime.value_or(0), 0.0);
}

} // namespace quillmere
