#pragma once

#include "platform/DisplayBrightness.h"
#include "platform/Listeners.h"
#include "platform/RunLoop.h"
#include "platform/linux/display/Backlight.h"
#include "platform/linux/display/DdcBrightness.h"
#include "platform/linux/display/DeviceEvents.h"

namespace quillmere {

/// The panel's backlight; without one, an external display over DDC where the user may use its bus.
///
/// The look for devices runs in the background: at the start, when one comes or goes, and when the
/// open one cannot be read any more. On a machine with neither kind nothing runs at all. A level
/// set by the firmware's own keys is seen like any other, as the kernel keeps it.
class LinuxDisplayBrightness : public DisplayBrightness
{
public:
    struct Places {
        QString sysfsRoot = QStringLiteral("/sys");
        QString devicesRoot = QStringLiteral("/dev");
        QString ddcHelper; ///< the program that asks external displays; empty = none
    };

    LinuxDisplayBrightness(RunLoop &runLoop, Places places);

    std::optional<double> brightness() const override;
    bool isAvailable() const override { return isAvailable_; }
    Task onAvailabilityChanged(std::function<void(bool available)> listener) override;

private:
    struct Devices {
        std::shared_ptr<const Backlight> backlight;
        bool hasDisplayBus = false; // one we may use to ask external displays
    };

    static Devices look(const Places &places);
    void scan();
    void use(const Devices &devices);
    void useDisplayBus(bool isThere);
    void deviceEvent(const DeviceEvents::Event &event);
    void leaveLost();
    void setAvailable(bool available);

    RunLoop &runLoop_;
    Places places_;
    std::function<void()> leaveLost_;
    std::shared_ptr<const Backlight> backlight_;
    std::optional<DdcBrightness> ddc_;
    bool isAvailable_ = false;
    Listeners<bool> listeners_;
    Task settle_;
    DeviceEvents deviceEvents_;
    Owner owner_;
};

} // namespace quillmere
