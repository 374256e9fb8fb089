#include "app/GoogleAccount.h"

#include "app/News.h"
#include "google/CalendarEvents.h"
#include "island/HUDManager.h"
#include "messages/MessageHUD.h"
#include "platform/Platform.h"
#include "settings/SettingsStore.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

constexpr double eventDuration = 8.0; // seconds

/// Where a press on new mail leads: the mail is there, which other mail programs need not know of.
constexpr QLatin1StringView inbox("https://mail.google.com/mail/");

} // namespace

GoogleAccount::GoogleAccount(Platform &platform, SettingsStore &settings, HUDManager &hudManager,
                             std::function<bool(HUDContent::HUDType)> isSuppressed)
    : runLoop_(platform.runLoop)
    , httpClient_(platform.httpClient)
    , settings_(settings)
    , hudManager_(hudManager)
    , isSuppressed_(std::move(isSuppressed))
    , authManager_({.runLoop = platform.runLoop,
                    .httpClient = platform.httpClient,
                    .keychain = platform.keychain,
                    .webAuthSession = platform.webAuthSession},
                   settings)
{
    QObject::connect(&settings_, &SettingsStore::didChange, &context_,
                     [this](const QString &key) { settingChanged(key); });
    QObject::connect(&authManager_, &GoogleAuthManager::accountReplaced, &context_, [this] {
        monitor_.reset(); // what it has seen is the other account's
        day_.reset();
        update();
    });
}

void GoogleAccount::start()
{
    isStarted_ = true;
    update();
}

void GoogleAccount::stop()
{
    isStarted_ = false;
    authManager_.cancelSignIn();
    update();
}

void GoogleAccount::signIn()
{
    authManager_.signIn([](const auto &outcome) {
        if (!outcome)
            qWarning("[Google] Sign-in failed: %s",
                     qUtf8Printable(text(outcome.error()).simplified()));
    });
}

void GoogleAccount::signOut()
{
    authManager_.signOut();
}

void GoogleAccount::settingChanged(const QString &key)
{
    const std::array wants{settings_.googleAccountEmail.key(), settings_.showGmailHUD.key(),
                           settings_.showGoogleCalendarHUD.key(),
                           settings_.disableActivityDuringEvents.key(),
                           settings_.disableWeatherOnEmptyDay.key()};
    if (std::find(wants.begin(), wants.end(), key) != wants.end())
        return update();
    if (key != settings_.googlePollInterval.key())
        return;
    if (monitor_) {
        monitor_->stop();
        monitor_->start();
    }
    if (day_) {
        day_->stop();
        day_->start();
    }
}

void GoogleAccount::update()
{
    const bool isSignedIn = isStarted_ && authManager_.signedInEmail();
    updateMonitor(isSignedIn &&
                  (settings_.showGmailHUD.get() || settings_.showGoogleCalendarHUD.get()));
    updateDay(isSignedIn && (settings_.disableActivityDuringEvents.get() ||
                             settings_.disableWeatherOnEmptyDay.get()));
}

void GoogleAccount::updateDay(bool isWanted)
{
    if (!isWanted)
        return day_.reset();
    if (day_)
        return;
    day_.emplace(runLoop_, settings_, httpClient_, authManager_);
    day_->start();
}

bool GoogleAccount::allows(HUDContent::HUDType type) const
{
    if (!day_)
        return true;
    if (isNews(type) && settings_.disableActivityDuringEvents.get() && day_->isDuringEvent())
        return false;
    return type != HUDContent::HUDType::Weather || !settings_.disableWeatherOnEmptyDay.get() ||
           !day_->isEmpty();
}

void GoogleAccount::updateMonitor(bool isWanted)
{
    if (!isWanted)
        return monitor_.reset();
    if (monitor_)
        return;
    monitor_.emplace(runLoop_, settings_, httpClient_, authManager_);
    monitor_->onNewGmailMessage = [this](const QString &sender, const QString &subject) {
        showMessage(sender, subject);
    };
    monitor_->onUpcomingEvent = [this](const QString &title, const QDateTime &start,
                                       const std::optional<QString> &link) {
        showEvent(title, start, link);
    };
    monitor_->start();
}

void GoogleAccount::showMessage(const QString &sender, const QString &subject)
{
    if (!settings_.showGmailHUD.get())
        return;
    HUDContent hud = emailHUD(sender, subject);
    hud.bundleID.reset();
    hud.contentURL = QString(inbox);
    show(std::move(hud), settings_.emailHUDDuration.get());
}

void GoogleAccount::showEvent(const QString &title, const QDateTime &start,
                              const std::optional<QString> &link)
{
    if (settings_.showGoogleCalendarHUD.get())
        show(calendarHUD(title, start, link), eventDuration);
}

void GoogleAccount::show(HUDContent hud, double duration)
{
    if (!isSuppressed_(hud.type))
        hudManager_.show(std::move(hud), true, duration);
}

} // namespace quillmere
