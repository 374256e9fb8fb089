#include "views/DesktopAccent.h"

#include "platform/Appearance.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace quillmere {

QColor desktopAccent(const Appearance &appearance)
{
    constexpr float leastLightness = 0.6F; // below, it is too dark on black
    const auto chosen = appearance.accentColor();
    const QColor accent = chosen ? QColor::fromRgbF(static_cast<float>(chosen->red),
                                                    static_cast<float>(chosen->green),
                                                    static_cast<float>(chosen->blue))
                                 : QGuiApplication::palette().color(QPalette::Highlight);
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    accent.getHslF(&hue, &saturation, &lightness);
    return QColor::fromHslF(std::max(0.0F, hue), saturation, std::max(leastLightness, lightness));
}

} // namespace quillmere
