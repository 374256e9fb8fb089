#include "support/IslandFixture.h"

#include <QLocale>

#include <gtest/gtest.h>

using namespace quillmere;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray answer = R"({
    "current": {"temperature_2m": 21.2, "weather_code": 2, "apparent_temperature": 19.4,
                "relative_humidity_2m": 62, "wind_speed_10m": 13.7, "visibility": 24140},
    "daily": {"temperature_2m_max": [23.8], "temperature_2m_min": [13.9]},
    "hourly": {"time": ["2026-11-21T14:00", "2026-11-21T15:00"], "temperature_2m": [21, 22.4],
               "weather_code": [2, 61]}})";

class DashboardPagesTest : public testing::Test, protected IslandFixture
{
protected:
    void TearDown() override { QLocale::setDefault(QLocale::c()); }

    void show(IslandPage page)
    {
        while (content.presentation() != Presentation::Expanded)
            content.toggle(); // a HUD is closed by the first one
        content.pages().show(page);
    }
    void respond(const QByteArray &body)
    {
        runLoop.advance(1s);
        ASSERT_TRUE(http.answer(HttpResponse{200, {}, body}));
        runLoop.settle();
    }
    void letWeatherCome()
    {
        weather.start();
        weather.place().setPlace(Location{38.7, -9.1, u"Lisbon"_s, "Europe/Lisbon"});
        respond(answer);
    }
    static QStringList values(const QVariantList &list, const QString &key)
    {
        QStringList texts;
        for (const QVariant &entry : list)
            texts.append(entry.toMap().value(key).toString());
        return texts;
    }

    WeatherModel &page = *dashboard.weather();
};

TEST_F(DashboardPagesTest, WeatherIsReadInTheUnitsOfThePlaceAndTheUser)
{
    struct Case {
        QLocale locale;
        bool fahrenheit;
        QString temperature, feelsLike, range;
        QStringList details, hours;
    };
    const Case cases[] = {
        {QLocale(QLocale::English, QLocale::UnitedKingdom),
         false,
         u"21°"_s,
         u"feels like 19°"_s,
         u"H 24° L 14°"_s,
         {u"62%"_s, u"9 mph"_s, u"15 mi"_s},
         {u"Now"_s, u"15"_s}},
        {QLocale(QLocale::German, QLocale::Germany),
         false,
         u"21°"_s,
         u"feels like 19°"_s,
         u"H 24° L 14°"_s,
         {u"62%"_s, u"14 km/h"_s, u"24 km"_s},
         {u"Now"_s, u"15"_s}},
        {QLocale(QLocale::English, QLocale::UnitedStates),
         true,
         u"70°"_s,
         u"feels like 67°"_s,
         u"H 75° L 57°"_s,
         {u"62%"_s, u"9 mph"_s, u"15 mi"_s},
         {u"Now"_s, u"3 PM"_s}},
    };
    letWeatherCome();
    for (const Case &test : cases) {
        QLocale::setDefault(test.locale);
        SCOPED_TRACE(test.locale.name().toStdString());
        settings.weatherUseFahrenheit.set(test.fahrenheit);
        EXPECT_EQ(page.temperature(), test.temperature);
        EXPECT_EQ(page.feelsLike(), test.feelsLike);
        EXPECT_EQ(page.range(), test.range);
        EXPECT_EQ(values(page.details(), u"value"_s), test.details);
        EXPECT_EQ(values(page.hours(), u"hour"_s), test.hours);
    }
}

TEST_F(DashboardPagesTest, TheAgeOfTheWeatherCountsWhileItIsLookedAt)
{
    letWeatherCome();
    show(IslandPage::Weather);
    EXPECT_EQ(page.source(), u"Open-Meteo, just now"_s);
    int updates = 0;
    QObject::connect(&page, &WeatherModel::sourceChanged, [&updates] { ++updates; });
    content.pointerEntered();
    runLoop.advance(3min);
    EXPECT_EQ(page.source(), u"Open-Meteo, 3 min ago"_s);
    EXPECT_EQ(updates, 3);
    show(IslandPage::Main);
    runLoop.advance(10min);
    EXPECT_EQ(updates, 3);
}

TEST_F(DashboardPagesTest, WhoLooksAtTheWeatherIsNotInterruptedByIt)
{
    weather.start();
    show(IslandPage::Weather);
    content.pointerEntered();
    letWeatherCome();
    EXPECT_FALSE(hud.currentHUD());
    show(IslandPage::Main);
    weather.service().refresh();
    respond(answer);
    EXPECT_FALSE(hud.currentHUD()) << "seen already";
    weather.service().refresh();
    respond(R"({"current": {"temperature_2m": 3, "weather_code": 71}})");
    EXPECT_EQ(hud.currentHUD()->title, u"3° Snow"_s);
}

TEST_F(DashboardPagesTest, NoWeatherIsExplainedAndAPlaceCanBeTyped)
{
    const std::pair<AuthorizationStatus, const char *> explanations[] = {
        {AuthorizationStatus::Restricted, "no location service"},
        {AuthorizationStatus::Denied, "not allowed"},
        {AuthorizationStatus::NotDetermined, "Nobody has allowed"},
        {AuthorizationStatus::AuthorizedAlways, "No weather has come yet"},
    };
    for (const auto &[status, text] : explanations) {
        location.decide(status);
        EXPECT_TRUE(page.explanation().contains(QLatin1StringView(text)))
            << page.explanation().toStdString();
    }

    show(IslandPage::Weather);
    page.openSearch();
    page.search(u"L"_s);
    page.search(u"Li"_s);
    page.search(u"  Lis "_s);
    runLoop.advance(2s);
    ASSERT_EQ(http.requests.size(), 1U) << "once the user pauses";
    respond(R"({"results": [{"name": "Lis\u202ebon", "latitude": 38.7, "longitude": -9.1,
                             "timezone": "Europe/Lisbon", "country": "Portugal"}]})");
    EXPECT_EQ(values(page.places(), u"name"_s), QStringList{u"Lisbon"_s});
    page.choosePlace(7);
    EXPECT_TRUE(page.isSearching());
    page.choosePlace(0);
    EXPECT_FALSE(page.isSearching());
    EXPECT_TRUE(page.placeIsTyped());
    respond(answer);
    EXPECT_TRUE(page.explanation().isEmpty());

    page.openSearch();
    page.search(u"Nowhere"_s);
    runLoop.advance(2s);
    respond("{}");
    EXPECT_EQ(page.searchNote(), u"No place of that name"_s);
    page.useOwnLocation();
    EXPECT_FALSE(page.placeIsTyped());
}

TEST_F(DashboardPagesTest, TypingHoldsTheIslandOpenUntilItIsClosed)
{
    dashboard.setTyping(true);
    EXPECT_FALSE(panelWindow.key) << "there is nothing to type in";
    show(IslandPage::Weather);
    dashboard.setTyping(true);
    EXPECT_TRUE(panelWindow.key);
    runLoop.advance(1h);
    EXPECT_EQ(content.presentation(), Presentation::Expanded);
    dashboard.close();
    EXPECT_FALSE(panelWindow.key);
    EXPECT_FALSE(dashboard.isTyping());

    show(IslandPage::Weather);
    dashboard.setTyping(true);
    dashboard.setTyping(false);
    runLoop.advance(1h);
    EXPECT_EQ(content.presentation(), Presentation::Collapsed);
}

TEST_F(DashboardPagesTest, LoadIsDrawnWithItsHistory)
{
    SystemModel &system = *dashboard.system();
    host.physical = 24ULL << 30;
    host.used = 15'676'630'630;
    host.disk = {.size = 252ULL << 30, .freeSize = 46ULL << 30};
    load.start();
    EXPECT_FALSE(system.hasSamples());
    for (int i = 1; i <= 70; ++i) {
        host.ticks = ProcessorTicks{.user = std::uint64_t(i) * 23, .idle = std::uint64_t(i) * 77};
        runLoop.advance(3s);
        runLoop.settle();
    }
    const auto gauges = system.gauges();
    EXPECT_EQ(values(gauges, u"figures"_s), (QStringList{u"23%"_s, u"61%"_s, u"82%"_s}));
    EXPECT_EQ(values(gauges, u"amount"_s).mid(1),
              (QStringList{u"14.6 of 24 GB"_s, u"206 of 252 GB"_s}));
    EXPECT_EQ(gauges.at(0).toMap().value(u"history"_s).value<QList<double>>().size(), 60);

    int updates = 0;
    QObject::connect(&system, &SystemModel::changed, [&updates] { ++updates; });
    runLoop.advance(30s);
    EXPECT_EQ(updates, 0) << "nobody looks";
    show(IslandPage::System);
    content.pointerEntered();
    runLoop.advance(30s);
    EXPECT_GE(updates, 9);
    settings.showSystemMonitor.set(false);
    EXPECT_FALSE(system.hasSamples());
    EXPECT_EQ(content.pages().islandPage(), IslandPage::Main);
}

TEST_F(DashboardPagesTest, TheTimerPageDrivesWhatItShows)
{
    TimerModel &timer = *dashboard.timer();
    EXPECT_FALSE(content.pages().offered().contains(IslandPage::Timer));
    settings.enableCountdownTimer.set(true);
    show(IslandPage::Timer);
    EXPECT_EQ(timer.tool(), 1) << "the focus timer is off";
    EXPECT_EQ(timer.time(), u"5:00"_s);
    timer.startPreset(10);
    runLoop.advance(61s);
    EXPECT_EQ(timer.time(), u"8:59"_s);
    EXPECT_EQ(timer.mainAction(), u"Pause"_s);
    EXPECT_EQ(timer.preset(), 10);
    timer.doMain();
    EXPECT_EQ(timer.mainAction(), u"Resume"_s);
    timer.reset();
    EXPECT_EQ(timer.mainAction(), u"Start"_s);
    EXPECT_FALSE(timer.canReset());

    timer.openEntry();
    EXPECT_FALSE(timer.enter(u"soon"_s));
    EXPECT_TRUE(timer.isEntering());
    EXPECT_TRUE(timer.enter(u"1:30"_s));
    EXPECT_EQ(timer.preset(), -1);
    runLoop.advance(91s);
    EXPECT_EQ(timer.fraction(), 0);
    EXPECT_EQ(timer.mainAction(), u"Start"_s);

    timer.choose(2);
    EXPECT_EQ(timer.time(), u"0:00"_s);
    timer.doMain();
    runLoop.advance(90s);
    EXPECT_EQ(timer.time(), u"1:30"_s);
    EXPECT_NEAR(timer.fraction(), 0.5, 0.01);

    timer.choose(0);
    timer.doMain();
    EXPECT_EQ(timer.dots(), (QVariantList{1, 0, 0, 0}));
    EXPECT_EQ(timer.mainAction(), u"Stop"_s);
    timer.skip();
    EXPECT_EQ(timer.title(), u"Short Break"_s);
    EXPECT_EQ(timer.dots(), (QVariantList{2, 0, 0, 0}));
}

TEST_F(DashboardPagesTest, ARunningTimerIsInTheWingsAndHasItsPage)
{
    const auto width = [this] { return content.islandSize().width(); };
    const double pill = width();
    timers.countdown().start();
    EXPECT_TRUE(content.pages().offered().contains(IslandPage::Timer));
    EXPECT_TRUE(island.wingsShowTimer());
    EXPECT_EQ(dashboard.timer()->wingText(), u"5:00"_s);
    EXPECT_EQ(width(), pill + 2 * 44);
    hud.show({.title = u"Note"_s}, true, 1);
    runLoop.advance(10s);
    EXPECT_TRUE(island.wingsShowTimer()) << "before an activity";
    timers.countdown().reset();
    timers.countdown().setTarget(7200);
    timers.countdown().start();
    EXPECT_EQ(width(), pill + 2 * 66);
    timers.stop();
    EXPECT_FALSE(content.wings().content().timer);
    EXPECT_FALSE(content.pages().offered().contains(IslandPage::Timer));
}

} // namespace
