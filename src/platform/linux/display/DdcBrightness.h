#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

class QProcess;

namespace quillmere {

/// The brightness of an external display that is asked over its cable (DDC/CI).
///
/// Such a question takes a tenth of a second, looking for displays takes seconds, and either can
/// hang in a display's firmware: so a helper process does both. It ends at once where no display
/// answers; otherwise it asks every 5 s and prints a line when the level changed, which wakes us.
class DdcBrightness
{
public:
    /// Starts the helper, an executable; `onAvailability` tells the first level, and the end.
    DdcBrightness(const QString &helper, std::function<void(bool)> onAvailability);

    /// Leaves the helper to end by itself, for nobody waits for a slow display.
    ~DdcBrightness();
    DdcBrightness(const DdcBrightness &) = delete;
    DdcBrightness &operator=(const DdcBrightness &) = delete;

    /// 0..1, the last one known.
    std::optional<double> level() const { return level_; }

private:
    void read();
    void giveUp(const QByteArray &reason);
    void setLevel(std::optional<double> level);

    std::function<void(bool)> onAvailability_;
    QProcess *process_; // outlives this object until the helper has ended
    std::optional<double> level_;
};

} // namespace quillmere
