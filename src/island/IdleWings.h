#pragma once

#include "platform/RunLoop.h"

#include <QObject>
#include <QString>

namespace quillmere {

class HUDManager;
class RunningApplications;
class SettingsStore;

/// What the two ends of the collapsed pill show. Nothing: the pill has no wings.
struct WingContent {
    bool media = false;     ///< the playing track
    bool assistant = false; ///< what the coding assistant does
    bool timer = false;     ///< the time left of a timer
    bool longTimer = false; ///< with hours
    bool activity = false;  ///< the current entry of the activity queue; never beside the others

    /// Of one wing, in logical units. Two of a track, the assistant and a timer share them; the
    /// assistant alone has room for a word.
    double width() const;

    bool operator==(const WingContent &) const = default;
};

/// Decides what is worth a look while nothing is announced. Main thread only.
class IdleWings : public QObject
{
    Q_OBJECT

public:
    IdleWings(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
              RunningApplications &applications);

    const WingContent &content() const { return content_; }

    /// Whether the coding assistant has something to tell.
    void setAssistantActive(bool active);

    /// The text of the timer that runs; empty: none does.
    void setTimerText(const QString &text);

Q_SIGNALS:
    void contentChanged();

private:
    void trackChanged();
    bool showsMedia() const;
    void update();

    RunLoop &runLoop_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    RunningApplications &applications_;

    WingContent content_;
    bool assistantActive_ = false;
    qsizetype timerLetters_ = 0;
    bool pausedTooLong_ = false;
    Task pauseLimit_; ///< present while a track is paused, but not yet too long
    Task applicationsListener_;
};

} // namespace quillmere
