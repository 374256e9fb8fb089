#include "weather/WeatherService.h"

#include "island/HUDManager.h"
#include "island/IslandDebugLogger.h"
#include "support/FakeHttpClient.h"
#include "support/FakeWeather.h"
#include "support/LogCapture.h"
#include "support/SettingsFixture.h"
#include "weather/TypedPlace.h"
#include "weather/WeatherAnnouncer.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray rain = R"({"current":{"temperature_2m":12.5,"weather_code":63}})";
const QByteArray appleClear = R"({"currentWeather":{"temperature":7.26,"conditionCode":"Clear"}})";
const Location london{51.5, -0.12};

class WeatherServiceTest : public testing::Test
{
protected:
    WeatherServiceTest()
    {
        service.onWeatherUpdate = [this](const WeatherData &weather) { updates.append(weather); };
        runLoop.advance(1h);
    }

    void allow() { machine.decide(AuthorizationStatus::AuthorizedAlways); }
    void allowAndFind()
    {
        allow();
        machine.find({{1, 2}, london});
        runLoop.advance(1s);
    }
    void respond(int status, const QByteArray &body)
    {
        ASSERT_TRUE(http.answer(HttpResponse{status, {}, body}));
    }
    void putToken() { keychain.secret = u" token\n"_s; }
    QString path(std::size_t request) const { return http.requests.at(request).url.path(); }

    ManualRunLoop runLoop;
    FakeLocationManager machine;
    FakeGeocoder geocoder{runLoop};
    FakeHttpClient http;
    FakeKeychain keychain{runLoop};
    FakeReachability network;
    MemoryUserDefaults local;
    TypedPlace place{runLoop, local, machine};
    LogCapture console;
    WeatherService service{{runLoop, place, geocoder, http, keychain, network}};
    QList<WeatherData> updates;
};

TEST_F(WeatherServiceTest, NothingHappensUntilPermitted)
{
    EXPECT_EQ(machine.accuracy, 1000);
    for (const auto status : {AuthorizationStatus::Restricted, AuthorizationStatus::Denied}) {
        machine.status = status;
        service.requestLocationIfNeeded();
        EXPECT_THAT(console.take(),
                    ElementsAre(u"[WeatherService] requestLocationIfNeeded — status: "_s +
                                QString::number(int(status))));
    }
    runLoop.advance(1h);
    EXPECT_EQ(machine.prompts + machine.starts, 0);
    EXPECT_FALSE(service.isRunning() || service.cachedWeather());

    machine.status = AuthorizationStatus::NotDetermined;
    QList<bool> answers;
    service.requestPermission([&](bool isAllowed) { answers.append(isAllowed); });
    runLoop.advance(299ms);
    EXPECT_EQ(machine.prompts, 0);
    runLoop.advance(1ms);
    EXPECT_EQ(machine.prompts, 1);
    machine.decide(AuthorizationStatus::Denied);
    EXPECT_THAT(answers, IsEmpty()) << "later, on the main queue";
    allow();
    runLoop.settle();
    EXPECT_THAT(answers, ElementsAre(false));
    EXPECT_THAT(console.take(), ElementsAre(u"[WeatherService] Authorization changed: 2"_s,
                                            u"[WeatherService] Authorization changed: 3"_s));
}

TEST_F(WeatherServiceTest, OneFixAndOneTimerHoweverOftenPermitted)
{
    allow();
    service.requestLocationIfNeeded();
    allowAndFind();
    EXPECT_FALSE(machine.isUpdating);
    respond(200, rain);
    const int starts = machine.starts;
    runLoop.advance(3h);
    EXPECT_EQ(http.requests.size(), 1U + 12U);
    EXPECT_EQ(machine.starts, starts) << "the fix is kept";
    EXPECT_EQ(geocoder.questions, 1) << "and so is its name";

    console.take();
    machine.find({});
    machine.fail(u"no fix"_s);
    EXPECT_THAT(console.take(), ElementsAre(u"[WeatherService] Location error: no fix"_s));
    EXPECT_EQ(service.cachedWeather()->locationName, u"London"_s);
    service.stop();
    network.comeBack();
    runLoop.advance(1h);
    EXPECT_FALSE(http.answer(HttpResponse{200, {}, rain}));
}

TEST_F(WeatherServiceTest, PrimaryServiceFirstThenTheFallback)
{
    putToken();
    allowAndFind();
    console.take();
    EXPECT_EQ(path(0), u"/api/v1/weather/en/51.5/-0.12"_s);
    EXPECT_THAT(http.requests[0].headers,
                Contains(std::pair<QByteArray, QByteArray>("Authorization", "Bearer token")));
    respond(200, appleClear);
    EXPECT_THAT(console.take(),
                ElementsAre(u"[WeatherService] Updated from WeatherKit: 7.3°C, Clear"_s));
    EXPECT_EQ(service.cachedWeather()->source, WeatherSource::AppleWeather);

    service.refresh();
    respond(401, "{}");
    EXPECT_THAT(console.take(),
                ElementsAre(u"[WeatherService] WeatherKit fetch failed, falling back to "
                            "Open-Meteo: HTTP 401"_s));
    EXPECT_EQ(path(2), u"/v1/forecast"_s);
    respond(200, rain);
    EXPECT_EQ(service.cachedWeather()->source, WeatherSource::OpenMeteo);
    EXPECT_EQ(updates.size(), 2);

    service.refresh();
    runLoop.settle();
    runLoop.advance(1s);
    EXPECT_EQ(keychain.reads.size(), 2) << "a refused token may have been renewed";
}

TEST_F(WeatherServiceTest, TheFallbackAnswersWhateverTheKeyringDoes)
{
    keychain.isWaiting = true;
    allowAndFind();
    EXPECT_THAT(http.requests, IsEmpty());
    runLoop.advance(3s);
    respond(200, rain);
    EXPECT_EQ(updates.size(), 1);
    putToken();
    keychain.answer(); // the user has come back and unlocked it
    service.refresh();
    EXPECT_EQ(path(1).section(u'/', 1, 2), u"api/v1"_s);
    EXPECT_EQ(keychain.reads.size(), 1) << "one prompt is enough";
}

TEST_F(WeatherServiceTest, FailuresKeepTheRecordAndSayWhy)
{
    allowAndFind();
    respond(200, rain);
    const auto before = service.cachedWeather();
    const QString failed = u"[WeatherService] Open-Meteo request failed: "_s;
    const std::pair<HttpResult, QString> cases[] = {
        {HttpResponse{429, {}, rain}, u"HTTP 429"_s},
        {HttpResponse{200, {}, "<html>"}, u"no current weather in the answer"_s},
        {tl::unexpected(HttpError{HttpError::Kind::TimedOut, u"timed out"_s}), u"timed out"_s}};
    for (const auto &[result, why] : cases) {
        service.refresh();
        runLoop.advance(1s);
        console.take();
        http.answer(result);
        EXPECT_THAT(console.take(), ElementsAre(failed + why));
        EXPECT_TRUE(service.cachedWeather() == before);
    }
    EXPECT_EQ(updates.size(), 1);
}

TEST_F(WeatherServiceTest, NamesOfPlaces)
{
    QStringList names;
    for (const auto &placemark : QList<std::optional<Placemark>>{
             Placemark{u"Berlin"_s, u"Mitte"_s}, Placemark{{}, u"Airport"_s}, Placemark{}, {}}) {
        geocoder.placemark = placemark;
        allowAndFind();
        respond(200, rain);
        names.append(service.cachedWeather()->locationName);
    }
    EXPECT_THAT(names, ElementsAre(u"Berlin"_s, u"Airport"_s, u"Current Location"_s,
                                   u"Current Location"_s));
}

TEST_F(WeatherServiceTest, WhatWasMissedIsMadeUpForOnce)
{
    allowAndFind();
    respond(200, rain);
    network.comeBack();
    runLoop.advance(1s);
    EXPECT_EQ(http.requests.size(), 1U) << "not overdue";

    runLoop.stall(5h); // asleep
    runLoop.advance(1s);
    EXPECT_EQ(http.requests.size(), 2U);
    ASSERT_TRUE(http.answer(tl::unexpected(HttpError{})));
    runLoop.setWallClock(std::chrono::system_clock::time_point(24h * 365 * 50)); // set back
    network.comeBack();
    runLoop.advance(1s);
    EXPECT_EQ(http.requests.size(), 3U);
    respond(200, rain);
    network.comeBack();
    runLoop.advance(1s);
    EXPECT_EQ(http.requests.size(), 3U);
    EXPECT_EQ(runLoop.now() - *service.lastUpdate(), 1s);
}

TEST_F(WeatherServiceTest, ATypedPlaceIsWhereWeAre)
{
    machine.status = AuthorizationStatus::Denied;
    const Location tokyo{35.69, 139.69, u"Tokyo"_s, "Asia/Tokyo"};
    putToken();
    place.setPlace(tokyo);
    runLoop.advance(1s);
    EXPECT_EQ(service.currentAuthStatus(), AuthorizationStatus::AuthorizedAlways);
    EXPECT_TRUE(http.requests.at(0).url.query().endsWith("&timezone=Asia/Tokyo"_L1));
    respond(200, appleClear);
    EXPECT_EQ(service.cachedWeather()->locationName, u"Tokyo"_s);
    EXPECT_EQ(machine.starts + geocoder.questions, 0);
    machine.find({london});
    EXPECT_EQ(http.requests.size(), 1U);

    const TypedPlace after(runLoop, local, machine);
    EXPECT_EQ(after.place(), tokyo);
    local.changeFromOutside(u"weatherPlace"_s, u"Tokyo"_s);
    EXPECT_EQ(after.authorizationStatus(), AuthorizationStatus::Denied) << "not a place";
}

TEST_F(WeatherServiceTest, AForgottenPlaceIsNotAskedForAgain)
{
    const Location tokyo{35.69, 139.69, u"Tokyo"_s, "Asia/Tokyo"};
    const auto type = [&] {
        place.setPlace(tokyo);
        runLoop.advance(1s);
        respond(200, rain);
        ASSERT_EQ(service.cachedWeather()->locationName, u"Tokyo"_s);
        machine.prompts = machine.starts = 0;
        http.requests.clear();
    };
    for (const auto status : {AuthorizationStatus::NotDetermined, AuthorizationStatus::Denied,
                              AuthorizationStatus::AuthorizedAlways}) {
        machine.status = AuthorizationStatus::NotDetermined;
        type();
        machine.status = status;
        place.setPlace({});
        runLoop.advance(1h);
        network.comeBack();
        EXPECT_EQ(http.requests.size(), 0U) << int(status);
        EXPECT_EQ(machine.prompts, status == AuthorizationStatus::NotDetermined) << int(status);
        EXPECT_EQ(machine.starts > 0, status == AuthorizationStatus::AuthorizedAlways);
    }
    machine.find({london});
    runLoop.advance(1s);
    respond(200, rain);
    EXPECT_EQ(service.cachedWeather()->locationName, u"London"_s);
}

TEST(WeatherAnnouncerTest, DistinctWeatherIsAnnouncedOnce)
{
    const QTemporaryDir folder;
    ManualRunLoop runLoop;
    SettingsFixture fixture;
    IslandDebugLogger logger(runLoop, folder.path());
    HUDManager hudManager(runLoop, fixture.settings, logger);
    WeatherAnnouncer announcer(fixture.settings, hudManager);
    WeatherData weather{.temperature = 12, .conditionLabel = u"Rain"_s, .locationName = u"Oslo"_s};
    int shown = 0;
    QObject::connect(&hudManager, &HUDManager::currentHUDChanged,
                     [&] { shown += hudManager.currentHUD().has_value(); });

    announcer.announce(weather);
    EXPECT_FALSE(announcer.hasFired()) << "nothing is shown right after the start";
    runLoop.advance(10s);
    for (int i = 0; i < 3; ++i) {
        announcer.announce(weather);
        runLoop.advance(5001ms);
        EXPECT_FALSE(hudManager.currentHUD());
    }
    EXPECT_EQ(shown, 1);
    weather.temperature = 12.4;
    announcer.announce(weather);
    EXPECT_EQ(shown, 1) << "reads the same";
    weather.conditionLabel = u"Snow"_s;
    announcer.announce(weather);
    EXPECT_EQ(shown, 2);
}

} // namespace
} // namespace quillmere
