#include "settingswindow/SettingRow.h"

#include "settingswindow/SettingsCatalog.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

SettingRow::SettingRow(const SettingEntry &entry, QStringList choices, QObject *parent)
    : QObject(parent)
    , entry_(entry)
    , key_(QLatin1StringView(entry.key))
    , title_(translated(entry.title))
    , isSetting_(true)
    , explanation_(translated(entry.explanation))
    , choices_(std::move(choices))
{
    for (qsizetype i = 0; i < choices_.size(); ++i)
        choiceTitles_.append(translated(entry.choices.at(static_cast<std::size_t>(i))));
}

SettingRow::SettingRow(QString id, QString title, QObject *parent)
    : QObject(parent)
    , entry_{}
    , key_(std::move(id))
    , title_(std::move(title))
    , isSetting_(false)
{
}

QString SettingRow::control() const
{
    if (!isSetting_)
        return QStringLiteral("note");
    switch (entry_.control) {
    case SettingControl::Switch:
        return QStringLiteral("switch");
    case SettingControl::Slider:
        return QStringLiteral("slider");
    case SettingControl::Segments:
        return QStringLiteral("segments");
    case SettingControl::Text:
        return QStringLiteral("text");
    case SettingControl::Number:
        return QStringLiteral("number");
    }
    Q_UNREACHABLE();
}

void SettingRow::setValue(const QVariant &value)
{
    if (std::exchange(value_, value) != value)
        Q_EMIT valueChanged();
}

void SettingRow::setExplanation(const QString &text)
{
    set(explanation_, text);
}

void SettingRow::setWarning(const QString &text)
{
    set(warning_, text);
}

void SettingRow::setButtonTitle(const QString &text)
{
    set(buttonTitle_, text);
}

void SettingRow::set(QString &member, const QString &text)
{
    if (std::exchange(member, text) != text)
        Q_EMIT textChanged();
}

QVariant SettingRow::fitted(const QVariant &value) const
{
    if (entry_.control != SettingControl::Slider && entry_.control != SettingControl::Number)
        return value;
    const auto &[from, to, step, unit, decimals, factor, zero] = entry_.range;
    const double steps = std::round((value.toDouble() - from) / step);
    // Counted in steps from a whole number, so that 0.15 is stored as 0.15.
    const double whole = from + std::round(steps * step * 1000) / 1000;
    return std::clamp(whole, from, to);
}

void SettingRow::change(const QVariant &value)
{
    const QVariant wanted = fitted(value);
    if (wanted != value_ && onChange)
        onChange(wanted);
}

void SettingRow::activate()
{
    if (onActivate)
        onActivate();
}

QString SettingRow::display(double value) const
{
    return displayText(entry_.range, value);
}

} // namespace quillmere
