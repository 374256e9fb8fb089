#include "platform/linux/appearance/FeedbackdHaptics.h"

#include "platform/linux/dbus/BusNames.h"

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration answerLimit = 5s;
constexpr int once = -1;

const QString serviceName = QStringLiteral("org.sigxcpu.Feedback");

/// Limited to what is felt: at its full level the same event would also sound.
QDBusMessage feedbackCall()
{
    auto message =
        QDBusMessage::createMethodCall(serviceName, QStringLiteral("/org/sigxcpu/Feedback"),
                                       serviceName, QStringLiteral("TriggerFeedback"));
    message << QString(bus::serviceName) << QStringLiteral("button-pressed")
            << QVariantMap{{QStringLiteral("profile"), QStringLiteral("quiet")}} << once;
    return message;
}

} // namespace

FeedbackdHaptics::FeedbackdHaptics(const QDBusConnection &sessionBus)
    : calls_(sessionBus)
    , owner_(sessionBus, serviceName, [this](const QString &owner) {
        if (owner.isEmpty())
            askWhetherItCanStart();
    })
{
}

void FeedbackdHaptics::askWhetherItCanStart()
{
    if (std::exchange(hasAsked_, true))
        return;
    const auto question = QDBusMessage::createMethodCall(
        bus::daemonName, bus::daemonPath, bus::daemonName, QStringLiteral("ListActivatableNames"));
    calls_.call(question, answerLimit, [this](const BusReply &reply) {
        canStart_ = reply && reply->value(0).toStringList().contains(serviceName);
    });
}

void FeedbackdHaptics::performFeedback()
{
    if (!owner_.name().isEmpty() || canStart_)
        calls_.call(feedbackCall(), answerLimit, [](const BusReply &) {}); // felt or not
}

} // namespace quillmere
