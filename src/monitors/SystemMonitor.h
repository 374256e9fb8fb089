#pragma once

#include "platform/HostStatistics.h"
#include "platform/RunLoop.h"
#include "platform/SystemStats.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace quillmere {

/// The load of the processors from one look at their counters to the next.
class ProcessorLoad
{
public:
    /// Percent, 0..100, since the former sample; the first one's is the average since the machine
    /// started. Absent ticks are no load and leave the former ones to compare with.
    double sample(const std::optional<ProcessorTicks> &ticks);

private:
    std::uint64_t previousTotalTicks_ = 0;
    std::uint64_t previousIdleTicks_ = 0;
};

/// One whole sample. Reads the counters, so not on the main thread.
SystemStats sampleStats(const HostStatistics &host, ProcessorLoad &load);

/// Samples the load of this machine at regular times. The samples are taken off the main thread,
/// one at a time: while one is under way, a further one is left out. Main thread only.
class SystemMonitor
{
public:
    static constexpr Duration samplingInterval = std::chrono::seconds(3);

    /// `host` must outlive the background work of `runLoop`.
    SystemMonitor(RunLoop &runLoop, const HostStatistics &host);

    /// Called on the main thread; not after stop().
    std::function<void(const SystemStats &)> onStatsUpdate;

    /// The first sample comes after one interval. Does nothing while running.
    void start(Duration interval = samplingInterval);
    void stop();

    bool isRunning() const { return run_.has_value(); }

private:
    /// What start() sets up; ending it releases the timer and drops a sample under way.
    struct Run {
        Run();

        Task timer;
        std::shared_ptr<ProcessorLoad> load;
        bool isSampling = false;
        Owner owner;
    };

    void sample();

    RunLoop &runLoop_;
    const HostStatistics &host_;
    std::optional<Run> run_;
};

} // namespace quillmere
