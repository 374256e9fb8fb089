#include "app/FileDrop.h"

#include "app/AppEvents.h"
#include "platform/Symbols.h"

namespace quillmere {

namespace {

/// A folder's path may end with a slash.
QString fileName(const QUrl &file)
{
    const QUrl bare = file.adjusted(QUrl::StripTrailingSlash);
    const QString name = bare.fileName(QUrl::FullyDecoded);
    return name.isEmpty() ? bare.path(QUrl::FullyDecoded) : name;
}

} // namespace

QVariantMap fileDropInfo(const QList<QUrl> &files)
{
    return {{events::droppedFiles, QVariant::fromValue(files)}};
}

QList<QUrl> droppedFiles(const QVariantMap &userInfo)
{
    return userInfo.value(events::droppedFiles).value<QList<QUrl>>();
}

HUDContent fileAddedHUD(const QList<QUrl> &files)
{
    HUDContent hud{.title = QStringLiteral("File Added"),
                   .icon = symbols::trayAndArrowDown,
                   .type = HUDContent::HUDType::FileTray};
    if (files.isEmpty())
        return hud;
    hud.subtitle = fileName(files.first());
    if (files.size() > 1)
        *hud.subtitle += QStringLiteral(" and %1 more").arg(files.size() - 1);
    return hud;
}

} // namespace quillmere
