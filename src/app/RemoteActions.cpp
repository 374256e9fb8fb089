#include "app/RemoteActions.h"

#include "app/AppDelegate.h"
#include "app/AppEvents.h"
#include "app/GoogleAccount.h"
#include "app/MediaPlayback.h"
#include "platform/NotificationCenter.h"
#include "platform/RemoteControl.h"
#include "platform/WebAuthSession.h"
#include "tools/Timers.h"

#include <QDebug>
#include <QUrl>

namespace quillmere {

namespace {

std::function<void()> onMedia(AppDelegate &delegate, void (MediaPlayback::*command)())
{
    return [&delegate, command] {
        if (auto *media = delegate.media())
            (media->*command)();
    };
}

std::function<void()> onGoogle(AppDelegate &delegate, void (GoogleAccount::*command)())
{
    return [&delegate, command] {
        if (auto *google = delegate.google())
            (google->*command)();
    };
}

/// An address may carry what nobody else is to read.
QString withoutDetails(const QUrl &address)
{
    return address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

} // namespace

RemoteActions::RemoteActions(RemoteControl &remoteControl, NotificationCenter &notificationCenter,
                             WebAuthSession &webAuthSession, AppDelegate &delegate)
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
          {QStringLiteral("sign-in-to-google"), onGoogle(delegate, &GoogleAccount::signIn)},
          {QStringLiteral("sign-out-of-google"), onGoogle(delegate, &GoogleAccount::signOut)},
          {QStringLiteral("settings"),
           [&notificationCenter] { notificationCenter.post(events::openSettingsRequest); }},
          {QStringLiteral("quit"), [&delegate] { delegate.terminate(); }},
      }
{
    remoteControl_.setHandlers({
        .activate = [&delegate] { delegate.showIsland(); },
        .open =
            [&webAuthSession](const QStringList &uris) {
                for (const QString &uri : uris) {
                    if (const QUrl address(uri); !webAuthSession.take(address))
                        qWarning("[Quillmere] Nothing here opens %s",
                                 qUtf8Printable(withoutDetails(address)));
                }
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
