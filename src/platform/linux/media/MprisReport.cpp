#include "platform/linux/media/MprisReport.h"

#include "platform/PictureDecoder.h"
#include "platform/linux/core/BundleIdentifiers.h"
#include "platform/linux/media/PlayerText.h"

#include <QCryptographicHash>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillmere::playerReport {

namespace {

using namespace Qt::StringLiterals;

constexpr int mostEntries = 100;
constexpr int mostArtists = 20;
constexpr double microseconds = 1e6;
constexpr double shortestTrack = 1;            // s; below, somebody has mixed up the units
constexpr double longestTrack = 1000.0 * 3600; // s; beyond, it is a way to say "endless"
constexpr double fastest = 32;
constexpr qsizetype longestAddress = 4096;
constexpr qint64 longestDataUrl = largestPictureFile / 3 * 4 + 1024;

struct StatusName {
    QLatin1StringView name;
    PlayerStatus status;
};
constexpr std::array<StatusName, 3> statusNames{{
    {QLatin1StringView("Playing"), PlayerStatus::Playing},
    {QLatin1StringView("Paused"), PlayerStatus::Paused},
    {QLatin1StringView("Stopped"), PlayerStatus::Stopped},
}};

struct LoopName {
    QLatin1StringView name;
    LoopStatus status;
};
constexpr std::array<LoopName, 3> loopNames{{
    {QLatin1StringView("None"), LoopStatus::None},
    {QLatin1StringView("Playlist"), LoopStatus::Playlist},
    {QLatin1StringView("Track"), LoopStatus::Track},
}};

/// Values come in a variant each, from some players in two.
QVariant unwrapped(QVariant value)
{
    for (int depth = 0; depth < 3 && value.metaType() == QMetaType::fromType<QDBusVariant>();
         ++depth)
        value = value.value<QDBusVariant>().variant();
    return value;
}

std::optional<QString> text(const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    if (plain.metaType() == QMetaType::fromType<QDBusObjectPath>())
        return plain.value<QDBusObjectPath>().path();
    if (plain.typeId() == QMetaType::QString)
        return plain.toString();
    return std::nullopt;
}

std::optional<bool> truth(const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    return plain.typeId() == QMetaType::Bool ? std::optional(plain.toBool()) : std::nullopt;
}

std::optional<LoopStatus> loopStatus(const QVariant &value)
{
    const auto told = text(value);
    for (const auto &known : loopNames) {
        if (told && told->compare(known.name, Qt::CaseInsensitive) == 0)
            return known.status;
    }
    return std::nullopt;
}

/// One text or several, as one.
QString names(const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    if (plain.typeId() != QMetaType::QStringList)
        return cleanText(text(plain).value_or(QString()));
    QStringList shown;
    for (const QString &name : plain.toStringList().mid(0, mostArtists)) {
        if (const QString clean = cleanText(name); !clean.isEmpty())
            shown.append(clean);
    }
    return cleanText(shown.join(u", "_s));
}

/// Whether D-Bus lets this be sent as an object path.
bool isObjectPath(const QString &id)
{
    if (id.size() < 2 || id.size() > longestAddress || !id.startsWith(u'/') || id.endsWith(u'/') ||
        id.contains("//"_L1))
        return false;
    return std::all_of(id.begin(), id.end(), [](QChar c) {
        return c == u'/' || c == u'_' || (c.unicode() < 0x80 && c.isLetterOrNumber());
    });
}

QString seekablePath(const QString &id)
{
    return isObjectPath(id) && !id.endsWith("/NoTrack"_L1) ? id : QString();
}

std::optional<double> duration(const QVariant &value)
{
    const auto told = position(value);
    return told && *told >= shortestTrack && *told <= longestTrack ? told : std::nullopt;
}

/// What is called by its file is better known by that than not at all.
QString titleByAddress(const QString &address)
{
    const QUrl url(address);
    return url.isLocalFile() ? cleanText(QFileInfo(url.toLocalFile()).completeBaseName())
                             : QString();
}

ArtSource localFile(const QUrl &url)
{
    const bool isHere = url.host().isEmpty() || url.host() == "localhost"_L1;
    const QString path = url.path(QUrl::FullyDecoded);
    if (!isHere || !path.startsWith(u'/') || path.contains(QChar(0)))
        return {};
    return {ArtSource::Kind::File, path, {}};
}

ArtSource dataUrl(const QString &url)
{
    const auto comma = url.indexOf(u',');
    if (comma < 0 || url.size() > longestDataUrl)
        return {};
    const bool isBase64 = QStringView(url).first(comma).endsWith(";base64"_L1, Qt::CaseInsensitive);
    const QByteArray body = QStringView(url).sliced(comma + 1).toLatin1();
    const QByteArray data =
        isBase64 ? QByteArray::fromBase64(body) : QByteArray::fromPercentEncoding(body);
    if (data.isEmpty())
        return {};
    const auto digest = QCryptographicHash::hash(data, QCryptographicHash::Sha1).toHex();
    return {ArtSource::Kind::Data, QString::fromLatin1(digest), data};
}

ArtSource webPage(QUrl url)
{
    if (!url.isValid() || url.host().isEmpty())
        return {};
    // Where Spotify's pictures were once; its players still say so.
    if (url.host() == "open.spotify.com"_L1 && url.path().startsWith("/image/"_L1))
        url.setHost(u"i.scdn.co"_s);
    return {ArtSource::Kind::Web, url.toString(QUrl::FullyEncoded), {}};
}

} // namespace

std::optional<QVariantMap> dictionary(const QVariant &argument)
{
    const QVariant plain = unwrapped(argument);
    if (plain.typeId() == QMetaType::QVariantMap)
        return plain.toMap();
    if (plain.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto packed = plain.value<QDBusArgument>();
    if (packed.currentSignature() != "a{sv}"_L1)
        return std::nullopt;
    QVariantMap entries;
    packed.beginMap();
    for (int count = 0; count < mostEntries && !packed.atEnd(); ++count) {
        QString key;
        QDBusVariant value;
        packed.beginMapEntry();
        packed >> key >> value;
        packed.endMapEntry();
        entries.insert(key, value.variant());
    }
    packed.endMap();
    return entries;
}

std::optional<double> number(const QVariant &value)
{
    const QVariant plain = unwrapped(value);
    switch (plain.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Double: {
        const double told = plain.toDouble();
        return std::isfinite(told) ? std::optional(told) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::optional<double> position(const QVariant &value)
{
    const auto told = number(value);
    return told ? std::optional(*told / microseconds) : std::nullopt;
}

ArtSource artSource(const QString &url)
{
    if (url.startsWith("data:"_L1, Qt::CaseInsensitive))
        return dataUrl(url);
    if (url.isEmpty() || url.size() > longestAddress)
        return {};
    if (url.startsWith(u'/'))
        return localFile(QUrl::fromLocalFile(url));
    const QUrl parsed(url);
    if (parsed.scheme() == "file"_L1)
        return localFile(parsed);
    return parsed.scheme() == "https"_L1 ? webPage(parsed) : ArtSource();
}

std::optional<Track> track(const QVariantMap &metadata)
{
    const QVariant title = metadata.value(u"xesam:title"_s);
    const auto told = text(title);
    if (title.isValid() && !told)
        return std::nullopt;
    Track track;
    track.id = text(metadata.value(u"mpris:trackid"_s)).value_or(QString()).left(longestAddress);
    track.path = seekablePath(track.id);
    track.address = text(metadata.value(u"xesam:url"_s)).value_or(QString()).left(longestAddress);
    track.title = cleanText(told.value_or(QString()));
    if (track.title.isEmpty())
        track.title = titleByAddress(track.address);
    track.artist = names(metadata.value(u"xesam:artist"_s));
    if (track.artist.isEmpty())
        track.artist = names(metadata.value(u"xesam:albumArtist"_s));
    track.duration = duration(metadata.value(u"mpris:length"_s));
    if (const auto browser = number(metadata.value(u"kde:pid"_s)))
        track.browser = static_cast<qint64>(std::clamp(*browser, 0.0, 1e9));
    track.art = artSource(text(metadata.value(u"mpris:artUrl"_s)).value_or(QString()));
    return track;
}

MprisReport player(const QVariantMap &properties)
{
    MprisReport report;
    const auto status = text(properties.value(u"PlaybackStatus"_s)).value_or(QString());
    for (const auto &known : statusNames) {
        if (status.compare(known.name, Qt::CaseInsensitive) == 0)
            report.status = known.status;
    }
    const double rate = number(properties.value(u"Rate"_s)).value_or(1);
    report.rate = rate > 0 && rate <= fastest ? rate : 1;
    report.position = position(properties.value(u"Position"_s));
    report.canSeek = truth(properties.value(u"CanSeek"_s)).value_or(false);
    report.shuffle = truth(properties.value(u"Shuffle"_s));
    report.loop = loopStatus(properties.value(u"LoopStatus"_s));
    if (const auto metadata = dictionary(properties.value(u"Metadata"_s)))
        report.track = track(*metadata);
    return report;
}

PlayerApplication application(const QVariantMap &properties)
{
    return {cleanText(text(properties.value(u"DesktopEntry"_s)).value_or(QString())),
            cleanText(text(properties.value(u"Identity"_s)).value_or(QString()))};
}

QString bundleIdentifier(const PlayerApplication &application, const QString &suffix)
{
    QString entry = QFileInfo(application.desktopEntry).fileName();
    if (entry.endsWith(".desktop"_L1))
        entry.chop(8);
    if (!entry.isEmpty())
        return canonicalBundleIdentifier(entry);
    // Browsers of one family share their bus name; what they call themselves tells them apart.
    QString known = canonicalBundleIdentifier(application.identity);
    if (known != application.identity)
        return known;
    return canonicalBundleIdentifier(cleanText(suffix.section(u'.', 0, 0)));
}

QString name(const PlayerApplication &application, const QString &suffix)
{
    return application.identity.isEmpty() ? cleanText(suffix.section(u'.', 0, 0))
                                          : application.identity;
}

} // namespace quillmere::playerReport

namespace quillmere {

LoopStatus nextLoopStatus(LoopStatus status)
{
    switch (status) {
    case LoopStatus::None:
        return LoopStatus::Playlist;
    case LoopStatus::Playlist:
        return LoopStatus::Track;
    case LoopStatus::Track:
        break;
    }
    return LoopStatus::None;
}

QString loopStatusName(LoopStatus status)
{
    for (const auto &known : playerReport::loopNames) {
        if (known.status == status)
            return known.name;
    }
    return {};
}

} // namespace quillmere
