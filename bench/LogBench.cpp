#include "island/IslandDebugLogger.h"
#include "platform/linux/core/QtRunLoop.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

using namespace quillmere;

namespace {

struct Log {
    QtRunLoop runLoop;
    QTemporaryDir directory;
    IslandDebugLogger logger{runLoop, directory.path()};
};

QString message(double elapsed)
{
    return QString::asprintf("EMIT timerRunning=true base=12.00 delta=%.2f", elapsed);
}

void logCategoryOff(benchmark::State &state)
{
    Log log;
    double elapsed = 0;
    while (state.KeepRunning()) {
        log.logger.log(IslandDebugLogger::Category::Progress, [&] { return message(elapsed); });
        benchmark::DoNotOptimize(elapsed += 0.25);
    }
}
BENCHMARK(logCategoryOff);

/// The caller's share alone: the text is made before, as its cost is the caller's own.
void logCategoryOn(benchmark::State &state)
{
    Log log;
    log.logger.setEnabled(true);
    const QString text = message(0.25);
    int pending = 0;
    while (state.KeepRunning()) {
        log.logger.log(IslandDebugLogger::Category::Progress, text);
        if (++pending == 1000) { // stay below the limit of what may wait for the disk
            state.PauseTiming();
            log.logger.drain();
            pending = 0;
            state.ResumeTiming();
        }
    }
}
BENCHMARK(logCategoryOn);

/// A call that finds the queue asleep and has to wake it.
void logAfterIdle(benchmark::State &state)
{
    Log log;
    log.logger.setEnabled(true);
    const QString text = message(0.25);
    while (state.KeepRunning()) {
        log.logger.drain();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        const auto start = std::chrono::steady_clock::now();
        log.logger.log(IslandDebugLogger::Category::Progress, text);
        const auto end = std::chrono::steady_clock::now();
        state.SetIterationTime(std::chrono::duration<double>(end - start).count());
    }
}
BENCHMARK(logAfterIdle)->UseManualTime()->Iterations(500);

} // namespace
