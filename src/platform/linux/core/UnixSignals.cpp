#include "platform/linux/core/UnixSignals.h"

#include <QtGlobal>

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {

namespace {

std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free, "read within a signal handler");

// Only async-signal-safe calls from here on.
void handle(int signal)
{
    const int savedErrno = errno;
    struct sigaction byDefault = {};
    byDefault.sa_handler = SIG_DFL;
    sigaction(SIGINT, &byDefault, nullptr);
    sigaction(SIGTERM, &byDefault, nullptr);
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const auto written = write(writeEnd, &number, sizeof number);
    errno = savedErrno;
}

} // namespace

UnixSignals::UnixSignals(std::function<void(int signal)> onSignal)
    : onSignal_(std::move(onSignal))
{
    Q_ASSERT(writeEnd == -1);
    if (pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("[Quillmere] Signals end the program at once: no pipe");
        return;
    }
    writeEnd = pipe_[1];
    notifier_.emplace(pipe_[0], QSocketNotifier::Read);
    QObject::connect(&*notifier_, &QSocketNotifier::activated, &*notifier_, [this] { read(); });
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        install(signal);
}

UnixSignals::~UnixSignals()
{
    for (const Former &former : former_)
        sigaction(former.signal, &former.action, nullptr);
    notifier_.reset();
    writeEnd = -1;
    for (const int end : pipe_) {
        if (end != -1)
            close(end);
    }
}

void UnixSignals::install(int signal)
{
    struct sigaction former = {};
    sigaction(signal, nullptr, &former);
    if (signal == SIGHUP && former.sa_handler == SIG_IGN)
        return; // started by nohup
    struct sigaction ours = {};
    ours.sa_handler = &handle;
    ours.sa_flags = SA_RESTART;
    sigaction(signal, &ours, nullptr);
    former_.push_back({signal, former});
}

void UnixSignals::read()
{
    unsigned char number = 0;
    if (::read(pipe_[0], &number, sizeof number) == sizeof number)
        onSignal_(number); // the notifier comes back for the rest: this may destroy us
}

} // namespace quillmere
