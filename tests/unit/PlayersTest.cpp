#include "platform/linux/media/Election.h"
#include "platform/linux/media/PlayerText.h"
#include "platform/linux/media/Playhead.h"

#include <QDBusObjectPath>
#include <QDBusVariant>

#include <gtest/gtest.h>

#include <limits>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

constexpr Instant start{1h};

TEST(PlayerTextTest, IsOneLineThatCanBeShown)
{
    EXPECT_EQ(cleanText(u"  a\tb\u0000\u001b[1m\u202ec\u2028 \uFEFFd "_s), u"a b[1mc d");
    EXPECT_EQ(cleanText(u"\u0007\n"_s), QString());
    const QString music = QString::fromUtf8("🎵");
    const QString cut = cleanText(u"x"_s + music.repeated(1'000'000));
    EXPECT_LE(cut.size(), longestPlayerText);
    EXPECT_TRUE(cut.endsWith(music + QChar(0x2026)));
}

Track trackWith(const QString &key, const QVariant &value)
{
    return playerReport::track({{u"xesam:title"_s, u"Title"_s}, {key, value}}).value();
}

TEST(MprisReportTest, TakesALengthOfAnyNumberThatCanBeOne)
{
    const QList<std::pair<QVariant, std::optional<double>>> cases{
        {qlonglong(61'500'000), 61.5},
        {uint(2'000'000), 2.0},
        {QVariant::fromValue(QDBusVariant(qulonglong(3'000'000))), 3.0},
        {0, std::nullopt},
        {qlonglong(-5'000'000), std::nullopt},
        {214, std::nullopt},                                   // seconds
        {std::numeric_limits<qlonglong>::max(), std::nullopt}, // endless
        {std::numeric_limits<double>::quiet_NaN(), std::nullopt},
        {u"61500000"_s, std::nullopt},
    };
    for (const auto &[told, expected] : cases)
        EXPECT_EQ(trackWith(u"mpris:length"_s, told).duration, expected) << told.typeName();
}

TEST(MprisReportTest, GivesBackOnlyIdsThatThePlayerCanTake)
{
    const auto path = [](const QVariant &id) { return trackWith(u"mpris:trackid"_s, id).path; };
    EXPECT_EQ(path(QVariant::fromValue(QDBusObjectPath(u"/a/1"_s))), u"/a/1");
    EXPECT_EQ(path(u"/com/spotify/track/4x"_s), u"/com/spotify/track/4x");
    for (const auto *bad : {"spotify:track:4x", "", "/", "/a/", "//a", "/a-b", "/ä",
                            "/org/mpris/MediaPlayer2/TrackList/NoTrack"})
        EXPECT_EQ(path(QString::fromUtf8(bad)), QString()) << bad;
}

TEST(MprisReportTest, ReadsTextsOfSeveralShapes)
{
    const auto artist = [](const QVariant &told) {
        return trackWith(u"xesam:artist"_s, told).artist;
    };
    EXPECT_EQ(artist(QStringList{u"A"_s, u" "_s, u"B\n"_s}), u"A, B");
    EXPECT_EQ(artist(u"A"_s), u"A");
    EXPECT_EQ(trackWith(u"xesam:albumArtist"_s, QStringList{u"C"_s}).artist, u"C");
    const auto untitled = playerReport::track(
        {{u"xesam:title"_s, u""_s}, {u"xesam:url"_s, u"file:///m/A%20b.c.ogg"_s}});
    EXPECT_EQ(untitled->title, u"A b.c");
    EXPECT_FALSE(playerReport::track({{u"xesam:title"_s, 5}}));
}

TEST(MprisReportTest, FindsPicturesOnlyWhereItMayLook)
{
    using Kind = ArtSource::Kind;
    const QList<std::tuple<QString, Kind, QString>> cases{
        {u"file:///tmp/a%20b%25.jpg"_s, Kind::File, u"/tmp/a b%.jpg"_s},
        {u"file://elsewhere/a"_s, Kind::None, {}},
        {u"file:///a%00b"_s, Kind::None, {}},
        {u"https://open.spotify.com/image/1"_s, Kind::Web, u"https://i.scdn.co/image/1"_s},
        {u"http://i.scdn.co/image/1"_s, Kind::None, {}},
        {u"data:,"_s + QString(20'000'000, u'A'), Kind::None, {}},
    };
    for (const auto &[url, kind, location] : cases) {
        const auto source = playerReport::artSource(url);
        EXPECT_EQ(source.kind, kind) << url.left(50).toStdString();
        EXPECT_EQ(source.location, location) << url.left(50).toStdString();
    }
    const auto data = playerReport::artSource(u"data:image/png;base64,QUJD"_s);
    EXPECT_EQ(data.data, "ABC");
    EXPECT_TRUE(data.isSame(playerReport::artSource(u"data:,A%42C"_s)));
    EXPECT_FALSE(data.isSame(playerReport::artSource(u"data:,B"_s)));
}

TEST(MprisReportTest, KnowsApplicationsByTheBestName)
{
    const auto name = playerReport::bundleIdentifier;
    EXPECT_EQ(name({u"firefox-esr"_s, {}}, u"firefox.instance_1_5"_s), u"org.mozilla.firefox");
    EXPECT_EQ(name({u"/usr/share/applications/vlc.desktop"_s, {}}, u"x"_s), u"vlc");
    EXPECT_EQ(name({{}, u"Brave"_s}, u"chromium.instance77"_s), u"com.brave.Browser");
    EXPECT_EQ(name({{}, u"Some Player"_s}, u"mpv.instance5"_s), u"mpv");
}

TEST(PlayheadTest, NeverBelievesWhatCannotBe)
{
    struct Case {
        double rate;
        bool fractions;
        std::optional<double> told;
        double expected; // one second after 10 s of 60
    };
    const Case cases[]{
        {1, true, 11.3, 11.3},  {1, true, std::nullopt, 11},
        {1, true, -500, 11},    {1, true, 11'000'000, 11},
        {1, true, 0, 11}, // what Spotify always says
        {0, true, 0, 0},        {2, true, std::nullopt, 12},
        {1, true, 60.4, 60},    {1, false, 11, 11},
        {1, false, 10, 10.999}, // whole seconds
        {1, false, 30, 30},     {1, false, 30.5, 30.5},
        {0, false, 10, 10},
    };
    for (const auto &[rate, fractions, told, expected] : cases) {
        const Playhead before{10, start, rate, fractions};
        const auto after = heard(before, told, start + 1s, 60);
        EXPECT_NEAR(positionAt(after, start + 1s, 60), expected, 1e-9) << told.value_or(-1);
        EXPECT_LE(positionAt(after, start + 1h, 60), 60);
    }
    EXPECT_NEAR(positionAt(atRate({10, start, 1}, 0, start + 2s, 60), start + 9s, 60), 12, 1e-9);
}

using Status = PlayerStatus;

Candidate player(const char *name, Status status, std::optional<Duration> began = {})
{
    Candidate candidate{QString::fromLatin1(name), QString::fromLatin1(name)};
    candidate.status = status;
    candidate.hasTitle = true;
    if (began)
        candidate.began = start + *began;
    return candidate;
}

TEST(PlayheadTest, DoesNotTakeForALengthWhatKeepsGrowing)
{
    ToldLength told;
    Instant now = start;
    for (const double length : {3.0, 3.0, 60.0, 60.0}) { // learnt late
        told = toldAgain(told, length, now += 1s);
        EXPECT_EQ(trustedLength(told, now), length);
    }
    told = toldAgain(told, 61, now += 1s);
    EXPECT_EQ(trustedLength(told, now), std::nullopt);
    told = toldAgain(told, 61, now += 9s);
    EXPECT_EQ(trustedLength(told, now), std::nullopt);
    told = toldAgain(told, 61, now += 2s);
    EXPECT_EQ(trustedLength(told, now), 61);
}

TEST(ElectionTest, ElectsWhomPeopleMean)
{
    auto untitled = player("untitled", Status::Playing, 9s);
    untitled.hasTitle = false;
    auto bridge = player("plasma-browser-integration", Status::Playing, 9s);
    bridge.browser = 42;
    auto browser = player("chromium.instance42", Status::Playing, 1s);
    browser.process = 42;
    auto sandboxed = player("firefox", Status::Paused);
    sandboxed.bundleIdentifier = bridge.bundleIdentifier;

    const std::vector<std::pair<std::vector<Candidate>, const char *>> cases{
        {{}, ""},
        {{player("a", Status::Playing, 2s), player("b", Status::Playing, 1s)}, "a"},
        {{player("a", Status::Playing, 1s), player("b", Status::Playing, 1s)}, "b"},
        {{player("a", Status::Playing, 1s), player("b", Status::Paused, 2s)}, "a"},
        {{player("a", Status::Paused, 2s), player("b", Status::Paused)}, "a"},
        {{player("a", Status::Paused), player("b", Status::Unknown)}, "b"},
        {{player("a", Status::Paused), player("b", Status::Stopped, 5s)}, "a"},
        {{player("a", Status::Paused), untitled}, "a"},
        {{player("playerctld", Status::Playing, 9s)}, ""},
        {{bridge, browser}, "chromium.instance42"},
        {{bridge, sandboxed}, "firefox"},
        {{bridge, player("mpv", Status::Playing, 1s)}, "plasma-browser-integration"},
    };
    for (const auto &[players, name] : cases) {
        const auto elected = elect(players);
        EXPECT_EQ(elected ? players[*elected].name : QString(), QString::fromLatin1(name));
    }
}

} // namespace
} // namespace quillmere
