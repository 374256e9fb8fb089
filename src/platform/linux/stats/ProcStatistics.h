#pragma once

#include "platform/HostStatistics.h"

#include <QString>

namespace quillmere {

/// Counters from files in the form of /proc, and the file system's from the kernel.
class ProcStatistics : public HostStatistics
{
public:
    explicit ProcStatistics(QString procFolder = QStringLiteral("/proc"));

    /// The four kinds of work are summed up from the kernel's finer ones: what interrupts and the
    /// host of a virtual machine take is the system's, waiting for a disk is idle.
    std::optional<ProcessorTicks> processorTicks() const override;

    /// What is neither free nor held for files only.
    std::optional<std::uint64_t> usedMemory() const override;
    std::uint64_t physicalMemory() const override;

    /// Free is also what only the administrator may fill.
    FileSystemSize rootFileSystem() const override;

private:
    const QString procFolder_;
};

} // namespace quillmere
