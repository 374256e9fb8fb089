#pragma once

namespace quillmere {

/// One warning for every discharge: when the charge falls to the threshold, and not again until the
/// charger was connected or the charge has risen above it.
class LowBatteryRule
{
public:
    /// Whether to warn now. Levels and threshold in percent.
    bool warns(int level, int previousLevel, int threshold, bool isPluggedIn);

    /// The charger was connected.
    void rearm() { hasReportedLowBattery_ = false; }

    bool hasReportedLowBattery() const { return hasReportedLowBattery_; }

private:
    bool hasReportedLowBattery_ = false;
};

/// A threshold as it is stored, cut to whole percent.
int wholePercent(double threshold);

} // namespace quillmere
