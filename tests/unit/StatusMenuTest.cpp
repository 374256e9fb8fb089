#include "app/StatusMenu.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace quillmere {

namespace {

TEST(StatusMenuTest, HasItsEntriesInOrderWithTheirKeysAndActions)
{
    QStringList log;
    const auto write = [&log](const char *name) {
        return [&log, name] { log.append(QLatin1StringView(name)); };
    };
    const auto menu = statusMenu({.showIsland = write("island"),
                                  .refreshNowPlaying = write("refresh"),
                                  .checkForUpdates = write("updates"),
                                  .openSettings = write("settings"),
                                  .quit = write("quit")});
    for (const StatusMenuEntry &entry : menu) {
        log.append(entry.isSeparator ? QStringLiteral("-") : entry.title + entry.keyEquivalent);
        if (entry.action)
            entry.action();
    }
    EXPECT_EQ(log.join(u'|'), QStringLiteral("Show Islands|island|Refresh Now Playingr|refresh|-|"
                                             "Check for Updates…u|updates|Settings…,|settings|-|"
                                             "Quit Quillmereq|quit"));
}

} // namespace

} // namespace quillmere
