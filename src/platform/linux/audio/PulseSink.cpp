#include "platform/linux/audio/PulseSink.h"

#include "platform/BluetoothAddress.h"

#include <QLatin1StringView>

#include <pulse/proplist.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace quillmere {

namespace {

struct FormFactorName {
    std::string_view name;
    AudioFormFactor formFactor;
};

constexpr std::array formFactorNames{
    FormFactorName{"headphone", AudioFormFactor::Headphones},
    FormFactorName{"headset", AudioFormFactor::Headset},
    FormFactorName{"hands-free", AudioFormFactor::Headset},
    FormFactorName{"speaker", AudioFormFactor::Speaker},
    FormFactorName{"hifi", AudioFormFactor::Speaker},
    FormFactorName{"portable", AudioFormFactor::Speaker},
    FormFactorName{"car", AudioFormFactor::Car},
    FormFactorName{"tv", AudioFormFactor::Television},
};

std::string_view property(const pa_sink_info &info, const char *key)
{
    const char *value = pa_proplist_gets(info.proplist, key);
    return value ? value : "";
}

const char *nameOf(const pa_sink_info &info)
{
    return info.name ? info.name : "";
}

AudioFormFactor readFormFactor(const pa_sink_info &info)
{
    const auto found = std::ranges::find(
        formFactorNames, property(info, PA_PROP_DEVICE_FORM_FACTOR), &FormFactorName::name);
    return found == formFactorNames.end() ? AudioFormFactor::Other : found->formFactor;
}

bool isBluetooth(const pa_sink_info &info)
{
    if (property(info, PA_PROP_DEVICE_BUS) == "bluetooth")
        return true;
    const auto api = property(info, PA_PROP_DEVICE_API);
    return api == "bluez" || api == "bluez5" ||
           std::string_view(nameOf(info)).starts_with("bluez_");
}

QString readAddress(const pa_sink_info &info)
{
    for (const auto text :
         {property(info, "api.bluez5.address"), property(info, PA_PROP_DEVICE_STRING),
          std::string_view(nameOf(info))}) {
        QString address =
            bluetoothAddressIn(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
        if (!address.isEmpty())
            return address;
    }
    return {};
}

AudioDevice readDevice(const pa_sink_info &info)
{
    AudioDevice device{.formFactor = readFormFactor(info), .isBluetooth = isBluetooth(info)};
    if (info.description && *info.description)
        device.name = QString::fromUtf8(info.description);
    if (device.isBluetooth)
        device.bluetoothAddress = readAddress(info);
    return device;
}

} // namespace

PulseSink readSink(const pa_sink_info &info)
{
    return {info.index, nameOf(info), readDevice(info), info.volume, info.mute != 0};
}

} // namespace quillmere
