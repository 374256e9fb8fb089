#pragma once

#include "messages/AnnouncedMessages.h"
#include "messages/UnreadMail.h"
#include "platform/NewMailSignal.h"
#include "platform/RunLoop.h"
#include "platform/ScriptRunner.h"

#include <functional>

namespace quillmere {

class SettingsStore;

/// Announces mail that arrives while it runs: by asking regularly for the newest unread message,
/// and from a mail application that tells by itself. Main thread only.
class EmailMonitor
{
public:
    EmailMonitor(RunLoop &runLoop, SettingsStore &settings, ScriptRunner &scriptRunner,
                 NewMailSignal &newMailSignal);

    /// `detail` is empty for mail, and a remark for a test.
    std::function<void(const QString &sender, const QString &subject, const QString &detail)>
        onNewEmail;

    /// Does nothing while running. The poll interval is that of the setting now.
    void start();
    void stop();
    bool isRunning() const { return static_cast<bool>(timer_); }

    void sendTestNotification(const std::function<void(const QString &text)> &completion) const;

    /// `completion` gets the places that mail is looked for in, a line each; empty if there are
    /// none. Destroying the Task leaves it out.
    Task findSources(std::function<void(const QString &places)> completion) const;

private:
    void run();
    void take(const ScriptAnswer &answer);
    bool isNew(const UnreadMail &mail) const;
    void record(const UnreadMail &mail);
    void recordArrival(qint64 arrival, const QString &messageID);
    void announce(AnnouncedMessages::Source source, const QString &sender, const QString &subject);

    RunLoop &runLoop_;
    SettingsStore &settings_;
    ScriptRunner &scriptRunner_;
    NewMailSignal &newMailSignal_;
    Task timer_;
    Task script_;
    Task signalListener_;
    Duration interval_{};
    qint64 lastUnreadCount_ = 0;
    QString lastMessageID_;
    bool hasSeenInitialState_ = false;
    std::optional<qint64> newestArrival_; ///< of all there was
    QString newestMessageID_;
    AnnouncedMessages announced_;
};

} // namespace quillmere
