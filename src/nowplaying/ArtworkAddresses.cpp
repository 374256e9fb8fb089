#include "nowplaying/ArtworkAddresses.h"

#include "platform/Endpoints.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace quillmere {

namespace {

using L1 = QLatin1StringView;

constexpr L1 spotifyPlayer("open.spotify.com");
constexpr L1 spotifyPictures("i.scdn.co");

QUrl below(QUrl base, const QString &path, const QString &query = {})
{
    QString folder = base.path();
    while (folder.endsWith(u'/'))
        folder.chop(1);
    base.setPath(folder + path);
    if (!query.isEmpty())
        base.setQuery(query);
    return base;
}

} // namespace

std::optional<QString> appleMusicPage(const QString &bundleID, const QString &storeID,
                                      const QString &albumID)
{
    const QString lower = bundleID.toLower();
    if (!lower.contains(L1("music")) && !lower.contains(L1("itunes")) &&
        !lower.contains(L1("podcasts")))
        return std::nullopt;
    const QString site = QStringLiteral("https://music.apple.com");
    if (!storeID.isEmpty())
        return site + QStringLiteral("/us/song/") + storeID;
    if (!albumID.isEmpty())
        return site + QStringLiteral("/us/album/") + albumID;
    return std::nullopt;
}

QUrl storeLookupUrl(const QUrl &base, const QString &albumID)
{
    return below(base, QStringLiteral("/lookup"),
                 QStringLiteral("id=") + albumID + QStringLiteral("&entity=album&limit=1"));
}

QString storeArtworkUrl(const QByteArray &reply)
{
    const QJsonArray results =
        QJsonDocument::fromJson(reply).object().value(L1("results")).toArray();
    QString address = results.at(0).toObject().value(L1("artworkUrl100")).toString();
    address.replace(L1("100x100bb"), L1("600x600bb"));
    address.replace(L1("100x100"), L1("600x600"));
    return address;
}

QUrl securePictureUrl(const QString &address, bool isReplacedEndpoint)
{
    QUrl url(address, QUrl::StrictMode);
    if (url.scheme() == L1("http") && !mayRequest(url, isReplacedEndpoint))
        url.setScheme(QStringLiteral("https"));
    return url;
}

QUrl videoThumbnailUrl(const QUrl &base, const QString &videoID, Rendition rendition)
{
    return below(base, QStringLiteral("/vi/") + videoID +
                           (rendition == Rendition::Large ? QStringLiteral("/maxresdefault.jpg")
                                                          : QStringLiteral("/hqdefault.jpg")));
}

QUrl spotifyPictureUrl(const QString &address)
{
    QUrl url = securePictureUrl(address, false);
    if (url.host() == spotifyPlayer && url.path().startsWith(L1("/image/")))
        url.setHost(spotifyPictures);
    return url;
}

std::optional<QString> spotifyPage(const QString &link)
{
    static const QRegularExpression form(QStringLiteral(
        "\\A(?:spotify:|https://open\\.spotify\\.com/)"
        "(track|album|artist|playlist|episode|show)[:/]([A-Za-z0-9]{1,64})(?:\\?|\\z)"));
    const auto match = form.match(link);
    if (!match.hasMatch())
        return std::nullopt;
    return QStringLiteral("https://") + spotifyPlayer + u'/' + match.captured(1) + u'/' +
           match.captured(2);
}

} // namespace quillmere
