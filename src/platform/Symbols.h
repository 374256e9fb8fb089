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
inline constexpr QLatin1StringView airpods{"airpods"};
inline constexpr QLatin1StringView headphones{"headphones"};
inline constexpr QLatin1StringView hifispeaker{"hifispeaker.fill"};
inline constexpr QLatin1StringView car{"car.fill"};
inline constexpr QLatin1StringView tv{"tv.fill"};
inline constexpr QLatin1StringView sunMax{"sun.max.fill"};
inline constexpr QLatin1StringView battery0{"battery.0"};
inline constexpr QLatin1StringView battery25{"battery.25"};
inline constexpr QLatin1StringView battery50{"battery.50"};
inline constexpr QLatin1StringView battery75{"battery.75"};
inline constexpr QLatin1StringView battery100{"battery.100"};
inline constexpr QLatin1StringView battery100Bolt{"battery.100.bolt"};
inline constexpr QLatin1StringView trayAndArrowDown{"tray.and.arrow.down.fill"};
inline constexpr QLatin1StringView island{"rectangle.topthird.inset.filled"};

inline constexpr QLatin1StringView chevronLeft{"chevron.left"};
inline constexpr QLatin1StringView chevronRight{"chevron.right"};
inline constexpr QLatin1StringView xmark{"xmark"};
inline constexpr QLatin1StringView checkmark{"checkmark"};
inline constexpr QLatin1StringView magnifyingGlass{"magnifyingglass"};
inline constexpr QLatin1StringView doc{"doc.fill"};

inline constexpr QLatin1StringView playFill{"play.fill"};
inline constexpr QLatin1StringView pauseFill{"pause.fill"};
inline constexpr QLatin1StringView backwardFill{"backward.fill"};
inline constexpr QLatin1StringView forwardFill{"forward.fill"};
inline constexpr QLatin1StringView shuffle{"shuffle"};
inline constexpr QLatin1StringView repeat{"repeat"};
inline constexpr QLatin1StringView repeat1{"repeat.1"};
inline constexpr QLatin1StringView heart{"heart.fill"};
inline constexpr QLatin1StringView docOnDoc{"doc.on.doc"};
inline constexpr QLatin1StringView musicNote{"music.note"};
inline constexpr QLatin1StringView playCircle{"play.circle.fill"};

inline constexpr QLatin1StringView arrowDownCircle{"arrow.down.circle.fill"};

inline constexpr QLatin1StringView timer{"timer"};
inline constexpr QLatin1StringView pencil{"pencil"};
inline constexpr QLatin1StringView hourglass{"hourglass"};
inline constexpr QLatin1StringView stopwatch{"stopwatch"};
inline constexpr QLatin1StringView stopCircle{"stop.circle"};
inline constexpr QLatin1StringView xmarkCircle{"xmark.circle"};
inline constexpr QLatin1StringView capsule{"capsule"};

inline constexpr QLatin1StringView bubbles{"bubble.left.and.bubble.right.fill"};
inline constexpr QLatin1StringView numberSign{"number"};
inline constexpr QLatin1StringView envelope{"envelope.fill"};
inline constexpr QLatin1StringView bell{"bell.fill"};
inline constexpr QLatin1StringView bellSlash{"bell.slash.fill"};
inline constexpr QLatin1StringView calendar{"calendar"};

inline constexpr std::array all{
    pencil,     timer,           hourglass,    stopwatch,    stopCircle,     xmarkCircle,
    capsule,    arrowDownCircle, chevronLeft,  chevronRight, xmark,          checkmark,
    doc,        speakerSlash,    speakerWave1, speakerWave2, speakerWave3,   airpods,
    headphones, hifispeaker,     car,          tv,           sunMax,         battery0,
    battery25,  battery50,       battery75,    battery100,   battery100Bolt, trayAndArrowDown,
    island,     playFill,        pauseFill,    backwardFill, forwardFill,    shuffle,
    repeat,     heart,           docOnDoc,     musicNote,    playCircle,     magnifyingGlass,
    bubbles,    numberSign,      envelope,     bell,         bellSlash,      repeat1,
    calendar};

} // namespace quillmere::symbols
