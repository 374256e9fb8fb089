#include "claude/ClaudeCodeMonitor.h"

#include "island/IslandDebugLogger.h"

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration idleTimeout = 60s;

QString listenFailure(const ListenError &error)
{
    switch (error.step) {
    case ListenError::Step::CreateSocket:
        return QStringLiteral("ClaudeCodeMonitor: failed to create socket");
    case ListenError::Step::Bind:
        return u"ClaudeCodeMonitor: bind failed: " + error.text;
    case ListenError::Step::Listen:
        break;
    }
    return QStringLiteral("ClaudeCodeMonitor: listen failed");
}

QString eventLine(const HookEvent &event, const ClaudeCodeSession &session)
{
    return u"ClaudeCode: event=" + event.event + u" status=" +
           claudeCodeStatusText(session.status) + u" tool=" +
           toolLabel(event).value_or(QStringLiteral("nil")) + u" project=" + session.projectName;
}

} // namespace

ClaudeCodeMonitor::ClaudeCodeMonitor(RunLoop &runLoop, IslandDebugLogger &logger,
                                     MessageSocketServer &server, UserFiles &files,
                                     const Places &places)
    : runLoop_(runLoop)
    , logger_(logger)
    , server_(server)
    , socketPath_(places.socketPath)
    , installer_(files, runLoop, places.home, places.socketPath)
    , queue_(runLoop.makeSerialQueue(QStringLiteral("claude-code")))
{
}

ClaudeCodeMonitor::~ClaudeCodeMonitor()
{
    stopSocketServer();
}

void ClaudeCodeMonitor::start()
{
    if (run_)
        return;
    run_.emplace();
    queue_->async([this, run = run_->reference()] {
        log(QStringLiteral("ClaudeCodeMonitor: starting socket server"));
        installHooks();
        runLoop_.post([this, run] {
            if (!run.expired())
                startSocketServer();
        });
    });
}

/// On the queue.
void ClaudeCodeMonitor::installHooks()
{
    if (!installer_.findsAssistant())
        return log(QStringLiteral("ClaudeCode: Claude Code not found, skipping hook install"));
    installer_.installScript();
    log(u"ClaudeCode: hook script installed at " + installer_.scriptPath());
    installer_.registerHooks();
    log(QStringLiteral("ClaudeCode: hooks registered in settings.json"));
}

void ClaudeCodeMonitor::stop()
{
    queue_->async([this] { log(QStringLiteral("ClaudeCodeMonitor: stopping")); });
    stopSocketServer();
    publish(isActive_, false, &ClaudeCodeMonitor::isActiveChanged);
    publish(status_, ClaudeCodeStatus::Idle, &ClaudeCodeMonitor::statusChanged);
    publish(currentSession_, {}, &ClaudeCodeMonitor::currentSessionChanged);
}

void ClaudeCodeMonitor::uninstallHooks()
{
    queue_->async([this] {
        installer_.uninstall();
        log(QStringLiteral("ClaudeCode: hook uninstalled"));
    });
}

void ClaudeCodeMonitor::startSocketServer()
{
    const auto listening = server_.listen(socketPath_, *run_, [this](const QByteArray &message) {
        return [this, event = decodeHookEvent(message)] { receive(event); };
    });
    log(listening ? u"ClaudeCodeMonitor: socket server listening on " + socketPath_
                  : listenFailure(listening.error()));
}

void ClaudeCodeMonitor::stopSocketServer()
{
    if (run_)
        server_.close();
    run_.reset();
    idleTimer_.cancel();
}

void ClaudeCodeMonitor::receive(const tl::expected<HookEvent, QString> &event)
{
    if (event)
        handle(*event);
    else
        log(u"ClaudeCodeMonitor: failed to decode event: " + event.error());
}

void ClaudeCodeMonitor::handle(const HookEvent &event)
{
    const auto session = sessionAfter(event, currentSession_, runLoop_.date());
    const bool active = session.status != ClaudeCodeStatus::Idle;
    publish(currentSession_, std::optional(session), &ClaudeCodeMonitor::currentSessionChanged);
    publish(status_, session.status, &ClaudeCodeMonitor::statusChanged);
    publish(isActive_, active, &ClaudeCodeMonitor::isActiveChanged);
    logger_.log(IslandDebugLogger::Category::General, [&] { return eventLine(event, session); });
    idleTimer_.cancel();
    if (active)
        idleTimer_ = runLoop_.after(idleTimeout, [this] { fallIdle(); });
}

void ClaudeCodeMonitor::fallIdle()
{
    publish(isActive_, false, &ClaudeCodeMonitor::isActiveChanged);
    publish(status_, ClaudeCodeStatus::Idle, &ClaudeCodeMonitor::statusChanged);
    log(QStringLiteral("ClaudeCode: idle timeout — no events for 60s"));
}

void ClaudeCodeMonitor::log(const QString &line) const
{
    logger_.log(IslandDebugLogger::Category::General, line);
}

template <class T>
void ClaudeCodeMonitor::publish(T &field, const T &value, Signal changed)
{
    if (field == value)
        return;
    field = value;
    Q_EMIT(this->*changed)();
}

} // namespace quillmere
