#include "views/Glyphs.h"

#include "platform/PageSymbols.h"
#include "platform/Symbols.h"
#include "weather/WeatherSymbols.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QStandardPaths>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

struct GlyphName {
    QLatin1StringView symbol;
    QLatin1StringView icon; ///< category/name, without the "-symbolic"
};

constexpr std::array glyphNames{
    GlyphName{symbols::speakerSlash, QLatin1StringView{"status/audio-volume-muted"}},
    GlyphName{symbols::speakerWave1, QLatin1StringView{"status/audio-volume-low"}},
    GlyphName{symbols::speakerWave2, QLatin1StringView{"status/audio-volume-medium"}},
    GlyphName{symbols::speakerWave3, QLatin1StringView{"status/audio-volume-high"}},
    GlyphName{symbols::airpods, QLatin1StringView{"devices/airpods"}},
    GlyphName{symbols::headphones, QLatin1StringView{"devices/audio-headphones"}},
    GlyphName{symbols::hifispeaker, QLatin1StringView{"devices/audio-speakers"}},
    GlyphName{symbols::car, QLatin1StringView{"devices/car"}},
    GlyphName{symbols::tv, QLatin1StringView{"devices/tv"}},
    GlyphName{symbols::sunMax, QLatin1StringView{"status/display-brightness"}},
    GlyphName{symbols::battery0, QLatin1StringView{"status/battery-level-0"}},
    GlyphName{symbols::battery25, QLatin1StringView{"status/battery-level-20"}},
    GlyphName{symbols::battery50, QLatin1StringView{"status/battery-level-50"}},
    GlyphName{symbols::battery75, QLatin1StringView{"status/battery-level-80"}},
    GlyphName{symbols::battery100, QLatin1StringView{"status/battery-level-100"}},
    GlyphName{symbols::battery100Bolt, QLatin1StringView{"status/battery-level-100-charged"}},
    GlyphName{symbols::trayAndArrowDown, QLatin1StringView{"status/file-tray"}},
    GlyphName{symbols::chevronLeft, QLatin1StringView{"actions/go-previous"}},
    GlyphName{symbols::chevronRight, QLatin1StringView{"actions/go-next"}},
    GlyphName{symbols::xmark, QLatin1StringView{"ui/window-close"}},
    GlyphName{symbols::checkmark, QLatin1StringView{"actions/object-select"}},
    GlyphName{symbols::doc, QLatin1StringView{"mimetypes/text-x-generic"}},
    GlyphName{symbols::arrowDownCircle, QLatin1StringView{"status/software-update-available"}},
    GlyphName{symbols::playFill, QLatin1StringView{"actions/media-playback-start"}},
    GlyphName{symbols::pauseFill, QLatin1StringView{"actions/media-playback-pause"}},
    GlyphName{symbols::backwardFill, QLatin1StringView{"actions/media-skip-backward"}},
    GlyphName{symbols::forwardFill, QLatin1StringView{"actions/media-skip-forward"}},
    GlyphName{symbols::shuffle, QLatin1StringView{"status/media-playlist-shuffle"}},
    GlyphName{symbols::repeat, QLatin1StringView{"status/media-playlist-repeat"}},
    GlyphName{symbols::repeat1, QLatin1StringView{"status/media-playlist-repeat-song"}},
    GlyphName{symbols::heart, QLatin1StringView{"emblems/emblem-favorite"}},
    GlyphName{symbols::docOnDoc, QLatin1StringView{"actions/edit-copy"}},
    GlyphName{symbols::musicNote, QLatin1StringView{"emblems/emblem-music"}},
    GlyphName{symbols::playCircle, QLatin1StringView{"status/play-circle"}},
    GlyphName{symbols::magnifyingGlass, QLatin1StringView{"actions/system-search"}},
    GlyphName{symbols::bubbles, QLatin1StringView{"status/chat"}},
    GlyphName{symbols::numberSign, QLatin1StringView{"status/number-sign"}},
    GlyphName{symbols::envelope, QLatin1StringView{"status/mail-unread"}},
    GlyphName{symbols::bell, QLatin1StringView{"legacy/preferences-system-notifications"}},
    GlyphName{symbols::bellSlash, QLatin1StringView{"status/notifications-disabled"}},
    GlyphName{symbols::calendar, QLatin1StringView{"mimetypes/x-office-calendar"}},
    GlyphName{symbols::island, QLatin1StringView{"status/island"}},
    GlyphName{symbols::weather::moon, QLatin1StringView{"status/weather-clear-night"}},
    GlyphName{symbols::weather::cloud, QLatin1StringView{"status/weather-overcast"}},
    GlyphName{symbols::weather::cloudSun, QLatin1StringView{"status/weather-few-clouds"}},
    GlyphName{symbols::weather::cloudMoon, QLatin1StringView{"status/weather-few-clouds-night"}},
    GlyphName{symbols::weather::fog, QLatin1StringView{"status/weather-fog-cloud"}},
    GlyphName{symbols::weather::haze, QLatin1StringView{"status/weather-haze"}},
    GlyphName{symbols::weather::dust, QLatin1StringView{"status/weather-haze"}},
    GlyphName{symbols::weather::smoke, QLatin1StringView{"status/weather-fog-cloud"}},
    GlyphName{symbols::weather::wind, QLatin1StringView{"status/weather-windy"}},
    GlyphName{symbols::weather::drizzle, QLatin1StringView{"status/weather-showers-scattered"}},
    GlyphName{symbols::weather::rain, QLatin1StringView{"status/weather-showers"}},
    GlyphName{symbols::weather::heavyRain, QLatin1StringView{"status/weather-heavy-rain"}},
    GlyphName{symbols::weather::sunRain, QLatin1StringView{"status/weather-showers"}},
    GlyphName{symbols::weather::moonRain, QLatin1StringView{"status/weather-showers"}},
    GlyphName{symbols::weather::sleet, QLatin1StringView{"status/weather-sleet"}},
    GlyphName{symbols::weather::hail, QLatin1StringView{"status/weather-hail"}},
    GlyphName{symbols::weather::snow, QLatin1StringView{"status/weather-snow-cloud"}},
    GlyphName{symbols::weather::snowflake, QLatin1StringView{"status/weather-snow"}},
    GlyphName{symbols::weather::windSnow, QLatin1StringView{"status/weather-snow-cloud"}},
    GlyphName{symbols::weather::frost, QLatin1StringView{"status/weather-snow"}},
    GlyphName{symbols::weather::bolt, QLatin1StringView{"status/weather-storm"}},
    GlyphName{symbols::weather::boltRain, QLatin1StringView{"status/weather-storm-rain"}},
    GlyphName{symbols::weather::sunBolt, QLatin1StringView{"status/weather-storm"}},
    GlyphName{symbols::weather::moonBolt, QLatin1StringView{"status/weather-storm"}},
    GlyphName{symbols::weather::tropicalStorm, QLatin1StringView{"status/weather-tornado"}},
    GlyphName{symbols::weather::hurricane, QLatin1StringView{"status/weather-tornado"}},
    GlyphName{symbols::pencil, QLatin1StringView{"actions/document-edit"}},
    GlyphName{symbols::timer, QLatin1StringView{"status/timer"}},
    GlyphName{symbols::hourglass, QLatin1StringView{"status/hourglass"}},
    GlyphName{symbols::stopwatch, QLatin1StringView{"status/stopwatch"}},
    GlyphName{symbols::stopCircle, QLatin1StringView{"status/stop-circle"}},
    GlyphName{symbols::xmarkCircle, QLatin1StringView{"status/xmark-circle"}},
    GlyphName{symbols::pages::gearshape, QLatin1StringView{"categories/preferences-system"}},
    GlyphName{symbols::pages::people, QLatin1StringView{"legacy/system-users"}},
    GlyphName{symbols::pages::musicPlayer,
              QLatin1StringView{"devices/multimedia-player-apple-ipod-touch"}},
    GlyphName{symbols::pages::lock, QLatin1StringView{"status/changes-prevent"}},
    GlyphName{symbols::pages::clipboard, QLatin1StringView{"actions/edit-paste"}},
    GlyphName{symbols::pages::folder, QLatin1StringView{"actions/document-open"}},
    GlyphName{symbols::pages::camera, QLatin1StringView{"devices/camera-photo"}},
    GlyphName{symbols::pages::upAndDown, QLatin1StringView{"status/network-transmit-receive"}},
    GlyphName{symbols::pages::processor, QLatin1StringView{"devices/processor"}},
    GlyphName{symbols::pages::terminal, QLatin1StringView{"legacy/utilities-terminal"}},
    GlyphName{symbols::pages::appGrid, QLatin1StringView{"actions/view-app-grid"}},
    GlyphName{symbols::pages::note, QLatin1StringView{"legacy/text-editor"}},
    GlyphName{symbols::pages::bookmark, QLatin1StringView{"places/user-bookmarks"}},
    GlyphName{symbols::pages::checklist, QLatin1StringView{"status/task-due"}},
    GlyphName{symbols::pages::infoCircle, QLatin1StringView{"actions/help-about"}},
    GlyphName{symbols::capsule, QLatin1StringView{"status/capsule"}},
};

constexpr int imageCacheKiB = 512;
constexpr qint64 largestIcon = 262'144; // bytes
constexpr int largestSize = 1024;
constexpr qsizetype mostReports = 64;

QString iconOf(const QString &symbol)
{
    const auto found = std::ranges::find(glyphNames, symbol, &GlyphName::symbol);
    return found == glyphNames.end() ? QString() : QString(found->icon);
}

QStringList themeDirs()
{
    QStringList dirs{QStringLiteral(":/icons/quillmere/scalable")};
    const auto dataDirs = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString &dir : dataDirs)
        for (const auto kind : {QLatin1StringView("scalable"), QLatin1StringView("symbolic")})
            dirs.append(dir + QStringLiteral("/icons/Adwaita/") + kind);
    return dirs;
}

void tintWith(QImage &image, const QColor &tint)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), tint);
}

QImage drawn(const QByteArray &svg, int size, const QColor &tint)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    if (!renderer.isValid())
        return {};
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    tintWith(image, tint);
    return image;
}

QImage placeholder(int size, const QColor &tint)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = size / 16.0;
    painter.setPen(QPen(tint, 1.5 * unit, Qt::DashLine));
    painter.drawRoundedRect(QRectF(2 * unit, 2 * unit, 12 * unit, 12 * unit), 3 * unit, 3 * unit);
    return image;
}

} // namespace

Glyphs::Glyphs()
    : Glyphs(themeDirs())
{
}

Glyphs::Glyphs(QStringList iconDirs)
    : iconDirs_(std::move(iconDirs))
    , images_(imageCacheKiB)
{
}

Glyphs &Glyphs::shared()
{
    static Glyphs glyphs;
    return glyphs;
}

QImage Glyphs::image(const QString &symbol, int size, const QColor &tint)
{
    const int side = std::clamp(size, 1, largestSize);
    const QString key = symbol + u'\n' + QString::number(side) + u'\n' + tint.name(QColor::HexArgb);
    if (const QImage *known = images_.object(key))
        return *known;

    QImage image = drawn(source(symbol), side, tint);
    if (image.isNull()) {
        reportMissing(symbol);
        image = placeholder(side, tint);
    }
    images_.insert(key, new QImage(image), image.sizeInBytes() / 1024 + 1);
    return image;
}

bool Glyphs::contains(const QString &symbol)
{
    return QSvgRenderer(source(symbol)).isValid();
}

QString Glyphs::iconName(const QString &symbol)
{
    const QString icon = iconOf(symbol);
    return icon.isEmpty() ? icon : icon.section(u'/', -1) + QStringLiteral("-symbolic");
}

QByteArray Glyphs::source(const QString &symbol)
{
    if (const auto known = sources_.constFind(symbol); known != sources_.cend())
        return *known;
    const QString icon = iconOf(symbol);
    if (icon.isEmpty())
        return {};
    QFile file(filePath(icon));
    QByteArray svg = file.open(QIODevice::ReadOnly) ? file.read(largestIcon) : QByteArray();
    svg.squeeze(); // it has room for the largest icon there may be
    sources_.insert(symbol, svg);
    return svg;
}

QString Glyphs::filePath(const QString &icon) const
{
    for (const QString &dir : iconDirs_) {
        QString path = dir + u'/' + icon + QStringLiteral("-symbolic.svg");
        if (QFile::exists(path))
            return path;
    }
    return {};
}

void Glyphs::reportMissing(const QString &symbol)
{
    if (reported_.contains(symbol) || reported_.size() >= mostReports)
        return;
    reported_.insert(symbol);
    qWarning("[Glyphs] no glyph for the symbol \"%ls\"", qUtf16Printable(symbol.left(80)));
}

} // namespace quillmere
