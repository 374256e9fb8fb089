#pragma once

#include <QObject>
#include <QVariantMap>

namespace quillmere {

class ClaudeCodeMonitor;
class ContentView;
class FloatingPanel;
class HUDManager;
class StatePublisher;
struct HUDContent;

/// A HUD as other programs read it: keys are the record's field names, the type is its case name,
/// absent values are left out, images are never sent.
QVariantMap hudFields(const HUDContent &hud);

/// What the coding assistant does, in the same form.
QVariantMap claudeCodeFields(const ClaudeCodeMonitor &monitor);

/// Feeds the island's published state to the StatePublisher as it changes.
class IslandStateFeed : public QObject
{
public:
    IslandStateFeed(StatePublisher &publisher, HUDManager &hudManager, ContentView &contentView,
                    FloatingPanel &panel, ClaudeCodeMonitor &claudeCode);
};

} // namespace quillmere
