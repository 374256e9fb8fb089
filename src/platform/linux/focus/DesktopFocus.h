#pragma once

#include "platform/FocusState.h"
#include "platform/Listeners.h"
#include "platform/RunLoop.h"
#include "platform/linux/focus/FocusSource.h"

#include <QDBusConnection>

#include <memory>
#include <vector>

namespace quillmere {

/// Do Not Disturb wherever this session keeps it: with the notification server that runs, else in
/// the settings of the desktop. That another source tells from now on is no change. Main thread
/// only.
class DesktopFocus : public FocusState
{
public:
    /// `currentDesktop`: as in XDG_CURRENT_DESKTOP.
    DesktopFocus(RunLoop &runLoop, const QDBusConnection &sessionBus,
                 const QString &currentDesktop);

    std::optional<bool> isOn() const override;
    QString teller() const override;
    Task onChanged(std::function<void(bool isOn)> listener) override;
    Task onTellerChanged(std::function<void()> listener) override;

private:
    void add(std::unique_ptr<FocusSource> source);
    void update();

    std::optional<FocusReport> report_;
    Listeners<bool> changes_;
    Listeners<> tellers_;
    std::vector<std::unique_ptr<FocusSource>> sources_; ///< the first that tells is believed
};

} // namespace quillmere
