#include "nowplaying/BrowserTabs.h"

#include <QRegularExpression>
#include <QStringList>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

namespace quillmere {

namespace {

using L1 = QLatin1StringView;

constexpr L1 webDomain("youtube.com");
constexpr L1 shortLinkDomain("youtu.be");

bool isAt(const QString &host, L1 domain)
{
    return host == domain ||
           (host.endsWith(domain) && host.at(host.size() - domain.size() - 1) == u'.');
}

/// Identifiers become parts of addresses and of log lines.
QString checkedIdentifier(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9_-]{1,64}\\z"));
    return form.match(text).hasMatch() ? text : QString();
}

template <class Predicate>
std::optional<VideoTab> firstOf(const std::vector<VideoTab> &tabs, Predicate predicate)
{
    const auto found = std::ranges::find_if(tabs, predicate);
    return found == tabs.end() ? std::nullopt : std::optional(*found);
}

} // namespace

std::vector<BrowserTab> parseTabs(QStringView text)
{
    std::vector<BrowserTab> tabs;
    const auto lines = text.split(u'\n');
    for (qsizetype index = 0; index < lines.size(); ++index) {
        const auto parts = lines.at(index).split(QStringLiteral("|~|"));
        if (parts.size() == 2 && !parts.front().isEmpty())
            tabs.push_back({parts.front().toString(), parts.back().toString(), index == 0});
    }
    return tabs;
}

QString videoIdentifier(const QString &address)
{
    const QUrl url(address);
    const QString host = url.host(); // lower case
    if (isAt(host, webDomain))
        return checkedIdentifier(QUrlQuery(url).queryItemValue(QStringLiteral("v")));
    if (isAt(host, shortLinkDomain))
        return checkedIdentifier(url.path().mid(1));
    return {};
}

QString videoTitle(const QString &tabTitle)
{
    static const QRegularExpression additions(
        QStringLiteral("\\A\\s*\\(\\d+\\+?\\)(?=\\s)|(?:\\A|\\s)- YouTube(?: Music)?\\s*\\z"));
    return QString(tabTitle).remove(additions).trimmed();
}

std::vector<VideoTab> videoTabs(const std::vector<BrowserTab> &tabs)
{
    std::vector<VideoTab> videos;
    for (const BrowserTab &tab : tabs) {
        VideoTab video{tab.url, videoTitle(tab.title), videoIdentifier(tab.url), tab.isFront};
        if (!video.videoID.isEmpty() && !video.title.isEmpty())
            videos.push_back(std::move(video));
    }
    return videos;
}

std::optional<VideoTab> electVideoTab(const std::vector<VideoTab> &tabs, const QString &shownUrl)
{
    if (auto front = firstOf(tabs, [](const VideoTab &tab) { return tab.isFront; }))
        return front;
    if (auto shown = firstOf(tabs, [&](const VideoTab &tab) { return tab.url == shownUrl; }))
        return shown;
    return firstOf(tabs, [](const VideoTab &) { return true; });
}

std::optional<VideoTab> videoTabTitled(const std::vector<VideoTab> &tabs, const QString &title)
{
    return firstOf(tabs, [&title](const VideoTab &tab) { return tab.title == title; });
}

} // namespace quillmere
