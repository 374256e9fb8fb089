#include "weather/WeatherService.h"

#include "platform/Endpoints.h"
#include "platform/Geocoder.h"
#include "platform/HttpClient.h"
#include "platform/Reachability.h"
#include "weather/OpenMeteo.h"

#include <QDebug>

namespace quillmere {

namespace {

constexpr qint64 largestAnswer = 256LL * 1024;
constexpr int ok = 200;

bool isAuthorized(AuthorizationStatus status)
{
    return status == AuthorizationStatus::AuthorizedAlways;
}

QString nameOf(const std::optional<Placemark> &placemark)
{
    if (placemark && !placemark->locality.isEmpty())
        return placemark->locality;
    if (placemark && !placemark->name.isEmpty())
        return placemark->name;
    return WeatherService::tr("Current Location");
}

void logOpenMeteoFailure(const QString &why)
{
    qWarning("[WeatherService] Open-Meteo request failed: %s", qUtf8Printable(why));
}

} // namespace

WeatherService::WeatherService(const WeatherTools &tools, QObject *parent)
    : QObject(parent)
    , tools_(tools)
    , weatherKit_(tools.runLoop, tools.httpClient, tools.keychain)
{
    tools_.locationManager.setDelegate(this);
    tools_.locationManager.setDesiredAccuracy(locationAccuracyKilometer);
    currentAuthStatus_ = tools_.locationManager.authorizationStatus();
}

WeatherService::~WeatherService()
{
    tools_.locationManager.stopUpdatingLocation();
    tools_.locationManager.setDelegate(nullptr);
}

void WeatherService::requestLocationIfNeeded()
{
    const auto status = tools_.locationManager.authorizationStatus();
    qInfo("[WeatherService] requestLocationIfNeeded — status: %d", static_cast<int>(status));
    if (isAuthorized(status))
        startUpdating();
    else if (status == AuthorizationStatus::NotDetermined)
        askForPermission();
}

void WeatherService::requestPermission(std::function<void(bool)> completion)
{
    pendingLocationCompletion_ = std::move(completion);
    askForPermission();
}

void WeatherService::askForPermission()
{
    // Whoever asks the user on our behalf brings its own question to the front.
    prompt_ = tools_.runLoop.after(promptDelay,
                                   [this] { tools_.locationManager.requestAlwaysAuthorization(); });
}

void WeatherService::startUpdating()
{
    tools_.locationManager.startUpdatingLocation();
    if (isRunning_)
        return;
    isRunning_ = true;
    timer_ = tools_.runLoop.every(refreshInterval, refreshTolerance, [this] { refresh(); });
    reachability_ = tools_.reachability.onReturn([this] { refreshIfOverdue(); });
}

void WeatherService::stop()
{
    prompt_.cancel();
    endUpdating();
}

void WeatherService::endUpdating()
{
    isRunning_ = false;
    for (Task *task : {&timer_, &naming_, &request_, &reachability_})
        task->cancel();
    weatherKit_.cancel();
    tools_.locationManager.stopUpdatingLocation();
}

void WeatherService::locationManagerDidChangeAuthorization()
{
    const auto status = tools_.locationManager.authorizationStatus();
    const bool hasChanged = std::exchange(currentAuthStatus_, status) != status;
    qInfo("[WeatherService] Authorization changed: %d", static_cast<int>(status));
    lastLocation_.reset(); // where nobody lets us look any more, or a place that was forgotten
    if (isAuthorized(status))
        startUpdating();
    else
        endUpdating();
    if (auto completion = std::exchange(pendingLocationCompletion_, nullptr)) {
        tools_.runLoop.post(owner_, [completion = std::move(completion), status] {
            completion(isAuthorized(status));
        });
    }
    if (hasChanged)
        Q_EMIT currentAuthStatusChanged();
}

void WeatherService::locationManagerDidUpdateLocations(const QList<Location> &locations)
{
    if (locations.isEmpty())
        return;
    lastLocation_ = locations.last();
    tools_.locationManager.stopUpdatingLocation();
    fetchWeather(*lastLocation_);
}

void WeatherService::locationManagerDidFailWithError(const QString &description)
{
    qWarning("[WeatherService] Location error: %s", qUtf8Printable(description));
}

void WeatherService::refresh()
{
    if (!lastLocation_)
        return tools_.locationManager.startUpdatingLocation();
    fetchWeather(*lastLocation_);
}

void WeatherService::refreshIfOverdue()
{
    if (!lastUpdate_ || tools_.runLoop.now() - *lastUpdate_ >= refreshInterval)
        refresh();
}

void WeatherService::fetchWeather(const Location &location)
{
    // The newest question counts; one under way may have been lost with its network.
    request_.cancel();
    weatherKit_.cancel();
    naming_.cancel();
    if (!location.name.isEmpty())
        return fetchNamed(location);
    naming_ =
        tools_.geocoder.reverseGeocode(location.latitude, location.longitude,
                                       [this, location](const std::optional<Placemark> &placemark) {
                                           Location named = location;
                                           named.name = nameOf(placemark);
                                           // Where this machine is has its name until there is
                                           // another fix.
                                           if (placemark && lastLocation_ == location)
                                               lastLocation_ = named;
                                           fetchNamed(named);
                                       });
}

void WeatherService::fetchNamed(const Location &location)
{
    weatherKit_.fetch(location, [this, location](const WeatherKit::Result &result) {
        if (!result) {
            qCritical("[WeatherService] WeatherKit fetch failed, falling back to Open-Meteo: %s",
                      qUtf8Printable(result.error()));
            return askOpenMeteo(location);
        }
        store(*result, location.name);
        qInfo("[WeatherService] Updated from WeatherKit: %.1f°C, %s", result->temperature,
              qUtf8Printable(result->conditionLabel));
    });
}

void WeatherService::askOpenMeteo(const Location &location)
{
    const Endpoint server = endpoint(EndpointName::OpenMeteo);
    const HttpRequest request{.url =
                                  openMeteoUrl(server.url, location.latitude, location.longitude),
                              .isReplacedEndpoint = server.isReplaced,
                              .responseLimit = largestAnswer};
    request_ =
        tools_.httpClient.send(request, [this, name = location.name](const HttpResult &result) {
            if (!result)
                return logOpenMeteoFailure(result.error().text);
            useOpenMeteo(*result, name);
        });
}

void WeatherService::useOpenMeteo(const HttpResponse &response, const QString &locationName)
{
    if (response.status != ok)
        return logOpenMeteoFailure(QStringLiteral("HTTP %1").arg(response.status));
    const auto weather = openMeteoWeather(response.body);
    if (!weather)
        return logOpenMeteoFailure(QStringLiteral("no current weather in the answer"));
    store(*weather, locationName);
}

void WeatherService::store(WeatherData weather, const QString &locationName)
{
    weather.locationName = locationName;
    lastUpdate_ = tools_.runLoop.now();
    const bool hasChanged = cachedWeather_ != weather;
    if (hasChanged)
        cachedWeather_ = weather;
    Q_EMIT lastUpdateChanged();
    if (hasChanged)
        Q_EMIT cachedWeatherChanged();
    if (onWeatherUpdate)
        onWeatherUpdate(weather);
}

} // namespace quillmere
