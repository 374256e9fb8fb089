#include "messages/MessageHUD.h"

#include "platform/Symbols.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(MessageHUD)
};

std::optional<QString> joined(const QString &first, const QString &second)
{
    const QString left = first.trimmed();
    const QString right = second.trimmed();
    if (left.isEmpty() && right.isEmpty())
        return std::nullopt;
    if (left.isEmpty() || right.isEmpty())
        return left + right;
    return Words::tr("%1 · %2", "where or who, and what").arg(left, right);
}

/// The name in "Ada Lovelace <ada@example.org>".
QString senderName(const QString &sender)
{
    const qsizetype address = sender.lastIndexOf(u'<');
    QString name = sender.left(address).trimmed();
    if (name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.mid(1, name.size() - 2).trimmed();
    if (!name.isEmpty() || address < 0)
        return name;
    return sender.mid(address + 1).trimmed().remove(u'>');
}

} // namespace

QLatin1StringView bundleIdentifier(WatchedNotificationApp app)
{
    return app == WatchedNotificationApp::Slack ? QLatin1StringView("com.tinyspeck.slackmacgap")
                                                : QLatin1StringView("com.hnc.Discord");
}

HUDContent messageHUD(WatchedNotificationApp app, const QString &title,
                      const std::optional<QString> &subtitle, const std::optional<QString> &body)
{
    const bool isSlack = app == WatchedNotificationApp::Slack;
    return {.title = title.trimmed().isEmpty() ? displayName(app) : title,
            .subtitle = joined(subtitle.value_or(QString()), body.value_or(QString())),
            .icon = QString(isSlack ? symbols::numberSign : symbols::bubbles),
            .type = HUDContent::HUDType::Notification,
            .bundleID = QString(bundleIdentifier(app))};
}

HUDContent emailHUD(const QString &sender, const QString &subject, const QString &detail)
{
    return {.title = subject.trimmed().isEmpty() ? Words::tr("New email") : subject,
            .subtitle = joined(senderName(sender), detail),
            .icon = QString(symbols::envelope),
            .type = HUDContent::HUDType::Email,
            .bundleID = QString(mailBundleIdentifier)};
}

} // namespace quillmere
