#pragma once

#include <QLatin1StringView>

#include <functional>
#include <optional>

namespace quillmere {

/// What one source tells of Do Not Disturb.
struct FocusReport {
    QLatin1StringView teller; ///< as its users know it
    bool isOn = false;
    bool operator==(const FocusReport &) const = default;
};

/// A place where a desktop or its notification server keeps Do Not Disturb. Main thread only.
class FocusSource
{
public:
    FocusSource() = default;
    virtual ~FocusSource() = default;
    FocusSource(const FocusSource &) = delete;
    FocusSource &operator=(const FocusSource &) = delete;

    /// Absent while the source is not there or has not answered.
    const std::optional<FocusReport> &report() const { return report_; }

    std::function<void()> onChanged; ///< of the report; never from a constructor

protected:
    void tell(std::optional<FocusReport> report);

private:
    std::optional<FocusReport> report_;
};

} // namespace quillmere
