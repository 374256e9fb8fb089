#pragma once

#include "platform/Appearance.h"
#include "platform/Listeners.h"
#include "platform/RunLoop.h"
#include "platform/linux/appearance/KdeGlobals.h"
#include "platform/linux/appearance/PortalSettings.h"
#include "platform/linux/desktop/FileWatch.h"

namespace quillmere {

struct AppearanceValues {
    bool reducesMotion = false;
    bool highContrast = false;
    std::optional<AccentColor> accent = std::nullopt;
    std::optional<bool> dark = std::nullopt;
    bool operator==(const AppearanceValues &) const = default;
};

/// What the sources together mean: motion is reduced if any of them says so, and the portal's
/// accent comes first. Values of a wrong type count as absent.
AppearanceValues appearanceFrom(const SettingsByNamespace &portal, const KdeGlobals &kde);

/// The appearance as the desktop's portal tells it, which is where GNOME and the common settings
/// are, and KDE's own settings file for its animation speed.
class DesktopAppearance : public Appearance
{
public:
    /// `kdeGlobals`: the path of KDE's settings file; empty on other desktops.
    DesktopAppearance(RunLoop &runLoop, const QDBusConnection &sessionBus, QString kdeGlobals);

    /// The path for this session.
    static QString kdeGlobalsOfSession(const QString &configHome);

    bool reducesMotion() const override { return values_.reducesMotion; }
    bool highContrast() const override { return values_.highContrast; }
    std::optional<AccentColor> accentColor() const override { return values_.accent; }
    std::optional<bool> prefersDark() const override { return values_.dark; }
    Task onChanged(std::function<void()> listener) override;

private:
    void readKdeGlobals();
    void update();

    RunLoop &runLoop_;
    QString kdeGlobals_;
    KdeGlobals kde_;
    AppearanceValues values_;
    Listeners<> listeners_;
    PortalSettings portal_;
    std::shared_ptr<WatchedFiles> watchedFiles_;
    std::optional<FileWatch> watch_;
    Task settle_;
    Owner owner_;
};

} // namespace quillmere
