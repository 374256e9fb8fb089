#include "settingswindow/PageNotes.h"

#include "claude/HookInstaller.h"
#include "platform/AudioHardware.h"
#include "platform/BluetoothBatteries.h"
#include "platform/DisplayBrightness.h"
#include "platform/FocusState.h"
#include "platform/Platform.h"
#include "platform/PowerSources.h"
#include "platform/RunLoop.h"
#include "platform/StatusItem.h"
#include "settingswindow/SettingRow.h"
#include "settingswindow/SettingsCatalog.h"
#include "settingswindow/SettingsServices.h"

#include <QDir>
#include <QLocale>
#include <QStandardPaths>

#include <cmath>

namespace quillmere {

namespace {

QString withoutBattery(const Platform &platform)
{
    if (!platform.powerSources.isAvailable())
        return translated(QT_TRANSLATE_NOOP(
            "Settings", "The power service does not answer. Install the package upower."));
    return platform.powerSources.status()
               ? QString()
               : translated(QT_TRANSLATE_NOOP("Settings", "This machine has no battery."));
}

} // namespace

void PageNotes::general()
{
    if (services_.platform.statusItem.isOnBar())
        return;
    SettingRow *bar = row("statusBar", QT_TRANSLATE_NOOP("Settings", "Status bar"));
    bar->setWarning(translated(QT_TRANSLATE_NOOP(
        "Settings", "This desktop has no place for status icons, so there is no menu there. "
                    "On GNOME, the AppIndicator extension adds one.")));
    group(QT_TRANSLATE_NOOP("Settings", "Desktop"), {bar});
}

void PageNotes::battery()
{
    SettingRow *machine = row("machineBattery", QT_TRANSLATE_NOOP("Settings", "This machine"));
    PowerSources &power = services_.platform.powerSources;
    const auto show = [this, machine, &power] {
        machine->setWarning(withoutBattery(services_.platform));
        const auto status = power.status();
        machine->setExplanation(
            status ? translated(QT_TRANSLATE_NOOP("Settings", "The battery is at %1 %."))
                         .arg(QLocale().toString(status->level))
                   : QString());
    };
    show();
    tasks_.push_back(power.onChanged(show));
    tasks_.push_back(power.onAvailabilityChanged([show](bool) { show(); }));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {machine});
}

void PageNotes::connectivity()
{
    SettingRow *found = row("devices", QT_TRANSLATE_NOOP("Settings", "Devices"));
    BluetoothBatteries &bluetooth = services_.platform.bluetoothBatteries;
    const auto show = [found, &bluetooth] {
        QStringList devices;
        for (const BluetoothBattery &device : bluetooth.batteries())
            devices.append(translated(QT_TRANSLATE_NOOP("Settings", "%1: %2 %"))
                               .arg(device.name.isEmpty() ? device.address : device.name,
                                    QLocale().toString(device.percent)));
        found->setExplanation(
            devices.isEmpty()
                ? translated(QT_TRANSLATE_NOOP("Settings", "No connected device tells its charge."))
                : devices.join(u'\n'));
    };
    tasks_.push_back(bluetooth.onChanged(show));
    show();
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::focus()
{
    SettingRow *found = row("focusState", QT_TRANSLATE_NOOP("Settings", "This desktop"));
    FocusState &focus = services_.platform.focusState;
    const auto show = [found, &focus] {
        const auto isOn = focus.isOn();
        found->setWarning(
            isOn ? QString()
                 : translated(QT_TRANSLATE_NOOP(
                       "Settings", "It does not tell of Do Not Disturb. GNOME, Plasma, Xfce, "
                                   "Cinnamon, MATE, dunst, SwayNC and newer versions of mako do. "
                                   "Until it does, this page has no effect.")));
        found->setExplanation(
            isOn ? (*isOn
                        ? translated(QT_TRANSLATE_NOOP("Settings", "Do Not Disturb is on in %1."))
                        : translated(QT_TRANSLATE_NOOP("Settings", "Do Not Disturb is off in %1.")))
                       .arg(focus.teller())
                 : QString());
    };
    show();
    tasks_.push_back(focus.onChanged([show](bool) { show(); }));
    tasks_.push_back(focus.onTellerChanged(show));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::display()
{
    SettingRow *found = row("display", QT_TRANSLATE_NOOP("Settings", "This display"));
    DisplayBrightness &display = services_.platform.displayBrightness;
    const auto show = [found, &display](bool isAvailable) {
        const auto brightness = display.brightness();
        found->setExplanation(
            isAvailable && brightness
                ? translated(QT_TRANSLATE_NOOP("Settings", "Its brightness is %1 %."))
                      .arg(QLocale().toString(std::lround(100 * *brightness)))
                : QString());
        found->setWarning(isAvailable
                              ? QString()
                              : translated(QT_TRANSLATE_NOOP(
                                    "Settings", "No display here tells its brightness. For an "
                                                "external one, load the module i2c-dev and join "
                                                "the group i2c.")));
    };
    show(display.isAvailable());
    tasks_.push_back(display.onAvailabilityChanged(show));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::sound()
{
    SettingRow *found = row("output", QT_TRANSLATE_NOOP("Settings", "Output"));
    AudioHardware &audio = services_.platform.audioHardware;
    const auto show = [found, &audio](bool isAvailable) {
        const auto device = audio.describe(audio.defaultOutputDevice());
        found->setExplanation(isAvailable && device ? device->name.value_or(QString()) : QString());
        found->setWarning(isAvailable
                              ? QString()
                              : translated(QT_TRANSLATE_NOOP(
                                    "Settings", "No sound server answers. Start it with: systemctl "
                                                "--user start pipewire-pulse")));
    };
    show(audio.isAvailable());
    tasks_.push_back(audio.onAvailabilityChanged(show));
    if (auto task = audio.onDefaultOutputChanged([show] { show(true); }))
        tasks_.push_back(std::move(*task));
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

void PageNotes::assistant()
{
    SettingRow *found = row("assistant", QT_TRANSLATE_NOOP("Settings", "Claude Code"));
    const auto look = [&files = services_.platform.userFiles] {
        if (!findsAssistant(files, QDir::homePath()))
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "It was not found in ~/.local/bin, ~/.claude/bin or /usr/local/bin. If "
                            "it is elsewhere, put a link to it there."));
        if (QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty())
            return translated(QT_TRANSLATE_NOOP(
                "Settings", "Its hook needs Python. Install the package python3."));
        return QString();
    };
    services_.platform.runLoop.background(owner_, look, [found](const QString &missing) {
        found->setWarning(missing);
        if (missing.isEmpty())
            found->setExplanation(
                translated(QT_TRANSLATE_NOOP("Settings", "It is set up on this machine.")));
    });
    group(QT_TRANSLATE_NOOP("Settings", "Found"), {found});
}

} // namespace quillmere
