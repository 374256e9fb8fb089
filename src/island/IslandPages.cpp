#include "island/IslandPages.h"

#include <algorithm>
#include <array>

namespace quillmere {

QString islandPageName(IslandPage page)
{
    static const std::array names{QStringLiteral("main"),     QStringLiteral("calendar"),
                                  QStringLiteral("weather"),  QStringLiteral("system"),
                                  QStringLiteral("fileTray"), QStringLiteral("timer"),
                                  QStringLiteral("camera"),   QStringLiteral("network")};
    return names.at(static_cast<std::size_t>(page));
}

IslandPages::IslandPages(RunLoop &runLoop)
    : runLoop_(runLoop)
{
}

void IslandPages::offer(const QList<IslandPage> &pages)
{
    if (pages == offered_)
        return;
    offered_ = pages;
    if (!offered_.contains(islandPage_))
        show(IslandPage::Main);
    Q_EMIT offeredChanged();
}

void IslandPages::show(IslandPage page)
{
    if (page == islandPage_ || !offered_.contains(page))
        return;
    previousIslandPage_ = islandPage_;
    pageSlideDirection_ = page > islandPage_ ? 1 : -1;
    islandPage_ = page;
    setTransitioning(true);
    transitionEnd_ = runLoop_.after(slideDuration, [this] { setTransitioning(false); });
    Q_EMIT pageChanged();
}

void IslandPages::step(int step)
{
    const auto last = offered_.size() - 1;
    const auto index = std::clamp<qsizetype>(offered_.indexOf(islandPage_) + step, 0, last);
    show(offered_.at(index));
}

void IslandPages::setTransitioning(bool transitioning)
{
    if (transitioning == isPageTransitioning_)
        return;
    isPageTransitioning_ = transitioning;
    Q_EMIT transitioningChanged();
}

} // namespace quillmere
