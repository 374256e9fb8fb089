#include "tools/ShortcutSearch.h"

#include "tools/ShortcutIntent.h"

#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

constexpr qsizetype longestQuery = 200;
constexpr double exactly = 1.0;
constexpr double fromItsBeginning = 0.8;
constexpr double byItsWords = 0.6;

/// Words of up to this length tell nothing by themselves, in a phrase or in a query.
constexpr qsizetype longestFiller = 3;
constexpr qsizetype shortestHint = 3;

QStringList wordsOf(const QString &text)
{
    static const QRegularExpression gap(QStringLiteral("[^\\w]+"),
                                        QRegularExpression::UseUnicodePropertiesOption);
    return text.toCaseFolded().split(gap, Qt::SkipEmptyParts);
}

bool hasAll(const QStringList &phrase, const QStringList &query)
{
    return std::ranges::all_of(query, [&phrase](const QString &typed) {
        return std::ranges::any_of(
            phrase, [&typed](const QString &word) { return word.startsWith(typed); });
    });
}

/// Whether a word of the query stands for more than a filler.
bool tellsSomething(const QStringList &phrase, const QStringList &query)
{
    return std::ranges::any_of(query, [&phrase](const QString &typed) {
        return typed.size() >= shortestHint &&
               std::ranges::any_of(phrase, [&typed](const QString &word) {
                   return word.size() > longestFiller && word.startsWith(typed);
               });
    });
}

double relevance(const QString &text, const QStringList &query)
{
    const QStringList phrase = wordsOf(text);
    if (phrase == query)
        return exactly;
    if (!hasAll(phrase, query) || !tellsSomething(phrase, query))
        return 0;
    const QString gap(u' ');
    return phrase.join(gap).startsWith(query.join(gap)) ? fromItsBeginning : byItsWords;
}

QString matchId(const ShortcutIntent &intent, std::optional<int> minutes)
{
    return minutes ? intent.action + u':' + QString::number(*minutes) : QString(intent.action);
}

ShortcutMatch describe(const ShortcutMatchId &match, int presetMinutes)
{
    const ShortcutIntent &intent = match.intent;
    QString title = intentShortTitle(intent);
    QString subtitle = intentPhrases(intent).value(0);
    if (match.minutes)
        subtitle = std::exchange(title, parameterSummary(*match.minutes));
    else if (intent.takesMinutes)
        subtitle = parameterSummary(presetMinutes);
    return {.id = matchId(intent, match.minutes),
            .title = title,
            .subtitle = subtitle,
            .symbol = intent.symbol};
}

/// Takes the number of minutes out of the words: "10", "10m" or "10min".
std::optional<int> takeMinutes(QStringList &words)
{
    static const QRegularExpression number(QStringLiteral("^([0-9]{1,4})(?:m|min)?$"));
    for (qsizetype at = 0; at < words.size(); ++at) {
        const auto match = number.match(words.at(at));
        if (!match.hasMatch())
            continue;
        words.removeAt(at);
        return match.captured(1).toInt();
    }
    return std::nullopt;
}

/// What may stand around the number: the words of the phrases, of the summary and of the parameter.
QStringList countdownWords(const ShortcutIntent &intent)
{
    return wordsOf(intentPhrases(intent).join(u' ') + u' ' + parameterSummary(1) + u' ' +
                   minutesTitle());
}

QList<ShortcutMatch> searchCountdown(const QStringList &query, int minutes)
{
    const ShortcutIntent &intent = *findIntent(QStringLiteral("StartCountdownTimerIntent"));
    const QStringList words = countdownWords(intent);
    if (!isMinutes(minutes) || !hasAll(words, query) || !tellsSomething(words, query))
        return {};
    ShortcutMatch match = describe({intent, minutes}, minutes);
    match.relevance = exactly;
    return {match};
}

} // namespace

QList<ShortcutMatch> searchShortcuts(const QString &query, int presetMinutes)
{
    QStringList words = wordsOf(query.left(longestQuery));
    if (const auto minutes = takeMinutes(words))
        return searchCountdown(words, *minutes);
    QList<ShortcutMatch> matches;
    for (const ShortcutIntent &intent : shortcutIntents()) {
        if (!intent.shortTitle)
            continue;
        double best = relevance(intentShortTitle(intent), words);
        for (const QString &phrase : intentPhrases(intent))
            best = std::max(best, relevance(phrase, words));
        if (best <= 0)
            continue;
        matches.append(describe({intent, {}}, presetMinutes));
        matches.last().relevance = best;
    }
    std::ranges::stable_sort(matches, std::ranges::greater(), &ShortcutMatch::relevance);
    return matches;
}

std::optional<ShortcutMatchId> parseMatchId(const QString &id)
{
    const qsizetype colon = id.indexOf(u':');
    const ShortcutIntent *intent = findIntent(QStringView(id).left(colon));
    if (!intent)
        return std::nullopt;
    if (colon < 0)
        return ShortcutMatchId{*intent, {}};
    bool isNumber = false;
    const int minutes = QStringView(id).mid(colon + 1).toInt(&isNumber);
    if (!isNumber || !isMinutes(minutes) || !intent->takesMinutes)
        return std::nullopt;
    return ShortcutMatchId{*intent, minutes};
}

std::optional<ShortcutMatch> describeMatch(const QString &id, int presetMinutes)
{
    const auto match = parseMatchId(id);
    return match ? std::optional(describe(*match, presetMinutes)) : std::nullopt;
}

} // namespace quillmere
