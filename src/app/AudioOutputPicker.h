#pragma once

#include "platform/AudioHardware.h"

#include <QList>
#include <QObject>

namespace quillmere {

class NotificationCenter;

/// Where sound can be sent, for a person to choose: the route picker the island opens. While it is
/// closed it knows only where sound goes now. Main thread only.
class AudioOutputPicker : public QObject
{
    Q_OBJECT

public:
    struct Choice {
        AudioDeviceID id = 0;
        QString name;
        QString symbol;
        bool isCurrent = false;

        bool operator==(const Choice &) const = default;
    };

    AudioOutputPicker(AudioHardware &audioHardware, NotificationCenter &notificationCenter);

    bool isOpen() const { return bool(outputsListener_); }

    /// In the sound server's order; empty while closed, or without any device.
    const QList<Choice> &choices() const { return choices_; }

    /// Where sound goes now; the id is 0 without a device.
    const Choice &current() const { return current_; }

    /// Opening and closing are announced app-wide, so that the island stays open meanwhile.
    void open();
    void close();

    /// Closes it, and listens to nothing any more.
    void stop();

    /// Sends sound there and closes the picker.
    void choose(AudioDeviceID device);

Q_SIGNALS:
    void openChanged();
    void choicesChanged();
    void currentChanged();

private:
    void updateCurrent();
    void updateChoices();

    AudioHardware &audioHardware_;
    NotificationCenter &notificationCenter_;
    QList<Choice> choices_;
    Choice current_;
    Task outputsListener_;
    Task defaultListener_;
    Task availabilityListener_;
};

} // namespace quillmere
