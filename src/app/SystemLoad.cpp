#include "app/SystemLoad.h"

#include "app/SettingSubscription.h"
#include "island/HUDManager.h"

namespace quillmere {

SystemLoad::SystemLoad(RunLoop &runLoop, const HostStatistics &host, SettingsStore &settings,
                       HUDManager &hudManager, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , host_(host)
    , settings_(settings)
    , hudManager_(hudManager)
{
}

SystemLoad::~SystemLoad() = default;

void SystemLoad::start()
{
    setting_ = subscribe(settings_, settings_.showSystemMonitor, this,
                         [this](bool wanted) { follow(wanted); });
    follow(settings_.showSystemMonitor.get());
}

void SystemLoad::stop()
{
    setting_.cancel();
    systemMonitor_.reset();
}

void SystemLoad::follow(bool wanted)
{
    if (wanted == bool(systemMonitor_))
        return;
    if (!wanted) {
        systemMonitor_.reset();
        history_.clear();
        hudManager_.setSystemStats(std::nullopt);
        Q_EMIT historyChanged();
        return;
    }
    systemMonitor_ = std::make_unique<SystemMonitor>(runLoop_, host_);
    systemMonitor_->onStatsUpdate = [this](const SystemStats &stats) { add(stats); };
    systemMonitor_->start();
}

void SystemLoad::add(const SystemStats &stats)
{
    if (history_.size() == historyLength)
        history_.removeFirst();
    history_.append(stats);
    hudManager_.setSystemStats(stats);
    Q_EMIT historyChanged();
}

} // namespace quillmere
