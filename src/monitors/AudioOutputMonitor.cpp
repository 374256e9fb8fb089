#include "monitors/AudioOutputMonitor.h"

#include "monitors/OutputSymbol.h"

#include <QtGlobal>

#include <utility>

namespace quillmere {

AudioOutputMonitor::AudioOutputMonitor(RunLoop &runLoop, AudioHardware &hardware)
    : runLoop_(runLoop)
    , hardware_(hardware)
{
}

void AudioOutputMonitor::start()
{
    if (isRunning())
        return;
    auto listener = hardware_.onDefaultOutputChanged([this] { check(); });
    if (!listener) {
        qCritical("[AudioOutputMonitor] Failed to add output device listener: %d",
                  listener.error());
        return;
    }
    run_.emplace().outputDeviceListener = std::move(*listener);
    check();
}

void AudioOutputMonitor::stop()
{
    run_.reset();
}

void AudioOutputMonitor::check()
{
    const AudioDeviceID id = hardware_.defaultOutputDevice();
    if (id == 0)
        return;
    const auto device = hardware_.describe(id);
    const bool isFirst = !std::exchange(hasSeenInitialState_, true);
    if (!device || !device->isBluetooth) {
        lastBluetoothDeviceID_ = 0;
        return;
    }
    if (std::exchange(lastBluetoothDeviceID_, id) == id || isFirst)
        return;
    report(device->name.value_or(QStringLiteral("Bluetooth Device")));
}

void AudioOutputMonitor::report(const QString &name)
{
    runLoop_.post(run_->owner, [this, name, isAirPods = isAirPodsName(name)] {
        if (onBluetoothDeviceConnected)
            onBluetoothDeviceConnected(name, isAirPods);
    });
}

} // namespace quillmere
