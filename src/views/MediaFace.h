#pragma once

#include "platform/MediaRemote.h"
#include "settings/Choices.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>

namespace quillmere {

struct HUDContent;

/// What is drawn for the playing track: everything decided, nothing left to the scene.
struct MediaFace {
    bool operator==(const MediaFace &) const = default;

    QString title;
    QString artist;
    QImage artwork;
    QString symbol; ///< drawn where there is no artwork
    bool isPlaying = false;
    double duration = 0; ///< seconds; 0 = unknown
    double progress = 0; ///< 0..1
    QString elapsed;
    QString remaining; ///< with a leading minus
    QString accessibleText;
};

/// `duration` in seconds; 0 or less: unknown.
MediaFace mediaFace(const HUDContent &record, double duration, bool hideExtras);

/// The position, and what is left with a leading minus, at `progress` (0..1) of the duration.
QString elapsedText(double progress, double duration);
QString remainingText(double progress, double duration);

/// The waveform's colours from top to bottom.
QList<QColor> waveformColors(WaveformStyle style, const QColor &accent);

/// The button beside the transport.
struct ExtraButton {
    QString symbol;
    QString text; ///< what it does, and how it stands
    bool isOn = false;
};

/// Absent when there is nothing it could do. `isShuffling` and `repeat` are absent for a player
/// that cannot.
std::optional<ExtraButton> extraButton(MediaControlButton button, std::optional<bool> isShuffling,
                                       std::optional<RepeatMode> repeat);

} // namespace quillmere
