#pragma once

#include "platform/LocationManager.h"
#include "platform/RunLoop.h"
#include "weather/WeatherData.h"
#include "weather/WeatherKit.h"

#include <QObject>

#include <functional>
#include <optional>

namespace quillmere {

class Geocoder;
class HttpClient;
class Reachability;
struct HttpResponse;

/// What the weather service works with.
struct WeatherTools {
    RunLoop &runLoop;
    LocationManager &locationManager;
    Geocoder &geocoder;
    HttpClient &httpClient;
    Keychain &keychain;
    Reachability &reachability;
};

/// Keeps the weather at the user's location: asks the primary service first and the public one when
/// that fails, every 15 minutes, and once it is back on a network after it missed one. A record is
/// only ever replaced by a newer one. Main thread only.
class WeatherService : public QObject, private LocationManagerDelegate
{
    Q_OBJECT
    Q_PROPERTY(std::optional<quillmere::WeatherData> cachedWeather READ cachedWeather NOTIFY
                   cachedWeatherChanged)
    Q_PROPERTY(quillmere::AuthorizationStatus currentAuthStatus READ currentAuthStatus NOTIFY
                   currentAuthStatusChanged)

public:
    static constexpr Duration refreshInterval = std::chrono::minutes(15);
    static constexpr Duration refreshTolerance = std::chrono::minutes(1);
    static constexpr Duration promptDelay = std::chrono::milliseconds(300);

    explicit WeatherService(const WeatherTools &tools, QObject *parent = nullptr);
    ~WeatherService() override;

    /// Gets the location if that is permitted, asks for permission if nobody has decided yet, and
    /// nothing else otherwise.
    void requestLocationIfNeeded();

    /// Asks for permission; `completion` hears the next decision, once.
    void requestPermission(std::function<void(bool isAuthorized)> completion);

    /// Asks for the weather now.
    void refresh();

    /// Gives up what is under way and refreshes no more until asked for the location again.
    void stop();

    const std::optional<WeatherData> &cachedWeather() const { return cachedWeather_; }
    AuthorizationStatus currentAuthStatus() const { return currentAuthStatus_; }
    bool isRunning() const { return isRunning_; }

    /// When the record came; its age is the run loop's now() minus this.
    std::optional<Instant> lastUpdate() const { return lastUpdate_; }

    /// Called with every record that comes, also if it is equal to the one before.
    std::function<void(const WeatherData &)> onWeatherUpdate;

Q_SIGNALS:
    void cachedWeatherChanged();
    void currentAuthStatusChanged();

    /// A record came, so the age starts anew.
    void lastUpdateChanged();

private:
    void locationManagerDidChangeAuthorization() override;
    void locationManagerDidUpdateLocations(const QList<Location> &locations) override;
    void locationManagerDidFailWithError(const QString &description) override;

    void askForPermission();
    void startUpdating();
    void endUpdating();
    void refreshIfOverdue();
    void fetchWeather(const Location &location);
    void fetchNamed(const Location &location);
    void askOpenMeteo(const Location &location);
    void useOpenMeteo(const HttpResponse &response, const QString &locationName);
    void store(WeatherData weather, const QString &locationName);

    WeatherTools tools_;
    WeatherKit weatherKit_;
    Task timer_;
    std::optional<Location> lastLocation_;
    std::optional<WeatherData> cachedWeather_;
    AuthorizationStatus currentAuthStatus_ = AuthorizationStatus::NotDetermined;
    bool isRunning_ = false;
    std::function<void(bool)> pendingLocationCompletion_;
    std::optional<Instant> lastUpdate_;
    Task prompt_;
    Task naming_;
    Task request_;
    Task reachability_;
    Owner owner_;
};

} // namespace quillmere
