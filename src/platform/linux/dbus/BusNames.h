#pragma once

#include <QLatin1StringView>

/// The names under which other programs find us, and those of the bus itself.
namespace quillmere::bus {

inline constexpr QLatin1StringView serviceName{"com.quillmere.Quillmere"};
inline constexpr QLatin1StringView objectPath{"/com/quillmere/Quillmere"};
inline constexpr QLatin1StringView applicationInterface{"org.freedesktop.Application"};
inline constexpr QLatin1StringView islandInterface{"com.quillmere.Island"};
inline constexpr QLatin1StringView shortcutsInterface{"com.quillmere.Shortcuts"};
inline constexpr QLatin1StringView searchProviderPath{"/com/quillmere/Quillmere/SearchProvider"};
inline constexpr QLatin1StringView searchProviderInterface{"org.gnome.Shell.SearchProvider2"};
inline constexpr QLatin1StringView runnerPath{"/runner"};
inline constexpr QLatin1StringView runnerInterface{"org.kde.krunner1"};
inline constexpr QLatin1StringView propertiesInterface{"org.freedesktop.DBus.Properties"};

inline constexpr QLatin1StringView daemonName{"org.freedesktop.DBus"};
inline constexpr QLatin1StringView daemonPath{"/org/freedesktop/DBus"};
inline constexpr QLatin1StringView nameHasNoOwner{"org.freedesktop.DBus.Error.NameHasNoOwner"};

/// Where the bus library itself reports that the connection is gone.
inline constexpr QLatin1StringView localPath{"/org/freedesktop/DBus/Local"};
inline constexpr QLatin1StringView localInterface{"org.freedesktop.DBus.Local"};

} // namespace quillmere::bus
