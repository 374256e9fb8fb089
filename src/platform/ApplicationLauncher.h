#pragma once

#include <QString>

namespace quillmere {

/// Brings applications to the user. Main thread only.
class ApplicationLauncher
{
public:
    virtual ~ApplicationLauncher() = default;

    /// Starts the application with this bundle identifier, or has it show itself if it runs. One
    /// that is not installed and has a page is opened in the browser; false if it has none.
    virtual bool open(const QString &bundleID) = 0;
};

} // namespace quillmere
