#pragma once

#include "platform/BluetoothBatteries.h"
#include "platform/Listeners.h"

#include <QHash>

namespace quillmere {

/// Batteries that tell what the test sets.
class FakeBluetoothBatteries : public BluetoothBatteries
{
public:
    std::optional<int> percent(const QString &address) const override
    {
        const auto found = levels_.constFind(address);
        return found == levels_.cend() ? std::nullopt : std::optional(*found);
    }
    QList<BluetoothBattery> batteries() const override
    {
        QList<BluetoothBattery> all;
        for (auto level = levels_.begin(); level != levels_.end(); ++level)
            all.append({.address = level.key(), .name = QStringLiteral("Pad"), .percent = *level});
        return all;
    }
    Task onChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }

    void set(const QString &address, int percent)
    {
        levels_.insert(address, percent);
        listeners_.notify();
    }
    bool isWatched() const { return !listeners_.isEmpty(); }

private:
    QHash<QString, int> levels_;
    Listeners<> listeners_;
};

} // namespace quillmere
