#pragma once

#include "platform/CloudKeyValueStore.h"

#include <QVariantMap>

namespace quillmere {

/// A cloud store without a cloud. `calls` records what was asked of it: "synchronize" or a key set.
class MemoryCloudStore : public CloudKeyValueStore
{
public:
    void synchronize() override { calls.append(QStringLiteral("synchronize")); }
    QVariant object(const QString &key) const override { return values.value(key); }
    void setObject(const QString &key, const QVariant &value) override
    {
        values.insert(key, value);
        calls.append(key);
    }
    Task onExternalChange(
        std::function<void(const std::optional<QStringList> &changedKeys)> listener) override
    {
        return listeners_.add(std::move(listener));
    }

    /// What another machine's change does.
    void changeFromOutside(const QVariantMap &changes)
    {
        values.insert(changes);
        reportChange(changes.keys());
    }

    /// The report alone.
    void reportChange(const std::optional<QStringList> &changedKeys)
    {
        listeners_.notify(changedKeys);
    }

    bool isObserved() const { return !listeners_.isEmpty(); }

    QVariantMap values;
    QStringList calls;

private:
    Listeners<const std::optional<QStringList> &> listeners_;
};

} // namespace quillmere
