#include "platform/linux/audio/PulseAudioStreams.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/Eventually.h"
#include "support/PulseServer.h"

#include <gtest/gtest.h>
#include <pulse/stream.h>

#include <QCoreApplication>

#include <optional>
#include <vector>

namespace quillmere {
namespace {

using namespace std::chrono_literals;

/// A paused stream of silence with properties of any application's.
class Player
{
public:
    Player(pa_context &context, const char *properties)
    {
        constexpr pa_sample_spec format{PA_SAMPLE_S16LE, 44100, 2};
        const PulseProperties list(pa_proplist_from_string(properties));
        stream_ = pa_stream_new_with_proplist(&context, "player", &format, nullptr, list.get());
        const auto play = [](pa_stream *stream, std::size_t size, void *) {
            const std::vector<char> silence(size);
            pa_stream_write(stream, silence.data(), size, nullptr, 0, PA_SEEK_RELATIVE);
        };
        pa_stream_set_write_callback(stream_, play, nullptr);
        pa_stream_connect_playback(stream_, nullptr, nullptr, PA_STREAM_START_CORKED, nullptr,
                                   nullptr);
    }
    ~Player() { pa_stream_unref(stream_); }
    Player(const Player &) = delete;
    Player &operator=(const Player &) = delete;

    bool isReady() const { return pa_stream_get_state(stream_) == PA_STREAM_READY; }
    void setPaused(bool isPaused) const
    {
        letRun(pa_stream_cork(stream_, isPaused ? 1 : 0, nullptr, nullptr));
    }

private:
    pa_stream *stream_;
};

struct PulseAudioStreamsTest : testing::TestWithParam<bool> {
    PulseAudioStreamsTest()
    {
        qunsetenv("QT_NO_GLIB");
        GetParam() ? server.startPipeWire() : server.start({QStringLiteral("speakers")});
        if (GetParam()) {
            server.loadSink(QStringLiteral("speakers"));
            PulseServer::waitForDefault(QStringLiteral("speakers"));
        }
        hardware.emplace(runLoop);
        streams.emplace(runLoop, *hardware);
    }

    bool isPlaying(const char *bundleIdentifier)
    {
        std::optional<bool> answer;
        streams->isPlaying(QString::fromLatin1(bundleIdentifier), owner,
                           [&answer](bool given) { answer = given; });
        EXPECT_FALSE(answer) << "answered from within";
        EXPECT_TRUE(eventually([&answer] { return answer.has_value(); }));
        return answer.value_or(false);
    }

    int argc = 1;
    char program[5] = "test";
    char *argv[2] = {program, nullptr};
    QCoreApplication application{argc, argv};
    PulseServer server;
    QtRunLoop runLoop;
    std::optional<PulseAudioHardware> hardware;
    std::optional<PulseAudioStreams> streams;
    Owner owner;
};

TEST_P(PulseAudioStreamsTest, TellWhoPlays)
{
    EXPECT_FALSE(isPlaying("com.google.Chrome"));
    ASSERT_TRUE(eventually([this] { return hardware->isAvailable(); }));
    EXPECT_FALSE(isPlaying("com.google.Chrome"));
    const Player chromium(*hardware->context(), "application.process.binary=chromium");
    ASSERT_TRUE(eventually([&] { return chromium.isReady(); }));
    EXPECT_FALSE(isPlaying("com.google.Chrome"));
    chromium.setPaused(false);
    EXPECT_TRUE(eventually([this] { return isPlaying("com.google.Chrome"); }));
    EXPECT_FALSE(isPlaying("org.mozilla.firefox"));

    const auto stream = server.pactl(QStringLiteral("list short sink-inputs")).section(u'\t', 0, 0);
    server.pactl(QStringLiteral("set-sink-mute speakers 1"));
    EXPECT_TRUE(isPlaying("com.google.Chrome"));
    // PipeWire tells each of its clients in its own time.
    server.pactl(QStringLiteral("set-sink-input-mute %1 1").arg(stream));
    EXPECT_TRUE(eventually([this] { return !isPlaying("com.google.Chrome"); }));
    server.pactl(QStringLiteral("set-sink-input-mute %1 0").arg(stream));
    EXPECT_TRUE(eventually([this] { return isPlaying("com.google.Chrome"); }));
    chromium.setPaused(true);
    EXPECT_TRUE(eventually([this] { return !isPlaying("com.google.Chrome"); }));
}

TEST_P(PulseAudioStreamsTest, AnswerAlsoWhenTheServerDiesAndOnlyToTheLiving)
{
    ASSERT_TRUE(eventually([this] { return hardware->isAvailable(); }));
    int answers = 0;
    const auto count = [&answers](bool isPlaying) { answers += isPlaying ? 100 : 1; };
    std::optional<Owner> dead(std::in_place);
    streams->isPlaying(QStringLiteral("a"), *dead, count);
    streams->isPlaying(QStringLiteral("b"), owner, count);
    dead.reset();
    server.kill();
    EXPECT_TRUE(eventually([&answers] { return answers == 1; })) << answers;

    streams->isPlaying(QStringLiteral("c"), owner, count);
    streams.reset();
    hardware.reset();
    EXPECT_TRUE(eventually([&answers] { return answers == 2; })) << answers;
}

INSTANTIATE_TEST_SUITE_P(Servers, PulseAudioStreamsTest, testing::Bool(),
                         [](const auto &info) { return info.param ? "PipeWire" : "PulseAudio"; });

TEST(StreamPropertiesTest, NameTheApplication)
{
    struct Case {
        const char *properties, *bundleIdentifier;
        bool isOf;
    };
    const Case cases[] = {
        {"application.process.binary=chrome", "com.google.Chrome", true},
        {"application.process.binary=Discord application.name=Chromium", "com.google.Chrome",
         false},
        {"application.name=Chromium", "com.google.Chrome", true},
        {"application.process.binary=msedge", "com.microsoft.edgemac", true},
        {"application.id=org.mozilla.Firefox application.process.binary=x", "org.mozilla.firefox",
         true},
        {"pipewire.access.portal.app_id=com.spotify.Client application.process.binary=x",
         "com.spotify.client", true},
        {"application.process.binary=totem application.id=org.gnome.Totem", "org.gnome.Totem",
         true},
        {"media.name=Playback", "com.google.Chrome", false},
        {"application.process.binary=chromecast", "com.google.Chrome", false},
        {"application.process.binary=vivaldi-bin", "com.vivaldi.Vivaldi", true},
        {"application.id=firefox_firefox", "org.mozilla.firefox", true},
        {"application.id=brave-browser-beta", "com.brave.Browser", true},
        {"application.process.binary=spotifyd", "com.spotify.client", false},
    };
    for (const Case &each : cases) {
        const PulseProperties properties(pa_proplist_from_string(each.properties));
        EXPECT_EQ(isStreamOf(*properties, QString::fromLatin1(each.bundleIdentifier)), each.isOf)
            << each.properties;
    }
}

} // namespace
} // namespace quillmere
