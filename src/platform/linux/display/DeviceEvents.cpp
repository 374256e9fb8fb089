#include "platform/linux/display/DeviceEvents.h"

#include <libudev.h>

namespace quillmere {

DeviceEvents::DeviceEvents(std::initializer_list<const char *> subsystems,
                           std::function<void(const Event &)> onEvent)
    : onEvent_(std::move(onEvent))
    , context_(::udev_new(), &::udev_unref)
    , monitor_(context_ ? ::udev_monitor_new_from_netlink(context_.get(), "udev") : nullptr,
               &::udev_monitor_unref)
{
    if (!monitor_)
        return;
    for (const char *subsystem : subsystems)
        ::udev_monitor_filter_add_match_subsystem_devtype(monitor_.get(), subsystem, nullptr);
    if (::udev_monitor_enable_receiving(monitor_.get()) < 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(::udev_monitor_get_fd(monitor_.get()),
                                                  QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { receive(); });
}

void DeviceEvents::receive()
{
    const std::unique_ptr<udev_device, udev_device *(*)(udev_device *)> device(
        ::udev_monitor_receive_device(monitor_.get()), &::udev_device_unref);
    if (device)
        onEvent_(
            {::udev_device_get_subsystem(device.get()), ::udev_device_get_action(device.get())});
}

} // namespace quillmere
