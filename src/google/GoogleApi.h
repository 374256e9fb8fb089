#pragma once

#include "google/Backoff.h"
#include "platform/Endpoints.h"
#include "platform/RunLoop.h"

#include <QJsonObject>

#include <functional>
#include <optional>

namespace quillmere {

class GoogleAuthManager;

/// Asks one of Google's services in the name of who is signed in, one request at a time. What goes
/// wrong is logged here: each time, but of an outage of the network only the first. Without a
/// sign-in it is silent. Main thread only.
class GoogleApi
{
public:
    /// `name`, for the log: "Gmail".
    GoogleApi(RunLoop &runLoop, HttpClient &httpClient, GoogleAuthManager &authManager,
              EndpointName endpointName, QLatin1StringView name);

    /// False while the service wants to be left alone.
    bool mayAsk() const { return backoff_.mayAsk(runLoop_.now()); }

    /// `done` gets the object that was answered, or nothing; once, never from within the call. A
    /// request before is given up.
    using Done = std::function<void(const std::optional<QJsonObject> &)>;
    void get(const QString &pathAndQuery, Done done);
    void cancel();

    /// When the last answer was given, by the service's own clock, or by ours if it does not tell.
    QDateTime answeredAt() const { return answeredAt_; }

private:
    void send(const QString &pathAndQuery, const QString &accessToken);
    void take(const HttpResult &result);
    void fail(const QString &description);
    void finish(const std::optional<QJsonObject> &answer);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    GoogleAuthManager &authManager_;
    const EndpointName endpointName_;
    const QLatin1StringView name_;
    Backoff backoff_;
    bool isOffline_ = false;
    QDateTime answeredAt_;
    Done done_;
    Task token_;
    Task request_;
};

} // namespace quillmere
