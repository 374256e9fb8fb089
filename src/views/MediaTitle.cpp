#include "views/MediaTitle.h"

#include "views/PlainText.h"

#include <QLatin1StringView>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr qsizetype longestTitle = 200;

/// One of these makes a phrase an extra, if every other word of it is known as well.
constexpr std::array telling{
    QLatin1StringView("official"),    QLatin1StringView("officiel"),
    QLatin1StringView("oficial"),     QLatin1StringView("ufficiale"),
    QLatin1StringView("offizielles"), QLatin1StringView("video"),
    QLatin1StringView("videoclip"),   QLatin1StringView("audio"),
    QLatin1StringView("lyric"),       QLatin1StringView("lyrics"),
    QLatin1StringView("visualizer"),  QLatin1StringView("visualiser"),
    QLatin1StringView("remaster"),    QLatin1StringView("remastered"),
    QLatin1StringView("explicit"),    QLatin1StringView("hd"),
    QLatin1StringView("hq"),          QLatin1StringView("uhd"),
    QLatin1StringView("4k"),          QLatin1StringView("8k"),
    QLatin1StringView("720p"),        QLatin1StringView("1080p"),
    QLatin1StringView("2160p"),       QLatin1StringView("60fps"),
    QLatin1StringView("mv"),          QLatin1StringView("m/v"),
};
constexpr std::array accompanying{
    QLatin1StringView("music"),   QLatin1StringView("clip"),        QLatin1StringView("version"),
    QLatin1StringView("edition"), QLatin1StringView("digital"),     QLatin1StringView("digitally"),
    QLatin1StringView("full"),    QLatin1StringView("with"),        QLatin1StringView("in"),
    QLatin1StringView("and"),     QLatin1StringView("&"),           QLatin1StringView("new"),
    QLatin1StringView("stereo"),  QLatin1StringView("mono"),        QLatin1StringView("original"),
    QLatin1StringView("album"),   QLatin1StringView("anniversary"),
};

bool isYear(QStringView word)
{
    return word.size() == 4 && (word.startsWith(u"19") || word.startsWith(u"20")) &&
           std::ranges::all_of(word, [](QChar c) { return c.isDigit(); });
}

bool isExtra(const QString &phrase)
{
    static const QRegularExpression guests(QStringLiteral(R"(^(feat\.?|ft\.?|featuring)\s)"),
                                           QRegularExpression::CaseInsensitiveOption);
    if (guests.match(phrase).hasMatch())
        return true;
    bool tells = false;
    for (const QString &word : phrase.toLower().split(u' ', Qt::SkipEmptyParts)) {
        if (std::ranges::find(telling, word) != telling.end())
            tells = true;
        else if (std::ranges::find(accompanying, word) == accompanying.end() && !isYear(word))
            return false;
    }
    return tells;
}

/// Takes off the extras in brackets, wherever they stand.
QString withoutBracketed(QString title)
{
    static const QRegularExpression bracketed(
        QStringLiteral(R"(\s*[(\[\{【]\s*([^()\[\]{}【】]*?)\s*[)\]\}】])"));
    for (qsizetype from = 0;;) {
        const auto match = bracketed.match(title, from);
        if (!match.hasMatch())
            return title;
        if (isExtra(match.captured(1)))
            title.remove(match.capturedStart(), match.capturedLength());
        else
            from = match.capturedEnd();
    }
}

/// Takes off the extras behind a dash or a bar, from the end.
QString withoutTrailing(QString title)
{
    static const QRegularExpression last(QStringLiteral(R"(^(.*\S)\s+[-–—|•·]\s+(\S.*)$)"));
    for (;;) {
        const auto match = last.match(title);
        if (!match.hasMatch() || !isExtra(match.captured(2)))
            return title;
        title = match.captured(1);
    }
}

QString withoutGuests(QString title)
{
    static const QRegularExpression guests(
        QStringLiteral(R"(\s+(?:feat\.|ft\.|featuring)\s+[^()\[\]|–—-]+)"),
        QRegularExpression::CaseInsensitiveOption);
    const auto match = guests.match(title);
    if (!match.hasMatch())
        return title;
    const QString rest = title.mid(match.capturedEnd());
    title.truncate(match.capturedStart());
    return rest.isEmpty() ? title : title + u' ' + rest;
}

} // namespace

QString mediaTitle(const QString &title, bool hideExtras)
{
    QString plain = plainText(title, longestTitle);
    if (!hideExtras)
        return plain;
    const QString bare = withoutTrailing(withoutGuests(withoutBracketed(plain))).simplified();
    return bare.isEmpty() ? plain : bare;
}

} // namespace quillmere
