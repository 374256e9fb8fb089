#pragma once

#include "platform/RunLoop.h"
#include "platform/WebAuthSession.h"
#include "platform/linux/desktop/SchemeHandler.h"

#include <memory>
#include <optional>

namespace quillmere {

/// Signing in with the default browser. While a session runs, the scheme of its redirect is
/// registered with the desktop, which starts the program with the address; and a second start hands
/// it to the first one. What a crash has left registered is removed at start.
class BrowserAuthSession : public WebAuthSession
{
public:
    using OpenBrowser = std::function<bool(const QUrl &)>;

    static constexpr Duration timeLimit = std::chrono::minutes(5);

    BrowserAuthSession(RunLoop &runLoop, SchemeHandlerPlaces places, OpenBrowser openBrowser);
    ~BrowserAuthSession() override;

    Task start(const QUrl &url, const QUrl &redirect,
               std::function<void(const Result &)> done) override;
    bool take(const QUrl &address) override;

private:
    struct Session {
        quint64 id = 0;
        QUrl url;
        QUrl redirect;
        std::function<void(const Result &)> done;
        bool isOpen = false; ///< the browser has been sent there
        Task timeLimit{};
    };

    void registered(quint64 id, const tl::expected<void, QString> &outcome);
    void finish(const Result &result);
    std::optional<Session> end();

    RunLoop &runLoop_;
    const SchemeHandlerPlaces places_;
    const OpenBrowser openBrowser_;
    std::optional<Session> session_;
    quint64 lastId_ = 0;
    Owner owner_;
    std::unique_ptr<SerialQueue> queue_;
};

} // namespace quillmere
