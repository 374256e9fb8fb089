#include "platform/linux/location/GeoClueLocationManager.h"
#include "platform/linux/location/HelperGeocoder.h"

#include "platform/linux/core/QtRunLoop.h"
#include "platform/linux/scripts/ProcessScriptRunner.h"
#include "support/BusServer.h"
#include "support/Eventually.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>

namespace quillmere {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString serviceName = u"org.freedesktop.GeoClue2"_s;
const QString clientPath = u"/org/freedesktop/GeoClue2/Client/1"_s;
const QString locationPath = u"/org/freedesktop/GeoClue2/Client/1/Location/0"_s;

/// The location service, answering as the test says.
class StubGeoClue : public QDBusVirtualObject
{
public:
    explicit StubGeoClue(const QDBusConnection &connection)
        : bus(connection)
    {
        bus.registerVirtualObject(u"/org/freedesktop/GeoClue2"_s, this, QDBusConnection::SubPath);
        bus.registerService(serviceName);
    }
    ~StubGeoClue() override { bus.unregisterService(serviceName); }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        const QString member = message.member();
        calls.append(member == u"Set"_s ? message.arguments().value(1).toString() : member);
        if (member == u"Start"_s && !refusal.isEmpty())
            return bus.send(message.createErrorReply(refusal, u"not for you"_s));
        if (member == u"CreateClient"_s)
            return bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(clientPath))));
        if (member == u"GetAll"_s)
            return bus.send(message.createReply(location));
        bus.send(message.createReply());
        if (member == u"Start"_s && hasFix)
            announce(bus);
        return true;
    }

    static void announce(const QDBusConnection &from)
    {
        auto signal = QDBusMessage::createSignal(clientPath, u"org.freedesktop.GeoClue2.Client"_s,
                                                 u"LocationUpdated"_s);
        signal << QVariant::fromValue(QDBusObjectPath(u"/"_s))
               << QVariant::fromValue(QDBusObjectPath(locationPath));
        from.send(signal);
    }

    QDBusConnection bus;
    QStringList calls;
    QString refusal;
    bool hasFix = true;
    QVariant location = QVariantMap{{u"Latitude"_s, 51.5}, {u"Longitude"_s, -0.12}};
};

/// Goes on as the weather does: a permission starts the search and the first fix ends it.
struct Listener : LocationManagerDelegate {
    explicit Listener(LocationManager &locations)
        : manager(locations)
    {
        manager.setDelegate(this);
    }
    void locationManagerDidChangeAuthorization() override
    {
        statuses.append(manager.authorizationStatus());
        if (statuses.last() == AuthorizationStatus::AuthorizedAlways)
            manager.startUpdatingLocation();
    }
    void locationManagerDidUpdateLocations(const QList<Location> &locations) override
    {
        found += locations;
        manager.stopUpdatingLocation();
    }
    void locationManagerDidFailWithError(const QString &text) override { errors.append(text); }

    LocationManager &manager;
    QList<AuthorizationStatus> statuses;
    QList<Location> found;
    QStringList errors;
};

struct LocationTest : testing::Test {
    static void SetUpTestSuite()
    {
        static int argc = 1;
        static char name[] = "LocationTest";
        static char *argv[] = {name, nullptr};
        static QCoreApplication application(argc, argv);
    }

    BusServer bus;
    QtRunLoop runLoop;
    GeoClueLocationManager manager{runLoop, [this] { return bus.connect(); }};
    Listener listener{manager};
    const Location london{51.5, -0.12};
};

TEST_F(LocationTest, IsAskedForFoundAndLeftAloneAgain)
{
    StubGeoClue service(bus.connect());
    manager.requestAlwaysAuthorization();
    ASSERT_TRUE(eventually([&] { return service.calls.contains(u"DeleteClient"_s); }));
    EXPECT_THAT(service.calls,
                ElementsAre(u"CreateClient"_s, u"DesktopId"_s, u"RequestedAccuracyLevel"_s,
                            u"Start"_s, u"GetAll"_s, u"DeleteClient"_s));
    EXPECT_THAT(listener.statuses, ElementsAre(AuthorizationStatus::AuthorizedAlways));
    EXPECT_THAT(listener.found, ElementsAre(london));

    manager.startUpdatingLocation();
    ASSERT_TRUE(eventually([&] { return listener.found.size() == 2; }));
    EXPECT_EQ(listener.statuses.size(), 1) << "already known";
    EXPECT_THAT(listener.errors, IsEmpty());
}

TEST_F(LocationTest, ARefusalIsADenialAndNoServiceARestriction)
{
    manager.requestAlwaysAuthorization();
    ASSERT_TRUE(eventually([&] { return listener.statuses.size() == 1; }));
    StubGeoClue service(bus.connect());
    service.refusal = QDBusError::errorString(QDBusError::AccessDenied);
    manager.requestAlwaysAuthorization();
    ASSERT_TRUE(eventually([&] { return listener.statuses.size() == 2; }));
    service.refusal = u"org.example.Busy"_s;
    manager.requestAlwaysAuthorization();
    ASSERT_TRUE(eventually([&] { return listener.errors.size() == 3; }));
    EXPECT_THAT(listener.statuses,
                ElementsAre(AuthorizationStatus::Restricted, AuthorizationStatus::Denied));
    EXPECT_EQ(listener.errors.last(), u"not for you"_s);
}

TEST_F(LocationTest, OnlyTheServiceIsBelievedAndOnlyPlacesOnEarth)
{
    StubGeoClue service(bus.connect());
    service.hasFix = false;
    manager.requestAlwaysAuthorization();
    ASSERT_TRUE(eventually([&] { return listener.statuses.size() == 1; }));
    StubGeoClue::announce(bus.connect());
    for (const QVariant &lie :
         {QVariant(QVariantMap{{u"Latitude"_s, 91.0}, {u"Longitude"_s, 0.0}}), QVariant(7),
          QVariant(QVariantMap{{u"Latitude"_s, u"1"_s}, {u"Longitude"_s, 0.0}})}) {
        service.location = lie;
        StubGeoClue::announce(service.bus);
        const auto asked = service.calls.count(u"GetAll"_s);
        ASSERT_TRUE(eventually([&] { return service.calls.count(u"GetAll"_s) > asked; }));
    }
    EXPECT_EQ(service.calls.count(u"GetAll"_s), 3);
    EXPECT_THAT(listener.found, IsEmpty());
    service.location = QVariantMap{{u"Latitude"_s, 51.5}, {u"Longitude"_s, -0.12}};
    StubGeoClue::announce(service.bus);
    EXPECT_TRUE(eventually([&] { return listener.found == QList{london}; }));
}

TEST_F(LocationTest, AServiceThatDiesIsAnErrorAndIsUsedAgain)
{
    {
        StubGeoClue service(bus.connect());
        service.hasFix = false;
        manager.requestAlwaysAuthorization();
        ASSERT_TRUE(eventually([&] { return listener.statuses.size() == 1; }));
    }
    ASSERT_TRUE(eventually([&] { return listener.errors.size() == 1; }));
    StubGeoClue service(bus.connect());
    manager.startUpdatingLocation();
    EXPECT_TRUE(eventually([&] { return listener.found.size() == 1; }));
}

TEST_F(LocationTest, CitiesHaveNamesAndTheSeaHasNone)
{
    ProcessScriptRunner scripts(runLoop, {u"/nowhere"_s, QStringLiteral(HELPERS)});
    HelperGeocoder geocoder(scripts);
    QStringList names;
    for (const auto &[latitude, longitude] : QList<std::pair<double, double>>{
             {51.5074, -0.1278}, {35.6895, 139.6917}, {0, -150}, {100, 0}}) {
        const auto count = names.size();
        const Task task = geocoder.reverseGeocode(
            latitude, longitude, [&](const std::optional<Placemark> &placemark) {
                names.append(placemark.value_or(Placemark{u"none"_s, {}}).locality);
            });
        ASSERT_TRUE(eventually([&] { return names.size() > count; }));
    }
    EXPECT_THAT(names, ElementsAre(u"London"_s, u"Tokyo"_s, u"none"_s, u"none"_s));
}

} // namespace
} // namespace quillmere
