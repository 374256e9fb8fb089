#include "platform/linux/bluetooth/BusBluetoothBatteries.h"

#include "platform/linux/core/QtRunLoop.h"
#include "support/MockService.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace quillmere {
namespace {

const QString address = QStringLiteral("AA:BB:CC:DD:EE:FF");

struct BluetoothBatteriesTest : ServiceTest {
    void startBlueZ(int percent)
    {
        const QString path = QStringLiteral("/org/bluez");
        const QString manager = QStringLiteral("org.bluez.Mock");
        const QString adapter = QStringLiteral("hci0");
        blueZ.start(QStringLiteral("bluez5"));
        blueZ.call(path, manager, "AddAdapter", {adapter, QStringLiteral("pc")});
        blueZ.call(path, manager, "AddDevice", {adapter, address, QStringLiteral("AirPods Pro")});
        if (percent >= 0)
            appear(percent);
    }

    /// The battery comes as an interface of its own, some time after the device, and goes so.
    void appear(int percent)
    {
        const QVariantMap battery{
            {QStringLiteral("Percentage"), QVariant::fromValue(uchar(percent))}};
        blueZ.call(device, mock, "AddProperties", {batteryInterface, battery});
        announce("InterfacesAdded", "oa{sa{sv}}",
                 QVariant::fromValue(QMap<QString, QVariantMap>{{batteryInterface, battery}}));
    }
    void disappear() { announce("InterfacesRemoved", "oas", QStringList(batteryInterface)); }
    void announce(const char *signal, const char *signature, const QVariant &interfaces)
    {
        blueZ.call(QStringLiteral("/"), mock, "EmitSignal",
                   {QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                    QString::fromLatin1(signal), QString::fromLatin1(signature),
                    QVariantList{QVariant::fromValue(QDBusObjectPath(device)), interfaces}});
    }
    void change(int percent)
    {
        blueZ.call(device, mock, "UpdateProperties",
                   {batteryInterface, QVariantMap{{QStringLiteral("Percentage"),
                                                   QVariant::fromValue(uchar(percent))}}});
    }

    bool waitFor(const BluetoothBattery &only)
    {
        return eventually([&] { return batteries.batteries() == QList{only}; });
    }
    bool waitFor(std::optional<int> percent)
    {
        return eventually([&] { return batteries.percent(address) == percent; });
    }

    const QString batteryInterface = QStringLiteral("org.bluez.Battery1");
    const QString device = QStringLiteral("/org/bluez/hci0/dev_AA_BB_CC_DD_EE_FF");
    MockService blueZ{bus, QStringLiteral("org.bluez"), QStringLiteral("/")};
    MockService uPower{bus, QStringLiteral("org.freedesktop.UPower"),
                       QStringLiteral("/org/freedesktop/UPower")};
    QtRunLoop runLoop;
    int opened = 0;
    BusBluetoothBatteries batteries{runLoop, [this] {
                                        ++opened;
                                        return bus.connect();
                                    }};
    int changes = 0;
};

TEST_F(BluetoothBatteriesTest, FollowBlueZThroughItsLifeAndOnlyWhileSomebodyListens)
{
    qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
    EXPECT_EQ(opened, 0);
    Task task = batteries.onChanged([this] { ++changes; }); // BlueZ comes later
    startBlueZ(83);
    EXPECT_TRUE(waitFor(83));
    EXPECT_EQ(batteries.percent(QStringLiteral("AA:BB:CC:DD:EE:00")), std::nullopt);
    EXPECT_TRUE(waitFor({address, QStringLiteral("AirPods Pro"), 83}));
    change(42);
    EXPECT_TRUE(waitFor(42));
    change(242); // nonsense changes nothing
    change(41);
    EXPECT_TRUE(waitFor(41));
    EXPECT_EQ(changes, 3);
    disappear();
    EXPECT_TRUE(waitFor(std::nullopt));
    appear(100);
    EXPECT_TRUE(waitFor(100));

    blueZ.stop();
    EXPECT_TRUE(waitFor(std::nullopt));
    startBlueZ(-1);
    appear(77);
    EXPECT_TRUE(waitFor(77));

    task.cancel();
    EXPECT_TRUE(waitFor(std::nullopt));
    const int before = changes;
    change(76);
    task = batteries.onChanged([&] { // lets go of everything from within
        if (batteries.percent(address) == 76)
            task.cancel();
    });
    EXPECT_TRUE(eventually([&] { return !task; }));
    EXPECT_TRUE(waitFor(std::nullopt));
    EXPECT_EQ(changes, before);
    EXPECT_EQ(opened, 1);
}

TEST_F(BluetoothBatteriesTest, UPowerFillsInForWhatBlueZDoesNotTell)
{
    const QString root = QStringLiteral("/org/freedesktop/UPower");
    const QString deviceInterface = root.mid(1).replace(u'/', u'.') + QStringLiteral(".Device");
    uPower.start(QStringLiteral("upower"));
    const QString battery = uPower
                                .call(root, mock, "AddDischargingBattery",
                                      {QStringLiteral("pad"), QStringLiteral("Pad"), 61.4,
                                       QVariant::fromValue<qlonglong>(0)})
                                .arguments()
                                .value(0)
                                .toString();
    const auto update = [&](const QString &key, const QVariant &value) {
        uPower.call(battery, mock, "UpdateProperties",
                    {deviceInterface, QVariantMap{{key, value}}});
    };
    uPower.call(battery, mock, "AddProperties",
                {deviceInterface, QVariantMap{{QStringLiteral("Serial"), address.toLower()}}});
    Task task = batteries.onChanged([this] { ++changes; });
    EXPECT_TRUE(waitFor({address, QStringLiteral("Pad"), 61}));
    update(QStringLiteral("Percentage"), 59.6);
    EXPECT_TRUE(waitFor(60));

    startBlueZ(83);
    EXPECT_TRUE(waitFor(83)); // fresher, and from the device itself
    blueZ.stop();
    EXPECT_TRUE(waitFor(60));
    uPower.call(root, mock, "EmitSignal",
                {root.mid(1).replace(u'/', u'.'), QStringLiteral("DeviceRemoved"),
                 QStringLiteral("o"), QVariantList{QVariant::fromValue(QDBusObjectPath(battery))}});
    EXPECT_TRUE(waitFor(std::nullopt));

    task.cancel();
    uPower.call(root, mock, "AddMethod",
                {root.mid(1).replace(u'/', u'.'), QStringLiteral("EnumerateDevices"), QString(),
                 QStringLiteral("ai"), QStringLiteral("ret = [1, 2, 3]")});
    task = batteries.onChanged([this] { ++changes; });
    startBlueZ(82);
    EXPECT_TRUE(waitFor(82)); // nonsense beside it does no harm
}

} // namespace
} // namespace quillmere
