#pragma once

#include "platform/Task.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace quillmere {

/// The applications that run with a window, by bundle identifier: canonical for known browsers and
/// players ("com.google.Chrome"), else the name of the application's desktop entry. Main thread
/// only.
class RunningApplications
{
public:
    virtual ~RunningApplications() = default;

    /// In the order in which they came; each once.
    virtual QStringList running() const = 0;

    /// The active application; empty while none is, or where the desktop does not tell.
    virtual QString frontmost() const = 0;

    /// Either of the two changed.
    virtual Task onChanged(std::function<void()> listener) = 0;
};

} // namespace quillmere
