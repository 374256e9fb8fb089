#include "nowplaying/MediaLog.h"

#include <algorithm>

namespace quillmere {

Q_LOGGING_CATEGORY(mediaLog, "quillmere.media", QtInfoMsg)

QString loggable(QString text)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    std::ranges::replace_if(text, isControl, QChar(u' '));
    return text;
}

void ScriptLog::log(const ScriptAnswer &answer)
{
    if (!answer.hasRun)
        return;
    if (!answer.errors.isEmpty() && answer.errors != lastErrors_) {
        lastErrors_ = answer.errors;
        qCWarning(mediaLog, "[Quillmere] osascript stderr: %s",
                  qUtf8Printable(loggable(QString::fromUtf8(answer.errors))));
    }
    qCDebug(mediaLog, "[Quillmere] osascript: \"%s\"",
            qUtf8Printable(loggable(QString::fromUtf8(answer.output))));
}

} // namespace quillmere
