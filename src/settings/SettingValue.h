#pragma once

#include "settings/Choices.h"

#include <QString>
#include <QVariant>

#include <optional>

namespace quillmere {

enum class SettingType { Boolean, Double, Integer, Text, Choice };

/// How a value of type T is stored. `read` yields nothing for a stored value of another type or an
/// unknown text; `accepts` tells whether a value offered from outside C++ is one of the type.
template <class T>
struct SettingValue;

template <>
struct SettingValue<bool> {
    static constexpr SettingType type = SettingType::Boolean;
    /// Numbers count: 0 is false, every other one true.
    static std::optional<bool> read(const QVariant &stored);
    static QVariant write(bool value) { return value; }
    static bool accepts(const QVariant &value) { return value.typeId() == QMetaType::Bool; }
};

template <>
struct SettingValue<double> {
    static constexpr SettingType type = SettingType::Double;
    static std::optional<double> read(const QVariant &stored);
    static QVariant write(double value) { return value; }
    static bool accepts(const QVariant &value) { return read(value).has_value(); }
};

template <>
struct SettingValue<qint64> {
    static constexpr SettingType type = SettingType::Integer;
    /// A double without a fraction counts: editors and other programs write 5.0 for 5.
    static std::optional<qint64> read(const QVariant &stored);
    static QVariant write(qint64 value) { return value; }
    static bool accepts(const QVariant &value) { return read(value).has_value(); }
};

template <>
struct SettingValue<QString> {
    static constexpr SettingType type = SettingType::Text;
    static std::optional<QString> read(const QVariant &stored);
    static QVariant write(const QString &value) { return value; }
    static bool accepts(const QVariant &value) { return read(value).has_value(); }
};

template <Choice E>
struct SettingValue<E> {
    static constexpr SettingType type = SettingType::Choice;
    static std::optional<E> read(const QVariant &stored)
    {
        const auto text = SettingValue<QString>::read(stored);
        return text ? fromText<E>(*text) : std::nullopt;
    }
    static QVariant write(E value) { return QString(toText(value)); }
    static bool accepts(const QVariant &value) { return read(value).has_value(); }
};

} // namespace quillmere
