#pragma once

#include "claude/ClaudeCodeSession.h"
#include "claude/HookEvent.h"
#include "claude/HookInstaller.h"
#include "platform/MessageSocketServer.h"
#include "platform/RunLoop.h"

#include <QObject>

#include <memory>
#include <optional>

namespace quillmere {

class IslandDebugLogger;

/// Follows what the user's coding assistant does in the terminal: a hook script in its
/// configuration reports its events over a socket, and each becomes the published state. After a
/// minute without events the assistant counts as idle. Main thread only; nothing here waits for the
/// disk or the socket.
class ClaudeCodeMonitor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isActive READ isActive NOTIFY isActiveChanged)
    Q_PROPERTY(quillmere::ClaudeCodeStatus status READ status NOTIFY statusChanged)
    Q_PROPERTY(std::optional<quillmere::ClaudeCodeSession> currentSession READ currentSession NOTIFY
                   currentSessionChanged)

public:
    struct Places {
        QString home; ///< absolute
        QString socketPath = QStringLiteral("/tmp/quillmere-claude.sock");
    };

    ClaudeCodeMonitor(RunLoop &runLoop, IslandDebugLogger &logger, MessageSocketServer &server,
                      UserFiles &files, const Places &places);
    /// Finishes what was begun on files.
    ~ClaudeCodeMonitor() override;

    /// Installs and registers the hook where there is an assistant, then listens. Does nothing
    /// while running.
    void start();
    /// Stops listening and forgets the session. The hook stays: without a socket it does nothing.
    void stop();
    /// Takes the hook out of the assistant's configuration. Independent of start() and stop().
    void uninstallHooks();

    void handle(const HookEvent &event);

    bool isActive() const { return isActive_; } ///< the status is not idle
    ClaudeCodeStatus status() const { return status_; }
    const std::optional<ClaudeCodeSession> &currentSession() const { return currentSession_; }

Q_SIGNALS:
    void isActiveChanged();
    void statusChanged();
    void currentSessionChanged();

private:
    using Signal = void (ClaudeCodeMonitor::*)();

    void installHooks();
    void startSocketServer();
    void stopSocketServer();
    void receive(const tl::expected<HookEvent, QString> &event);
    void fallIdle();
    void log(const QString &line) const;
    template <class T>
    void publish(T &field, const T &value, Signal changed);

    RunLoop &runLoop_;
    IslandDebugLogger &logger_;
    MessageSocketServer &server_;
    const QString socketPath_;
    HookInstaller installer_;

    bool isActive_ = false;
    ClaudeCodeStatus status_ = ClaudeCodeStatus::Idle;
    std::optional<ClaudeCodeSession> currentSession_;
    std::optional<Owner> run_; ///< from start() to stop()
    Task idleTimer_;

    /// For all that touches files, and the log lines that have their place before or after it.
    /// Last: its end comes before that of what it works on.
    std::unique_ptr<SerialQueue> queue_;
};

} // namespace quillmere
