#pragma once

#include "island/HUDContent.h"
#include "platform/Time.h"

#include <optional>
#include <vector>

namespace quillmere {

/// Where the playhead of the current track is, as last agreed with the player.
struct PlayheadState {
    std::optional<HUDContent> progressTemplate{}; ///< the last record; absent: no track
    double progressBaseElapsed = 0;               ///< seconds, true at progressBaseTimestamp
    Instant progressBaseTimestamp{};
    double progressDuration = 0;    ///< seconds; 0 or less: unknown
    int consecutivePausedPolls = 0; ///< while advancing
    double lastPollElapsed = 0;     ///< seconds
    bool advancing = false;         ///< the interpolation timer runs
};

/// What the player said. Seconds; what is not finite counts as 0.
struct PlayheadPoll {
    HUDContent record;
    double elapsed = 0;
    double duration = 0;
};

/// What one poll looked like and what followed from it.
struct PlayheadReport {
    enum class Step {
        NewTrack,
        SeekDetected,
        PollChangedButClose,
        ConfirmedPause,
        Resume,
        SeekWhilePaused
    };
    struct Event {
        Step step;
        double position; ///< the new base, seconds
        double drift;    ///< seconds; of the two drift steps
    };

    QString title;
    bool sameTrack = false;
    bool timerRunning = false;
    bool pollPlaying = false;
    double pollElapsed = 0;
    double lastPoll = 0;
    bool pollChanged = false;
    double interpolated = 0;
    double duration = 0;
    int pausedPolls = 0;
    std::vector<Event> events{}; ///< in the order in which they were decided
};

struct PlayheadDecision {
    PlayheadState state;
    PlayheadReport report;
};

/// One look at the playhead: the record to publish, and how it came about.
struct PlayheadFrame {
    bool timerRunning = false;
    double base = 0;
    double delta = 0;
    double elapsed = 0; ///< not yet held at the duration
    double duration = 0;
    bool reachedEnd = false;
    HUDContent record;
};

/// The position at `now`: the base, or while advancing base plus time passed, held at the duration.
double interpolatedElapsed(const PlayheadState &state, Instant now);

/// Corrects the playhead by a poll: small disagreements are ignored, so that the bar does not
/// jitter.
PlayheadDecision trackPlayhead(PlayheadState state, PlayheadPoll poll, Instant now);

/// Stops an advancing playhead where it is.
PlayheadState frozenPlayhead(PlayheadState state, Instant now);

/// The record to publish at `now`; absent without a track.
std::optional<PlayheadFrame> playheadFrame(const PlayheadState &state, Instant now);

/// Whole seconds as "1:05", from one hour on as "1:01:00".
QString playheadTime(double elapsed);

/// The lines of the debug log.
QString logLine(const PlayheadReport &report);
QString logLine(const PlayheadReport::Event &event);
QString logLine(const PlayheadFrame &frame);

} // namespace quillmere
