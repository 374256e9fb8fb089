#include "nowplaying/PlayerReport.h"

#include "platform/MediaRemote.h"

#include <QList>

#include <algorithm>
#include <cmath>

namespace quillmere {

namespace {

std::optional<QString> nonEmpty(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

std::optional<double> finite(double value)
{
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

std::optional<double> length(std::optional<double> seconds)
{
    return seconds && *seconds > 0 ? seconds : std::nullopt;
}

std::optional<bool> playing(std::optional<double> rate)
{
    return rate ? std::optional(*rate > 0) : std::nullopt;
}

QString text(const QVariant &value)
{
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

std::optional<double> number(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return finite(value.toDouble());
    default:
        return std::nullopt;
    }
}

QString identifier(const QVariant &value)
{
    const bool isNumber = number(value).has_value();
    const qint64 id = isNumber ? value.toLongLong() : 0;
    return id > 0 ? QString::number(id) : QString();
}

/// Identifiers become parts of addresses, so nothing but digits passes.
QString identifier(QStringView text)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    constexpr qsizetype longest = 20;
    if (text.size() > longest || !std::ranges::all_of(text, isDigit))
        return {};
    return text.toString();
}

std::optional<double> number(QStringView text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? finite(value) : std::nullopt;
}

} // namespace

std::optional<PlayerReport> parseMediaInfo(const QVariantMap &info)
{
    const auto value = [&info](QLatin1StringView key) { return info.value(QString(key)); };
    PlayerReport report;
    report.record.title = text(value(mediaInfo::title));
    if (report.record.title.isEmpty())
        return std::nullopt;
    report.record.artist = nonEmpty(text(value(mediaInfo::artist)));
    report.record.duration = length(number(value(mediaInfo::duration)));
    report.record.elapsedTime = number(value(mediaInfo::elapsedTime));
    report.record.bundleID = nonEmpty(text(value(mediaInfo::bundleIdentifier)));
    report.record.isPlaying = playing(number(value(mediaInfo::playbackRate)));
    report.storeID = identifier(value(mediaInfo::storeIdentifier));
    report.albumID = identifier(value(mediaInfo::albumStoreIdentifier));

    const QVariant data = value(mediaInfo::artworkData);
    if (data.typeId() == QMetaType::QByteArray)
        report.artworkData = data.toByteArray();
    const QVariant image = value(mediaInfo::artworkImage);
    if (image.typeId() == QMetaType::QImage && !image.value<QImage>().isNull())
        report.record.artwork = image.value<QImage>();
    return report;
}

std::optional<PlayerReport> parseScriptText(QStringView text)
{
    const auto fields = text.split(QStringLiteral("||"));
    const auto field = [&fields](qsizetype index) {
        return index < fields.size() ? fields.at(index).trimmed() : QStringView();
    };
    PlayerReport report;
    report.record.title = field(0).toString();
    if (report.record.title.isEmpty())
        return std::nullopt;
    report.record.artist = nonEmpty(field(1).toString());
    report.record.duration = length(number(field(2)));
    report.record.elapsedTime = number(field(3));
    report.record.bundleID = nonEmpty(field(4).toString());
    report.albumID = identifier(field(5));
    report.storeID = identifier(field(6));
    report.record.isPlaying = playing(number(field(7)));
    return report;
}

} // namespace quillmere
