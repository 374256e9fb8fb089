#include "app/FocusAlerts.h"

#include "app/News.h"
#include "island/HUDManager.h"
#include "platform/FocusState.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>

#include <utility>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FocusAlerts)
};

} // namespace

FocusAlerts::FocusAlerts(FocusState &focusState, SettingsStore &settings, HUDManager &hudManager,
                         std::function<bool(HUDContent::HUDType)> isSuppressed)
    : focusState_(focusState)
    , settings_(settings)
    , hudManager_(hudManager)
    , isSuppressed_(std::move(isSuppressed))
{
}

void FocusAlerts::start()
{
    changes_ = focusState_.onChanged([this](bool isOn) { changed(isOn); });
}

bool FocusAlerts::allows(HUDContent::HUDType type) const
{
    if (!focusState_.isOn().value_or(false))
        return true;
    using enum HUDContent::HUDType;
    switch (type) {
    case Battery:
        return settings_.focusAllowBattery.get();
    case Bluetooth:
        return settings_.focusAllowConnectivity.get();
    case Brightness:
        return settings_.focusAllowDisplay.get();
    case Volume:
        return settings_.focusAllowSound.get();
    default:
        return !isNews(type);
    }
}

void FocusAlerts::changed(bool isOn)
{
    if (!settings_.showFocusHUD.get() || isSuppressed_(HUDContent::HUDType::Focus))
        return;
    hudManager_.show({.title = Words::tr("Do Not Disturb"),
                      .subtitle = isOn ? Words::tr("On") : Words::tr("Off"),
                      .icon = QString(isOn ? symbols::bellSlash : symbols::bell),
                      .type = HUDContent::HUDType::Focus},
                     true, settings_.focusHUDDuration.get());
}

} // namespace quillmere
