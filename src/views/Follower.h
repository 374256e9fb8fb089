#pragma once

#include "views/Spring.h"

#include <QAbstractAnimation>
#include <QQmlParserStatus>
#include <QQmlProperty>
#include <QQmlPropertyValueSource>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// Makes a property follow a value instead of jumping to it: `Follower on width { to: target }`.
///
/// It ticks only while the property is on its way and ends exactly on the value. A new value on the
/// way goes on from where the property is, a spring also with the speed it has. While `enabled` is
/// false, and on the first value, the property jumps.
class Follower : public QAbstractAnimation, public QQmlPropertyValueSource, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlPropertyValueSource QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(double to READ to WRITE setTo NOTIFY toChanged)
    Q_PROPERTY(Curve curve MEMBER curve_)
    Q_PROPERTY(double response READ response WRITE setResponse)
    Q_PROPERTY(double damping READ damping WRITE setDamping)
    Q_PROPERTY(int riseDelay MEMBER riseDelay_)
    Q_PROPERTY(int riseDuration MEMBER riseDuration_)
    Q_PROPERTY(int fallDuration MEMBER fallDuration_)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY enabledChanged)

public:
    enum Curve {
        Spring, ///< response in seconds, damping as a share of the critical one
        Ease,   ///< fast at first, slow at the end
        Linear
    };
    Q_ENUM(Curve)

    explicit Follower(QObject *parent = nullptr);

    double to() const { return to_; }
    void setTo(double value);
    double response() const { return spring_.response; }
    void setResponse(double seconds) { spring_.response = seconds; }
    double damping() const { return spring_.damping; }
    void setDamping(double share) { spring_.damping = share; }
    bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled);

    int duration() const override { return duration_; }

    void setTarget(const QQmlProperty &property) override;
    void classBegin() override {}
    void componentComplete() override;

Q_SIGNALS:
    void toChanged();
    void enabledChanged();

protected:
    void updateCurrentTime(int milliseconds) override;

private:
    void retarget();
    void jump();
    void write(double value);

    QQmlProperty property_;
    double to_ = 0;
    quillmere::Spring spring_;
    Curve curve_ = Spring;
    int riseDelay_ = 0;      ///< ms before a growing value starts to move
    int riseDuration_ = 150; ///< ms, of the curves that are no springs
    int fallDuration_ = 150;
    bool enabled_ = true;
    bool complete_ = false;

    SpringState start_; ///< at the time the animation last started
    SpringState now_;
    int ahead_ = 0; ///< ms that what is shown is ahead of the animation's time
    int delay_ = 0;
    int duration_ = 0;
};

} // namespace quillmere
