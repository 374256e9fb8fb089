#pragma once

#include "platform/RunLoop.h"

#include <QList>
#include <QObject>

#include <chrono>
#include <optional>

namespace quillmere {

/// The pages of the expanded dashboard, in the order of their dots.
enum class IslandPage { Main, Calendar, Weather, System, FileTray, Timer, Camera, Network };

/// The case's name: "main", "calendar", ...
QString islandPageName(IslandPage page);

/// The pages among which the user moves, which of them is shown, and the slide from one to the
/// next. The first page offered is always the main one. Main thread only.
class IslandPages : public QObject
{
    Q_OBJECT

public:
    /// How long a page change slides.
    static constexpr Duration slideDuration = std::chrono::milliseconds(320);

    explicit IslandPages(RunLoop &runLoop);

    IslandPage islandPage() const { return islandPage_; }
    /// The page shown before the last change; absent until there was one.
    std::optional<IslandPage> previousIslandPage() const { return previousIslandPage_; }
    /// 1 when the shown page came from behind the previous one's right edge, -1 from the left.
    int pageSlideDirection() const { return pageSlideDirection_; }
    bool isPageTransitioning() const { return isPageTransitioning_; }
    const QList<IslandPage> &offered() const { return offered_; }

    /// `pages` in the order of the enumeration. When the shown page is no longer among them, the
    /// main page takes its place.
    void offer(const QList<IslandPage> &pages);

    /// Nothing happens for the page shown already and for one that is not offered.
    void show(IslandPage page);

    /// `step` pages on, stopping at the first and the last.
    void step(int step);

Q_SIGNALS:
    void offeredChanged();
    void pageChanged();
    void transitioningChanged();

private:
    void setTransitioning(bool transitioning);

    RunLoop &runLoop_;
    QList<IslandPage> offered_{IslandPage::Main};
    IslandPage islandPage_ = IslandPage::Main;
    std::optional<IslandPage> previousIslandPage_;
    int pageSlideDirection_ = 1;
    bool isPageTransitioning_ = false;
    Task transitionEnd_;
};

} // namespace quillmere
