#include "messages/EmailMonitor.h"

#include "platform/Loggable.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QDebug>

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration shortestInterval = 30s;
constexpr Duration tolerance = 5s;
constexpr Duration scriptLimit = 5s; // what an answer may take on top

constexpr qsizetype longestComplaint = 500; // characters for the log

/// By how much a mail server's clock may be ahead of ours.
constexpr qint64 clockDifference = 3600; // seconds

struct Words {
    Q_DECLARE_TR_FUNCTIONS(EmailMonitor)
};

} // namespace

EmailMonitor::EmailMonitor(RunLoop &runLoop, SettingsStore &settings, ScriptRunner &scriptRunner,
                           NewMailSignal &newMailSignal)
    : runLoop_(runLoop)
    , settings_(settings)
    , scriptRunner_(scriptRunner)
    , newMailSignal_(newMailSignal)
{
}

void EmailMonitor::start()
{
    if (isRunning())
        return;
    hasSeenInitialState_ = false;
    newestArrival_.reset();
    run();
    interval_ = std::max(seconds(settings_.emailPollInterval.get()), shortestInterval);
    timer_ = runLoop_.every(interval_, tolerance, [this] { run(); });
    signalListener_ =
        newMailSignal_.onNewMail([this](const QString &sender, const QString &subject) {
            if (settings_.showEmailHUD.get())
                announce(AnnouncedMessages::Source::Live, sender, subject);
        });
}

void EmailMonitor::stop()
{
    timer_.cancel();
    script_.cancel();
    signalListener_.cancel();
}

void EmailMonitor::run()
{
    if (!settings_.showEmailHUD.get())
        return;
    script_ = scriptRunner_.run(scripts::unreadMail, {},
                                [this](const ScriptAnswer &answer) { take(answer); });
}

void EmailMonitor::take(const ScriptAnswer &answer)
{
    if (!answer.hasSucceeded)
        return;
    if (answer.output.startsWith("error")) {
        qWarning("[EmailMonitor] Script failed: %s",
                 qUtf8Printable(loggable(QString::fromUtf8(answer.output).left(longestComplaint))));
        return;
    }
    const auto mail = readUnreadMail(answer.output);
    if (!mail) {
        qWarning("[EmailMonitor] Script did not tell how much mail is unread");
        return;
    }
    const bool isAnnounced = isNew(*mail);
    record(*mail);
    if (isAnnounced)
        announce(AnnouncedMessages::Source::Polled, mail->sender, mail->subject);
}

bool EmailMonitor::isNew(const UnreadMail &mail) const
{
    if (!hasSeenInitialState_ || mail.count == 0)
        return false;
    if (mail.count <= lastUnreadCount_ &&
        (lastMessageID_.isEmpty() || mail.messageID == lastMessageID_))
        return false;
    // Once the newest has been read, an older one is the newest unread; but it has not just come.
    if (!mail.arrival || !newestArrival_ || mail.arrival > newestArrival_)
        return true;
    return mail.arrival == newestArrival_ && mail.messageID != newestMessageID_;
}

void EmailMonitor::record(const UnreadMail &mail)
{
    lastUnreadCount_ = mail.count;
    lastMessageID_ = mail.messageID;
    if (mail.arrival)
        recordArrival(*mail.arrival, mail.messageID);
    hasSeenInitialState_ = true;
}

/// One of the future is wrong, and counts as now: else all mail would look old until then.
void EmailMonitor::recordArrival(qint64 arrival, const QString &messageID)
{
    const qint64 now = runLoop_.date().toSecsSinceEpoch();
    if (arrival > now + clockDifference)
        arrival = now;
    if (arrival < newestArrival_) // nothing is less than anything
        return;
    newestArrival_ = arrival;
    newestMessageID_ = messageID;
}

void EmailMonitor::announce(AnnouncedMessages::Source source, const QString &sender,
                            const QString &subject)
{
    const Duration span = interval_ + tolerance + scriptLimit;
    if (onNewEmail && !announced_.isKnown(source, subject, runLoop_.now(), span))
        onNewEmail(sender, subject, {});
}

void EmailMonitor::sendTestNotification(
    const std::function<void(const QString &text)> &completion) const
{
    if (onNewEmail)
        onNewEmail(QStringLiteral("Quillmere"), Words::tr("This is a test email notification"),
                   Words::tr("Testing email HUD display"));
    completion(Words::tr("Test notification sent!"));
}

Task EmailMonitor::findSources(std::function<void(const QString &places)> completion) const
{
    return scriptRunner_.run(scripts::unreadMail, {QStringLiteral("--source")},
                             [completion = std::move(completion)](const ScriptAnswer &answer) {
                                 completion(QString::fromUtf8(answer.output).trimmed());
                             });
}

} // namespace quillmere
