#include "monitors/OutputSymbol.h"

#include "platform/Symbols.h"

#include <QLocale>

#include <algorithm>

namespace quillmere {

QLatin1StringView outputSymbol(AudioFormFactor formFactor, bool isAirPods)
{
    if (isAirPods)
        return symbols::airpods;
    switch (formFactor) {
    case AudioFormFactor::Headphones:
    case AudioFormFactor::Headset:
        return symbols::headphones;
    case AudioFormFactor::Speaker:
        return symbols::hifispeaker;
    case AudioFormFactor::Car:
        return symbols::car;
    case AudioFormFactor::Television:
        return symbols::tv;
    case AudioFormFactor::Other:
        break;
    }
    return symbols::speakerWave2;
}

bool isAirPodsName(const QString &name)
{
    // True of every match, whatever the language; most names need none of its rules, which are
    // large to load.
    if (!name.contains(QLatin1StringView("pods"), Qt::CaseInsensitive))
        return false;
    const QLocale locale;
    const QString lower = locale.toLower(name);
    const QStringList spellings{QStringLiteral("AirPods"), QStringLiteral("Air Pods")};
    return std::ranges::any_of(spellings, [&](const QString &spelling) {
        return lower.contains(locale.toLower(spelling));
    });
}

} // namespace quillmere
