#pragma once

#include "platform/UserDefaults.h"
#include "settings/SettingsRegistry.h"

#include <utility>

namespace quillmere {

/// What the two kinds of setting share: a key, a type and a default.
template <class T>
class TypedSetting : public Setting
{
public:
    using Value = SettingValue<T>;

    SettingType type() const override { return Value::type; }
    QStringList choices() const override
    {
        if constexpr (Choice<T>)
            return allTexts<T>();
        return {};
    }
    QVariant defaultValue() const override { return Value::write(defaultValue_); }
    QVariant interpreted(const QVariant &stored) const override
    {
        return Value::write(Value::read(stored).value_or(defaultValue_));
    }
    bool setValue(const QVariant &value) override
    {
        if (!Value::accepts(value))
            return false;
        set(*Value::read(value));
        return true;
    }

    /// Stores the value. Observers hear of it only if it differs from the one read before.
    virtual void set(const T &value) = 0;

protected:
    TypedSetting(SettingsRegistry &registry, const char *key, T defaultValue)
        : Setting(registry, key)
        , defaultValue_(std::move(defaultValue))
    {
    }

    T stored() const { return Value::read(userDefaults().object(key())).value_or(defaultValue_); }

    const T defaultValue_;
};

/// A setting that lives in the user defaults alone: every read looks there, nothing is cached.
/// An absent key, a value of another type and an unknown text read as the default.
template <class T>
class UserDefaultsSetting final : public TypedSetting<T>
{
public:
    UserDefaultsSetting(SettingsRegistry &registry, const char *key, T defaultValue)
        : TypedSetting<T>(registry, key, std::move(defaultValue))
    {
    }

    T get() const { return this->stored(); }

    void set(const T &value) override
    {
        this->apply(get() != value, [&] {
            this->userDefaults().setObject(this->key(), SettingValue<T>::write(value));
        });
    }

    bool isReadThrough() const override { return true; }
    QVariant value() const override { return SettingValue<T>::write(get()); }
};

/// A setting that is loaded once and then kept in memory: what changes in the user defaults by
/// another way reaches it at the next start only.
template <class T>
class LoadedSetting final : public TypedSetting<T>
{
public:
    LoadedSetting(SettingsRegistry &registry, const char *key, T defaultValue)
        : TypedSetting<T>(registry, key, std::move(defaultValue))
        , value_(this->stored())
    {
    }

    const T &get() const { return value_; }

    void set(const T &value) override
    {
        this->apply(value_ != value, [&] {
            value_ = value;
            this->userDefaults().setObject(this->key(), SettingValue<T>::write(value));
        });
        if (didSet)
            didSet();
    }

    /// Runs after every assignment, also of the value it already had.
    std::function<void()> didSet;

    bool isReadThrough() const override { return false; }
    QVariant value() const override { return SettingValue<T>::write(value_); }

private:
    T value_;
};

} // namespace quillmere
