#include "settings/SettingsRegistry.h"

#include <algorithm>

namespace quillmere {

Setting::Setting(SettingsRegistry &registry, const char *key)
    : registry_(registry)
    , key_(QString::fromLatin1(key))
{
    Q_ASSERT(!registry.find(key_));
    registry.settings_.push_back(this);
}

UserDefaults &Setting::userDefaults() const
{
    return registry_.userDefaults_;
}

void Setting::apply(bool announced, const std::function<void()> &change) const
{
    if (announced)
        registry_.willChange_(key_);
    change();
    if (announced)
        registry_.didChange_(key_);
}

SettingsRegistry::SettingsRegistry(UserDefaults &userDefaults, Announcement willChange,
                                   Announcement didChange)
    : userDefaults_(userDefaults)
    , willChange_(std::move(willChange))
    , didChange_(std::move(didChange))
{
}

Setting *SettingsRegistry::find(const QString &key) const
{
    const auto found = std::ranges::find(settings_, key, &Setting::key);
    return found == settings_.end() ? nullptr : *found;
}

} // namespace quillmere
