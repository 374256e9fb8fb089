#pragma once

#include "platform/HostStatistics.h"

namespace quillmere {

/// Counters that the test sets.
struct FakeHostStatistics : HostStatistics {
    std::optional<ProcessorTicks> processorTicks() const override { return ticks; }
    std::optional<std::uint64_t> usedMemory() const override { return used; }
    std::uint64_t physicalMemory() const override { return physical; }
    FileSystemSize rootFileSystem() const override { return disk; }

    std::optional<ProcessorTicks> ticks;
    std::optional<std::uint64_t> used;
    std::uint64_t physical = 0;
    FileSystemSize disk;
};

} // namespace quillmere
