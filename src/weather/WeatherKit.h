#pragma once

#include "platform/Keychain.h"
#include "platform/LocationManager.h"
#include "platform/RunLoop.h"
#include "weather/WeatherData.h"

#include <tl/expected.hpp>

#include <functional>

namespace quillmere {

class HttpClient;
struct HttpRequest;

/// The primary weather service. It answers those only who have put a developer token into their
/// keyring; without one it fails before anything is sent. One request at a time. Main thread only.
class WeatherKit
{
public:
    /// The record without the name of the place, or why there is none.
    using Result = tl::expected<WeatherData, QString>;
    using Done = std::function<void(const Result &)>;

    static constexpr QLatin1StringView keychainService{"com.quillmere.weatherkit"};
    static constexpr QLatin1StringView keychainAccount{"developer-token"};

    /// A keyring that waits for its user must not hold up the weather.
    static constexpr Duration tokenTimeLimit = std::chrono::seconds(3);

    WeatherKit(RunLoop &runLoop, HttpClient &httpClient, Keychain &keychain);

    /// `done` gets the outcome once, never from within the call. A request before is given up.
    void fetch(const Location &location, Done done);
    void cancel();

private:
    void readToken();
    void useToken(const Keychain::Secret &secret);
    void send();
    void finish(const Result &result);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    Keychain &keychain_;
    Location location_;
    Done done_;
    QString token_;
    bool isRefused_ = false;
    bool isReading_ = false;
    Task reading_;
    Task timeLimit_;
    Task request_;
    Owner owner_;
};

} // namespace quillmere
