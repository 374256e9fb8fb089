#include "platform/linux/display/Backlight.h"

#include <benchmark/benchmark.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace quillmere;

namespace {

/// What asking for the brightness costs five times a second, without the kernel's own work.
void brightnessPoll(benchmark::State &state)
{
    const QTemporaryDir root;
    const QDir device(root.filePath(QStringLiteral("class/backlight/panel")));
    device.mkpath(QStringLiteral("."));
    for (const auto &name : {QStringLiteral("brightness"), QStringLiteral("max_brightness")}) {
        QFile file(device.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write("19393\n") < 0)
            return state.SkipWithError("no temporary file");
    }
    const auto backlight = Backlight::find(root.path());
    if (!backlight)
        return state.SkipWithError("no backlight");
    while (state.KeepRunning())
        benchmark::DoNotOptimize(backlight->level());
}
BENCHMARK(brightnessPoll);

} // namespace
