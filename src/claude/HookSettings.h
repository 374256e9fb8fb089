#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillmere {

/// A new text of the assistant's settings. All of them: pretty-printed, sorted by key, ending in a
/// line break; what is not ours keeps its value, 64-bit integers and doubles included.
struct HookSettingsEdit {
    QByteArray text;
    bool losesForeign = false; ///< something that is not ours had no place in it
};

/// The settings with `command` registered for each of the nine events, once, whatever was
/// registered before. Text that is no JSON object is replaced. Absent for settings that could not
/// be written back as they are. Any thread.
std::optional<HookSettingsEdit> withHooks(const QByteArray &settings, const QString &command);

/// The settings without anything of ours. Absent as above, and when they are no JSON object.
std::optional<HookSettingsEdit> withoutHooks(const QByteArray &settings);

/// Whether the hook would run, or might once a slip in the text is mended.
bool refersToHook(const QByteArray &settings);

} // namespace quillmere
