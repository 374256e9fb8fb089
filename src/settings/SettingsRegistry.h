#pragma once

#include "settings/SettingValue.h"

#include <QStringList>
#include <QVariant>

#include <functional>
#include <vector>

namespace quillmere {

class UserDefaults;
class SettingsRegistry;

/// One setting without its C++ type, for everything that treats all settings alike: the property
/// map of the views, the settings window's search, reset. Choices appear here as their text.
class Setting
{
public:
    Setting(const Setting &) = delete;
    Setting &operator=(const Setting &) = delete;
    virtual ~Setting() = default;

    const QString &key() const { return key_; }
    virtual SettingType type() const = 0;
    /// The texts on offer, in order; empty unless the type is Choice.
    virtual QStringList choices() const = 0;
    /// False for a setting that is loaded once and does not see changes made elsewhere.
    virtual bool isReadThrough() const = 0;

    virtual QVariant defaultValue() const = 0;
    virtual QVariant value() const = 0;
    /// What value() would be if `stored` were what the domain holds.
    virtual QVariant interpreted(const QVariant &stored) const = 0;
    bool isDefault() const { return value() == defaultValue(); }

    /// Refuses a value that is not of the setting's type, and changes nothing then.
    virtual bool setValue(const QVariant &value) = 0;
    /// Stores the default, so that the machines that share the settings learn of it.
    void reset() { setValue(defaultValue()); }

protected:
    Setting(SettingsRegistry &registry, const char *key);

    UserDefaults &userDefaults() const;
    /// Runs `change` between the two announcements, or alone when nothing observable changes.
    void apply(bool announced, const std::function<void()> &change) const;

private:
    SettingsRegistry &registry_;
    const QString key_;
};

/// All settings of a store, in the order of their declaration.
class SettingsRegistry
{
public:
    using Announcement = std::function<void(const QString &key)>;

    SettingsRegistry(UserDefaults &userDefaults, Announcement willChange, Announcement didChange);
    SettingsRegistry(const SettingsRegistry &) = delete;
    SettingsRegistry &operator=(const SettingsRegistry &) = delete;

    const std::vector<Setting *> &settings() const { return settings_; }
    /// Null for a key that is not a setting's.
    Setting *find(const QString &key) const;

private:
    friend class Setting;

    UserDefaults &userDefaults_;
    Announcement willChange_;
    Announcement didChange_;
    std::vector<Setting *> settings_;
};

} // namespace quillmere
