#include "app/Messages.h"

#include "island/HUDManager.h"
#include "messages/MessageHUD.h"
#include "platform/ApplicationIcons.h"
#include "platform/Platform.h"
#include "settings/SettingsStore.h"

#include <utility>

namespace quillmere {

Messages::Messages(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                   QString home, std::function<bool(HUDContent::HUDType)> isSuppressed)
    : settings_(settings)
    , icons_(platform.applicationIcons)
    , hudManager_(hudManager)
    , isSuppressed_(std::move(isSuppressed))
    , mail_(platform.runLoop, settings, platform.scriptRunner, platform.newMailSignal)
    , notifications_(platform.runLoop, settings, platform.notificationDatabase,
                     platform.notificationFeed, std::move(home))
{
    mail_.onNewEmail = [this](const QString &sender, const QString &subject,
                              const QString &detail) {
        show(emailHUD(sender, subject, detail), settings_.emailHUDDuration.get());
    };
    notifications_.onNewSlackNotification = [this](const QString &title, const auto &subtitle,
                                                   const auto &body) {
        if (settings_.showSlackHUD.get())
            show(messageHUD(WatchedNotificationApp::Slack, title, subtitle, body),
                 settings_.slackHUDDuration.get());
    };
    notifications_.onNewDiscordNotification = [this](const QString &title, const auto &subtitle,
                                                     const auto &body) {
        if (settings_.showDiscordHUD.get())
            show(messageHUD(WatchedNotificationApp::Discord, title, subtitle, body),
                 settings_.discordHUDDuration.get());
    };
    QObject::connect(&settings_, &SettingsStore::didChange, &context_,
                     [this](const QString &key) { settingChanged(key); });
}

void Messages::startMail()
{
    mail_.start();
    learnIcons();
}

void Messages::startNotifications()
{
    notifications_.start();
    learnIcons();
}

/// So that they are there when somebody writes.
void Messages::learnIcons()
{
    for (const auto app : watchedApps(settings_))
        icons_.icon(bundleIdentifier(app));
    if (settings_.showEmailHUD.get())
        icons_.icon(mailBundleIdentifier);
}

void Messages::stop()
{
    mail_.stop();
    notifications_.stop();
}

/// Both monitors read their interval when they start, and one that has just been wanted has to
/// learn first what is there already.
void Messages::settingChanged(const QString &key)
{
    const bool isSwitchedOn =
        (key == settings_.showSlackHUD.key() && settings_.showSlackHUD.get()) ||
        (key == settings_.showDiscordHUD.key() && settings_.showDiscordHUD.get());
    if (isSwitchedOn || key == settings_.slackPollInterval.key() ||
        key == settings_.discordPollInterval.key())
        restartNotifications();
    if (isSwitchedOn || key == settings_.showEmailHUD.key())
        learnIcons();
    if (mail_.isRunning() &&
        (key == settings_.showEmailHUD.key() || key == settings_.emailPollInterval.key())) {
        mail_.stop();
        mail_.start();
    }
}

void Messages::restartNotifications()
{
    if (!notifications_.isRunning())
        return;
    notifications_.stop();
    notifications_.start();
}

void Messages::show(HUDContent hud, double duration)
{
    if (isSuppressed_(hud.type))
        return;
    if (QImage icon = icons_.icon(hud.bundleID.value_or(QString())); !icon.isNull())
        hud.artworkImage = std::move(icon);
    hudManager_.show(std::move(hud), true, duration);
}

} // namespace quillmere
