#pragma once

#include "platform/Listeners.h"

#include <QStringList>
#include <QVariant>

namespace quillmere {

/// A flat, persistent domain of values by key. Values are bool, qint64, double, QString, and
/// QVariantList / QVariantMap of these. Reads answer at once from memory; writes reach the disk a
/// moment later, whole or not at all. Main thread only.
class UserDefaults
{
public:
    virtual ~UserDefaults() = default;

    /// The value under `key`, or an invalid QVariant when there is none.
    virtual QVariant object(const QString &key) const = 0;

    virtual void setObject(const QString &key, const QVariant &value) = 0;
    virtual void removeObject(const QString &key) = 0;

    /// Calls back with the keys whose value changed from outside (another program or an editor
    /// changed the file). Own writes are not reported.
    virtual Task onExternalChange(std::function<void(const QStringList &keys)> listener) = 0;

    /// Writes what is pending before it returns. For shutdown only.
    virtual void flush() = 0;
};

} // namespace quillmere
