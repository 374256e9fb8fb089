#pragma once

#include <QImage>
#include <QLatin1StringView>
#include <QString>

#include <optional>

namespace quillmere {

/// One heads-up display, and also the form in which the playing track is published.
struct HUDContent {
    /// The kinds of HUD.
    enum class HUDType {
        Volume,
        Brightness,
        Bluetooth,
        Email,
        Notification,
        Battery,
        Focus,
        Calendar,
        Weather,
        FileTray
    };

    QString title{}; ///< main line; the track title of a now-playing record
    std::optional<QString> subtitle{};
    std::optional<QString> icon{}; ///< a name of platform/Symbols.h
    std::optional<QImage> artworkImage{};
    std::optional<double> level{};         ///< 0..1
    HUDType type = HUDType::Notification;  ///< without meaning in a now-playing record
    std::optional<double> mediaProgress{}; ///< 0..1
    std::optional<QString> mediaElapsed{};
    std::optional<QString> mediaRemaining{}; ///< with a leading "-"
    std::optional<QString> bundleID{};       ///< application the content came from
    std::optional<QString> contentURL{};     ///< opened when the HUD is tapped
    std::optional<bool> isPlaying{};         ///< absent: the source does not say
    bool isBrowserFallback = false;

    bool operator==(const HUDContent &) const = default;
};

/// "volume", "brightness", ... "fileTray".
QLatin1StringView hudTypeName(HUDContent::HUDType type);

/// A level that the user is changing; these two never become activities.
inline bool isLevel(HUDContent::HUDType type)
{
    return type == HUDContent::HUDType::Volume || type == HUDContent::HUDType::Brightness;
}

/// Somebody wrote; its bundleID is the application to answer in.
inline bool isMessage(HUDContent::HUDType type)
{
    return type == HUDContent::HUDType::Email || type == HUDContent::HUDType::Notification;
}

/// The speaker symbol for a volume of 0..100 percent.
QLatin1StringView volumeSymbol(double percent);

} // namespace quillmere
