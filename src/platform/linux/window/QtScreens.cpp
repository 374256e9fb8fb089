#include "platform/linux/window/QtScreens.h"

#include "platform/linux/window/CameraHousing.h"
#include "platform/linux/window/ScreenMapping.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <array>

namespace quillmere {

QtScreens::QtScreens(const QString &sysfsRoot)
    : machineNames_(machineNames(sysfsRoot))
{
    notification_.setSingleShot(true);
    connect(&notification_, &QTimer::timeout, this, [this] { listeners_.notify(); });
    for (QScreen *screen : QGuiApplication::screens())
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        scheduleNotification();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &QtScreens::scheduleNotification);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this,
            &QtScreens::scheduleNotification);
}

QList<ScreenInfo> QtScreens::screens() const
{
    QList<ScreenInfo> infos;
    for (const QScreen *screen : QGuiApplication::screens()) {
        // With no output left Qt keeps an empty stand-in.
        if (!screen->geometry().isEmpty())
            infos.append(describe(*screen));
    }
    return infos;
}

QPointF QtScreens::pointerPosition() const
{
    return QCursor::pos();
}

Task QtScreens::onParametersChanged(std::function<void()> listener)
{
    return listeners_.add(std::move(listener));
}

void QtScreens::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::scheduleNotification);
    connect(screen, &QScreen::physicalDotsPerInchChanged, this, &QtScreens::scheduleNotification);
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, &QtScreens::scheduleNotification);
}

// Plugging in one monitor makes a burst of signals, some of them about half of the new picture.
void QtScreens::scheduleNotification()
{
    notification_.start(0);
}

ScreenInfo QtScreens::describe(const QScreen &screen) const
{
    const auto mapping = ScreenMapping::of(screen);
    ScreenInfo info;
    info.name = screen.name();
    info.frame = mapping.logical;
    info.isMain = &screen == QGuiApplication::primaryScreen();
    info.isBuiltIn = isInternalConnector(info.name);
    const auto *housing =
        findCameraHousing(knownCameraHousings(), machineNames_, mapping.native().size());
    if (info.isBuiltIn && housing)
        applyCameraHousing(info, *housing, mapping.scale);
    return info;
}

bool isInternalConnector(const QString &name)
{
    static constexpr std::array internal{QLatin1StringView("eDP"), QLatin1StringView("LVDS"),
                                         QLatin1StringView("DSI")};
    return std::any_of(internal.begin(), internal.end(), [&](QLatin1StringView connector) {
        return name.startsWith(connector, Qt::CaseInsensitive);
    });
}

} // namespace quillmere
