#pragma once

#include "platform/Haptics.h"
#include "platform/linux/dbus/BusOwner.h"

namespace quillmere {

/// Haptics by the feedback service that phones and some laptops have. Whether there is one is asked
/// once; where it neither runs nor can be started, feedback costs nothing.
class FeedbackdHaptics : public Haptics
{
public:
    explicit FeedbackdHaptics(const QDBusConnection &sessionBus);

    void performFeedback() override;

private:
    void askWhetherItCanStart();

    bool canStart_ = false;
    bool hasAsked_ = false;
    BusCalls calls_;
    BusOwner owner_;
};

} // namespace quillmere
