#pragma once

#include <QLatin1StringView>

/// Names of the app-wide notifications, posted on the NotificationCenter.
namespace quillmere::events {

inline constexpr QLatin1StringView openSettingsRequest{"QuillmereOpenSettingsRequest"};
inline constexpr QLatin1StringView showOnboarding{"QuillmereShowOnboarding"};
inline constexpr QLatin1StringView settingsWindowClosed{"QuillmereSettingsWindowClosed"};
inline constexpr QLatin1StringView settingsDidSyncFromCloud{"QuillmereSettingsDidSyncFromICloud"};
inline constexpr QLatin1StringView airPlayPickerShown{"QuillmereAirPlayPickerShown"};
inline constexpr QLatin1StringView airPlayPickerDismissed{"QuillmereAirPlayPickerDismissed"};

/// Carries byKeyboard = true if it was no pointer: then the dashboard takes the keyboard as well.
inline constexpr QLatin1StringView islandTapped{"QuillmereIslandTapped"};
inline constexpr QLatin1StringView byKeyboard{"byKeyboard"};

inline constexpr QLatin1StringView dragEntered{"QuillmereDragEntered"};
inline constexpr QLatin1StringView dragExited{"QuillmereDragExited"};

/// Carries the local files that were dropped on the island, as a QList<QUrl>.
inline constexpr QLatin1StringView fileDropped{"QuillmereFileDropped"};
inline constexpr QLatin1StringView droppedFiles{"files"};

inline constexpr QLatin1StringView lockScreenDismissRequested{"lockScreenDismissRequested"};

/// Carries the direction of a horizontal scroll over the island.
inline constexpr QLatin1StringView islandScrolled{"QuillmereIslandScrolled"};
inline constexpr QLatin1StringView scrollDirection{"direction"}; ///< "left" or "right"

} // namespace quillmere::events
