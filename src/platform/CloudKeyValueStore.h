#pragma once

#include "platform/Listeners.h"

#include <QStringList>
#include <QVariant>

#include <optional>

namespace quillmere {

/// Key-value storage shared by the machines of one user. Without a usable store every operation
/// simply has no effect. Main thread only; nothing here waits for the disk.
class CloudKeyValueStore
{
public:
    virtual ~CloudKeyValueStore() = default;

    /// Brings memory and store together: reads what others wrote, writes what was set here.
    virtual void synchronize() = 0;

    virtual QVariant object(const QString &key) const = 0;
    virtual void setObject(const QString &key, const QVariant &value) = 0;

    /// Calls back when others changed the store. `changedKeys` is absent when they are not known.
    virtual Task onExternalChange(
        std::function<void(const std::optional<QStringList> &changedKeys)> listener) = 0;
};

} // namespace quillmere
