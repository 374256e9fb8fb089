#pragma once

#include "claude/HookSettings.h"
#include "platform/UserFiles.h"

#include <QString>

#include <functional>

namespace quillmere {

class RunLoop;

/// Whether the assistant is where its installers put it. Waits for the disk. Any thread.
bool findsAssistant(const UserFiles &files, const QString &home);

/// Puts the hook script into the assistant's directory and its entries into the assistant's
/// settings, and takes both out again. Nothing is registered while the script is missing, and the
/// script stays while anything refers to it: a missing one would be an error at every event. What
/// fails is told on the console and leaves things as they were. Any thread, one at a time; waits
/// for the disk.
class HookInstaller
{
public:
    HookInstaller(UserFiles &files, const RunLoop &runLoop, const QString &home,
                  const QString &socketPath);

    bool findsAssistant() const { return quillmere::findsAssistant(files_, home_); }
    const QString &scriptPath() const { return scriptPath_; }

    void installScript();
    void registerHooks();
    void uninstall();

private:
    using Edit = std::function<std::optional<HookSettingsEdit>(const QByteArray &settings)>;

    void editSettings(const Edit &edit);
    bool keepCopy();

    UserFiles &files_;
    const RunLoop &runLoop_;
    const QString home_;
    const QString socketPath_;
    const QString scriptPath_;
    const QString settingsPath_;
};

} // namespace quillmere
