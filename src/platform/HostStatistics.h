#pragma once

#include <cstdint>
#include <optional>

namespace quillmere {

/// How long the processors together have done what since the machine started, in ticks.
struct ProcessorTicks {
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;
};

/// Bytes of a file system.
struct FileSystemSize {
    std::optional<std::uint64_t> size;
    std::optional<std::uint64_t> freeSize;
};

/// The kernel's counters. Reading may take a moment, so not on the main thread; several threads may
/// read at once. Absent = cannot be read.
class HostStatistics
{
public:
    virtual ~HostStatistics() = default;

    virtual std::optional<ProcessorTicks> processorTicks() const = 0;

    /// Bytes that programs cannot have without another giving some up.
    virtual std::optional<std::uint64_t> usedMemory() const = 0;

    /// Bytes; 0 = cannot be read.
    virtual std::uint64_t physicalMemory() const = 0;

    /// Of the file system mounted at "/".
    virtual FileSystemSize rootFileSystem() const = 0;
};

} // namespace quillmere
