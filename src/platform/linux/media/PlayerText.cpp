#include "platform/linux/media/PlayerText.h"

#include <QStringView>

#include <algorithm>

namespace quillmere {

namespace {

/// How much of a text is looked at: what is dropped and simplified counts too.
constexpr qsizetype longestLook = 16 * longestPlayerText;

bool turnsDirection(char16_t c)
{
    return c == 0x200E || c == 0x200F || c == 0x061C || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

bool isShowable(QChar c)
{
    const char16_t code = c.unicode();
    const bool isNoCharacter = (code & 0xFFFE) == 0xFFFE || (code >= 0xFDD0 && code <= 0xFDEF);
    return c.category() != QChar::Other_Control && !turnsDirection(code) && !isNoCharacter &&
           code != QChar::ByteOrderMark;
}

} // namespace

QString cleanText(const QString &text)
{
    QString shown;
    for (const QChar c : QStringView(text).first(std::min(text.size(), longestLook))) {
        if (c.isSpace())
            shown.append(u' ');
        else if (isShowable(c))
            shown.append(c);
    }
    shown = shown.simplified();
    if (shown.size() <= longestPlayerText)
        return shown;
    shown.truncate(longestPlayerText - 1);
    if (shown.back().isHighSurrogate())
        shown.chop(1);
    return shown + QChar(0x2026);
}

} // namespace quillmere
