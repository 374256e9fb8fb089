#include "platform/linux/wayland/QtWayland.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QScreen>
#include <QWindow>

#include <private/qguiapplication_p.h>
#include <private/qhighdpiscaling_p.h>
#include <qpa/qplatformintegration.h>
#include <qpa/qplatformnativeinterface.h>

namespace quillmere::qtwayland {

bool isUsed()
{
    return QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"));
}

void chooseBuffers()
{
    // Not finding a plugin for shared memory is what makes Qt use it, and no reason to complain.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.wayland.warning=false"));
    // Qt chooses when it first needs to know, and needs to know to answer this.
    QGuiApplicationPrivate::platformIntegration()->hasCapability(
        QPlatformIntegration::ThreadedOpenGL);
    QLoggingCategory::setFilterRules({});
}

double unitsOf(const QScreen &screen)
{
    return QHighDpiScaling::factor(&screen);
}

wl_display *display()
{
    return static_cast<wl_display *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForIntegration("wl_display"));
}

wl_output *outputOf(QScreen &screen)
{
    return static_cast<wl_output *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForScreen("output", &screen));
}

wl_surface *surfaceOf(QWindow &window)
{
    return static_cast<wl_surface *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window));
}

} // namespace quillmere::qtwayland
