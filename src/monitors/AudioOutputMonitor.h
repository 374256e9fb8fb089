#pragma once

#include "platform/AudioHardware.h"
#include "platform/RunLoop.h"

#include <functional>
#include <optional>

namespace quillmere {

/// Reports a Bluetooth device that becomes the default output. What is connected when it first
/// looks is only remembered, so the sound server should have found its devices by then; and as
/// devices get new ids from a restarted server, such a server wants a new monitor. Main thread
/// only.
class AudioOutputMonitor
{
public:
    AudioOutputMonitor(RunLoop &runLoop, AudioHardware &hardware);

    /// Not called after stop().
    std::function<void(const QString &name, bool isAirPods)> onBluetoothDeviceConnected;

    /// Does nothing while running. If the device changes cannot be heard it logs and stays stopped.
    void start();
    void stop();

    bool isRunning() const { return run_.has_value(); }

    /// 0 = the current output is not Bluetooth.
    AudioDeviceID lastBluetoothDeviceID() const { return lastBluetoothDeviceID_; }
    bool hasSeenInitialState() const { return hasSeenInitialState_; }

private:
    /// What start() sets up; ending it removes the listener and drops reports still posted.
    struct Run {
        Task outputDeviceListener;
        Owner owner;
    };

    void check();
    void report(const QString &name);

    RunLoop &runLoop_;
    AudioHardware &hardware_;
    AudioDeviceID lastBluetoothDeviceID_ = 0;
    bool hasSeenInitialState_ = false;
    std::optional<Run> run_;
};

} // namespace quillmere
