#pragma once

#include "platform/Task.h"

#include <QString>
#include <QUrl>

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

struct WebAuthError {
    enum class Kind {
        Cancelled, ///< by the user, or nothing came back in time
        Failed     ///< there is no browser, or it cannot be made to come back
    };
    Kind kind = Kind::Failed;
    QString text; ///< for people
};

/// Lets the user sign in somewhere with the system's browser, which comes back by a redirect to an
/// address that only this program answers. Main thread only.
class WebAuthSession
{
public:
    using Result = tl::expected<QUrl, WebAuthError>;

    virtual ~WebAuthSession() = default;

    /// Opens `url` and waits, for some minutes, for a redirect to the scheme and path of
    /// `redirect`. `done` gets the whole address once, never from within the call. A session
    /// before is cancelled. Destroying the Task ends the session and `done` is not called.
    virtual Task start(const QUrl &url, const QUrl &redirect,
                       std::function<void(const Result &)> done) = 0;

    /// An address that somebody asked the program to open. True if the session took it.
    virtual bool take(const QUrl &address) = 0;
};

} // namespace quillmere
