#include "platform/Loggable.h"

#include <algorithm>

namespace quillmere {

QString loggable(QString text)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    };
    std::ranges::replace_if(text, isControl, QChar(u' '));
    return text;
}

} // namespace quillmere
