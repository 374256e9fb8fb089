#include "platform/NotificationCenter.h"

namespace quillmere {

Task NotificationCenter::observe(const QString &name, Observer observer)
{
    return observers_[name].add(std::move(observer));
}

void NotificationCenter::post(const QString &name, const QVariantMap &userInfo)
{
    // value() gives a handle of its own to the list, which outlives a rehash of the table caused by
    // an observer of a new name.
    observers_.value(name).notify(userInfo);
}

} // namespace quillmere
