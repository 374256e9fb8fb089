#include "app/AppEvents.h"
#include "app/FileDragWatcher.h"
#include "app/FileDrop.h"
#include "support/FakeDragPasteboard.h"
#include "support/FakeGlobalEvents.h"
#include "support/ManualRunLoop.h"
#include "support/SettingsFixture.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace quillmere {
namespace {

class FileDragWatcherTest : public ::testing::Test, public SettingsFixture
{
protected:
    FileDragWatcherTest()
    {
        settings.showFileTray.set(true);
        watcher.start();
    }

    /// Plays a script and answers what was posted, in place, between its letters: E and X.
    ///   f, t: a drag of files or text begins   d: the pointer moves, button held   u: release
    ///   w: the awaited answer comes   .: 0.1 s pass   -, +: the tray is switched off and on
    ///   o, l: the drag comes over the island, leaves it   s: stop
    std::string play(std::string_view script)
    {
        log.clear();
        for (const char c : script) {
            log += c;
            step(c);
        }
        return log;
    }

    void step(char c)
    {
        switch (c) {
        case 'f':
            return pasteboard.put(true);
        case 't':
            return pasteboard.put(false);
        case 'd':
            return events.drag();
        case 'u':
            return events.release();
        case 'w':
            return pasteboard.answerAll();
        case '.':
            return runLoop.advance(100ms);
        case '-':
            return settings.showFileTray.set(false);
        case '+':
            return settings.showFileTray.set(true);
        case 'o':
            return watcher.islandDragChanged(true);
        case 'l':
            return watcher.islandDragChanged(false);
        case 's':
            return watcher.stop();
        default:
            FAIL();
        }
    }

    std::string log;
    ManualRunLoop runLoop;
    FakeGlobalEvents events;
    FakeDragPasteboard pasteboard;
    FileDragWatcher watcher{runLoop, events, pasteboard, notifications, settings};
    Task entered = notifications.observe(events::dragEntered, [this](auto &) { log += 'E'; });
    Task exited = notifications.observe(events::dragExited, [this](auto &) { log += 'X'; });
};

TEST_F(FileDragWatcherTest, PostsOnceForEachDragOfFilesAndNeverForAnother)
{
    EXPECT_EQ(play("dddu...."), "dddu....");
    EXPECT_EQ(play("dfdddu....."), "dfdEddu...X..");
    EXPECT_EQ(play("ddu...."), "ddu....") << "of a window, with the old content still there";
    EXPECT_EQ(play("tdddu...."), "tdddu....");
    EXPECT_EQ(play("-fdd+du..-.-..."), "-fdd+dEu..-.X-...");
    EXPECT_EQ(play("fdu...."), "fdu....");
    EXPECT_EQ(play("+fdu.fdu...."), "+fdEu.fdXEu...X.") << "the events take turns";
    EXPECT_EQ(play("fdsdu...."), "fdEsdu....");
    EXPECT_FALSE(watcher.dragDetected() || events.dragsAreWatched());
}

TEST_F(FileDragWatcherTest, AnswersThatComeLateCountOnlyWhileTheirDragLasts)
{
    pasteboard.answersAtOnce = false;
    EXPECT_EQ(play("fdddwdu..."), "fdddwEdu...X");
    EXPECT_EQ(pasteboard.timesAsked, 1);
    EXPECT_EQ(play("fduwdwu..."), "fduwdwu...") << "nor does the drag of a window after it";
    EXPECT_EQ(play("fdudwu..."), "fdudwu...");
    EXPECT_EQ(play("fdsw"), "fdsw");
}

TEST_F(FileDragWatcherTest, WithoutGlobalDragsTheIslandsOwnSightCounts)
{
    EXPECT_EQ(play("ol"), "ol");
    events.able.drags = false;
    EXPECT_EQ(play("loo..l...."), "loEo..l...X.");
    EXPECT_EQ(play("-ol...."), "-ol....");
}

TEST(FileDropTest, TheHUDNamesWhatWasDropped)
{
    const std::vector<std::pair<QList<QUrl>, QString>> cases{
        {{QUrl(QStringLiteral("file:///tmp/a%20%C3%A9%2525.txt"))}, QStringLiteral("a é%25.txt")},
        {{QUrl(QStringLiteral("file:///tmp/folder/"))}, QStringLiteral("folder")},
        {{QUrl(QStringLiteral("file:///"))}, QStringLiteral("/")},
        {{QUrl(QStringLiteral("file:///b")), QUrl(QStringLiteral("file:///c"))},
         QStringLiteral("b and 1 more")},
    };
    for (const auto &[files, subtitle] : cases) {
        const auto hud = fileAddedHUD(droppedFiles(fileDropInfo(files)));
        EXPECT_EQ(hud.subtitle, subtitle);
        EXPECT_EQ(hud.title, QStringLiteral("File Added"));
        EXPECT_EQ(hud.icon, QStringLiteral("tray.and.arrow.down.fill"));
        EXPECT_EQ(hud.type, HUDContent::HUDType::FileTray);
    }
    EXPECT_EQ(fileAddedHUD(droppedFiles({})).subtitle, std::nullopt);
}

} // namespace
} // namespace quillmere
