#include "tools/TimerMessages.h"

#include "platform/Symbols.h"
#include "tools/TimerTexts.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(TimerMessages)
};

HUDContent timerHUD(const TimerMessage &message, QLatin1StringView symbol)
{
    return {.title = message.title,
            .subtitle = message.body,
            .icon = QString(symbol),
            .type = HUDContent::HUDType::Notification};
}

} // namespace

std::optional<TimerMessage> phaseMessage(PomodoroState ended, int sessionsCompleted)
{
    if (ended == PomodoroState::Working)
        return TimerMessage{Words::tr("Focus session complete"),
                            Words::tr("Time for a break! Session %1 done.").arg(sessionsCompleted)};
    if (isBreak(ended))
        return TimerMessage{Words::tr("Break's over"), Words::tr("Ready to focus again?")};
    return std::nullopt;
}

TimerMessage countdownMessage(double targetSeconds)
{
    return {Words::tr("Timer Complete"),
            Words::tr("Your %1 minute timer has finished.").arg(wholeSeconds(targetSeconds) / 60)};
}

std::optional<HUDContent> phaseHUD(PomodoroState ended, int sessionsCompleted)
{
    const auto message = phaseMessage(ended, sessionsCompleted);
    return message ? std::optional(timerHUD(*message, symbols::timer)) : std::nullopt;
}

HUDContent countdownHUD(double targetSeconds)
{
    return timerHUD(countdownMessage(targetSeconds), symbols::hourglass);
}

} // namespace quillmere
