#include "views/HUDFace.h"

#include "island/ContentView.h"
#include "views/PlainText.h"
#include "views/WeatherColor.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

constexpr qsizetype longestTitle = 120;
constexpr qsizetype longestSubtitle = 300;
constexpr double lowBattery = 0.2;
constexpr double smallestSymbol = 18; // at level 0, when the symbol grows with the level
constexpr double symbolGrowth = 4;
constexpr double levelSymbol = 20;
constexpr double batterySymbol = 22;
constexpr double messageSymbol = 24;

// 92 % white: content. Warnings and levels keep their contrast on black.
const QColor content(255, 255, 255, 235);
const QColor warm(0xff, 0xd4, 0x79);
const QColor green(0x3d, 0xdc, 0x84);
const QColor yellow(0xff, 0xd6, 0x4a);
const QColor red(0xff, 0x5f, 0x57);
const QColor lowRed(0xff, 0x6b, 0x6b);

struct Words {
    Q_DECLARE_TR_FUNCTIONS(HUD)
};

int animationTime(AnimationSpeed speed)
{
    switch (speed) {
    case AnimationSpeed::Smooth:
        return 250;
    case AnimationSpeed::Fast:
        return 120;
    case AnimationSpeed::Instant:
        return 0;
    }
    return 0;
}

double boundedLevel(const HUDContent &hud)
{
    const double level = hud.level.value_or(0);
    return std::isfinite(level) ? std::clamp(level, 0.0, 1.0) : 0;
}

int percent(double level)
{
    return static_cast<int>(std::lround(level * 100));
}

QString percentText(int percent)
{
    //: A percentage, such as "46%"
    return Words::tr("%1%").arg(QLocale().toString(percent));
}

void setColors(HUDFace &face, HUDColorTheme theme, const QColor &accent)
{
    switch (theme) {
    case HUDColorTheme::White:
        face.barColors = {content};
        break;
    case HUDColorTheme::Accent:
        face.barColors = {accent, accent.lighter(135)};
        break;
    case HUDColorTheme::Decibel:
        face.barColors = {green, green, yellow, red};
        face.colorsFollowTrack = true;
        break;
    }
}

void setColors(HUDFace &face, HUDAppearanceStyle style)
{
    face.barColors = style == HUDAppearanceStyle::Accent ? QList<QColor>{warm, Qt::white}
                                                         : QList<QColor>{content};
    face.glow = style == HUDAppearanceStyle::Glow;
}

void setLevel(HUDFace &face, const HUDContent &hud, const HUDLook::Level &look)
{
    face.layout = HUDLayout::Level;
    face.level = boundedLevel(hud);
    face.symbolSize = look.symbolSize == SymbolSizeMode::Scale
                          ? smallestSymbol + symbolGrowth * face.level
                          : levelSymbol;
    face.levelAnimation = animationTime(look.speed);
    if (look.showPercentage)
        face.figures = percentText(percent(face.level));
    face.accessibleText =
        Words::tr("%1 %2 percent").arg(face.title, QLocale().toString(percent(face.level)));
}

void setVolume(HUDFace &face, const HUDContent &hud, const HUDLook &look, const QColor &accent)
{
    face.title = Words::tr("Volume");
    setLevel(face, hud, look.sound);
    setColors(face, look.soundTheme, accent);
    if (face.level > 0) {
        if (!look.soundDevice.isEmpty())
            face.symbol = look.soundDevice;
        return;
    }
    face.accessibleText = Words::tr("Volume muted");
    if (!look.sound.hideLabel)
        face.label = Words::tr("Mute");
}

void setBrightness(HUDFace &face, const HUDContent &hud, const HUDLook &look)
{
    face.title = Words::tr("Brightness");
    setLevel(face, hud, look.display);
    setColors(face, look.displayStyle);
    if (face.level <= 0 && !look.display.hideLabel)
        face.label = Words::tr("Min"); // the darkest the display goes
}

/// The charge of a battery: this machine's or a device's.
void setCharge(HUDFace &face, const HUDContent &hud, const QColor &ordinary)
{
    if (!hud.level)
        return;
    face.level = boundedLevel(hud);
    face.figures = percentText(percent(face.level));
    face.accent = face.level <= lowBattery ? lowRed : ordinary;
}

void setBattery(HUDFace &face, const HUDContent &hud, const HUDLook &look)
{
    const bool charging = face.symbol.contains(QLatin1StringView("bolt"));
    face.layout = HUDLayout::Battery;
    face.symbolSize = batterySymbol;
    setCharge(face, hud, charging ? green : content);
    if (charging)
        face.accent = green;
    if (face.subtitle.isEmpty() && !face.figures.isEmpty())
        face.accessibleText = Words::tr("%1, %2").arg(face.title, face.figures);
    if (look.hideBatteryLabel)
        face.title.clear();
    if (look.hideBatteryPercentage)
        face.figures.clear();
}

/// Where a message is from, for those whose messages are announced.
void setApplication(HUDFace &face, const QString &bundleID)
{
    struct Application {
        QLatin1StringView bundleID;
        QLatin1StringView name;
        QColor color;
    };
    static constexpr Application applications[] = {
        {QLatin1StringView("com.tinyspeck.slackmacgap"), QLatin1StringView("Slack"), {97, 31, 105}},
        {QLatin1StringView("com.hnc.Discord"), QLatin1StringView("Discord"), {88, 101, 242}}};
    const auto application = std::ranges::find(applications, bundleID, &Application::bundleID);
    if (application == std::end(applications))
        return;
    face.label = application->name;
    face.boxColor = application->color;
    face.accessibleText = Words::tr("%1, %2").arg(face.label, face.accessibleText);
}

void setMessage(HUDFace &face, const HUDContent &hud, const HUDLook &look)
{
    face.layout = HUDLayout::Message;
    face.symbolSize = messageSymbol;
    if (hud.type == HUDContent::HUDType::Bluetooth)
        setCharge(face, hud, green);
    if (hud.type == HUDContent::HUDType::Notification)
        setApplication(face, hud.bundleID.value_or(QString()));
    if (hud.type == HUDContent::HUDType::Focus && look.hideFocusLabel)
        face.title = std::exchange(face.subtitle, QString());
    if (hud.type == HUDContent::HUDType::Weather)
        face.accent = weatherColor(face.symbol);
}

} // namespace

HUDFace hudFace(const HUDContent &hud, const HUDLook &look, const QColor &accent)
{
    HUDFace face;
    face.size = hudSize(hud.type);
    face.symbol = hud.icon.value_or(QString());
    face.picture = hud.artworkImage.value_or(QImage());
    face.title = plainText(hud.title, longestTitle);
    face.subtitle = plainText(hud.subtitle.value_or(QString()), longestSubtitle);
    face.accent = content;
    face.accessibleText =
        face.subtitle.isEmpty() ? face.title : Words::tr("%1, %2").arg(face.title, face.subtitle);
    switch (hud.type) {
    case HUDContent::HUDType::Volume:
        setVolume(face, hud, look, accent);
        break;
    case HUDContent::HUDType::Brightness:
        setBrightness(face, hud, look);
        break;
    case HUDContent::HUDType::Battery:
        setBattery(face, hud, look);
        break;
    default:
        setMessage(face, hud, look);
        break;
    }
    return face;
}

} // namespace quillmere
