#pragma once

#include "platform/HttpClient.h"
#include "platform/RunLoop.h"

#include <map>
#include <memory>

class QNetworkAccessManager;

namespace quillmere {

class HttpTransfer;

/// HttpClient on Qt's network access. Costs nothing until the first request; the certificates that
/// https needs are read in the background then. Main thread only.
class QtHttpClient : public HttpClient
{
public:
    explicit QtHttpClient(RunLoop &runLoop);
    ~QtHttpClient() override;

    Task send(const HttpRequest &request, std::function<void(const HttpResult &)> done) override;

private:
    struct Pending;

    void begin(quint64 id);
    void finish(quint64 id, const HttpResult &result);

    RunLoop &runLoop_;
    std::unique_ptr<QNetworkAccessManager> manager_;
    std::map<quint64, std::unique_ptr<Pending>> pending_;
    quint64 lastId_ = 0;
    bool isTlsReady_ = false;
    Owner owner_;
};

} // namespace quillmere
