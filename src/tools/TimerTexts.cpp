#include "tools/TimerTexts.h"

#include <QRegularExpression>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr qint64 secondsPerHour = 3600;
constexpr qint64 longestLength = 24 * secondsPerHour;

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
}

/// At most six digits a part: no sum of them overflows.
QRegularExpression lengthPattern(const QString &pattern)
{
    QString filled = pattern;
    filled.replace(u'#', QStringLiteral("([0-9]{1,6})"));
    return QRegularExpression(QRegularExpression::anchoredPattern(filled),
                              QRegularExpression::CaseInsensitiveOption);
}

struct LengthForm {
    QRegularExpression pattern;
    std::array<qint64, 3> units; ///< seconds of each of its numbers
};

const std::array<LengthForm, 4> &lengthForms()
{
    static const std::array forms{
        LengthForm{lengthPattern(QStringLiteral("#")), {secondsPerMinute}},
        LengthForm{lengthPattern(QStringLiteral("#:([0-5]?[0-9])")), {secondsPerMinute, 1}},
        LengthForm{lengthPattern(QStringLiteral("#:([0-5]?[0-9]):([0-5]?[0-9])")),
                   {secondsPerHour, secondsPerMinute, 1}},
        LengthForm{lengthPattern(QStringLiteral("(?:# ?h)? ?(?:# ?m(?:in)?)? ?(?:# ?s(?:ec)?)?")),
                   {secondsPerHour, secondsPerMinute, 1}},
    };
    return forms;
}

} // namespace

qint64 wholeSeconds(double value)
{
    constexpr double most = 1e12; // far from where an integer would end
    return value > 0 ? static_cast<qint64>(std::min(value, most)) : 0;
}

QString pomodoroText(double seconds)
{
    const qint64 whole = wholeSeconds(seconds);
    return twoDigits(whole / secondsPerMinute) + u':' + twoDigits(whole % secondsPerMinute);
}

QString countdownText(double seconds)
{
    const qint64 whole = wholeSeconds(seconds);
    const QString ending = u':' + twoDigits(whole % secondsPerMinute);
    const qint64 minutes = whole / secondsPerMinute;
    if (whole < secondsPerHour)
        return QString::number(minutes) + ending;
    return QString::number(whole / secondsPerHour) + u':' + twoDigits(minutes % 60) + ending;
}

double pomodoroProgress(const PomodoroManager &pomodoro)
{
    const double whole = pomodoro.phaseDuration();
    return whole > 0 ? std::clamp(1 - pomodoro.timeRemaining() / whole, 0.0, 1.0) : 0;
}

SessionDots sessionDots(PomodoroState state, int sessionsCompleted)
{
    SessionDots dots{};
    const bool roundIsOver = state == PomodoroState::LongBreak;
    const int done = roundIsOver ? PomodoroManager::sessionsBeforeLongBreak
                                 : sessionsCompleted % PomodoroManager::sessionsBeforeLongBreak;
    std::fill_n(dots.begin(), done, SessionDot::Done);
    if (state == PomodoroState::Working)
        dots.at(static_cast<std::size_t>(done)) = SessionDot::Running;
    return dots;
}

std::optional<int> countdownLength(const QString &typed)
{
    const QString text = typed.simplified();
    for (const auto &[pattern, units] : lengthForms()) {
        const auto match = pattern.match(text);
        if (text.isEmpty() || !match.hasMatch())
            continue;
        qint64 length = 0;
        for (int part = 0; part < static_cast<int>(units.size()); ++part)
            length +=
                match.captured(part + 1).toLongLong() * units.at(static_cast<std::size_t>(part));
        if (length < 1 || length > longestLength)
            return std::nullopt;
        return static_cast<int>(length);
    }
    return std::nullopt;
}

} // namespace quillmere
