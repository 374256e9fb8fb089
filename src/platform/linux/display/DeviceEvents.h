#pragma once

#include <QByteArray>
#include <QSocketNotifier>

#include <functional>
#include <initializer_list>
#include <memory>

struct udev;
struct udev_monitor;

namespace quillmere {

/// Tells when devices of some kinds come, go or change. The kernel filters, so that everything
/// else that happens to hardware wakes nobody. Where no device manager runs, nothing is told.
class DeviceEvents
{
public:
    struct Event {
        QByteArray subsystem;
        QByteArray action; ///< "add", "remove", "change" ...
    };

    DeviceEvents(std::initializer_list<const char *> subsystems,
                 std::function<void(const Event &)> onEvent);

private:
    void receive();

    std::function<void(const Event &)> onEvent_;
    std::unique_ptr<udev, udev *(*)(udev *)> context_;
    std::unique_ptr<udev_monitor, udev_monitor *(*)(udev_monitor *)> monitor_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quillmere
