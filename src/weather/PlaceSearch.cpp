#include "weather/PlaceSearch.h"

#include "platform/Endpoints.h"
#include "platform/HttpClient.h"
#include "weather/ServerAddress.h"
#include "weather/TypedPlace.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrlQuery>

namespace quillmere {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype mostPlaces = 10;
constexpr qint64 largestAnswer = 128LL * 1024;
constexpr int ok = 200;

QString regionOf(const QJsonObject &place)
{
    QStringList parts;
    for (const auto key : {"admin1"_L1, "country"_L1}) {
        const QString part = place[key].toString().left(PlaceSearch::longestText);
        if (!part.isEmpty() && !parts.contains(part))
            parts.append(part);
    }
    return parts.join(", "_L1);
}

} // namespace

QUrl placeSearchUrl(const QUrl &server, const QString &text)
{
    QUrl url(serverAddress(server) + "/v1/search"_L1);
    url.setQuery("name="_L1 + QString::fromLatin1(QUrl::toPercentEncoding(text)) +
                 "&count=10&language=en&format=json"_L1);
    return url;
}

std::optional<QList<FoundPlace>> placesIn(const QByteArray &answer)
{
    const auto document = QJsonDocument::fromJson(answer);
    if (!document.isObject())
        return std::nullopt;
    QList<FoundPlace> places;
    const QJsonArray results = document["results"_L1].toArray();
    for (const auto &value : results) {
        const QJsonObject place = value.toObject();
        const auto location =
            TypedPlace::locationIn({{u"name"_s, place["name"_L1].toVariant()},
                                    {u"latitude"_s, place["latitude"_L1].toVariant()},
                                    {u"longitude"_s, place["longitude"_L1].toVariant()},
                                    {u"timeZone"_s, place["timezone"_L1].toVariant()}});
        if (location)
            places.append({*location, regionOf(place)});
        if (places.size() == mostPlaces)
            break;
    }
    return places;
}

void PlaceSearch::search(const QString &text, std::function<void(const Result &)> done)
{
    const QString name = text.trimmed().left(longestText);
    request_.cancel();
    if (name.size() < shortestText)
        return;
    const Endpoint server = endpoint(EndpointName::PlaceSearch);
    const HttpRequest request{.url = placeSearchUrl(server.url, name),
                              .isReplacedEndpoint = server.isReplaced,
                              .responseLimit = largestAnswer};
    request_ = httpClient_.send(request, [done = std::move(done)](const HttpResult &result) {
        const auto places = result && result->status == ok ? placesIn(result->body) : std::nullopt;
        if (places)
            return done(*places);
        const QString why = !result                ? result.error().text
                            : result->status == ok ? QStringLiteral("the answer is not one")
                                                   : QStringLiteral("HTTP %1").arg(result->status);
        qWarning("[WeatherService] Place search failed: %s", qUtf8Printable(why));
        done(tl::unexpected(why));
    });
}

} // namespace quillmere
