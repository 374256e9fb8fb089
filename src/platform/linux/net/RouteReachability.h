#pragma once

#include "platform/Listeners.h"
#include "platform/Reachability.h"
#include "platform/RunLoop.h"

#include <QSocketNotifier>

#include <memory>

namespace quillmere {

/// Hears from the kernel when a default route appears, whoever manages the network. Listeners are
/// told a moment later and once for several routes, for name servers and the other protocol family
/// come just after the first. Main thread only.
class RouteReachability : public Reachability
{
public:
    static constexpr Duration settling = std::chrono::seconds(2);

    explicit RouteReachability(RunLoop &runLoop);
    ~RouteReachability() override;

    Task onReturn(std::function<void()> listener) override;

private:
    void receive();

    RunLoop &runLoop_;
    int socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
    Listeners<> listeners_;
    Task settled_;
};

} // namespace quillmere
