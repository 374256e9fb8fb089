#include "platform/linux/net/QtHttpClient.h"

#include "platform/Endpoints.h"
#include "platform/linux/net/HttpTransfer.h"

#include <QNetworkAccessManager>
#include <QSslConfiguration>

#include <utility>

namespace quillmere {

/// `transfer` is absent until the request goes out.
struct QtHttpClient::Pending {
    HttpRequest request;
    std::function<void(const HttpResult &)> done;
    std::unique_ptr<HttpTransfer> transfer;
    Task timeLimit;
};

QtHttpClient::QtHttpClient(RunLoop &runLoop)
    : runLoop_(runLoop)
{
}

QtHttpClient::~QtHttpClient()
{
    pending_.clear(); // before the manager whose replies they are
}

Task QtHttpClient::send(const HttpRequest &request, std::function<void(const HttpResult &)> done)
{
    const quint64 id = ++lastId_;
    auto &pending = pending_[id];
    pending = std::make_unique<Pending>(Pending{request, std::move(done), nullptr, {}});
    pending->timeLimit = runLoop_.after(request.timeLimit, [this, id] {
        finish(id, tl::unexpected(HttpError{HttpError::Kind::TimedOut,
                                            QStringLiteral("no complete answer in time")}));
    });
    if (isTlsReady_ || request.url.scheme() != QLatin1StringView("https")) {
        runLoop_.post(owner_, [this, id] { begin(id); });
    } else {
        runLoop_.background(
            owner_, [] { return QSslConfiguration::defaultConfiguration().isNull(); },
            [this, id](bool) {
                isTlsReady_ = true;
                begin(id);
            });
    }
    return Task([this, id, life = owner_.reference()] {
        if (!life.expired())
            pending_.erase(id);
    });
}

void QtHttpClient::begin(quint64 id)
{
    const auto found = pending_.find(id);
    if (found == pending_.end())
        return;
    const HttpRequest &request = found->second->request;
    if (!mayRequest(request.url, request.isReplacedEndpoint)) {
        return finish(id, tl::unexpected(HttpError{HttpError::Kind::NotPermitted,
                                                   QStringLiteral("only https is asked")}));
    }
    if (!manager_)
        manager_ = std::make_unique<QNetworkAccessManager>();
    found->second->transfer = std::make_unique<HttpTransfer>(
        *manager_, request, [this, id](const HttpResult &result) { finish(id, result); });
}

void QtHttpClient::finish(quint64 id, const HttpResult &result)
{
    const auto node = pending_.extract(id);
    if (!node)
        return;
    // The transfer may be what calls, and a caller's answer may be to destroy this client.
    const std::shared_ptr<Pending> pending = std::move(node.mapped());
    runLoop_.post([pending] {});
    pending->timeLimit.cancel();
    if (pending->transfer)
        pending->transfer->stop();
    pending->done(result);
}

} // namespace quillmere
