#include "platform/linux/tray/TrayItem.h"

#include "statusnotifieritemadaptor.h"

#include <QStandardPaths>

namespace quillmere {

TrayIcon installedTrayIcon(const QString &name)
{
    constexpr QLatin1StringView root{"quillmere/icons"};
    constexpr QLatin1StringView category{"/hicolor/scalable/status/"};
    const QString path = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                root + category + name + QLatin1StringView(".svg"));
    if (name.isEmpty() || path.isEmpty())
        return {};
    return {name, path.first(path.lastIndexOf(category)), {}};
}

TrayItem::TrayItem(RunLoop &runLoop, const QString &menuPath)
    : runLoop_(runLoop)
{
    registerTrayTypes();
    setProperty("Category", QStringLiteral("ApplicationStatus"));
    setProperty("Id", QStringLiteral("quillmere"));
    setProperty("Status", QStringLiteral("Active"));
    setProperty("WindowId", 0);
    setProperty("ItemIsMenu", true); // a press has nothing to do that its menu does not offer
    setProperty("Menu", QVariant::fromValue(QDBusObjectPath(menuPath)));
    new StatusNotifierItemAdaptor(this);
}

void TrayItem::setTitle(const QString &title)
{
    setProperty("Title", title);
    setProperty("ToolTip", QVariant::fromValue(TrayToolTip{{}, {}, title, {}}));
    Q_EMIT NewTitle();
    Q_EMIT NewToolTip();
}

void TrayItem::setIcon(const TrayIcon &icon)
{
    setProperty("IconName", icon.name);
    setProperty("IconThemePath", icon.themePath);
    setProperty("IconPixmap", QVariant::fromValue(toTrayPixmaps(icon.images)));
    Q_EMIT NewIcon();
}

void TrayItem::Activate(int /*x*/, int /*y*/)
{
    runLoop_.post(owner_, [this] {
        if (const auto action = onActivate)
            action();
    });
}

void TrayItem::SecondaryActivate(int /*x*/, int /*y*/) {}

// Hosts draw the menu themselves and ask only items without one to do it.
void TrayItem::ContextMenu(int /*x*/, int /*y*/) {}

void TrayItem::Scroll(int /*delta*/, const QString & /*orientation*/) {}

// Nothing the item does takes the focus.
void TrayItem::ProvideXdgActivationToken(const QString & /*token*/) {}

} // namespace quillmere
