#pragma once

#include "platform/ScriptRunner.h"

#include <QLoggingCategory>

namespace quillmere {

/// What happens every second or with every track is a debug message, which is off unless asked for
/// (QT_LOGGING_RULES="quillmere.media=true"): a day of music must not fill the journal.
Q_DECLARE_LOGGING_CATEGORY(mediaLog)

/// Logs what the programs that were asked have printed.
class ScriptLog
{
public:
    /// Says nothing if none ran. A complaint that is repeated, as by a program that is asked every
    /// second, is a warning the first time only.
    void log(const ScriptAnswer &answer);

    /// The same for open pages: what they are is nobody else's business, so only how much it was.
    void logSize(const ScriptAnswer &answer);

private:
    void logErrors(const ScriptAnswer &answer);

    QByteArray lastErrors_;
};

} // namespace quillmere
