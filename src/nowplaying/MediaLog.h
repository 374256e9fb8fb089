#pragma once

#include "platform/ScriptRunner.h"

#include <QLoggingCategory>
#include <QString>

namespace quillmere {

/// What happens every second or with every track is a debug message, which is off unless asked for
/// (QT_LOGGING_RULES="quillmere.media=true"): a day of music must not fill the journal.
Q_DECLARE_LOGGING_CATEGORY(mediaLog)

/// Texts from players and pages as they may go to the console: one line, no control characters.
QString loggable(QString text);

/// Logs what the programs that were asked have printed.
class ScriptLog
{
public:
    /// Says nothing if none ran. A complaint that is repeated, as by a program that is asked every
    /// second, is a warning the first time only.
    void log(const ScriptAnswer &answer);

private:
    QByteArray lastErrors_;
};

} // namespace quillmere
