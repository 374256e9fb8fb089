#include "platform/linux/appearance/DesktopAppearance.h"

#include "platform/linux/desktop/Files.h"

#include <QDBusArgument>

#include <algorithm>

namespace quillmere {

namespace {

using namespace std::chrono_literals;

constexpr Duration fileSettleTime = 100ms;
constexpr qint64 largestKdeGlobals = 1'048'576;

const QString common = QStringLiteral("org.freedesktop.appearance");
const QString gnome = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeAccess = QStringLiteral("org.gnome.desktop.a11y.interface");

bool isOne(const QVariant &value)
{
    return value.typeId() == QMetaType::UInt && value.toUInt() == 1;
}

bool isBool(const QVariant &value, bool expected)
{
    return value.typeId() == QMetaType::Bool && value.toBool() == expected;
}

/// The portal's number comes first; some desktops tell only their own word for it.
std::optional<bool> toDark(const QVariant &number, const QVariant &word)
{
    if (number.typeId() == QMetaType::UInt && number.toUInt() == 1)
        return true;
    if (number.typeId() == QMetaType::UInt && number.toUInt() == 2)
        return false;
    if (word.toString() == QLatin1StringView("prefer-dark"))
        return true;
    if (word.toString() == QLatin1StringView("prefer-light"))
        return false;
    return std::nullopt;
}

std::optional<AccentColor> toColor(const QVariant &value)
{
    if (value.metaType() != QMetaType::fromType<QDBusArgument>())
        return std::nullopt;
    const auto structure = value.value<QDBusArgument>();
    if (structure.currentSignature() != QLatin1StringView("(ddd)"))
        return std::nullopt;
    AccentColor color;
    structure.beginStructure();
    structure >> color.red >> color.green >> color.blue;
    structure.endStructure();
    const auto isPart = [](double part) { return part >= 0 && part <= 1; };
    if (!isPart(color.red) || !isPart(color.green) || !isPart(color.blue))
        return std::nullopt; // the portal's way to say that none was chosen
    return color;
}

} // namespace

AppearanceValues appearanceFrom(const SettingsByNamespace &portal, const KdeGlobals &kde)
{
    const auto value = [&portal](const QString &settings, const char *key) {
        return portal.value(settings).value(QLatin1StringView(key));
    };
    AppearanceValues result;
    result.reducesMotion = isOne(value(common, "reduced-motion")) ||
                           isBool(value(gnome, "enable-animations"), false) || !kde.isAnimated;
    result.highContrast =
        isOne(value(common, "contrast")) || isBool(value(gnomeAccess, "high-contrast"), true);
    result.accent = toColor(value(common, "accent-color"));
    if (!result.accent)
        result.accent = kde.accent;
    result.dark = toDark(value(common, "color-scheme"), value(gnome, "color-scheme"));
    return result;
}

DesktopAppearance::DesktopAppearance(RunLoop &runLoop, const QDBusConnection &sessionBus,
                                     QString kdeGlobals)
    : runLoop_(runLoop)
    , kdeGlobals_(std::move(kdeGlobals))
    , portal_(sessionBus, {common, gnome, gnomeAccess}, [this] { update(); })
{
    if (kdeGlobals_.isEmpty())
        return;
    watchedFiles_ = std::make_shared<WatchedFiles>();
    watch_.emplace(watchedFiles_, [this] {
        settle_ = runLoop_.after(fileSettleTime, [this] { readKdeGlobals(); });
    });
    readKdeGlobals();
}

QString DesktopAppearance::kdeGlobalsOfSession(const QString &configHome)
{
    const auto desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QLatin1Char(':'));
    return desktops.contains(QStringLiteral("KDE")) ? configHome + QStringLiteral("/kdeglobals")
                                                    : QString();
}

Task DesktopAppearance::onChanged(std::function<void()> listener)
{
    return listeners_.add(std::move(listener));
}

void DesktopAppearance::readKdeGlobals()
{
    const auto read = [files = watchedFiles_, path = kdeGlobals_] {
        files->add(path);
        return parseKdeGlobals(files::read(path, largestKdeGlobals).bytes);
    };
    runLoop_.background(owner_, read, [this](const KdeGlobals &kde) {
        kde_ = kde;
        update();
    });
}

void DesktopAppearance::update()
{
    const auto values = appearanceFrom(portal_.values(), kde_);
    if (values == values_)
        return;
    values_ = values;
    listeners_.notify();
}

} // namespace quillmere
