#include "views/Follower.h"

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

/// The part of the way at which a spring's rest is invisible, and the least of it for short ways.
constexpr double restShare = 0.002;
constexpr double leastRest = 0.0005;

/// An animation shows where it will be when its frame is seen. Without it the first frame after an
/// event would still show the state before it.
constexpr int frameAhead = 16; // ms

double eased(Follower::Curve curve, double progress)
{
    const double left = 1 - progress;
    return curve == Follower::Ease ? 1 - left * left * left : progress;
}

} // namespace

Follower::Follower(QObject *parent)
    : QAbstractAnimation(parent)
{
}

void Follower::setTarget(const QQmlProperty &property)
{
    property_ = property;
}

void Follower::componentComplete()
{
    complete_ = true;
    jump();
}

void Follower::setTo(double value)
{
    if (value == to_ || !std::isfinite(value))
        return;
    now_.offset += to_ - value;
    to_ = value;
    if (complete_)
        retarget();
    Q_EMIT toChanged();
}

void Follower::setEnabled(bool enabled)
{
    if (enabled == enabled_)
        return;
    enabled_ = enabled;
    if (!enabled_ && complete_)
        jump();
    Q_EMIT enabledChanged();
}

void Follower::retarget()
{
    ahead_ = state() == Running ? 0 : frameAhead; // what moves already is ahead
    stop();
    const bool rising = now_.offset < 0;
    start_ = now_;
    delay_ = rising ? riseDelay_ : 0;
    if (curve_ == Spring) {
        const double rest =
            std::max(leastRest, restShare * std::min(10.0, std::abs(start_.offset)));
        duration_ = static_cast<int>(std::ceil(1000 * settlingTime(spring_, start_, rest)));
    } else {
        start_.velocity = 0;
        duration_ = rising ? riseDuration_ : fallDuration_;
    }
    if (!enabled_ || duration_ <= 0) {
        jump();
        return;
    }
    duration_ = std::max(1, delay_ + duration_ - ahead_);
    start();
}

void Follower::jump()
{
    stop();
    now_ = {};
    write(to_);
}

void Follower::updateCurrentTime(int milliseconds)
{
    if (state() != Running)
        return;
    if (milliseconds >= duration_) {
        now_ = {};
    } else if (const int elapsed = std::max(0, milliseconds + ahead_ - delay_); curve_ == Spring) {
        now_ = springAt(spring_, start_, elapsed / 1000.0);
    } else {
        const double progress = static_cast<double>(elapsed) / (duration_ + ahead_ - delay_);
        now_.offset = start_.offset * (1 - eased(curve_, progress));
    }
    write(to_ + now_.offset);
}

void Follower::write(double value)
{
    if (property_.isValid())
        property_.write(value);
}

} // namespace quillmere
