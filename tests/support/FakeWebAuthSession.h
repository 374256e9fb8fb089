#pragma once

#include "platform/WebAuthSession.h"

#include <utility>

namespace quillmere {

/// A browser whose user is the test.
struct FakeWebAuthSession : WebAuthSession {
    Task start(const QUrl &url, const QUrl &redirect,
               std::function<void(const Result &)> done) override
    {
        opened = url;
        expected = redirect;
        waiting = std::move(done);
        return Task([this] { waiting = nullptr; });
    }
    bool take(const QUrl &) override { return false; }
    void answer(const Result &result)
    {
        if (const auto done = std::exchange(waiting, nullptr))
            done(result);
    }

    QUrl opened;
    QUrl expected;
    std::function<void(const Result &)> waiting;
};

} // namespace quillmere
