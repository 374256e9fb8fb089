#include "platform/linux/window/CameraHousing.h"

#include <QFile>

#include <algorithm>
#include <array>

namespace quillmere {

namespace {

constexpr CameraHousing housing14(QLatin1StringView machine)
{
    return {machine, {3024, 1964}, 64, 1326, 1696};
}

constexpr CameraHousing housing16(QLatin1StringView machine)
{
    return {machine, {3456, 2234}, 64, 1542, 1912};
}

constexpr std::array housings{
    housing14(QLatin1StringView("apple,j314s")), housing14(QLatin1StringView("apple,j314c")),
    housing14(QLatin1StringView("apple,j414s")), housing14(QLatin1StringView("apple,j414c")),
    housing16(QLatin1StringView("apple,j316s")), housing16(QLatin1StringView("apple,j316c")),
    housing16(QLatin1StringView("apple,j416s")), housing16(QLatin1StringView("apple,j416c")),
};

QByteArray readSmall(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(4096) : QByteArray();
}

} // namespace

std::span<const CameraHousing> knownCameraHousings()
{
    return housings;
}

QStringList machineNames(const QString &sysfsRoot)
{
    QStringList names;
    const auto compatible =
        readSmall(sysfsRoot + QStringLiteral("/firmware/devicetree/base/compatible"));
    for (const auto &name : compatible.split('\0'))
        names.append(QString::fromUtf8(name));
    names.append(
        QString::fromUtf8(readSmall(sysfsRoot + QStringLiteral("/class/dmi/id/product_name")))
            .trimmed());
    names.removeAll(QString());
    return names;
}

const CameraHousing *findCameraHousing(std::span<const CameraHousing> housings,
                                       const QStringList &machineNames, QSize mode)
{
    const auto found =
        std::find_if(housings.begin(), housings.end(), [&](const CameraHousing &entry) {
            return entry.mode == mode && machineNames.contains(entry.machine);
        });
    return found == housings.end() ? nullptr : &*found;
}

void applyCameraHousing(ScreenInfo &screen, const CameraHousing &housing, double scale)
{
    const QRectF &frame = screen.frame;
    const double left = frame.left() + housing.gapLeft / scale;
    const double right = frame.left() + housing.gapRight / scale;
    screen.topInset = housing.inset / scale;
    screen.auxiliaryTopLeft =
        QRectF(frame.left(), frame.top(), left - frame.left(), screen.topInset);
    screen.auxiliaryTopRight = QRectF(right, frame.top(), frame.right() - right, screen.topInset);
}

} // namespace quillmere
