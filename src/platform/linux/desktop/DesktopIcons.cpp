#include "platform/linux/desktop/DesktopIcons.h"

#include "platform/PictureDecoder.h"
#include "platform/linux/desktop/DesktopEntries.h"
#include "platform/linux/desktop/IconTheme.h"
#include "platform/linux/desktop/KeyFile.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>

#include <utility>

namespace quillmere {

namespace {

constexpr qsizetype mostIcons = 32;

QString iconFileOf(const QString &entry, const QString &theme)
{
    const QString name = keyFile(entry).value(QStringLiteral("Desktop Entry")).value("Icon");
    return name.startsWith(u'/') ? name : themeIcon(name, theme, ApplicationIcons::side);
}

QImage readIcon(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > largestPictureFile ||
        !file.open(QIODevice::ReadOnly))
        return {};
    if (!path.endsWith(QLatin1StringView(".svg")))
        return decodePicture(file.readAll(), ApplicationIcons::side).value_or(QImage());
    QImageReader drawing(&file, "svg"); // has no size of its own
    drawing.setScaledSize({ApplicationIcons::side, ApplicationIcons::side});
    return drawing.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

DesktopIcons::DesktopIcons(RunLoop &runLoop, std::function<QString()> themeName)
    : runLoop_(runLoop)
    , themeName_(std::move(themeName))
{
}

QImage DesktopIcons::icon(const QString &bundleID)
{
    if (!inWork_.contains(bundleID) && (icons_.contains(bundleID) || icons_.size() < mostIcons)) {
        inWork_.insert(bundleID);
        runLoop_.background(
            owner_,
            [bundleID, theme = themeName_()] {
                return readIcon(iconFileOf(desktopEntryOf(bundleID), theme));
            },
            [this, bundleID](const QImage &icon) {
                inWork_.remove(bundleID);
                // The same picture again is no new one to those who have it.
                if (QImage &known = icons_[bundleID]; known != icon)
                    known = icon;
            });
    }
    return icons_.value(bundleID);
}

} // namespace quillmere
