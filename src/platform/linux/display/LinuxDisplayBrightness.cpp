#include "platform/linux/display/LinuxDisplayBrightness.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

/// A display that was plugged in answers only after a while, and its events come in bursts.
constexpr Duration displaySettleTime = 3s;

bool hasUsableDisplayBus(const QString &devicesRoot)
{
    const QDir devices(devicesRoot);
    // A pattern would be the one regular expression that is compiled at start.
    const auto names = devices.entryList(QDir::System | QDir::Files);
    return std::any_of(names.begin(), names.end(), [&devices](const QString &name) {
        return name.startsWith(QLatin1StringView("i2c-")) &&
               ::access(QFile::encodeName(devices.filePath(name)).constData(), R_OK | W_OK) == 0;
    });
}

} // namespace

LinuxDisplayBrightness::LinuxDisplayBrightness(RunLoop &runLoop, Places places)
    : runLoop_(runLoop)
    , places_(std::move(places))
    , leaveLost_([this] { leaveLost(); })
    , deviceEvents_({"backlight", "drm", "i2c-dev"},
                    [this](const DeviceEvents::Event &event) { deviceEvent(event); })
{
    scan();
}

std::optional<double> LinuxDisplayBrightness::brightness() const
{
    if (!backlight_)
        return ddc_ ? ddc_->level() : std::nullopt;
    const auto level = backlight_->level();
    if (!level)
        runLoop_.post(owner_, leaveLost_);
    return level;
}

Task LinuxDisplayBrightness::onAvailabilityChanged(std::function<void(bool)> listener)
{
    return listeners_.add(std::move(listener));
}

LinuxDisplayBrightness::Devices LinuxDisplayBrightness::look(const Places &places)
{
    auto backlight = Backlight::find(places.sysfsRoot);
    const bool asksDisplays = !backlight && !places.ddcHelper.isEmpty();
    return {std::move(backlight), asksDisplays && hasUsableDisplayBus(places.devicesRoot)};
}

void LinuxDisplayBrightness::scan()
{
    runLoop_.background(
        owner_, [places = places_] { return look(places); },
        [this](const Devices &devices) { use(devices); });
}

void LinuxDisplayBrightness::use(const Devices &devices)
{
    const bool isSame = backlight_ && devices.backlight &&
                        backlight_->name() == devices.backlight->name() && backlight_->level();
    if (!isSame && (backlight_ || devices.backlight)) {
        ddc_.reset();
        backlight_ = nullptr;
        setAvailable(false);
        backlight_ = devices.backlight;
        setAvailable(backlight_ != nullptr);
    }
    if (!backlight_)
        useDisplayBus(devices.hasDisplayBus);
}

void LinuxDisplayBrightness::useDisplayBus(bool isThere)
{
    ddc_.reset();
    setAvailable(false);
    if (isThere)
        ddc_.emplace(places_.ddcHelper, [this](bool available) { setAvailable(available); });
}

void LinuxDisplayBrightness::deviceEvent(const DeviceEvents::Event &event)
{
    const bool isBacklight = event.subsystem == "backlight";
    if (isBacklight && event.action != "change") // a change of its level
        scan();
    else if (!isBacklight && !backlight_ && !places_.ddcHelper.isEmpty())
        settle_ = runLoop_.after(displaySettleTime, [this] { scan(); });
}

void LinuxDisplayBrightness::leaveLost()
{
    if (!backlight_ || backlight_->level())
        return;
    backlight_ = nullptr;
    setAvailable(false);
    scan();
}

void LinuxDisplayBrightness::setAvailable(bool available)
{
    if (available == isAvailable_)
        return;
    isAvailable_ = available;
    listeners_.notify(available);
}

} // namespace quillmere
