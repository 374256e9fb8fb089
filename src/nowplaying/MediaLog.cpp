#include "nowplaying/MediaLog.h"

#include "platform/Loggable.h"

namespace quillmere {

Q_LOGGING_CATEGORY(mediaLog, "quillmere.media", QtInfoMsg)

void ScriptLog::log(const ScriptAnswer &answer)
{
    if (!answer.hasRun)
        return;
    logErrors(answer);
    qCDebug(mediaLog, "[Quillmere] osascript: \"%s\"",
            qUtf8Printable(loggable(QString::fromUtf8(answer.output))));
}

void ScriptLog::logSize(const ScriptAnswer &answer)
{
    if (!answer.hasRun)
        return;
    logErrors(answer);
    qCDebug(mediaLog, "[Quillmere] osascript: %lld bytes",
            static_cast<long long>(answer.output.size()));
}

void ScriptLog::logErrors(const ScriptAnswer &answer)
{
    if (!answer.errors.isEmpty() && answer.errors != lastErrors_) {
        lastErrors_ = answer.errors;
        qCWarning(mediaLog, "[Quillmere] osascript stderr: %s",
                  qUtf8Printable(loggable(QString::fromUtf8(answer.errors))));
    }
}

} // namespace quillmere
