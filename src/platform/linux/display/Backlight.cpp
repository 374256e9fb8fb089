#include "platform/linux/display/Backlight.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <unistd.h>

namespace quillmere {

namespace {

/// The driver's last set level, which the kernel answers from memory. "actual_brightness" asks the
/// hardware instead: through firmware code or the display link that takes milliseconds, in another
/// scale on some drivers, and 0 while the screen is only blanked. Keys handled by the firmware
/// reach the kernel as events, after which this value is right as well.
const QString levelFile = QStringLiteral("brightness");
const QString levelFileElse = QStringLiteral("actual_brightness");

constexpr std::array preferredTypes{"firmware", "platform", "raw"};

QByteArray readAttribute(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(64).trimmed() : QByteArray();
}

/// The lower, the better.
auto rank(const QString &directory)
{
    const auto type = readAttribute(directory + QStringLiteral("/type"));
    const auto *found = std::find(preferredTypes.begin(), preferredTypes.end(), type);
    const bool unused = readAttribute(directory + QStringLiteral("/device/enabled")) == "disabled";
    return std::pair(unused, found - preferredTypes.begin());
}

int openForReading(const QString &path)
{
    return ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

} // namespace

Backlight::Backlight(QString name, int file, double maximum)
    : name_(std::move(name))
    , file_(file)
    , maximum_(maximum)
{
}

Backlight::~Backlight()
{
    ::close(file_);
}

std::shared_ptr<const Backlight> Backlight::find(const QString &sysfsRoot)
{
    const QDir all(sysfsRoot + QStringLiteral("/class/backlight"));
    auto names = all.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    std::stable_sort(names.begin(), names.end(), [&all](const QString &one, const QString &other) {
        return rank(all.filePath(one)) < rank(all.filePath(other));
    });
    for (const auto &name : names) {
        if (auto device = open(all.filePath(name), name))
            return device;
    }
    return nullptr;
}

std::shared_ptr<const Backlight> Backlight::open(const QString &directory, const QString &name)
{
    const double maximum = readAttribute(directory + QStringLiteral("/max_brightness")).toDouble();
    if (!(maximum > 0))
        return nullptr;
    for (const auto &attribute : {levelFile, levelFileElse}) {
        const int file = openForReading(directory + QLatin1Char('/') + attribute);
        if (file < 0)
            continue;
        std::shared_ptr<const Backlight> device(new Backlight(name, file, maximum));
        if (device->level())
            return device;
    }
    return nullptr;
}

std::optional<double> Backlight::level() const
{
    std::array<char, 24> text;
    const auto size = ::pread(file_, text.data(), text.size(), 0);
    long raw = 0;
    if (size <= 0 || std::from_chars(text.data(), text.data() + size, raw).ec != std::errc())
        return std::nullopt;
    return std::clamp(static_cast<double>(raw) / maximum_, 0.0, 1.0);
}

} // namespace quillmere
