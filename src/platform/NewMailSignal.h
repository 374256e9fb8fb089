#pragma once

#include "platform/Task.h"

#include <QString>

#include <functional>

namespace quillmere {

/// A mail application that tells of new mail by itself, while it runs. Main thread only.
class NewMailSignal
{
public:
    using Listener = std::function<void(const QString &sender, const QString &subject)>;

    virtual ~NewMailSignal() = default;

    /// Either text may be empty.
    virtual Task onNewMail(Listener listener) = 0;
};

} // namespace quillmere
