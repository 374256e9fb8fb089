#include "platform/linux/stats/ProcStatistics.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>

namespace quillmere {
namespace {

/// The same numbers read by another program: total and idle ticks, used and physical memory, size
/// and free size of the disk.
QList<double> readIndependently()
{
    QProcess python;
    python.start(
        QStringLiteral("python3"),
        {QStringLiteral("-c"),
         QStringLiteral("import os\n"
                        "t = [int(w) for w in open('/proc/stat').readline().split()[1:9]]\n"
                        "m = dict(l.split()[:2] for l in open('/proc/meminfo'))\n"
                        "m = {k: int(v) * 1024 for k, v in m.items()}\n"
                        "d = os.statvfs('/')\n"
                        "print(sum(t), t[3] + t[4],\n"
                        "      m['MemTotal:'] - m['MemAvailable:'], m['MemTotal:'],\n"
                        "      d.f_blocks * d.f_frsize, d.f_bfree * d.f_frsize)\n")});
    python.waitForFinished();
    QList<double> numbers;
    for (const QByteArray &word : python.readAllStandardOutput().split(' '))
        numbers << word.trimmed().toDouble();
    return numbers;
}

QList<double> read(const HostStatistics &host)
{
    const auto ticks = host.processorTicks().value();
    const auto disk = host.rootFileSystem();
    return {double(ticks.user + ticks.system + ticks.idle + ticks.nice),
            double(ticks.idle),
            double(host.usedMemory().value()),
            double(host.physicalMemory()),
            double(disk.size.value()),
            double(disk.freeSize.value())};
}

TEST(ProcStatisticsTest, LiesBetweenTwoReadingsOfAnotherProgram)
{
    const double slack[] = {0, 0, 256e6, 0, 0, 256e6}; // what others take meanwhile
    const auto before = readIndependently();
    const auto ours = read(ProcStatistics());
    const auto after = readIndependently();
    ASSERT_EQ(before.size(), ours.size());
    for (qsizetype i = 0; i < ours.size(); ++i) {
        EXPECT_GE(ours[i], std::min(before[i], after[i]) - slack[i]) << i;
        EXPECT_LE(ours[i], std::max(before[i], after[i]) + slack[i]) << i;
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
        {"cpu  99999999999999999999 2 3 4 5 6 7 8\n", "MemAvailable: 8 kB\n"},
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
