#include "nowplaying/BrowserArtwork.h"

#include "nowplaying/BrowserTabs.h"
#include "nowplaying/MediaLog.h"
#include "platform/RunningApplications.h"

namespace quillmere {

namespace {

/// The source is asked in any case, the others only if they are there to answer.
QStringList browsersToAsk(const QString &source, const QStringList &running)
{
    QStringList browsers{source};
    for (const auto other :
         {QLatin1StringView("com.google.Chrome"), QLatin1StringView("com.apple.Safari")}) {
        if (source != other && running.contains(other))
            browsers.append(other);
    }
    return browsers;
}

} // namespace

void BrowserArtwork::begin(const ArtworkRequest &request)
{
    request_ = request;
    browsers_ = browsersToAsk(request.bundleID, tools_.applications.running());
    askNextFrontTab();
}

void BrowserArtwork::askNextFrontTab()
{
    if (browsers_.isEmpty())
        return askAllTabs();
    script_ = tools_.scripts.run(scripts::frontTab, {browsers_.takeFirst()},
                                 [this](const ScriptAnswer &answer) {
                                     tools_.scriptLog.logSize(answer);
                                     const QString url = QString::fromUtf8(answer.output).trimmed();
                                     const QString videoID = videoIdentifier(url);
                                     if (videoID.isEmpty())
                                         return askNextFrontTab();
                                     download(videoID, url);
                                 });
}

void BrowserArtwork::askAllTabs()
{
    script_ = tools_.scripts.run(
        scripts::browserTabs, {request_.bundleID}, [this](const ScriptAnswer &answer) {
            tools_.scriptLog.logSize(answer);
            // A tab in the background may be any video: only its title tells that it is this one.
            const auto tab = videoTabTitled(videoTabs(parseTabs(QString::fromUtf8(answer.output))),
                                            request_.title);
            if (!tab)
                return finish({});
            download(tab->videoID, tab->url);
        });
}

void BrowserArtwork::download(const QString &videoID, const QString &url)
{
    request_.videoID = videoID;
    video_.start(request_, [this, url](const ArtworkFinding &finding) {
        finish({finding.artwork, url});
    });
}

} // namespace quillmere
