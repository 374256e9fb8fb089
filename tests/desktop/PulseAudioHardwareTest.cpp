#include "platform/linux/audio/PulseAudioHardware.h"

#include "monitors/AudioOutputMonitor.h"
#include "monitors/VolumeMonitor.h"
#include "platform/linux/core/QtRunLoop.h"
#include "support/Eventually.h"
#include "support/ManualRunLoop.h"
#include "support/PulseServer.h"

#include <gmock/gmock.h>
#include <pulse/mainloop.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <unistd.h>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using enum AudioProperty;

#ifdef __SANITIZE_ADDRESS__
constexpr bool memoryIsMeasurable = false;
#else
constexpr bool memoryIsMeasurable = true;
#endif

const QString speakers = QStringLiteral("speakers");
const QString headphones = QStringLiteral("bluez_sink.AA_BB_CC_DD_EE_FF.a2dp_sink");

/// Another client of the server, as fast as one can be.
class VolumeStorm
{
public:
    VolumeStorm()
        : loop_(pa_mainloop_new())
        , context_(pa_context_new(pa_mainloop_get_api(loop_), "storm"))
    {
        pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr);
        while (PA_CONTEXT_IS_GOOD(pa_context_get_state(context_.get())) &&
               pa_context_get_state(context_.get()) != PA_CONTEXT_READY)
            pa_mainloop_iterate(loop_, 1, nullptr);
    }
    ~VolumeStorm()
    {
        context_.reset();
        pa_mainloop_free(loop_);
    }

    void blow(int changes, int lastPercent)
    {
        for (int i = 1; i <= changes; ++i) {
            setPercent((lastPercent + changes - i) % 100);
            while (unanswered_ >= 64)
                pa_mainloop_iterate(loop_, 1, nullptr);
        }
        calm();
    }

private:
    static void answered(pa_context *, int, void *self)
    {
        --static_cast<VolumeStorm *>(self)->unanswered_;
    }

    void setPercent(int percent)
    {
        pa_cvolume volume;
        pa_cvolume_set(&volume, 2, PA_VOLUME_NORM / 100 * static_cast<pa_volume_t>(percent));
        ++unanswered_;
        letRun(pa_context_set_sink_volume_by_name(context_.get(), "speakers", &volume, answered,
                                                  this));
    }

    void calm()
    {
        while (unanswered_ > 0)
            pa_mainloop_iterate(loop_, 1, nullptr);
    }

    pa_mainloop *loop_;
    PulseContext context_;
    int unanswered_ = 0;
};

long residentBytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * sysconf(_SC_PAGESIZE);
}

struct PulseAudioHardwareTest : testing::Test {
    static void SetUpTestSuite()
    {
        qunsetenv("QT_NO_GLIB");
        static int argc = 1;
        static char name[] = "PulseAudioHardwareTest";
        static char *argv[] = {name, nullptr};
        static QCoreApplication application(argc, argv);
    }

    /// Connects to the server and listens to everything.
    void connect()
    {
        hardware.emplace(runLoop);
        availabilityTask = hardware->onAvailabilityChanged(
            [this](bool available) { events.emplace_back(available ? "available" : "away"); });
        defaultTask =
            hardware->onDefaultOutputChanged([this] { events.emplace_back("default"); }).value();
        ASSERT_TRUE(eventually([this] { return hardware->isAvailable(); }));
    }

    void listen()
    {
        device = hardware->defaultOutputDevice();
        for (const auto property : {VirtualMainVolume, VolumeScalar})
            volumeTasks.push_back(hardware->onVolumeChanged(
                device, property, [this] { levels.push_back(level().value_or(-1)); }));
    }

    std::optional<float> level() { return hardware->volume(device, VirtualMainVolume); }
    bool waitForLevel(float expected)
    {
        return eventually([this, expected] { return level() == expected; });
    }

    /// The channels of "speakers" in percent, and "muted".
    QStringList sinkState()
    {
        QStringList state;
        const QString text = server.pactl(QStringLiteral("get-sink-volume speakers"));
        static const QRegularExpression percent(QStringLiteral("(\\d+)%"));
        for (auto match = percent.globalMatch(text); match.hasNext();)
            state << match.next().captured(1);
        if (server.pactl(QStringLiteral("get-sink-mute speakers")).contains(u"yes"))
            state << QStringLiteral("muted");
        return state;
    }

    PulseServer server;
    QtRunLoop runLoop;
    std::vector<std::string> events;
    std::vector<float> levels;
    AudioDeviceID device = 0;
    std::optional<PulseAudioHardware> hardware;
    Task availabilityTask;
    Task defaultTask;
    std::vector<Task> volumeTasks;
};

TEST_F(PulseAudioHardwareTest, TellsLevelsAsAPersonSeesThemAndOnlyRealChanges)
{
    server.start({speakers, headphones});
    connect();
    listen();
    EXPECT_THAT(events, ElementsAre("default", "available"));
    EXPECT_EQ(level(), 1.0F);
    const std::pair<const char *, float> steps[] = {
        {"set-sink-volume speakers 37%", 0.37F},
        {"set-sink-volume speakers 33%", 0.33F},
        {"set-sink-volume speakers 0%", 0.0F},
        {"set-sink-volume speakers 25% 50%", 0.5F}, // the loudest channel
        {"set-sink-volume speakers 100%", 1.0F},
        {"set-sink-volume speakers 130%", 1.0F},
        {"set-sink-mute speakers 1", 0.0F},
        {"set-sink-volume speakers 60%", 0.0F},
        {"set-sink-mute speakers 0", 0.6F},
        {"set-sink-volume bluez_sink.AA_BB_CC_DD_EE_FF.a2dp_sink 10%", 0.6F}, // not the default
        {"set-sink-volume speakers 5%", 0.05F},
    };
    for (const auto &[command, expected] : steps) {
        server.pactl(QString::fromLatin1(command));
        EXPECT_TRUE(waitForLevel(expected)) << command;
    }
    EXPECT_THAT(levels, ElementsAre(0.37F, 0.33F, 0.0F, 0.5F, 1.0F, 0.0F, 0.6F, 0.05F));
}

TEST_F(PulseAudioHardwareTest, SetVolumeKeepsTheBalanceAndUnmutes)
{
    server.start({speakers});
    connect();
    listen();
    server.pactl(QStringLiteral("set-sink-volume speakers 40% 80%"));
    ASSERT_TRUE(waitForLevel(0.8F));
    const auto set = [this](float wanted, float shown) {
        hardware->setVolume(device, wanted);
        EXPECT_TRUE(waitForLevel(shown)) << wanted;
        return sinkState().join(u' ').toStdString();
    };
    EXPECT_EQ(set(0.4F, 0.4F), "20 40");
    EXPECT_EQ(set(0.0F, 0.0F), "0 0");
    EXPECT_EQ(set(0.6F, 0.6F), "30 60"); // silence in between has not centred it
    EXPECT_EQ(set(7.0F, 1.0F), "50 100");
    EXPECT_EQ(set(std::nanf(""), 1.0F), "50 100");
    hardware->setVolume(device + 1, 0.1F);

    server.pactl(QStringLiteral("set-sink-mute speakers 1"));
    ASSERT_TRUE(waitForLevel(0.0F));
    EXPECT_EQ(set(-1.0F, 0.0F), "50 100 muted"); // nothing to silence, nothing to forget
    EXPECT_EQ(set(0.2F, 0.2F), "10 20");
    EXPECT_THAT(levels, ElementsAre(0.8F, 0.4F, 0.0F, 0.6F, 1.0F, 0.0F, 0.2F));
}

TEST_F(PulseAudioHardwareTest, FollowsTheDefaultSink)
{
    server.start({speakers, headphones});
    connect();
    listen();
    events.clear();
    server.pactl(QStringLiteral("set-sink-volume ") + headphones + QStringLiteral(" 20%"));
    server.pactl(QStringLiteral("set-default-sink ") + headphones);
    ASSERT_TRUE(eventually([this] { return hardware->defaultOutputDevice() != device; }));
    const AudioDeviceID second = hardware->defaultOutputDevice();
    EXPECT_EQ(hardware->volume(second, VirtualMainVolume), 0.2F);
    EXPECT_EQ(hardware->volume(second, VolumeScalar), 0.2F);
    EXPECT_EQ(level(), std::nullopt);

    server.pactl(QStringLiteral("set-default-sink speakers"));
    ASSERT_TRUE(eventually([&] { return hardware->defaultOutputDevice() != second; }));
    EXPECT_EQ(hardware->defaultOutputDevice(), device);
    EXPECT_THAT(events, ElementsAre("default", "default"));
    EXPECT_THAT(levels, IsEmpty());
}

TEST_F(PulseAudioHardwareTest, SurvivesTheLossOfEverySinkAndTellsWhenThereIsOneAgain)
{
    server.start({});
    connect();
    EXPECT_EQ(hardware->defaultOutputDevice(), 0U);
    EXPECT_THAT(events, ElementsAre("available"));

    std::vector<AudioDeviceID> ids;
    for (int round = 0; round < 2; ++round) {
        events.clear();
        const QString module = server.loadSink(speakers);
        ASSERT_TRUE(eventually([this] { return hardware->defaultOutputDevice() != 0; }));
        EXPECT_THAT(events, ElementsAre("default", "available"));
        EXPECT_THAT(ids, testing::Not(testing::Contains(hardware->defaultOutputDevice())));
        ids.push_back(hardware->defaultOutputDevice());
        server.pactl(QStringLiteral("unload-module ") + module);
        ASSERT_TRUE(eventually([this] { return hardware->defaultOutputDevice() == 0; }));
        EXPECT_TRUE(hardware->isAvailable());
        EXPECT_EQ(hardware->volume(ids.back(), VirtualMainVolume), std::nullopt);
    }
}

TEST_F(PulseAudioHardwareTest, ACrashedServerThatComesBackMakesNoEventUntilTheNextChange)
{
    server.start({speakers});
    connect();
    listen();
    std::vector<double> reports;
    VolumeMonitor monitor(runLoop, *hardware);
    monitor.onVolumeChange = [&](double percent) { reports.push_back(percent); };
    const Task keepStarted = hardware->onAvailabilityChanged(
        [&](bool available) { available ? monitor.start() : monitor.stop(); });
    monitor.start();
    for (int crash = 0; crash < 2; ++crash) {
        events.clear();
        reports.clear();
        server.kill();
        ASSERT_TRUE(eventually([this] { return !hardware->isAvailable(); }));
        EXPECT_EQ(hardware->defaultOutputDevice(), 0U);
        EXPECT_FALSE(monitor.isRunning());
        hardware->setVolume(device, 0.5F);

        server.start({speakers});
        ASSERT_TRUE(eventually([this] { return hardware->isAvailable(); }));
        EXPECT_THAT(events, ElementsAre("default", "away", "default", "available"));
        EXPECT_NE(hardware->defaultOutputDevice(), device);
        EXPECT_TRUE(monitor.isRunning());
        server.pactl(QStringLiteral("set-sink-volume speakers 42%"));
        ASSERT_TRUE(eventually([&] { return !reports.empty(); }));
        EXPECT_THAT(reports, ElementsAre(42));
    }
}

TEST_F(PulseAudioHardwareTest, AnAbsentServerCostsLittleAndIsMetAsSoonAsItComes)
{
    server.start({speakers});
    server.kill(); // its socket stays
    ManualRunLoop slowLoop;
    PulseAudioHardware late(slowLoop);
    const auto pass = [&](Duration span) {
        server.makeNoise();
        slowLoop.advance(span);
        for (int event = 0; event < 20; ++event)
            QCoreApplication::processEvents();
    };
    for (int round = 0; round < 40; ++round)
        pass(15s);
    pass(1s); // just past an attempt: the next is 14 s away
    EXPECT_FALSE(late.isAvailable());
    EXPECT_LE(slowLoop.wakeUps(), 46); // 4 a minute, after the first few
    EXPECT_GE(slowLoop.wakeUps(), 30);

    // Too little time passes on its clock for an attempt of the back-off to fall due.
    server.start({speakers});
    EXPECT_TRUE(eventually([&] { return late.isAvailable(); }, [&] { slowLoop.advance(2ms); }));
}

TEST_F(PulseAudioHardwareTest, ABurstOfChangesEndsAtTheLastAndCostsNoMemory)
{
    server.start({speakers});
    connect();
    listen();
    const auto blow = [this](int changes, int lastPercent) {
        std::atomic<bool> isOver = false;
        std::jthread storm([&] {
            VolumeStorm().blow(changes, lastPercent);
            isOver = true;
        });
        EXPECT_TRUE(eventually([&] { return isOver.load(); }));
        EXPECT_TRUE(waitForLevel(static_cast<float>(lastPercent) / 100));
        EXPECT_FALSE(levels.empty());
        levels.clear();
        levels.shrink_to_fit();
    };
    blow(3'000, 12);
    const long before = residentBytes();
    blow(10'000, 73);
    if (memoryIsMeasurable) {
        EXPECT_LT(residentBytes() - before, 1'000'000);
    }
}

TEST_F(PulseAudioHardwareTest, EventsWhileAQuestionIsUnderWayCostExactlyOneMore)
{
    server.start({speakers});
    std::optional<PulseDefaultSink> sink;
    int answers = 0;
    const PulseConnection connection(
        runLoop, {.ready =
                      [&](pa_context &context) {
                          sink.emplace(context, [&](const auto &) { ++answers; });
                          for (int event = 0; event < 1'000; ++event)
                              sink->handle({PA_SUBSCRIPTION_EVENT_SERVER,
                                            PA_SUBSCRIPTION_EVENT_CHANGE, PA_INVALID_INDEX});
                      },
                  .lost = [&] { sink.reset(); },
                  .changed = [](const auto &) {}});
    EXPECT_TRUE(eventually([&] { return answers >= 2; }));
    server.pactl(QStringLiteral("info")); // whatever else was asked would be answered by now
    for (int event = 0; event < 100; ++event)
        QCoreApplication::processEvents();
    EXPECT_EQ(answers, 2);

    // The sink that is being looked up may be the one that comes meanwhile.
    sink->handle({PA_SUBSCRIPTION_EVENT_SERVER, PA_SUBSCRIPTION_EVENT_CHANGE, PA_INVALID_INDEX});
    sink->handle({PA_SUBSCRIPTION_EVENT_SINK, PA_SUBSCRIPTION_EVENT_NEW, 77});
    EXPECT_TRUE(eventually([&] { return answers == 4; })) << answers;
    sink.reset();
}

struct Headset {
    bool isPipeWire;
    const char *name;
    const char *properties;
};

/// A server with speakers as the default, and a headset as the real ones describe it.
struct OutputsTest : PulseAudioHardwareTest, testing::WithParamInterface<Headset> {
    void SetUp() override
    {
        GetParam().isPipeWire ? server.startPipeWire() : server.start({});
        connect();
        outputsTask = hardware->onOutputsChanged([this] { events.emplace_back("outputs"); });
        server.loadSink(speakers, QStringLiteral("device.description=Desk device.bus=pci "
                                                 "device.form_factor=speaker"));
        server.pactl(QStringLiteral("set-default-sink speakers"));
        headset = server.loadSink(QString::fromLatin1(GetParam().name),
                                  QString::fromLatin1(GetParam().properties));
    }
    void TearDown() override
    {
        player.kill();
        player.waitForFinished();
    }

    /// The outputs as "AirPods Pro, Desk*", the default marked.
    std::string outputs() const
    {
        QStringList names;
        for (const AudioOutput &output : hardware->outputs())
            names << output.name + QLatin1StringView(output.isDefault ? "*" : "");
        names.sort();
        return names.join(QStringLiteral(", ")).toStdString();
    }
    bool waitForOutputs(const std::string &expected)
    {
        return eventually([&] { return outputs() == expected; });
    }

    /// The name of the sink that our player's stream is on.
    QString sinkOfStream()
    {
        const auto stream =
            server.pactl(QStringLiteral("list short sink-inputs")).section(u'\t', 1, 1);
        const auto sinks = server.pactl(QStringLiteral("list short sinks")).split(u'\n');
        for (const QString &sink : sinks)
            if (sink.section(u'\t', 0, 0) == stream)
                return sink.section(u'\t', 1, 1);
        return {};
    }

    QString headset;
    Task outputsTask;
    QProcess player;
};

TEST_P(OutputsTest, AreListedDescribedAndChosen)
{
    ASSERT_TRUE(waitForOutputs("AirPods Pro, Desk*")) << outputs();
    const auto list = hardware->outputs();
    const auto airPods = std::ranges::find(list, true, &AudioOutput::isBluetooth);
    ASSERT_NE(airPods, list.end());
    const AudioDevice expected{QStringLiteral("AirPods Pro"), AudioFormFactor::Headset, true,
                               QStringLiteral("AA:BB:CC:DD:EE:FF")};
    EXPECT_EQ(hardware->describe(airPods->id), expected);
    const AudioDevice desk{QStringLiteral("Desk"), AudioFormFactor::Speaker, false, {}};
    EXPECT_EQ(hardware->describe(hardware->defaultOutputDevice()), desk);

    AudioOutputMonitor monitor(runLoop, *hardware);
    std::vector<std::string> reports;
    monitor.onBluetoothDeviceConnected = [&](const QString &name, bool isAirPods) {
        reports.push_back(name.toStdString() + (isAirPods ? "!" : ""));
    };
    monitor.start();
    player.start(QStringLiteral("pacat"), {QStringLiteral("--raw"), QStringLiteral("/dev/zero")});
    ASSERT_TRUE(eventually([this] { return sinkOfStream() == speakers; }));
    hardware->setDefaultOutput(airPods->id + 100);
    hardware->setDefaultOutput(airPods->id);
    EXPECT_TRUE(waitForOutputs("AirPods Pro*, Desk")) << outputs();
    EXPECT_TRUE(eventually([&] { return sinkOfStream() == QLatin1StringView(GetParam().name); }));
    EXPECT_TRUE(eventually([&] { return !reports.empty(); }));

    server.pactl(QStringLiteral("unload-module ") + headset);
    EXPECT_TRUE(waitForOutputs("Desk*")) << outputs();
    EXPECT_EQ(hardware->describe(airPods->id), std::nullopt);
    EXPECT_TRUE(eventually([&] { return monitor.lastBluetoothDeviceID() == 0; }));
    EXPECT_THAT(reports, ElementsAre("AirPods Pro!"));
}

TEST_P(OutputsTest, AreTheNewServersAfterACrashAndNoneWithoutAListener)
{
    ASSERT_TRUE(waitForOutputs("AirPods Pro, Desk*")) << outputs();
    server.kill();
    EXPECT_TRUE(waitForOutputs(""));
    GetParam().isPipeWire ? server.startPipeWire() : server.start({});
    server.loadSink(speakers, QStringLiteral("device.description=Desk"));
    EXPECT_TRUE(waitForOutputs("Desk*")) << outputs(); // without the placeholder of before

    outputsTask.cancel();
    EXPECT_THAT(hardware->outputs(), IsEmpty());
    server.loadSink(QStringLiteral("late"), QStringLiteral("device.description=Late"));
    outputsTask = hardware->onOutputsChanged([] {});
    EXPECT_TRUE(eventually([this] { return hardware->outputs().size() == 2; })) << outputs();
}

// A headset told by its bus, by its name alone, and by its driver.
constexpr Headset headsets[] = {
    {false, "bluez_sink.AA_BB_CC_DD_EE_FF.a2dp_sink",
     "device.description='AirPods Pro' device.bus=bluetooth device.api=bluez "
     "device.string=AA:BB:CC:DD:EE:FF device.form_factor=headset"},
    {false, "bluez_sink.AA_BB_CC_DD_EE_FF.handsfree_head_unit",
     "device.description='AirPods Pro' device.form_factor=hands-free"},
    {true, "headset",
     "device.description='AirPods Pro' device.api=bluez5 api.bluez5.address=AA:BB:CC:DD:EE:FF "
     "device.form_factor=headset"},
};
INSTANTIATE_TEST_SUITE_P(Servers, OutputsTest, testing::ValuesIn(headsets));

} // namespace
} // namespace quillmere
