#include "platform/Symbols.h"
#include "support/IslandFixture.h"
#include "support/LogCapture.h"
#include "views/ArtworkAccent.h"
#include "views/ArtworkItem.h"
#include "views/IslandWindow.h"
#include "views/MediaTitle.h"
#include "views/WaveShape.h"
#include "views/Waveform.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

TEST(MediaTitleTest, ExtrasGoAndWhatTellsRecordingsApartStays)
{
    const struct {
        QString title;
        QString bare;
    } cases[] = {
        {u"Tide (Official Video)"_s, u"Tide"_s},
        {u"Tide [Official Music Video] [HD]"_s, u"Tide"_s},
        {u"Tide (Remastered 2011) (Live)"_s, u"Tide (Live)"_s},
        {u"Tide - 2011 Remaster"_s, u"Tide"_s},
        {u"Tide - Acoustic - Remastered"_s, u"Tide - Acoustic"_s},
        {u"Tide | Lyrics"_s, u"Tide"_s},
        {u"Tide (feat. The Others)"_s, u"Tide"_s},
        {u"Tide ft. The Others (Remix)"_s, u"Tide (Remix)"_s},
        {u"Tide【MV】"_s, u"Tide"_s},
        {u"A Feat of Arms"_s, u"A Feat of Arms"_s},
        {u"The Video (Kept Me Up)"_s, u"The Video (Kept Me Up)"_s},
        {u"Six ft under - 1999"_s, u"Six ft under - 1999"_s},
        {u"(Official Video)"_s, u"(Official Video)"_s},
        {u"[HD] - Audio"_s, u"- Audio"_s},
        {u" Tide\n(\u202eAudio) "_s, u"Tide"_s},
        {u"(((("_s, u"(((("_s},
        {QString(), QString()},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(mediaTitle(c.title, true), c.bare);
        EXPECT_EQ(mediaTitle(c.title, false).contains(u'\n'), false);
    }
    EXPECT_EQ(mediaTitle(cases[0].title, false), cases[0].title);
}

QImage stripes(std::initializer_list<QColor> colors)
{
    QImage image(static_cast<int>(colors.size()) * 20, 100, QImage::Format_ARGB32);
    QPainter painter(&image);
    for (int x = 0; const QColor &color : colors)
        painter.fillRect(20 * x++, 0, 20, 100, color);
    return image;
}

TEST(ArtworkAccentTest, IsTheStrikingColourAndReadable)
{
    const QColor black(0, 0, 0);
    const QColor beige(0xd8, 0xcf, 0xc0);
    const struct {
        QImage picture;
        int hue; ///< -1 = grey
    } cases[] = {
        {stripes({Qt::black, beige, beige, QColor(0xe0, 0x30, 0x30)}), 0},
        {stripes({black, black, black, black, QColor(0, 0, 0x90)}), 240},
        {stripes({QColor(0xff, 0xe0, 0x20), QColor(0xff, 0xe0, 0x20), QColor(0, 0x40, 0)}), 51},
        {stripes({QColor(0xff, 0, 0x10), QColor(0xff, 0x10, 0), QColor(0, 0x80, 0xff)}), 0},
        {stripes({Qt::white, Qt::gray, black}), -1},
        {stripes({black}), -1},
        {stripes({QColor(255, 0, 0, 0)}), -1},
        {QImage(), -1},
        {QImage(1, 1, QImage::Format_Mono), -1},
    };
    for (const auto &c : cases) {
        const QColor accent = artworkAccent(c.picture);
        EXPECT_GE(contrastOnBlack(accent), 4.5) << accent.name().toStdString();
        if (c.hue < 0) {
            EXPECT_LT(accent.hslSaturationF(), 0.2);
        } else {
            EXPECT_NEAR((accent.hslHue() + 10) % 360, c.hue + 10, 8);
            EXPECT_GE(accent.hslSaturationF(), 0.5);
        }
    }
    EXPECT_NEAR(contrastOnBlack(Qt::white), 21, 0.01);
}

TEST(WaveShapeTest, BarsStayInsideAndApart)
{
    for (int bar = 0; bar < 12; ++bar) {
        double low = 1;
        double high = 0;
        for (int frame = 0; frame < 1500; ++frame) {
            const double height = playingHeight(bar, frame * 0.04);
            low = std::min(low, height);
            high = std::max(high, height);
        }
        EXPECT_GE(low, 0);
        EXPECT_LE(high, 1);
        EXPECT_GT(high - low, 0.4) << bar;
        EXPECT_LT(restingHeight(bar), stillHeight(bar));
    }
}

TEST(MediaFaceTest, TheButtonsOfThePlayModeShowHowItStands)
{
    using enum MediaControlButton;
    const auto button = [](MediaControlButton kind, std::optional<bool> isShuffling,
                           std::optional<RepeatMode> repeat) {
        const auto extra = extraButton(kind, isShuffling, repeat);
        return extra ? extra->symbol + u' ' + extra->text + (extra->isOn ? u" *"_s : QString())
                     : QString();
    };
    EXPECT_EQ(button(Shuffle, {}, RepeatMode::List), QString());
    EXPECT_EQ(button(Shuffle, true, {}), u"shuffle Shuffle, on *"_s);
    EXPECT_EQ(button(Shuffle, false, {}), u"shuffle Shuffle, off"_s);
    EXPECT_EQ(button(Repeat, true, {}), QString());
    EXPECT_EQ(button(Repeat, {}, RepeatMode::Nothing), u"repeat Repeat, off"_s);
    EXPECT_EQ(button(Repeat, {}, RepeatMode::List), u"repeat Repeat, all *"_s);
    EXPECT_EQ(button(Repeat, {}, RepeatMode::Track), u"repeat.1 Repeat, this track *"_s);
    EXPECT_EQ(button(Favorite, true, RepeatMode::List), QString());
    EXPECT_FALSE(button(Copy, {}, {}).isEmpty());
}

class MediaViewsTest : public testing::Test, protected IslandFixture
{
protected:
    static void SetUpTestSuite()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        static int argc = 1;
        static char name[] = "MediaViewsTest";
        static char *argv[] = {name, nullptr};
        application = new QGuiApplication(argc, argv);
    }
    static void TearDownTestSuite() { delete application; }

    void play(const QString &title, double elapsed, double duration, bool playing = true)
    {
        HUDContent record;
        record.title = title;
        record.subtitle = u"Artist"_s;
        record.artworkImage = artwork;
        record.isPlaying = playing;
        hud.updateNowPlaying(record, elapsed, duration);
        runLoop.settle();
    }

    QQuickItem *scene() const { return window.contentItem()->childItems().constFirst(); }

    /// The only one of its kind in the shown scene.
    template <class Item>
    Item *shown() const
    {
        Item *found = nullptr;
        for (auto *item : scene()->findChildren<Item *>()) {
            if (item->isVisible()) {
                EXPECT_FALSE(found);
                found = item;
            }
        }
        return found;
    }

    MediaModel &media = *dashboard.media();
    QImage artwork = stripes({QColor(0xff, 0x80, 0x20)});
    static inline QGuiApplication *application = nullptr;
    IslandWindow window;
};

TEST_F(MediaViewsTest, SoughtPlaceHoldsUntilThePlayerFollows)
{
    QSignalSpy sought(&media, &MediaModel::seekRequested);
    media.seek(0.5); // nothing plays
    EXPECT_TRUE(sought.isEmpty());
    play(u"Tide"_s, 10, 200);
    EXPECT_EQ(media.elapsed() + media.remaining(), u"0:10\u22123:10"_s);

    media.seek(0.5);
    play(u"Tide"_s, 11, 200); // not there yet
    EXPECT_EQ(media.elapsed() + media.remaining(), u"1:40\u22121:40"_s);
    media.step(-5);
    EXPECT_EQ(sought.last().first().toDouble(), 0.475);
    play(u"Tide"_s, 96, 200);
    EXPECT_EQ(media.elapsed(), u"1:36"_s);

    media.seek(2);
    EXPECT_EQ(sought.last().first().toDouble(), 1);
    runLoop.advance(2s); // the player does not want to
    EXPECT_EQ(media.elapsed(), u"1:38"_s);
    media.seek(0.9);
    play(u"Next"_s, 0, 100);
    EXPECT_EQ(media.progress(), 0);

    play(u"Stream"_s, 30, 0);
    EXPECT_FALSE(media.hasDuration());
    const auto before = sought.size();
    media.seek(0.5);
    media.step(5);
    EXPECT_EQ(sought.size(), before);
}

TEST_F(MediaViewsTest, ColourComesFromTheArtworkAndIsFoundOnce)
{
    const QColor plain = media.accent();
    play(u"Tide"_s, 0, 100);
    EXPECT_NEAR(media.accent().hslHue(), 26, 4);
    QSignalSpy changed(&media, &MediaModel::artworkChanged);
    artwork = artwork.copy(); // another image, the same picture
    play(u"Ebb"_s, 0, 100);
    EXPECT_TRUE(changed.isEmpty());
    settings.enableDynamicColors.set(false);
    EXPECT_EQ(media.accent(), plain);
    appearance.accent = {0.2, 0.9, 0.3};
    appearance.changed();
    EXPECT_NEAR(media.accent().hslHue(), 129, 2);
    hud.clearNowPlaying();
    EXPECT_FALSE(media.hasMedia());
    EXPECT_EQ(media.title(), u"Ebb"_s); // to fade out
    QSignalSpy look(&media, &MediaModel::lookChanged);
    settings.showMediaHUD.set(false);
    EXPECT_FALSE(media.isOffered() || look.isEmpty());
    play(u"Tide"_s, 0, 100);
    EXPECT_FALSE(media.hasMedia());
}

TEST_F(MediaViewsTest, SourceOpensPagesOnlyAndElseAsksForTheApplication)
{
    QSignalSpy links(&media, &MediaModel::linkActivated);
    QSignalSpy sources(&media, &MediaModel::sourceRequested);
    for (const QString &url : {u"https://example.org/tide"_s, u"file:///bin/sh"_s}) {
        HUDContent record;
        record.title = u"Tide"_s;
        record.contentURL = url;
        record.bundleID = u"org.example.Player"_s;
        hud.updateNowPlaying(record, 0, 0);
        media.openSource();
    }
    EXPECT_EQ(links.size(), 1);
    EXPECT_EQ(sources.size(), 1);
}

TEST_F(MediaViewsTest, WaveformWakesNobodyUnlessItPlaysAndIsSeen)
{
    LogCapture log;
    window.setIsland(island, dashboard);
    play(u"Tide"_s, 10, 200);
    content.toggle();
    auto *wave = shown<Waveform>();
    ASSERT_TRUE(wave);
    EXPECT_FALSE(wave->isMoving()); // nobody sees the window
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    EXPECT_TRUE(wave->isMoving());
    wave->setVisible(false);
    EXPECT_FALSE(wave->isMoving());
    wave->setVisible(true);
    EXPECT_TRUE(wave->isMoving());
    appearance.reduced = true;
    appearance.changed();
    EXPECT_FALSE(wave->isMoving());
    appearance.reduced = false;
    appearance.changed();
    play(u"Tide"_s, 10, 200, false);
    play(u"Tide"_s, 10, 200, false);
    EXPECT_FALSE(media.isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !wave->isMoving(); })); // settled
    window.clearIsland();
    EXPECT_EQ(log.take(), QStringList());
}

TEST_F(MediaViewsTest, ArtworkTurnsOverOncePerPicture)
{
    window.setIsland(island, dashboard);
    play(u"Tide"_s, 10, 200);
    content.toggle();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    auto *shownArtwork = shown<ArtworkItem>();
    ASSERT_TRUE(shownArtwork);
    EXPECT_EQ(shownArtwork->turn(), shownArtwork->turns()); // an opening page turns nothing
    const int before = shownArtwork->turns();
    play(u"Ebb"_s, 0, 100); // of the same record
    EXPECT_EQ(shownArtwork->turns(), before);
    artwork = stripes({Qt::blue});
    play(u"Flow"_s, 0, 100);
    EXPECT_EQ(shownArtwork->turns(), before + 1);
    EXPECT_LT(shownArtwork->turn(), before + 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownArtwork->turn() == before + 1; }));
    window.clearIsland();
}

TEST_F(MediaViewsTest, ScrubberSeeksWhereItIsLetGo)
{
    window.setIsland(island, dashboard);
    play(u"Tide"_s, 10, 200);
    content.toggle();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QQuickItem *scrubber = nullptr;
    for (auto *item : scene()->findChildren<QQuickItem *>())
        if (item->property("keyStep").isValid())
            scrubber = item;
    ASSERT_TRUE(scrubber);
    QSignalSpy sought(&media, &MediaModel::seekRequested);
    const auto at = [&](double share) {
        return scrubber->mapToScene({share * scrubber->width(), 9}).toPoint();
    };
    QTest::mousePress(&window, Qt::LeftButton, {}, at(0.2));
    QTest::mouseMove(&window, at(0.5));
    EXPECT_NEAR(scrubber->property("shown").toDouble(), 0.5, 0.01);
    EXPECT_TRUE(sought.isEmpty());
    EXPECT_EQ(media.elapsed(), u"0:10"_s);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, at(0.5));
    ASSERT_EQ(sought.size(), 1);
    EXPECT_NEAR(sought.first().first().toDouble(), 0.5, 0.01);
    EXPECT_TRUE(island.isExpanded()); // no tap

    scrubber->forceActiveFocus();
    QTest::keyClick(&window, Qt::Key_Right);
    ASSERT_EQ(sought.size(), 2);
    EXPECT_NEAR(sought.last().first().toDouble(), 0.525, 0.01);
    window.clearIsland();
}

} // namespace
