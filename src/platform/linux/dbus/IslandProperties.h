#pragma once

#include <QLatin1StringView>
#include <QMetaType>

#include <algorithm>
#include <array>
#include <optional>

namespace quillmere {

/// A property of com.quillmere.Island and the type in which it is published.
struct IslandProperty {
    QLatin1StringView name;
    QMetaType::Type type;
};

/// The same names and types as in data/dbus/com.quillmere.Island.xml. `Activities` is published as
/// a QVariantList of QVariantMaps.
inline constexpr std::array islandProperties{
    IslandProperty{QLatin1StringView("Presentation"), QMetaType::QString},
    IslandProperty{QLatin1StringView("Page"), QMetaType::QString},
    IslandProperty{QLatin1StringView("CurrentHUD"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("NowPlaying"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("Activities"), QMetaType::QVariantList},
    IslandProperty{QLatin1StringView("ClaudeCode"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("Weather"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("SystemStats"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("Timers"), QMetaType::QVariantMap},
    IslandProperty{QLatin1StringView("Frame"), QMetaType::QRect},
};

inline std::optional<IslandProperty> islandProperty(QStringView name)
{
    const auto found = std::ranges::find_if(
        islandProperties, [name](const IslandProperty &known) { return known.name == name; });
    return found == islandProperties.end() ? std::nullopt : std::optional(*found);
}

} // namespace quillmere
