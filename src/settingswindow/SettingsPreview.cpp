#include "settingswindow/SettingsPreview.h"

#include "island/HUDContent.h"
#include "platform/Symbols.h"
#include "settings/SettingsStore.h"
#include "settingswindow/SettingsCatalog.h"
#include "views/DesktopAccent.h"
#include "views/HUDLook.h"
#include "views/MediaFace.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr double level = 0.62;
constexpr double charge = 0.8;
const QColor cover(0xff, 0x6f, 0x5c); ///< of the artwork in the picture

HUDContent contentOf(SettingsPage page)
{
    HUDContent content;
    if (page == SettingsPage::Battery) {
        content.type = HUDContent::HUDType::Battery;
        content.title = translated(QT_TRANSLATE_NOOP("Settings", "Charging"));
        content.icon = QString(symbols::battery100Bolt);
        content.level = charge;
    } else {
        const bool isSound = page == SettingsPage::Sound;
        content.type = isSound ? HUDContent::HUDType::Volume : HUDContent::HUDType::Brightness;
        content.icon = QString(isSound ? symbols::speakerWave2 : symbols::sunMax);
        content.level = level;
    }
    return content;
}

} // namespace

SettingsPreview::SettingsPreview(const SettingsStore &settings, const AudioOutputPicker &output,
                                 const Appearance &appearance)
    : settings_(settings)
    , output_(output)
    , appearance_(appearance)
{
    connect(&settings, &SettingsStore::didChange, this, &SettingsPreview::update);
    update();
}

void SettingsPreview::setPage(SettingsPage page)
{
    page_ = page;
    update();
}

void SettingsPreview::update()
{
    if (kind() == QLatin1StringView("level") || kind() == QLatin1StringView("battery"))
        face_.setFace(
            hudFace(contentOf(page_), hudLook(settings_, output_), desktopAccent(appearance_)));
    Q_EMIT changed();
}

QString SettingsPreview::kind() const
{
    switch (page_) {
    case SettingsPage::General:
        return QStringLiteral("island");
    case SettingsPage::NowPlaying:
        return QStringLiteral("media");
    case SettingsPage::Display:
    case SettingsPage::Sound:
        return QStringLiteral("level");
    case SettingsPage::Battery:
        return QStringLiteral("battery");
    default:
        return {};
    }
}

double SettingsPreview::surfaceAlpha() const
{
    if (settings_.islandAppearance.get() == IslandAppearance::Classic)
        return 1;
    return 1 - 0.5 * std::clamp(settings_.glassTransparency.get(), 0.0, 1.0);
}

bool SettingsPreview::showsMedia() const
{
    return settings_.showMediaHUD.get();
}

bool SettingsPreview::showsWaveform() const
{
    return showsMedia() && !settings_.disableCompactWaveform.get();
}

QColor SettingsPreview::artworkAccent() const
{
    return settings_.enableDynamicColors.get() ? cover : desktopAccent(appearance_);
}

QList<QColor> SettingsPreview::compactWaveform() const
{
    return waveformColors(settings_.compactWaveformStyle.get(), artworkAccent());
}

QList<QColor> SettingsPreview::expandedWaveform() const
{
    return waveformColors(settings_.expandedWaveformStyle.get(), artworkAccent());
}

QString SettingsPreview::extraSymbol() const
{
    const auto extra = extraButton(settings_.mediaControlButton.get(), false, RepeatMode::Nothing);
    return extra ? extra->symbol : QString();
}

} // namespace quillmere
