#include "island/PlayheadTracker.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quillmere {

namespace {

// seconds
constexpr double pollChange = 0.5;
constexpr double seekWhileAdvancing = 2.0;
constexpr double seekWhileFrozen = 1.0;
constexpr double shortestCap = 1.0;

constexpr int pollsToConfirmPause = 2;

using Step = PlayheadReport::Step;

double finite(double value)
{
    return std::isfinite(value) ? value : 0;
}

/// "%.2f" in every locale.
QString fixed(double value)
{
    std::array<char, 320> text; // the largest double has 309 digits before the point
    const auto end =
        std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, 2).ptr;
    return QString::fromLatin1(text.data(), end - text.begin());
}

QLatin1StringView truth(bool value)
{
    return value ? QLatin1StringView("true") : QLatin1StringView("false");
}

void seed(PlayheadState &state, double elapsed, Instant now)
{
    state.progressBaseElapsed = elapsed;
    state.progressBaseTimestamp = now;
}

void startNewTrack(PlayheadState &state, PlayheadReport &report, Instant now)
{
    report.events.push_back({Step::NewTrack, report.pollElapsed, 0});
    state.consecutivePausedPolls = 0;
    seed(state, report.pollElapsed, now);
    state.advancing = report.pollPlaying && report.duration > 0;
}

void correctWhileAdvancing(PlayheadState &state, PlayheadReport &report, Instant now)
{
    if (report.pollChanged) {
        const double drift = std::abs(report.pollElapsed - report.interpolated);
        const bool seeked = drift > seekWhileAdvancing;
        report.events.push_back(
            {seeked ? Step::SeekDetected : Step::PollChangedButClose, report.pollElapsed, drift});
        if (seeked)
            seed(state, report.pollElapsed, now);
    }
    if (report.pollPlaying) {
        state.consecutivePausedPolls = 0;
        return;
    }
    ++state.consecutivePausedPolls;
    if (state.consecutivePausedPolls < pollsToConfirmPause)
        return;
    report.events.push_back({Step::ConfirmedPause, report.interpolated, 0});
    state.advancing = false;
    seed(state, report.interpolated, now);
}

void correctWhileFrozen(PlayheadState &state, PlayheadReport &report, Instant now)
{
    if (report.pollPlaying) {
        report.events.push_back({Step::Resume, report.pollElapsed, 0});
        state.consecutivePausedPolls = 0;
        seed(state, report.pollElapsed, now);
        // A bar without a length has nothing to advance along.
        state.advancing = report.duration > 0;
        return;
    }
    const double distance = std::abs(report.pollElapsed - state.progressBaseElapsed);
    if (!report.pollChanged || distance <= seekWhileFrozen)
        return;
    report.events.push_back({Step::SeekWhilePaused, report.pollElapsed, 0});
    seed(state, report.pollElapsed, now);
}

} // namespace

double interpolatedElapsed(const PlayheadState &state, Instant now)
{
    if (!state.advancing)
        return state.progressBaseElapsed;
    const double elapsed = state.progressBaseElapsed + toSeconds(now - state.progressBaseTimestamp);
    return std::min(elapsed, std::max(state.progressDuration, shortestCap));
}

PlayheadDecision trackPlayhead(PlayheadState state, PlayheadPoll poll, Instant now)
{
    PlayheadReport report;
    report.title = poll.record.title;
    report.sameTrack = state.progressTemplate && state.progressTemplate->title == poll.record.title;
    report.timerRunning = state.advancing;
    report.pollPlaying = poll.record.isPlaying.value_or(true);
    report.pollElapsed = finite(poll.elapsed);
    report.lastPoll = state.lastPollElapsed;
    report.pollChanged = std::abs(report.pollElapsed - report.lastPoll) > pollChange;
    report.duration = finite(poll.duration);
    report.pausedPolls = state.consecutivePausedPolls;

    state.lastPollElapsed = report.pollElapsed;
    state.progressTemplate = std::move(poll.record);
    state.progressDuration = report.duration;
    report.interpolated = interpolatedElapsed(state, now);

    if (!report.sameTrack)
        startNewTrack(state, report, now);
    else if (report.timerRunning)
        correctWhileAdvancing(state, report, now);
    else
        correctWhileFrozen(state, report, now);
    return {std::move(state), std::move(report)};
}

PlayheadState frozenPlayhead(PlayheadState state, Instant now)
{
    if (!state.advancing)
        return state;
    seed(state, interpolatedElapsed(state, now), now);
    state.advancing = false;
    return state;
}

std::optional<PlayheadFrame> playheadFrame(const PlayheadState &state, Instant now)
{
    if (!state.progressTemplate)
        return std::nullopt;
    PlayheadFrame frame;
    frame.timerRunning = state.advancing;
    frame.base = state.progressBaseElapsed;
    frame.delta = state.advancing ? toSeconds(now - state.progressBaseTimestamp) : 0;
    frame.elapsed = frame.base + frame.delta;
    frame.duration = state.progressDuration;
    frame.reachedEnd = frame.duration > 0 && frame.elapsed >= frame.duration;

    const double elapsed = frame.reachedEnd ? frame.duration : frame.elapsed;
    frame.record = *state.progressTemplate;
    frame.record.mediaProgress =
        frame.duration > 0 ? std::clamp(elapsed / frame.duration, 0.0, 1.0) : 0.0;
    frame.record.mediaElapsed = playheadTime(elapsed);
    frame.record.mediaRemaining = u'-' + playheadTime(std::max(frame.duration - elapsed, 0.0));
    return frame;
}

QString playheadTime(double elapsed)
{
    constexpr double longest = 1e15; // far beyond any track, within 64 bits
    const auto whole = static_cast<qint64>(elapsed > 0 ? std::min(elapsed, longest) : 0.0);
    const auto hours = whole / 3600;
    const auto minutes = whole / 60 % 60;
    const auto padded = [](qint64 value) {
        return QStringLiteral("%1").arg(value, 2, 10, QChar(u'0'));
    };
    if (hours == 0)
        return QString::number(minutes) + u':' + padded(whole % 60);
    return QString::number(hours) + u':' + padded(minutes) + u':' + padded(whole % 60);
}

QString logLine(const PlayheadReport &report)
{
    return u"POLL track=\"" + report.title + u"\" sameTrack=" + truth(report.sameTrack) +
           u" timerRunning=" + truth(report.timerRunning) + u" pollPlaying=" +
           truth(report.pollPlaying) + u" pollElapsed=" + fixed(report.pollElapsed) +
           u" lastPoll=" + fixed(report.lastPoll) + u" pollChanged=" + truth(report.pollChanged) +
           u" interp=" + fixed(report.interpolated) + u" dur=" + fixed(report.duration) +
           u" pausedPolls=" + QString::number(report.pausedPolls);
}

QString logLine(const PlayheadReport::Event &event)
{
    switch (event.step) {
    case Step::NewTrack:
        return u"NEW_TRACK seeding base=" + fixed(event.position);
    case Step::SeekDetected:
        return u"SEEK_DETECTED drift=" + fixed(event.drift) + u" reseeding base=" +
               fixed(event.position);
    case Step::PollChangedButClose:
        return u"POLL_CHANGED_BUT_CLOSE drift=" + fixed(event.drift) + u" ignoring";
    case Step::ConfirmedPause:
        return u"CONFIRMED_PAUSE freezing at " + fixed(event.position);
    case Step::Resume:
        return u"RESUME seeding base=" + fixed(event.position);
    case Step::SeekWhilePaused:
        return u"SEEK_WHILE_PAUSED reseeding base=" + fixed(event.position);
    }
    Q_UNREACHABLE();
}

QString logLine(const PlayheadFrame &frame)
{
    return u"EMIT timerRunning=" + truth(frame.timerRunning) + u" base=" + fixed(frame.base) +
           u" delta=" + fixed(frame.delta) + u" elapsed=" + fixed(frame.elapsed) + u" dur=" +
           fixed(frame.duration);
}

} // namespace quillmere
