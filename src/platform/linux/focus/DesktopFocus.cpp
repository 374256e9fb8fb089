#include "platform/linux/focus/DesktopFocus.h"

#include "platform/linux/focus/AskedService.h"
#include "platform/linux/focus/GSettingsFocus.h"
#include "platform/linux/focus/NotificationInhibition.h"

#include <algorithm>
#include <utility>

namespace quillmere {

DesktopFocus::DesktopFocus(RunLoop &runLoop, const QDBusConnection &sessionBus,
                           const QString &currentDesktop)
{
    const QStringList desktops = currentDesktop.split(u':');
    add(std::make_unique<NotificationInhibition>(sessionBus));
    add(std::make_unique<AskedService>(sessionBus, swayNotificationCenter()));
    if (const FocusSetting *setting = focusSettingOf(desktops))
        add(std::make_unique<GSettingsFocus>(runLoop, sessionBus, *setting));
    // Its store also runs elsewhere, with any program of Xfce.
    if (desktops.contains(QLatin1StringView("XFCE"), Qt::CaseInsensitive))
        add(std::make_unique<AskedService>(sessionBus, xfceNotifications()));
}

void DesktopFocus::add(std::unique_ptr<FocusSource> source)
{
    source->onChanged = [this] { update(); };
    sources_.push_back(std::move(source));
}

std::optional<bool> DesktopFocus::isOn() const
{
    return report_ ? std::optional(report_->isOn) : std::nullopt;
}

QString DesktopFocus::teller() const
{
    return report_ ? QString(report_->teller) : QString();
}

Task DesktopFocus::onChanged(std::function<void(bool)> listener)
{
    return changes_.add(std::move(listener));
}

Task DesktopFocus::onTellerChanged(std::function<void()> listener)
{
    return tellers_.add(std::move(listener));
}

void DesktopFocus::update()
{
    const auto telling = std::ranges::find_if(
        sources_, [](const auto &source) { return source->report().has_value(); });
    const QString formerTeller = teller();
    const auto former =
        std::exchange(report_, telling == sources_.end() ? std::nullopt : (*telling)->report());
    if (teller() != formerTeller)
        tellers_.notify();
    else if (report_ && former && report_->isOn != former->isOn)
        changes_.notify(report_->isOn);
}

} // namespace quillmere
