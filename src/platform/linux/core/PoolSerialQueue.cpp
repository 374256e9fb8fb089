#include "platform/linux/core/PoolSerialQueue.h"

namespace quillmere {

PoolSerialQueue::PoolSerialQueue(const QString &label)
{
    pool_.setObjectName(label);
    pool_.setMaxThreadCount(1);
}

PoolSerialQueue::~PoolSerialQueue()
{
    pool_.waitForDone();
}

void PoolSerialQueue::async(std::function<void()> work)
{
    pool_.start(std::move(work));
}

void PoolSerialQueue::drain()
{
    pool_.waitForDone();
}

} // namespace quillmere
