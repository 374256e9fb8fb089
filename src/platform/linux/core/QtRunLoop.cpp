#include "platform/linux/core/QtRunLoop.h"

#include "platform/linux/core/PoolSerialQueue.h"

#include <QMetaObject>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <ctime>
#include <sys/timerfd.h>
#include <unistd.h>

namespace quillmere {

namespace {

timespec toTimespec(Instant instant)
{
    using namespace std::chrono;
    const auto sinceBoot = instant.time_since_epoch();
    const auto whole = duration_cast<std::chrono::seconds>(sinceBoot);
    return {static_cast<time_t>(whole.count()), static_cast<long>((sinceBoot - whole).count())};
}

} // namespace

QtRunLoop::QtRunLoop()
    : timer_(timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC))
    , notifier_(timer_, QSocketNotifier::Read)
{
    if (timer_ < 0)
        qFatal("[Quillmere] The system has no timer to give: %s", strerror(errno));
    QObject::connect(&notifier_, &QSocketNotifier::activated, &context_, [this] { wake(); });
    pool_.setObjectName(QStringLiteral("background"));
}

QtRunLoop::~QtRunLoop()
{
    pool_.clear();
    pool_.waitForDone();
    notifier_.setEnabled(false);
    ::close(timer_);
}

Instant QtRunLoop::now() const
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return Instant(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

std::chrono::system_clock::time_point QtRunLoop::wallClock() const
{
    return std::chrono::system_clock::now();
}

bool QtRunLoop::isMainThread() const
{
    return QThread::currentThread() == context_.thread();
}

void QtRunLoop::post(std::function<void()> action)
{
    QMetaObject::invokeMethod(&context_, std::move(action), Qt::QueuedConnection);
}

std::unique_ptr<SerialQueue> QtRunLoop::makeSerialQueue(const QString &label)
{
    return std::make_unique<PoolSerialQueue>(label);
}

void QtRunLoop::runInBackground(std::function<void()> work)
{
    pool_.start(std::move(work));
}

void QtRunLoop::timersChanged()
{
    arm();
}

void QtRunLoop::wake()
{
    std::uint64_t expirations = 0;
    [[maybe_unused]] const auto size = ::read(timer_, &expirations, sizeof expirations);
    armedFor_.reset();
    timers().fireDue(now());
    arm();
}

void QtRunLoop::arm()
{
    const auto wake = timers().nextWake();
    if (wake == armedFor_)
        return;
    armedFor_ = wake;
    itimerspec spec{};
    if (wake)
        spec.it_value = toTimespec(std::max(*wake, Instant(Duration(1)))); // zero would disarm
    timerfd_settime(timer_, TFD_TIMER_ABSTIME, &spec, nullptr);
}

} // namespace quillmere
