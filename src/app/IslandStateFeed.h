#pragma once

#include <QObject>
#include <QVariantMap>

namespace quillmere {

class ClaudeCodeMonitor;
class ContentView;
class FloatingPanel;
class HUDManager;
class StatePublisher;
class Timers;
class WeatherService;
struct HUDContent;
struct SystemStats;

/// A HUD as other programs read it: keys are the record's field names, the type is its case name,
/// absent values are left out, images are never sent.
QVariantMap hudFields(const HUDContent &hud);

/// What the coding assistant does, in the same form.
QVariantMap claudeCodeFields(const ClaudeCodeMonitor &monitor);

/// A sample of the machine's load; keys are the record's field names.
QVariantMap systemStatsFields(const SystemStats &stats);

/// Feeds the island's published state to the StatePublisher as it changes.
class IslandStateFeed : public QObject
{
public:
    IslandStateFeed(StatePublisher &publisher, HUDManager &hudManager, ContentView &contentView,
                    FloatingPanel &panel, ClaudeCodeMonitor &claudeCode, WeatherService &weather,
                    Timers &timers);
};

} // namespace quillmere
