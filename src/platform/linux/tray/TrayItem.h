#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/tray/TrayTypes.h"

#include <QObject>

#include <functional>

namespace quillmere {

/// What a host draws for the item. Hosts that find `name` below `themePath` draw that one in their
/// own colour; the others take the image of the best size.
struct TrayIcon {
    QString name;      ///< of an icon file without its extension; empty: none
    QString themePath; ///< the folder that holds the theme with it
    QList<QImage> images;
};

/// The icon as far as it is installed with the program, without images; an empty one if it is not.
TrayIcon installedTrayIcon(const QString &name);

/// The status item as org.kde.StatusNotifierItem, its properties being dynamic ones of this object
/// that the generated adaptor reads. Main thread only.
class TrayItem : public QObject
{
    Q_OBJECT

public:
    TrayItem(RunLoop &runLoop, const QString &menuPath);

    void setTitle(const QString &title);
    void setIcon(const TrayIcon &icon);
    std::function<void()> onActivate;

    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString &orientation);
    void ProvideXdgActivationToken(const QString &token);

Q_SIGNALS:
    void NewTitle();
    void NewIcon();
    void NewToolTip();

private:
    RunLoop &runLoop_;
    Owner owner_;
};

} // namespace quillmere
