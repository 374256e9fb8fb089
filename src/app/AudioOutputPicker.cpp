#include "app/AudioOutputPicker.h"

#include "app/AppEvents.h"
#include "monitors/OutputSymbol.h"
#include "platform/NotificationCenter.h"

namespace quillmere {

AudioOutputPicker::AudioOutputPicker(AudioHardware &audioHardware,
                                     NotificationCenter &notificationCenter)
    : audioHardware_(audioHardware)
    , notificationCenter_(notificationCenter)
    , availabilityListener_(audioHardware.onAvailabilityChanged([this](bool) { updateCurrent(); }))
{
    if (auto listener = audioHardware.onDefaultOutputChanged([this] { updateCurrent(); }))
        defaultListener_ = std::move(*listener);
    updateCurrent();
}

void AudioOutputPicker::open()
{
    if (isOpen())
        return;
    outputsListener_ = audioHardware_.onOutputsChanged([this] { updateChoices(); });
    updateChoices();
    Q_EMIT openChanged();
    notificationCenter_.post(events::airPlayPickerShown);
}

void AudioOutputPicker::close()
{
    if (!isOpen())
        return;
    outputsListener_.cancel();
    choices_.clear();
    Q_EMIT openChanged();
    Q_EMIT choicesChanged();
    notificationCenter_.post(events::airPlayPickerDismissed);
}

void AudioOutputPicker::stop()
{
    close();
    defaultListener_.cancel();
    availabilityListener_.cancel();
}

void AudioOutputPicker::choose(AudioDeviceID device)
{
    audioHardware_.setDefaultOutput(device);
    close();
}

void AudioOutputPicker::updateCurrent()
{
    const AudioDeviceID id = audioHardware_.defaultOutputDevice();
    const auto device = audioHardware_.describe(id);
    Choice current;
    if (device) {
        const QString name = device->name.value_or(QString());
        current = {id, name, outputSymbol(device->formFactor, isAirPodsName(name)), true};
    }
    if (current == current_)
        return;
    current_ = std::move(current);
    Q_EMIT currentChanged();
}

void AudioOutputPicker::updateChoices()
{
    QList<Choice> choices;
    for (const AudioOutput &output : audioHardware_.outputs())
        choices.append({output.id, output.name,
                        outputSymbol(output.formFactor, isAirPodsName(output.name)),
                        output.isDefault});
    if (choices == choices_)
        return;
    choices_ = std::move(choices);
    Q_EMIT choicesChanged();
}

} // namespace quillmere
