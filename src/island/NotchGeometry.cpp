#include "island/NotchGeometry.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

constexpr double minimumNotchWidth = 118.0;
constexpr double minimumNotchHeight = 28.0;

bool hasCameraHousing(const ScreenInfo &screen)
{
    return screen.topInset > 0 && screen.auxiliaryTopLeft && screen.auxiliaryTopRight;
}

double chosenLength(double chosen, double smallest, double largest, double fallback)
{
    return std::isfinite(chosen) && chosen > 0 ? std::clamp(chosen, smallest, largest) : fallback;
}

} // namespace

bool frameContains(const QRectF &frame, QPointF point)
{
    return point.x() >= frame.left() && point.x() < frame.right() && point.y() >= frame.top() &&
           point.y() < frame.bottom();
}

std::optional<qsizetype> targetScreen(DisplaySelection selection, const QList<ScreenInfo> &screens,
                                      QPointF pointer)
{
    if (screens.isEmpty())
        return std::nullopt;
    const auto chosen =
        std::find_if(screens.cbegin(), screens.cend(), [&](const ScreenInfo &screen) {
            switch (selection) {
            case DisplaySelection::BuiltIn:
                return screen.isBuiltIn;
            case DisplaySelection::Main:
                return screen.isMain;
            case DisplaySelection::Active:
                return frameContains(screen.frame, pointer);
            }
            return false;
        });
    return chosen == screens.cend() ? 0 : std::distance(screens.cbegin(), chosen);
}

std::optional<QSizeF> notchSize(const ScreenInfo &screen)
{
    if (!hasCameraHousing(screen))
        return std::nullopt;
    const double gap = screen.auxiliaryTopRight->left() - screen.auxiliaryTopLeft->right();
    return QSizeF(std::max(gap, minimumNotchWidth), std::max(screen.topInset, minimumNotchHeight));
}

QPointF panelOrigin(const ScreenInfo &screen, QSizeF panelSize)
{
    const double centre =
        hasCameraHousing(screen)
            ? (screen.auxiliaryTopLeft->right() + screen.auxiliaryTopRight->left()) * 0.5
            : screen.frame.center().x();
    return {centre - panelSize.width() * 0.5, screen.frame.top()};
}

QSizeF collapsedSize(std::optional<QSizeF> notch, double notchWidth, double notchHeight)
{
    if (notch)
        return *notch;
    return {chosenLength(notchWidth, 60.0, 600.0, fallbackPillSize.width()),
            chosenLength(notchHeight, 20.0, 100.0, fallbackPillSize.height())};
}

} // namespace quillmere
