#include "views/MediaFace.h"

#include "island/HUDContent.h"
#include "island/PlayheadTracker.h"
#include "platform/Symbols.h"
#include "views/ArtworkAccent.h"
#include "views/MediaTitle.h"
#include "views/PlainText.h"

#include <QCoreApplication>

#include <algorithm>

namespace quillmere {

namespace {

constexpr qsizetype longestArtist = 200;
constexpr int hueStep = 22; // degrees to either side of the accent

constexpr QChar minusSign(0x2212);

const QColor content(255, 255, 255, 235);

struct Words {
    Q_DECLARE_TR_FUNCTIONS(Media)
};

QColor turned(const QColor &color, int degrees)
{
    if (color.hslHue() < 0)
        return color;
    return readableOnBlack(QColor::fromHsl((color.hslHue() + degrees + 360) % 360,
                                           color.hslSaturation(), color.lightness()));
}

QString accessibleText(const MediaFace &face)
{
    const QString track =
        face.artist.isEmpty() ? face.title : Words::tr("%1, %2").arg(face.title, face.artist);
    return face.isPlaying ? Words::tr("Playing: %1").arg(track)
                          : Words::tr("Paused: %1").arg(track);
}

ExtraButton repeatButton(RepeatMode mode)
{
    switch (mode) {
    case RepeatMode::List:
        return {QString(symbols::repeat), Words::tr("Repeat, all"), true};
    case RepeatMode::Track:
        return {QString(symbols::repeat1), Words::tr("Repeat, this track"), true};
    case RepeatMode::Nothing:
        break;
    }
    return {QString(symbols::repeat), Words::tr("Repeat, off")};
}

} // namespace

MediaFace mediaFace(const HUDContent &record, double duration, bool hideExtras)
{
    MediaFace face;
    face.title = mediaTitle(record.title, hideExtras);
    face.artist = plainText(record.subtitle.value_or(QString()), longestArtist);
    face.artwork = record.artworkImage.value_or(QImage());
    face.symbol = record.icon.value_or(QString(symbols::musicNote));
    face.isPlaying = record.isPlaying.value_or(true);
    face.accessibleText = accessibleText(face);
    if (!record.mediaProgress || !(duration > 0))
        return face;
    face.duration = duration;
    face.progress = std::clamp(*record.mediaProgress, 0.0, 1.0);
    face.elapsed = record.mediaElapsed.value_or(QString());
    face.remaining = record.mediaRemaining.value_or(QString()).replace(u'-', minusSign);
    return face;
}

QString elapsedText(double progress, double duration)
{
    return playheadTime(std::clamp(progress, 0.0, 1.0) * duration);
}

QString remainingText(double progress, double duration)
{
    return minusSign + playheadTime((1 - std::clamp(progress, 0.0, 1.0)) * duration);
}

QList<QColor> waveformColors(WaveformStyle style, const QColor &accent)
{
    switch (style) {
    case WaveformStyle::Monochrome:
        return {content};
    case WaveformStyle::Colored:
        return {accent};
    case WaveformStyle::Gradient:
        return {turned(accent, hueStep), turned(accent, -hueStep)};
    }
    return {content};
}

std::optional<ExtraButton> extraButton(MediaControlButton button, std::optional<bool> isShuffling,
                                       std::optional<RepeatMode> repeat)
{
    switch (button) {
    case MediaControlButton::Favorite: // no player of this desktop can be told so
        break;
    case MediaControlButton::Shuffle:
        if (isShuffling)
            return ExtraButton{QString(symbols::shuffle),
                               *isShuffling ? Words::tr("Shuffle, on") : Words::tr("Shuffle, off"),
                               *isShuffling};
        break;
    case MediaControlButton::Repeat:
        if (repeat)
            return repeatButton(*repeat);
        break;
    case MediaControlButton::Copy:
        return ExtraButton{QString(symbols::docOnDoc), Words::tr("Copy title and artist")};
    }
    return std::nullopt;
}

} // namespace quillmere
