#pragma once

#include "platform/Listeners.h"
#include "platform/PanelWindow.h"

#include <string>
#include <vector>

namespace quillmere {

/// A panel window that remembers what it was told, and the order of it.
class FakePanelWindow : public PanelWindow
{
public:
    Capabilities capabilities() const override { return {}; }

    void create(const PanelStyle &newStyle) override
    {
        style = newStyle;
        calls.emplace_back("create");
    }
    void setLevelAboveMainMenu(int levels) override
    {
        level = levels;
        calls.emplace_back("level");
    }
    void setTraits(const PanelTraits &newTraits) override
    {
        traits = newTraits;
        calls.emplace_back("traits");
    }
    void setCollectionBehavior(CollectionBehaviors newBehavior) override
    {
        behavior = newBehavior;
        calls.emplace_back("behavior");
    }
    void setSharingType(SharingType type) override
    {
        sharing = type;
        calls.emplace_back("sharing");
    }
    void attachContent() override { calls.emplace_back("content"); }
    void registerForFileDrops() override { calls.emplace_back("drops"); }
    void setFrame(const QRectF &newFrame) override
    {
        frame = newFrame;
        calls.emplace_back("frame");
    }
    void setVisible(bool show) override
    {
        visible = show;
        calls.emplace_back(show ? "show" : "hide");
    }
    void orderFront() override { calls.emplace_back("front"); }
    bool isCoveredByFullscreen() const override { return covered; }
    Task onFullscreenChanged(std::function<void()> listener) override
    {
        return fullscreenListeners_.add(std::move(listener));
    }

    void setCovered(bool isCovered)
    {
        covered = isCovered;
        fullscreenListeners_.notify();
    }
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    PanelStyle style;
    PanelTraits traits;
    CollectionBehaviors behavior;
    SharingType sharing = SharingType::ReadOnly;
    int level = 0;
    QRectF frame;
    bool visible = false;
    bool covered = false;
    std::vector<std::string> calls;

private:
    Listeners<> fullscreenListeners_;
};

} // namespace quillmere
