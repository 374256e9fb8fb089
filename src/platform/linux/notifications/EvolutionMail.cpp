#include "platform/linux/notifications/EvolutionMail.h"

#include <QDBusArgument>
#include <QDBusMessage>

namespace quillmere {

namespace {

constexpr qsizetype longestText = 4'096;

/// Each value comes alone in a structure.
QString textIn(const QVariant &value)
{
    if (!value.canConvert<QDBusArgument>())
        return value.toString();
    const auto packed = value.value<QDBusArgument>();
    if (packed.currentSignature() != QLatin1StringView("(s)"))
        return {};
    QString text;
    packed.beginStructure();
    packed >> text;
    packed.endStructure();
    return text;
}

} // namespace

EvolutionMail::EvolutionMail(QDBusConnection sessionBus)
{
    sessionBus.connect({}, QStringLiteral("/org/gnome/evolution/mail/newmail"),
                       QStringLiteral("org.gnome.evolution.mail.dbus.Signal"),
                       QStringLiteral("Newmail"), this, SLOT(newMail(QDBusMessage)));
}

Task EvolutionMail::onNewMail(Listener listener)
{
    return listeners_.add(std::move(listener));
}

void EvolutionMail::newMail(const QDBusMessage &message)
{
    const QString senderMark = QStringLiteral("msg_sender:");
    const QString subjectMark = QStringLiteral("msg_subject:");
    QString sender;
    QString subject;
    for (const QVariant &value : message.arguments()) {
        const QString text = textIn(value).left(longestText);
        if (text.startsWith(senderMark))
            sender = text.sliced(senderMark.size());
        else if (text.startsWith(subjectMark))
            subject = text.sliced(subjectMark.size());
    }
    listeners_.notify(sender, subject);
}

} // namespace quillmere
