#include "platform/linux/desktop/BrowserAuthSession.h"

#include <QCoreApplication>

#include <utility>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(BrowserAuthSession)
};

tl::unexpected<WebAuthError> failure(QString text)
{
    return tl::unexpected(WebAuthError{WebAuthError::Kind::Failed, std::move(text)});
}

tl::unexpected<WebAuthError> cancelled()
{
    return tl::unexpected(WebAuthError{WebAuthError::Kind::Cancelled, {}});
}

bool isRedirectTo(const QUrl &address, const QUrl &redirect)
{
    return address.isValid() && address.scheme() == redirect.scheme() &&
           address.authority().isEmpty() &&
           address.path(QUrl::FullyEncoded) == redirect.path(QUrl::FullyEncoded);
}

} // namespace

BrowserAuthSession::BrowserAuthSession(RunLoop &runLoop, SchemeHandlerPlaces places,
                                       OpenBrowser openBrowser)
    : runLoop_(runLoop)
    , places_(std::move(places))
    , openBrowser_(std::move(openBrowser))
    , queue_(runLoop.makeSerialQueue(QStringLiteral("sign-in")))
{
    queue_->async([places = places_] { removeSchemeHandler(places); });
}

BrowserAuthSession::~BrowserAuthSession()
{
    (void)end();
}

Task BrowserAuthSession::start(const QUrl &url, const QUrl &redirect,
                               std::function<void(const Result &)> done)
{
    if (session_)
        finish(cancelled());
    const quint64 id = ++lastId_;
    session_ = Session{.id = id, .url = url, .redirect = redirect, .done = std::move(done)};
    session_->timeLimit = runLoop_.after(timeLimit, [this] { finish(cancelled()); });
    queue_->async(
        [this, id, places = places_, scheme = redirect.scheme(), life = owner_.reference()] {
            const auto outcome = installSchemeHandler(places, scheme);
            // The queue is emptied before this object is gone, but not what was posted from it.
            runLoop_.post([this, id, outcome, life] {
                if (!life.expired())
                    registered(id, outcome);
            });
        });
    return Task([this, id, life = owner_.reference()] {
        if (!life.expired() && session_ && session_->id == id)
            (void)end();
    });
}

bool BrowserAuthSession::take(const QUrl &address)
{
    if (!session_ || !session_->isOpen || !isRedirectTo(address, session_->redirect))
        return false;
    finish(address);
    return true;
}

void BrowserAuthSession::registered(quint64 id, const tl::expected<void, QString> &outcome)
{
    if (!session_ || session_->id != id)
        return;
    if (!outcome)
        return finish(
            failure(Words::tr("The browser would not find its way back: %1").arg(outcome.error())));
    session_->isOpen = true;
    if (!openBrowser_(session_->url))
        finish(failure(Words::tr("There is no browser to sign in with.")));
}

void BrowserAuthSession::finish(const Result &result)
{
    if (const auto session = end())
        session->done(result);
}

std::optional<BrowserAuthSession::Session> BrowserAuthSession::end()
{
    auto session = std::exchange(session_, std::nullopt);
    if (session) {
        session->timeLimit.cancel();
        queue_->async([places = places_] { removeSchemeHandler(places); });
    }
    return session;
}

} // namespace quillmere
