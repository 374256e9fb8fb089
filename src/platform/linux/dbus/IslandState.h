#pragma once

#include "platform/Owner.h"
#include "platform/RunLoop.h"
#include "platform/StatePublisher.h"

#include <QObject>
#include <QSet>
#include <QVariantMap>

#include <functional>

namespace quillmere {

/// The published state, kept as dynamic properties of `holder`, where the bus adaptor reads it.
/// Changes are announced together, once per turn of the event loop. Main thread only.
class IslandState : public StatePublisher
{
public:
    /// `holder` must outlive this object. Every property starts as the empty value of its type.
    IslandState(RunLoop &runLoop, QObject &holder);

    /// `value` has exactly the type of the property in IslandProperties.h; what dictionaries and
    /// lists hold is bool, int, qint64, double, QString, QStringList or again a dictionary or list.
    /// Anything else is a mistake of ours: logged as critical and ignored.
    void publish(const QString &property, const QVariant &value) override;

    /// Called with the new values of what has changed.
    std::function<void(const QVariantMap &changed)> onChanged;

private:
    void announce();

    RunLoop &runLoop_;
    QObject &holder_;
    QSet<QString> changed_;
    Owner owner_;
};

} // namespace quillmere
