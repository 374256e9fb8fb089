#pragma once

#include "platform/SerialQueue.h"

#include <QString>
#include <QThreadPool>

namespace quillmere {

/// SerialQueue on a pool of one thread, which ends by itself after a while without work.
class PoolSerialQueue : public SerialQueue
{
public:
    explicit PoolSerialQueue(const QString &label);
    ~PoolSerialQueue() override;

    void async(std::function<void()> work) override;
    void drain() override;

private:
    QThreadPool pool_;
};

} // namespace quillmere
