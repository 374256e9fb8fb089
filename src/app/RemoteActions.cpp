#include "app/RemoteActions.h"

#include "app/AppDelegate.h"
#include "app/AppEvents.h"
#include "app/MediaPlayback.h"
#include "platform/NotificationCenter.h"
#include "platform/RemoteControl.h"
#include "tools/Timers.h"

#include <QDebug>

namespace quillmere {

namespace {

std::function<void()> onMedia(AppDelegate &delegate, void (MediaPlayback::*command)())
{
    return [&delegate, command] {
        if (auto *media = delegate.media())
            (media->*command)();
    };
}

} // namespace

RemoteActions::RemoteActions(RemoteControl &remoteControl, NotificationCenter &notificationCenter,
                             AppDelegate &delegate)
    : remoteControl_(remoteControl)
    , delegate_(delegate)
    , actions_{
          {QStringLiteral("show-island"), [&delegate] { delegate.showIsland(); }},
          {QStringLiteral("toggle-island"),
           [&notificationCenter] {
               notificationCenter.post(events::islandTapped, {{events::byKeyboard, true}});
           }},
          {QStringLiteral("refresh-now-playing"), [&delegate] { delegate.refreshNowPlaying(); }},
          {QStringLiteral("play-pause"), onMedia(delegate, &MediaPlayback::togglePlayPause)},
          {QStringLiteral("next-track"), onMedia(delegate, &MediaPlayback::nextTrack)},
          {QStringLiteral("previous-track"), onMedia(delegate, &MediaPlayback::previousTrack)},
          {QStringLiteral("check-for-updates"), [&delegate] { delegate.checkForUpdates(); }},
          {QStringLiteral("settings"),
           [&notificationCenter] { notificationCenter.post(events::openSettingsRequest); }},
          {QStringLiteral("quit"), [&delegate] { delegate.terminate(); }},
      }
{
    remoteControl_.setHandlers({
        .activate = [&delegate] { delegate.showIsland(); },
        .open =
            [](const QStringList &uris) {
                qWarning("[Quillmere] Nothing here opens %s", qUtf8Printable(uris.value(0)));
            },
        .activateAction =
            [this](const QString &action, const QVariantList &parameter) {
                return activate(action, parameter);
            },
    });
}

RemoteActions::~RemoteActions()
{
    remoteControl_.setHandlers({});
}

ActionOutcome RemoteActions::activate(const QString &action, const QVariantList &parameter) const
{
    const auto found = actions_.constFind(action);
    if (found == actions_.cend()) {
        const auto outcome = delegate_.timers()->shortcuts().activateAction(action, parameter);
        return outcome ? ActionOutcome(true) : ActionOutcome::refused(outcome.error());
    }
    if (!parameter.isEmpty())
        return false;
    (*found)();
    return true;
}

} // namespace quillmere
