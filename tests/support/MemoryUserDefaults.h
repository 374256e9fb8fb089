#pragma once

#include "platform/UserDefaults.h"

#include <QVariantMap>

namespace quillmere {

/// User defaults without a file.
class MemoryUserDefaults : public UserDefaults
{
public:
    QVariant object(const QString &key) const override { return values.value(key); }
    void setObject(const QString &key, const QVariant &value) override
    {
        values.insert(key, value);
        writes.append(key);
    }
    void removeObject(const QString &key) override
    {
        values.remove(key);
        writes.append(key);
    }
    Task onExternalChange(std::function<void(const QStringList &keys)> listener) override
    {
        return listeners_.add(std::move(listener));
    }
    void flush() override {}

    /// What another program's edit of the file does. An invalid value removes the key.
    void changeFromOutside(const QString &key, const QVariant &value)
    {
        if (value.isValid())
            values.insert(key, value);
        else
            values.remove(key);
        listeners_.notify({key});
    }

    QVariantMap values;
    QStringList writes; ///< the keys written or removed by the code under test, in order

private:
    Listeners<const QStringList &> listeners_;
};

} // namespace quillmere
