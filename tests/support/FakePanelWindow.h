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

    void create(const PanelStyle &newStyle) override { note("create", style, newStyle); }
    void setLevelAboveMainMenu(int levels) override { note("level", level, levels); }
    void setTraits(const PanelTraits &newTraits) override { note("traits", traits, newTraits); }
    void setCollectionBehavior(CollectionBehaviors flags) override
    {
        note("behavior", behavior, flags);
    }
    void setSharingType(SharingType type) override { note("sharing", sharing, type); }
    void attachContent() override { calls.emplace_back("content"); }
    void registerForFileDrops() override { calls.emplace_back("drops"); }
    void setFrame(const QRectF &newFrame) override { note("frame", frame, newFrame); }
    void setVisible(bool show) override { note(show ? "show" : "hide", visible, show); }
    void setKey(bool isKey) override { note(isKey ? "key" : "no key", key, isKey); }
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
    bool key = false;
    std::vector<std::string> calls;

private:
    template <class T>
    void note(const char *call, T &field, const T &value)
    {
        field = value;
        calls.emplace_back(call);
    }

    Listeners<> fullscreenListeners_;
};

} // namespace quillmere
