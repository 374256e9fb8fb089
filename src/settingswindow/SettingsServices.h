#pragma once

#include <QString>
#include <QUrl>

#include <functional>

class QObject;

namespace quillmere {

class AudioOutputPicker;
class ClaudeCodeMonitor;
class HUDManager;
class Messages;
class SettingsStore;
class WeatherReports;
struct Platform;

/// What the settings window works with; everything outlives it.
struct SettingsServices {
    Platform &platform;
    SettingsStore &settings;
    HUDManager &hudManager;
    const AudioOutputPicker &outputPicker;
    Messages &messages;
    WeatherReports &weather;
    ClaudeCodeMonitor &claudeCode;
    QString version;
    QString logFolder;
    /// A local key was written here; who reads it does not hear of that otherwise.
    std::function<void()> localKeyWritten;
    std::function<void(const QUrl &address)> openAddress;
    /// The window is gone, and what it held can go back to the system.
    std::function<void()> unloaded = [] {};
    /// The model of the Google page's account box; null: there is none.
    QObject *googleAccount = nullptr;
};

} // namespace quillmere
