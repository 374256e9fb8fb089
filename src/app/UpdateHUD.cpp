#include "app/UpdateHUD.h"

#include "platform/Symbols.h"

namespace quillmere {

namespace {

HUDContent updateHUD(const QString &title, const QString &subtitle)
{
    return {.title = title,
            .subtitle = subtitle,
            .icon = QString(symbols::arrowDownCircle),
            .type = HUDContent::HUDType::Notification};
}

} // namespace

HUDContent updateFoundHUD(const Update &update)
{
    HUDContent hud = updateHUD(QStringLiteral("Quillmere %1 is available").arg(update.version),
                               QStringLiteral("Press to see what is new"));
    hud.contentURL = update.link.toString(QUrl::FullyEncoded);
    return hud;
}

HUDContent upToDateHUD()
{
    return updateHUD(QStringLiteral("Quillmere is up to date"),
                     QStringLiteral("There is no newer version"));
}

HUDContent updateFailedHUD(const QString &reason)
{
    return updateHUD(QStringLiteral("Could not look for updates"), reason);
}

} // namespace quillmere
