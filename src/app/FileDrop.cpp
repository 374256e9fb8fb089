#include "app/FileDrop.h"

#include "app/AppEvents.h"
#include "platform/Symbols.h"

#include <QCoreApplication>

namespace quillmere {

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(FileDrop)
};

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
    HUDContent hud{.title = Words::tr("File Added"),
                   .icon = symbols::trayAndArrowDown,
                   .type = HUDContent::HUDType::FileTray};
    if (files.isEmpty())
        return hud;
    const QString first = fileName(files.first());
    const auto others = static_cast<int>(files.size()) - 1;
    hud.subtitle = others > 0 ? Words::tr("%1 and %n more", nullptr, others).arg(first) : first;
    return hud;
}

} // namespace quillmere
