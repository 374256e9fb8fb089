#pragma once

#include <QLatin1StringView>

#include <array>

/// Symbols that stand for a page of the settings and for nothing else.
namespace quillmere::symbols::pages {

inline constexpr QLatin1StringView gearshape{"gearshape.fill"};
inline constexpr QLatin1StringView people{"person.2.fill"};
inline constexpr QLatin1StringView musicPlayer{"ipod"};
inline constexpr QLatin1StringView lock{"lock.fill"};
inline constexpr QLatin1StringView clipboard{"doc.on.clipboard"};
inline constexpr QLatin1StringView folder{"folder.fill"};
inline constexpr QLatin1StringView camera{"camera.fill"};
inline constexpr QLatin1StringView upAndDown{"arrow.up.arrow.down"};
inline constexpr QLatin1StringView processor{"cpu"};
inline constexpr QLatin1StringView terminal{"terminal.fill"};
inline constexpr QLatin1StringView appGrid{"square.grid.3x3.fill"};
inline constexpr QLatin1StringView note{"note.text"};
inline constexpr QLatin1StringView bookmark{"bookmark.fill"};
inline constexpr QLatin1StringView checklist{"checklist"};
inline constexpr QLatin1StringView infoCircle{"info.circle.fill"};

inline constexpr std::array all{gearshape, people, musicPlayer, lock,      clipboard,
                                folder,    camera, upAndDown,   processor, terminal,
                                appGrid,   note,   bookmark,    checklist, infoCircle};

} // namespace quillmere::symbols::pages
