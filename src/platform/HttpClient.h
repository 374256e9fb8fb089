#pragma once

#include "platform/Task.h"
#include "platform/Time.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QUrl>

#include <tl/expected.hpp>

#include <functional>
#include <utility>

namespace quillmere {

using HttpHeaders = QList<std::pair<QByteArray, QByteArray>>;

struct HttpRequest {
    QUrl url;
    bool isReplacedEndpoint = false; ///< see Endpoint: permits http on 127.0.0.1
    QByteArray method = "GET";
    HttpHeaders headers{};
    QByteArray body{};
    qint64 responseLimit = 1'048'576;              ///< bytes of the body, after decompression
    Duration timeLimit = std::chrono::seconds(10); ///< for the whole answer, redirects included
};

/// An answer of the server, whatever its status.
struct HttpResponse {
    int status = 0;
    HttpHeaders headers{}; ///< names in lower case
    QByteArray body{};
};

struct HttpError {
    enum class Kind {
        NotPermitted, ///< the address, or the one redirected to, is not one to ask
        TimedOut,
        TooLarge,
        Failed ///< no connection, no answer, a broken answer, an untrusted certificate
    };
    Kind kind = Kind::Failed;
    QString text; ///< for the log
};

using HttpResult = tl::expected<HttpResponse, HttpError>;

/// Requests over https. Redirects are followed up to five times, to addresses that could be asked
/// directly, and with a body or an "Authorization" header only on the same host. No cookies are
/// kept or sent. Main thread only.
class HttpClient
{
public:
    virtual ~HttpClient() = default;

    /// `done` gets the outcome once, never from within send(); destroying the Task ends the request
    /// and `done` is not called.
    virtual Task send(const HttpRequest &request, std::function<void(const HttpResult &)> done) = 0;
};

} // namespace quillmere
