#include "platform/TimerQueue.h"

#include <benchmark/benchmark.h>

#include <vector>

using namespace quillmere;
using namespace std::chrono_literals;

namespace {

/// What one wake-up costs the timers themselves, with as many as the program ever has.
void timerWakeUp(benchmark::State &state)
{
    TimerQueue queue;
    std::vector<Task> tasks;
    tasks.reserve(static_cast<std::size_t>(state.range(0)));
    Instant now{};
    for (int i = 0; i < static_cast<int>(state.range(0)); ++i)
        tasks.push_back(queue.add(now + 200ms + i * 1ms, 200ms, 50ms, [] {}));
    while (state.KeepRunning()) {
        now = *queue.nextWake();
        queue.fireDue(now);
    }
}
BENCHMARK(timerWakeUp)->Arg(5)->Arg(30);

} // namespace
