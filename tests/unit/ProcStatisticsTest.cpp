#include "platform/linux/stats/ProcStatistics.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace quillmere {
namespace {

constexpr char independentReading[] = R"(
import os
ticks = [int(word) for word in open('/proc/stat').readline().split()[1:9]]
memory = dict(line.split()[:2] for line in open('/proc/meminfo'))
total, available = (int(memory[name]) * 1024 for name in ('MemTotal:', 'MemAvailable:'))
disk = os.statvfs('/')
print(sum(ticks), ticks[3] + ticks[4], total - available, total,
      disk.f_blocks * disk.f_frsize, disk.f_bfree * disk.f_frsize))";

QList<double> readIndependently()
{
    QProcess python;
    python.start(QStringLiteral("python3"),
                 {QStringLiteral("-c"), QString::fromLatin1(independentReading)});
    python.waitForFinished();
    QList<double> numbers;
    for (const QByteArray &word : python.readAllStandardOutput().trimmed().split(' '))
        numbers << word.toDouble();
    return numbers;
}

TEST(ProcStatisticsTest, LiesBetweenTwoReadingsOfAnotherProgram)
{
    const ProcStatistics host;
    const auto before = readIndependently();
    const auto ticks = host.processorTicks().value();
    const auto disk = host.rootFileSystem();
    const double ours[] = {double(ticks.user + ticks.system + ticks.idle + ticks.nice),
                           double(ticks.idle),
                           double(host.usedMemory().value()),
                           double(host.physicalMemory()),
                           double(disk.size.value()),
                           double(disk.freeSize.value())};
    const auto after = readIndependently();
    const double slack[] = {0, 0, 256e6, 0, 0, 256e6}; // what others take meanwhile
    for (int i = 0; i < 6; ++i) {
        EXPECT_GE(ours[i], std::min(before.at(i), after.at(i)) - slack[i]) << i;
        EXPECT_LE(ours[i], std::max(before.at(i), after.at(i)) + slack[i]) << i;
    }
}

TEST(ProcStatisticsTest, WhatCannotBeReadIsAbsent)
{
    const struct {
        const char *stat;
        const char *meminfo;
    } cases[] = {
        {"", ""},
        {"cpu  1 2 3 4 5 6 7\n", "MemTotal: 8 kB\n"},
        {"cpu0 1 2 3 4 5 6 7 8\n", "MemTotal: x kB\nMemAvailable: 4 kB\n"},
        {"cpu  1 2 3 -4 5 6 7 8\n", "MemTotal: 4 kB\nMemAvailable: 8 kB\n"},
    };
    const QTemporaryDir folder;
    const ProcStatistics host(folder.path());
    for (const auto &each : cases) {
        EXPECT_FALSE(host.processorTicks()) << each.stat;
        EXPECT_FALSE(host.usedMemory()) << each.meminfo;
        for (const auto &[name, text] :
             {std::pair{"stat", each.stat}, std::pair{"meminfo", each.meminfo}}) {
            QFile file(folder.filePath(QString::fromLatin1(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(text);
        }
    }
}

} // namespace
} // namespace quillmere
