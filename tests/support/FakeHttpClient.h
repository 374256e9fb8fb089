#pragma once

#include "platform/HttpClient.h"

#include <map>
#include <vector>

namespace quillmere {

/// Keeps requests until the test answers them.
class FakeHttpClient : public HttpClient
{
public:
    Task send(const HttpRequest &request, std::function<void(const HttpResult &)> done) override
    {
        const std::size_t number = requests.size();
        requests.push_back(request);
        waiting_[number] = std::move(done);
        return Task([this, number] { waiting_.erase(number); });
    }

    /// Answers the oldest request that waits; false if none does.
    bool answer(const HttpResult &result)
    {
        if (waiting_.empty())
            return false;
        const auto done = waiting_.extract(waiting_.begin()).mapped();
        done(result);
        return true;
    }

    std::size_t waiting() const { return waiting_.size(); }

    std::vector<HttpRequest> requests; ///< all there were

private:
    std::map<std::size_t, std::function<void(const HttpResult &)>> waiting_;
};

} // namespace quillmere
