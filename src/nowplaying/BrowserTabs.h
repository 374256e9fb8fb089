#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace quillmere {

struct BrowserTab {
    QString url;
    QString title;
    bool isFront = false;

    bool operator==(const BrowserTab &) const = default;
};

/// A tab that plays, or could play, a video.
struct VideoTab {
    QString url;
    QString title; ///< of the video; never empty
    QString videoID;
    bool isFront = false;
};

/// The lines of the browser-tabs question; what does not read as a tab is skipped.
std::vector<BrowserTab> parseTabs(QStringView text);

/// The video that an address of YouTube leads to; empty if none. Made of letters, digits, '-' and
/// '_' only.
QString videoIdentifier(const QString &url);

/// The video's title out of its tab's: without the site's name and the count of unread messages.
QString videoTitle(const QString &tabTitle);

std::vector<VideoTab> videoTabs(const std::vector<BrowserTab> &tabs);

/// The one to show: the front tab, else the one shown so far, else the first. So a video in the
/// background is not given up for another one in the background.
std::optional<VideoTab> electVideoTab(const std::vector<VideoTab> &tabs, const QString &shownUrl);

/// The one whose video has this title: the front tab, else the first.
std::optional<VideoTab> videoTabTitled(const std::vector<VideoTab> &tabs, const QString &title);

} // namespace quillmere
