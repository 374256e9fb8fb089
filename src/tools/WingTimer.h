#pragma once

#include <QObject>
#include <QString>

#include <optional>

namespace quillmere {

class CountdownTimerManager;
class PomodoroManager;

/// The timer that the collapsed island tells of.
struct WingTimerContent {
    QString symbol; ///< a name of platform/Symbols.h
    QString text;   ///< the time left, or counted by the stopwatch

    bool operator==(const WingTimerContent &) const = default;
};

/// The one that ends next of those that run; the stopwatch only when nothing else does. Absent when
/// nothing runs.
std::optional<WingTimerContent> wingTimer(const PomodoroManager &pomodoro,
                                          const CountdownTimerManager &countdown);

/// Follows both timers and tells when there is another text to show, once a second at most, and
/// whether there is one to go back to.
class WingTimer : public QObject
{
    Q_OBJECT

public:
    WingTimer(const PomodoroManager &pomodoro, const CountdownTimerManager &countdown);

    const std::optional<WingTimerContent> &content() const { return content_; }

    /// One runs, or was paused before its end.
    bool isUnderWay() const { return isUnderWay_; }

Q_SIGNALS:
    void contentChanged();
    void underWayChanged();

private:
    void update();

    const PomodoroManager &pomodoro_;
    const CountdownTimerManager &countdown_;
    std::optional<WingTimerContent> content_;
    bool isUnderWay_ = false;
};

} // namespace quillmere
