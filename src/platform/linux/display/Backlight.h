#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace quillmere {

/// The backlight of a panel, kept open: its level costs one read of an open file, no look-up.
class Backlight
{
public:
    /// The device that drives the panel below `sysfsRoot`, or none. Several can claim the same
    /// panel; then the kernel's advice decides: firmware before platform before raw, and first of
    /// all those whose output is in use. Any thread; may wait for the kernel.
    static std::shared_ptr<const Backlight> find(const QString &sysfsRoot);

    Backlight(const Backlight &) = delete;
    Backlight &operator=(const Backlight &) = delete;
    ~Backlight();

    const QString &name() const { return name_; }

    /// 0..1; absent once the device is gone.
    std::optional<double> level() const;

private:
    Backlight(QString name, int file, double maximum);

    static std::shared_ptr<const Backlight> open(const QString &directory, const QString &name);

    QString name_;
    int file_;
    double maximum_; // raw
};

} // namespace quillmere
