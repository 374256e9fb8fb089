#pragma once

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>
#include <optional>
#include <vector>

namespace quillmere {

/// Turns SIGINT, SIGTERM and SIGHUP into a call on the main thread.
///
/// Once one has come, another SIGINT or SIGTERM ends the process at once, so a quit that hangs can
/// be cut short. A SIGHUP that was ignored when the process started stays ignored. The destructor
/// puts the former handling back. One instance at a time, while there is a QCoreApplication.
class UnixSignals
{
public:
    explicit UnixSignals(std::function<void(int signal)> onSignal);
    ~UnixSignals();
    UnixSignals(const UnixSignals &) = delete;
    UnixSignals &operator=(const UnixSignals &) = delete;

private:
    struct Former {
        int signal;
        struct sigaction action;
    };

    void install(int signal);
    void read();

    std::function<void(int signal)> onSignal_;
    std::array<int, 2> pipe_{-1, -1};
    std::vector<Former> former_;
    std::optional<QSocketNotifier> notifier_;
};

} // namespace quillmere
