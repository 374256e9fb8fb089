#include "platform/linux/stats/ProcStatistics.h"

#include <QByteArrayView>
#include <QFile>

#include <sys/statvfs.h>

#include <array>
#include <charconv>

namespace quillmere {

namespace {

constexpr qint64 longestFile = 65'536; // what is asked for stands in the first lines

QByteArray head(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(longestFile) : QByteArray();
}

/// The next number of `text`, which is cut behind it.
std::optional<std::uint64_t> takeNumber(QByteArrayView &text)
{
    while (text.startsWith(' '))
        text = text.sliced(1);
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error != std::errc())
        return std::nullopt;
    text = text.sliced(end - text.begin());
    return number;
}

/// Memory in bytes from the line of this name.
std::optional<std::uint64_t> memory(const QByteArray &meminfo, QByteArrayView name)
{
    const qsizetype at = meminfo.indexOf(name);
    if (at < 0)
        return std::nullopt;
    auto rest = QByteArrayView(meminfo).sliced(at + name.size());
    const auto kilobytes = takeNumber(rest);
    return kilobytes ? std::optional(*kilobytes * 1024) : std::nullopt;
}

} // namespace

ProcStatistics::ProcStatistics(QString procFolder)
    : procFolder_(std::move(procFolder))
{
}

std::optional<ProcessorTicks> ProcStatistics::processorTicks() const
{
    const QByteArray text = head(procFolder_ + QStringLiteral("/stat"));
    if (!text.startsWith("cpu ")) // the line of all processors together
        return std::nullopt;
    enum Kind { User, Nice, System, Idle, Wait, Interrupt, SoftInterrupt, Stolen, KindCount };
    std::array<std::uint64_t, KindCount> ticks{};
    auto rest = QByteArrayView(text).sliced(4);
    for (std::uint64_t &count : ticks) {
        const auto number = takeNumber(rest);
        if (!number)
            return std::nullopt;
        count = *number;
    }
    return ProcessorTicks{.user = ticks[User], // guests included
                          .system = ticks[System] + ticks[Interrupt] + ticks[SoftInterrupt] +
                                    ticks[Stolen],
                          .idle = ticks[Idle] + ticks[Wait],
                          .nice = ticks[Nice]};
}

std::optional<std::uint64_t> ProcStatistics::usedMemory() const
{
    const QByteArray text = head(procFolder_ + QStringLiteral("/meminfo"));
    const auto total = memory(text, "MemTotal:");
    const auto available = memory(text, "MemAvailable:");
    if (!total || !available || *available > *total)
        return std::nullopt;
    return *total - *available;
}

std::uint64_t ProcStatistics::physicalMemory() const
{
    return memory(head(procFolder_ + QStringLiteral("/meminfo")), "MemTotal:").value_or(0);
}

FileSystemSize ProcStatistics::rootFileSystem() const
{
    struct statvfs system {
    };
    if (::statvfs("/", &system) != 0)
        return {};
    const std::uint64_t block = system.f_frsize;
    return {.size = system.f_blocks * block, .freeSize = system.f_bfree * block};
}

} // namespace quillmere
