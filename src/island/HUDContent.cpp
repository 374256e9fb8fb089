#include "island/HUDContent.h"

#include "platform/Symbols.h"

#include <array>

namespace quillmere {

QLatin1StringView hudTypeName(HUDContent::HUDType type)
{
    static constexpr std::array names{
        QLatin1StringView("volume"),       QLatin1StringView("brightness"),
        QLatin1StringView("bluetooth"),    QLatin1StringView("email"),
        QLatin1StringView("notification"), QLatin1StringView("battery"),
        QLatin1StringView("focus"),        QLatin1StringView("calendar"),
        QLatin1StringView("weather"),      QLatin1StringView("fileTray")};
    static_assert(names.size() == static_cast<std::size_t>(HUDContent::HUDType::FileTray) + 1);
    return names.at(static_cast<std::size_t>(type));
}

QLatin1StringView volumeSymbol(double percent)
{
    if (percent == 0)
        return symbols::speakerSlash;
    if (percent < 33)
        return symbols::speakerWave1;
    if (percent < 66)
        return symbols::speakerWave2;
    return symbols::speakerWave3;
}

} // namespace quillmere
