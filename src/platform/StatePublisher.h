#pragma once

#include <QString>
#include <QVariant>

namespace quillmere {

/// Makes the island's state readable for other programs. A value equal to the one published before
/// announces nothing. Main thread only.
class StatePublisher
{
public:
    virtual ~StatePublisher() = default;
    virtual void publish(const QString &property, const QVariant &value) = 0;
};

} // namespace quillmere
