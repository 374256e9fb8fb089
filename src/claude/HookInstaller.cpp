#include "claude/HookInstaller.h"

#include "claude/HookScript.h"
#include "platform/RunLoop.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr qint64 largestSettings = qint64{16} << 20; // bytes
constexpr int mostAttempts = 50;

void warn(const QString &path, const QString &problem)
{
    qWarning("[Claude Code] %s: %s", qPrintable(path), qPrintable(problem));
}

} // namespace

HookInstaller::HookInstaller(UserFiles &files, const RunLoop &runLoop, const QString &home,
                             const QString &socketPath)
    : files_(files)
    , runLoop_(runLoop)
    , home_(home)
    , socketPath_(socketPath)
    , scriptPath_(home + u"/.claude/hooks/quillmere-hook.sh")
    , settingsPath_(home + u"/.claude/settings.json")
{
}

bool findsAssistant(const UserFiles &files, const QString &home)
{
    const QString places[] = {home + u"/.local/bin/claude", home + u"/.claude/bin/claude",
                              QStringLiteral("/opt/homebrew/bin/claude"),
                              QStringLiteral("/usr/local/bin/claude")};
    return std::any_of(std::begin(places), std::end(places),
                       [&files](const QString &place) { return files.exists(place); });
}

void HookInstaller::installScript()
{
    const auto installed = files_.installProgram(home_, scriptPath_, hookScript(socketPath_));
    if (!installed)
        warn(scriptPath_, installed.error());
}

void HookInstaller::registerHooks()
{
    if (files_.exists(scriptPath_))
        editSettings([this](const QByteArray &text) { return withHooks(text, scriptPath_); });
    else
        editSettings(&withoutHooks);
}

void HookInstaller::uninstall()
{
    editSettings(&withoutHooks);
    const auto settings = files_.read(settingsPath_, largestSettings);
    if (settings.state == FileSnapshot::State::Unreadable || refersToHook(settings.bytes))
        warn(scriptPath_, QStringLiteral("stays, for the settings may still refer to it"));
    else
        files_.remove(scriptPath_);
}

void HookInstaller::editSettings(const Edit &edit)
{
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const auto before = files_.read(settingsPath_, largestSettings);
        const bool isReadable = before.state != FileSnapshot::State::Unreadable;
        const auto edited = edit(before.bytes);
        if (!edited || (isReadable && edited->text == before.bytes))
            return;
        if ((edited->losesForeign || !isReadable) && !keepCopy())
            return;
        const auto outcome = files_.replace(settingsPath_, edited->text, before);
        if (!outcome)
            return warn(settingsPath_, outcome.error());
        if (*outcome == UserFiles::Outcome::Replaced)
            return;
    }
    warn(settingsPath_, QStringLiteral("others change it all the time"));
}

bool HookInstaller::keepCopy()
{
    const auto copy = files_.keepCopy(settingsPath_, runLoop_.date());
    if (copy)
        warn(settingsPath_,
             QStringLiteral("not all of it could stay; as it was, it is kept as ") + *copy);
    else
        warn(settingsPath_, QStringLiteral("no copy can be kept: ") + copy.error());
    return copy.has_value();
}

} // namespace quillmere
