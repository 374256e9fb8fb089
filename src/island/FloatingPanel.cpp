#include "island/FloatingPanel.h"

#include "app/AppEvents.h"
#include "island/NotchGeometry.h"

#include <cmath>

namespace quillmere {

namespace {

constexpr int levelsAboveMainMenu = 2;
constexpr double wheelMultiplier = 3.0;
constexpr double scrollThreshold = 15.0;
constexpr double collapsedHeightLimit = 50.0;
constexpr double pointsPerStep = 10.0;

CollectionBehaviors collectionBehavior(bool hideInMissionControl)
{
    using enum CollectionBehavior;
    CollectionBehaviors behavior =
        CollectionBehaviors(CanJoinAllSpaces) | Stationary | FullScreenAuxiliary;
    behavior.setFlag(Transient, hideInMissionControl);
    return behavior;
}

SharingType sharingType(bool hideFromScreenCapture)
{
    return hideFromScreenCapture ? SharingType::None : SharingType::ReadOnly;
}

bool isUsable(QSizeF size)
{
    return std::isfinite(size.width()) && std::isfinite(size.height()) && !size.isEmpty();
}

} // namespace

FloatingPanel::FloatingPanel(RunLoop &runLoop, Screens &screens, GlobalEvents &globalEvents,
                             NotificationCenter &notificationCenter, PanelWindow &window,
                             SettingsStore &settings, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , screens_(screens)
    , globalEvents_(globalEvents)
    , notificationCenter_(notificationCenter)
    , window_(window)
    , settings_(settings)
    , frame_(QPointF(0, 0), fallbackPillSize)
{
    setUpWindow();
    chooseScreen();
    updateCollapsedSize();
    fullscreenObserver_ = window_.onFullscreenChanged([this] { updateVisibility(); });
    connect(&settings_, &SettingsStore::didChange, this, &FloatingPanel::settingDidChange);
}

void FloatingPanel::setUpWindow()
{
    window_.create({.contentSize = fallbackPillSize});
    window_.setLevelAboveMainMenu(levelsAboveMainMenu);
    window_.setTraits({});
    window_.setCollectionBehavior(collectionBehavior(settings_.hideInMissionControl.get()));
    window_.setSharingType(sharingType(settings_.hideFromScreenCapture.get()));
    window_.attachContent();
    window_.registerForFileDrops();
    globalClickMonitor_ =
        globalEvents_.onLeftMouseDown([this](QPointF position) { clickedAnywhere(position); });
}

bool FloatingPanel::suppressesHUDs() const
{
    return window_.isCoveredByFullscreen() && settings_.disableInFullscreen.get();
}

void FloatingPanel::setSize(QSizeF size)
{
    if (isUsable(size))
        place(size);
}

void FloatingPanel::setIdle(bool idle)
{
    idle_ = idle;
    updateVisibility();
}

void FloatingPanel::displaysDidChange()
{
    chooseScreen();
    const bool firstPosition = screen_ && alpha_ == 0;
    if (firstPosition)
        alpha_ = 1;
    place(size());
    updateVisibility();
    if (firstPosition)
        Q_EMIT alphaChanged();
    updateCollapsedSize();
}

void FloatingPanel::applyHideInMissionControl(bool hide)
{
    window_.setCollectionBehavior(collectionBehavior(hide));
}

void FloatingPanel::applyHideFromScreenCapture(bool hide)
{
    window_.setSharingType(sharingType(hide));
}

void FloatingPanel::orderFront()
{
    if (visible_)
        window_.orderFront();
}

void FloatingPanel::setKey(bool key)
{
    wantsKey_ = key;
    window_.setKey(key && visible_);
}

void FloatingPanel::mouseDown()
{
    notificationCenter_.post(events::islandTapped);
}

void FloatingPanel::scrollWheel(const ScrollEvent &event)
{
    const double multiplier = event.precise ? 1.0 : wheelMultiplier;
    if (std::abs(event.deltaX * multiplier) > scrollThreshold) {
        const QString direction =
            event.deltaX > 0 ? QStringLiteral("left") : QStringLiteral("right");
        notificationCenter_.post(events::islandScrolled, {{events::scrollDirection, direction}});
    }
    const bool taken = takesScroll && takesScroll(event);
    // A HUD below a camera housing is no larger for it; the wheel goes on while the volume shows.
    if (!taken && size().height() - housingHeight_ <= collapsedHeightLimit)
        collapsedScroll(event);
}

void FloatingPanel::collapsedScroll(const ScrollEvent &event)
{
    const bool vertical = std::abs(event.deltaY) > std::abs(event.deltaX);
    if (!onCollapsedScroll || !vertical || !std::isfinite(event.deltaY))
        return;
    if (!event.precise) {
        onCollapsedScroll(event.deltaY / pointsPerStep);
        return;
    }
    const bool turnedBack = std::signbit(scrolledPoints_) != std::signbit(event.deltaY);
    scrolledPoints_ = turnedBack ? event.deltaY : scrolledPoints_ + event.deltaY;
    const double steps = std::trunc(scrolledPoints_ / pointsPerStep);
    if (steps == 0)
        return;
    scrolledPoints_ -= steps * pointsPerStep;
    onCollapsedScroll(steps);
}

void FloatingPanel::settingDidChange(const QString &key)
{
    if (key == settings_.displaySelection.key())
        displaysDidChange();
    else if (key == settings_.notchWidth.key() || key == settings_.notchHeight.key())
        updateCollapsedSize();
    else if (key == settings_.hideInFullscreen.key() || key == settings_.disableInFullscreen.key())
        updateVisibility();
}

void FloatingPanel::chooseScreen()
{
    const auto screens = screens_.screens();
    const auto selection = settings_.displaySelection.get();
    const auto pointer =
        selection == DisplaySelection::Active ? screens_.pointerPosition() : QPointF();
    const auto index = targetScreen(selection, screens, pointer);
    screen_ = index ? std::optional(screens.at(*index)) : std::nullopt;
}

void FloatingPanel::place(QSizeF size)
{
    const QPointF origin = screen_ ? panelOrigin(*screen_, size) : frame_.topLeft();
    const QRectF frame(origin, size);
    const bool changed = frame != frame_;
    frame_ = frame;
    if (screen_ && alpha_ > 0)
        window_.setFrame(frame_);
    if (changed)
        Q_EMIT frameChanged();
}

void FloatingPanel::updateCollapsedSize()
{
    // With every screen gone the pill keeps its size until one is back.
    if (!screen_ && collapsedSize_.isValid())
        return;
    const auto notch = screen_ ? notchSize(*screen_) : std::nullopt;
    const QSizeF size =
        quillmere::collapsedSize(notch, settings_.notchWidth.get(), settings_.notchHeight.get());
    const double housingHeight = notch ? notch->height() : 0;
    if (size == collapsedSize_ && housingHeight == housingHeight_)
        return;
    collapsedSize_ = size;
    housingHeight_ = housingHeight;
    Q_EMIT collapsedSizeChanged();
}

bool FloatingPanel::hiddenByFullscreen() const
{
    return settings_.hideInFullscreen.get() && (idle_ || settings_.disableInFullscreen.get()) &&
           window_.isCoveredByFullscreen();
}

void FloatingPanel::updateVisibility()
{
    const bool visible = alpha_ > 0 && screen_ && !hiddenByFullscreen();
    if (visible == visible_)
        return;
    visible_ = visible;
    if (wantsKey_ && !visible) // or what is typed would go nowhere
        window_.setKey(false);
    window_.setVisible(visible);
    if (wantsKey_ && visible)
        window_.setKey(true);
}

void FloatingPanel::clickedAnywhere(QPointF position)
{
    if (visible_ && frameContains(frame_, position))
        runLoop_.post(owner_, [this] { mouseDown(); });
}

} // namespace quillmere
