#include "platform/linux/notifications/MessageSender.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <span>

namespace quillmere {

namespace {

struct ChatApp {
    QLatin1StringView bundleIdentifier;
    std::span<const QLatin1StringView> words; ///< each makes a name one of this application's
    std::span<const QLatin1StringView> hosts; ///< of its pages, with all below them
};

constexpr std::array slackWords{QLatin1StringView("slack"), QLatin1StringView("slackmacgap")};
constexpr std::array slackHosts{QLatin1StringView("slack.com")};
// The second line: programs by others for the same service.
constexpr std::array discordWords{
    QLatin1StringView("discord"),    QLatin1StringView("discordapp"),
    QLatin1StringView("discordptb"), QLatin1StringView("discordcanary"),
    QLatin1StringView("vesktop"),    QLatin1StringView("legcord"),
    QLatin1StringView("armcord"),    QLatin1StringView("webcord"),
    QLatin1StringView("equibop"),    QLatin1StringView("goofcord"),
    QLatin1StringView("dissent"),    QLatin1StringView("abaddon")};
constexpr std::array discordHosts{QLatin1StringView("discord.com"),
                                  QLatin1StringView("discordapp.com")};
constexpr std::array chatApps{
    ChatApp{QLatin1StringView("com.tinyspeck.slackmacgap"), slackWords, slackHosts},
    ChatApp{QLatin1StringView("com.hnc.Discord"), discordWords, discordHosts}};

/// Browsers that begin a notification with the host it is for, so that no page can pose as another.
constexpr std::array browserWords{QLatin1StringView("chrome"), QLatin1StringView("chromium"),
                                  QLatin1StringView("brave"),  QLatin1StringView("edge"),
                                  QLatin1StringView("msedge"), QLatin1StringView("vivaldi"),
                                  QLatin1StringView("opera")};

QStringList wordsOf(const NotificationCall &call)
{
    static const QRegularExpression between(QStringLiteral("[^a-z]+"));
    return (call.desktopEntry + u' ' + call.appName).toLower().split(between, Qt::SkipEmptyParts);
}

bool haveAny(const QStringList &words, std::span<const QLatin1StringView> wanted)
{
    return std::ranges::any_of(wanted,
                               [&](QLatin1StringView word) { return words.contains(word); });
}

bool isHostOf(const ChatApp &app, const QString &name)
{
    const QString host = name.trimmed().toLower();
    return std::ranges::any_of(app.hosts, [&](QLatin1StringView own) {
        return host == own || (host.endsWith(own) && host.chopped(own.size()).endsWith(u'.') &&
                               !host.contains(u' '));
    });
}

QString firstLine(const QString &text)
{
    return text.left(text.indexOf(u'\n'));
}

QString unescaped(QString text)
{
    // The ampersand last: what it uncovers is text.
    static constexpr std::array<std::pair<QLatin1StringView, char16_t>, 6> entities{
        {{QLatin1StringView("&lt;"), u'<'},
         {QLatin1StringView("&gt;"), u'>'},
         {QLatin1StringView("&quot;"), u'"'},
         {QLatin1StringView("&apos;"), u'\''},
         {QLatin1StringView("&#39;"), u'\''},
         {QLatin1StringView("&amp;"), u'&'}}};
    for (const auto &[entity, character] : entities)
        text.replace(entity, QString(QChar(character)));
    return text;
}

/// Of the few elements that the notification service knows; any other angle brackets are text.
QString withoutMarkup(QString text)
{
    static const QRegularExpression element(QStringLiteral("</?(?:b|i|u|a|img)(?:\\s[^<>]*)?/?>"),
                                            QRegularExpression::CaseInsensitiveOption);
    return unescaped(text.remove(element));
}

const ChatApp *findApp(const NotificationCall &call, const QString &text)
{
    const QStringList words = wordsOf(call);
    const bool isBrowser = haveAny(words, browserWords);
    const auto found = std::ranges::find_if(chatApps, [&](const ChatApp &app) {
        return haveAny(words, app.words) ||
               (isBrowser && (isHostOf(app, call.origin) || isHostOf(app, firstLine(text))));
    });
    return found == chatApps.end() ? nullptr : &*found;
}

} // namespace

std::optional<ParsedNotification> chatMessage(const NotificationCall &call)
{
    QString text = (call.hasMarkup ? withoutMarkup(call.body) : call.body).trimmed();
    const ChatApp *app = findApp(call, text);
    if (!app)
        return std::nullopt;
    if (const QString line = firstLine(text); isHostOf(*app, line))
        text = text.sliced(line.size()).trimmed();
    const QString title = call.title.trimmed();
    return ParsedNotification{
        .appID = app->bundleIdentifier,
        .title =
            title.isEmpty() ? QCoreApplication::translate("Notification", "New message") : title,
        .body = text.isEmpty() ? std::nullopt : std::optional(text)};
}

} // namespace quillmere
