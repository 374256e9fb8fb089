#include "platform/linux/desktop/DesktopEntries.h"

#include <QFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

/// How applications that others name are called here.
struct KnownApplication {
    QLatin1StringView bundleID;
    QLatin1StringView desktopEntries; ///< distribution's, Flatpak's and snap's first
    QLatin1StringView page;           ///< in the browser, where none is installed
};

constexpr std::array knownApplications{
    KnownApplication{QLatin1StringView("com.tinyspeck.slackmacgap"),
                     QLatin1StringView("slack com.slack.Slack slack_slack"),
                     QLatin1StringView("https://app.slack.com/")},
    KnownApplication{QLatin1StringView("com.hnc.Discord"),
                     QLatin1StringView("discord com.discordapp.Discord discord_discord "
                                       "discord-canary discord-ptb vesktop dev.vencord.Vesktop"),
                     QLatin1StringView("https://discord.com/app")},
    KnownApplication{QLatin1StringView("com.spotify.client"),
                     QLatin1StringView("spotify com.spotify.Client spotify_spotify"),
                     QLatin1StringView("https://open.spotify.com/")},
    KnownApplication{QLatin1StringView("com.apple.mail"),
                     QLatin1StringView("thunderbird org.mozilla.Thunderbird "
                                       "net.thunderbird.Thunderbird thunderbird_thunderbird "
                                       "org.gnome.Evolution org.gnome.Geary org.kde.kmail2"),
                     QLatin1StringView()}};

/// What the user has chosen for links to mail addresses.
QString chosenMailProgram()
{
    static const QByteArray key("x-scheme-handler/mailto=");
    for (const QString &path : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation,
                                                         QStringLiteral("mimeapps.list")) +
                                   QStandardPaths::locateAll(QStandardPaths::ApplicationsLocation,
                                                             QStringLiteral("mimeapps.list"))) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        while (!file.atEnd()) {
            constexpr qint64 longestLine = 4'096;
            const QByteArray line = file.readLine(longestLine).trimmed();
            if (line.startsWith(key))
                return QString::fromUtf8(line.mid(key.size()).split(';').first())
                    .remove(QStringLiteral(".desktop"));
        }
    }
    return {};
}

QStringList entryNames(const QString &bundleID)
{
    const auto known = std::ranges::find(knownApplications, bundleID, &KnownApplication::bundleID);
    if (known == knownApplications.end())
        return {bundleID};
    QStringList names = QString(known->desktopEntries).split(u' ');
    if (known->page.isEmpty()) // each desktop has its own mail program
        names.prepend(chosenMailProgram());
    return names;
}

} // namespace

QString desktopEntryOf(const QString &bundleID)
{
    for (const QString &name : entryNames(bundleID)) {
        QString file = name.isEmpty() || name.contains(u'/')
                           ? QString()
                           : QStandardPaths::locate(QStandardPaths::ApplicationsLocation,
                                                    name + QStringLiteral(".desktop"));
        if (!file.isEmpty())
            return file;
    }
    return {};
}

QString pageOf(const QString &bundleID)
{
    const auto known = std::ranges::find(knownApplications, bundleID, &KnownApplication::bundleID);
    return known == knownApplications.end() ? QString() : QString(known->page);
}

} // namespace quillmere
