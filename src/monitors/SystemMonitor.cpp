#include "monitors/SystemMonitor.h"

#include <algorithm>
#include <utility>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration samplingTolerance = 500ms;
constexpr double bytesPerGB = 1024.0 * 1024.0 * 1024.0;

double gigabytes(std::uint64_t bytes)
{
    return static_cast<double>(bytes) / bytesPerGB;
}

double percent(std::uint64_t part, std::uint64_t whole)
{
    if (whole == 0)
        return 0;
    return std::min(100.0, static_cast<double>(part) / static_cast<double>(whole) * 100);
}

/// The kernel's counters may step back a little; that is no time passed.
std::uint64_t advance(std::uint64_t from, std::uint64_t to)
{
    return to > from ? to - from : 0;
}

void addMemory(SystemStats &stats, const HostStatistics &host)
{
    const std::uint64_t total = host.physicalMemory();
    const std::uint64_t used = host.usedMemory().value_or(0);
    stats.memoryUsage = percent(used, total);
    stats.memoryUsedGB = gigabytes(used);
    stats.memoryTotalGB = gigabytes(total);
}

void addDisk(SystemStats &stats, const FileSystemSize &disk)
{
    if (!disk.size || !disk.freeSize)
        return;
    const std::uint64_t used = advance(*disk.freeSize, *disk.size);
    stats.diskUsage = percent(used, *disk.size);
    stats.diskUsedGB = gigabytes(used);
    stats.diskTotalGB = gigabytes(*disk.size);
}

} // namespace

double ProcessorLoad::sample(const std::optional<ProcessorTicks> &ticks)
{
    if (!ticks)
        return 0;
    const std::uint64_t total = ticks->user + ticks->system + ticks->idle + ticks->nice;
    const auto passed = advance(std::exchange(previousTotalTicks_, total), total);
    const auto idle = advance(std::exchange(previousIdleTicks_, ticks->idle), ticks->idle);
    return percent(advance(idle, passed), passed);
}

SystemStats sampleStats(const HostStatistics &host, ProcessorLoad &load)
{
    SystemStats stats;
    stats.cpuUsage = load.sample(host.processorTicks());
    addMemory(stats, host);
    addDisk(stats, host.rootFileSystem());
    return stats;
}

SystemMonitor::Run::Run()
    : load(std::make_shared<ProcessorLoad>())
{
}

SystemMonitor::SystemMonitor(RunLoop &runLoop, const HostStatistics &host)
    : runLoop_(runLoop)
    , host_(host)
{
}

void SystemMonitor::start(Duration interval)
{
    if (isRunning())
        return;
    run_.emplace();
    run_->timer = runLoop_.every(interval, samplingTolerance, [this] { sample(); });
}

void SystemMonitor::stop()
{
    run_.reset();
}

void SystemMonitor::sample()
{
    if (std::exchange(run_->isSampling, true))
        return;
    runLoop_.background(
        run_->owner, [&host = host_, load = run_->load] { return sampleStats(host, *load); },
        [this](const SystemStats &stats) {
            run_->isSampling = false;
            if (onStatsUpdate)
                onStatsUpdate(stats);
        });
}

} // namespace quillmere
