#include "views/WindowTheme.h"

#include "platform/Appearance.h"

#include <QGuiApplication>
#include <QPalette>

namespace quillmere {

bool isWindowDark(const Appearance &appearance)
{
    if (const auto chosen = appearance.prefersDark())
        return *chosen;
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

} // namespace quillmere
