#include "platform/NotificationCenter.h"

namespace quillmere {

Task NotificationCenter::observe(const QString &name, Observer observer)
{
    return observers_[name].add(std::move(observer));
}

void NotificationCenter::post(const QString &name, const QVariantMap &userInfo)
{
    const auto found = observers_.constFind(name);
    if (found == observers_.cend())
        return;
    // A copy shares the list but survives a rehash caused by an observer of a new name.
    const auto listeners = *found;
    listeners.notify(userInfo);
}

} // namespace quillmere
