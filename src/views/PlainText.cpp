#include "views/PlainText.h"

namespace quillmere {

namespace {

bool reordersText(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069) ||
           code == 0x200E || code == 0x200F || code == 0x061C;
}

bool breaksLines(QChar character)
{
    return character.category() == QChar::Other_Control ||
           character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

} // namespace

QString plainText(const QString &text, qsizetype longest)
{
    QString result;
    result.reserve(std::min(text.size(), longest));
    for (const QChar character : text) {
        if (result.size() >= longest)
            break;
        if (breaksLines(character))
            result += u' ';
        else if (!reordersText(character))
            result += character;
    }
    if (!result.isEmpty() && result.back().isHighSurrogate())
        result.chop(1);
    return result.simplified();
}

} // namespace quillmere
