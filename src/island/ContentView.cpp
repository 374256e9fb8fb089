#include "island/ContentView.h"

#include "island/FloatingPanel.h"
#include "island/HUDManager.h"

#include <array>

namespace quillmere {

QString presentationName(Presentation presentation)
{
    static const std::array names{QStringLiteral("collapsed"), QStringLiteral("hud"),
                                  QStringLiteral("expanded")};
    return names.at(static_cast<std::size_t>(presentation));
}

QSizeF hudSize(HUDContent::HUDType type)
{
    using enum HUDContent::HUDType;
    switch (type) {
    case Volume:
    case Brightness:
    case Battery:
        return {300, 44};
    case Bluetooth:
        return {300, 60};
    default:
        return {380, 76};
    }
}

ContentView::ContentView(HUDManager &hudManager, FloatingPanel &panel)
    : hudManager_(hudManager)
    , panel_(panel)
{
    connect(&hudManager_, &HUDManager::currentHUDChanged, this, &ContentView::update);
    connect(&panel_, &FloatingPanel::collapsedSizeChanged, this, &ContentView::update);
    update();
}

void ContentView::update()
{
    const auto &hud = hudManager_.currentHUD();
    const auto presentation = hud ? Presentation::HUD : Presentation::Collapsed;
    const QSizeF size =
        hud ? hudSize(hud->type) + QSizeF(0, panel_.housingHeight()) : panel_.collapsedSize();

    panel_.setIdle(presentation == Presentation::Collapsed);
    panel_.setSize(size);
    if (size != islandSize_) {
        islandSize_ = size;
        Q_EMIT islandSizeChanged();
    }
    if (presentation != presentation_) {
        presentation_ = presentation;
        Q_EMIT presentationChanged();
    }
}

} // namespace quillmere
