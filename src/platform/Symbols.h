#pragma once

#include <QLatin1StringView>

#include <array>

namespace quillmere::symbols {

/// The system-symbol names in use. Views draw a glyph for each; a name is added here when something
/// starts to use it, and a test proves that every one of them has its glyph.
inline constexpr QLatin1StringView speakerSlash{"speaker.slash.fill"};
inline constexpr QLatin1StringView speakerWave1{"speaker.wave.1.fill"};
inline constexpr QLatin1StringView speakerWave2{"speaker.wave.2.fill"};
inline constexpr QLatin1StringView speakerWave3{"speaker.wave.3.fill"};
inline constexpr QLatin1StringView sunMax{"sun.max.fill"};
inline constexpr QLatin1StringView battery25{"battery.25"};
inline constexpr QLatin1StringView island{"rectangle.topthird.inset.filled"};

inline constexpr std::array all{speakerSlash, speakerWave1, speakerWave2, speakerWave3,
                                sunMax,       battery25,    island};

} // namespace quillmere::symbols
