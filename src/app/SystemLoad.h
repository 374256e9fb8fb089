#pragma once

#include "monitors/SystemMonitor.h"
#include "platform/SystemStats.h"

#include <QList>
#include <QObject>

namespace quillmere {

class HUDManager;
class SettingsStore;

/// The load of this machine and how it went lately, as long as the setting wants it. Main thread
/// only.
class SystemLoad : public QObject
{
    Q_OBJECT

public:
    static constexpr qsizetype historyLength = 60; ///< samples

    SystemLoad(RunLoop &runLoop, const HostStatistics &host, SettingsStore &settings,
               HUDManager &hudManager, QObject *parent = nullptr);
    ~SystemLoad() override;

    void start();
    void stop();

    /// Oldest first; empty until the first sample, and when the setting is off.
    const QList<SystemStats> &history() const { return history_; }

Q_SIGNALS:
    void historyChanged();

private:
    void follow(bool wanted);
    void add(const SystemStats &stats);

    RunLoop &runLoop_;
    const HostStatistics &host_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    std::unique_ptr<SystemMonitor> systemMonitor_;
    QList<SystemStats> history_;
    Task setting_;
};

} // namespace quillmere
