#include "app/UpdateHUD.h"

#include "platform/Symbols.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(UpdateHUD)
};

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
    HUDContent hud = updateHUD(Words::tr("Quillmere %1 is available").arg(update.version),
                               Words::tr("Press to see what is new"));
    hud.contentURL = update.link.toString(QUrl::FullyEncoded);
    return hud;
}

HUDContent upToDateHUD()
{
    return updateHUD(Words::tr("Quillmere is up to date"), Words::tr("There is no newer version"));
}

HUDContent updateFailedHUD(const QString &reason)
{
    return updateHUD(Words::tr("Could not look for updates"), reason);
}

} // namespace quillmere
