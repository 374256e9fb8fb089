#pragma once

#include "island/HUDContent.h"
#include "nowplaying/BrowserTabs.h"
#include "nowplaying/NowPlayingInfo.h"

namespace quillmere {

/// A track as the island shows it.
HUDContent mediaContent(const NowPlayingInfo &info);

/// A video found in a tab of a browser (an identifier or a name), as the island shows it.
HUDContent fallbackMediaContent(const VideoTab &tab, const QString &browser);

/// The lines of the debug log.
QString pollLine(const NowPlayingInfo &info);

/// Seconds into the track, 0 or more.
double shownElapsed(const NowPlayingInfo &info);

} // namespace quillmere
