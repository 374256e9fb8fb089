#include "platform/linux/wayland/WaylandPanelWindow.h"

#include "platform/linux/wayland/QtWayland.h"
#include "platform/linux/window/PanelShape.h"
#include "platform/linux/window/ScreenMapping.h"

#include <QScreen>
#include <QSurfaceFormat>

#include <utility>

namespace quillmere {

namespace {

constexpr int alphaBits = 8;

/// A compositor that closes the surface for reasons of its own may do so again at once.
constexpr std::chrono::milliseconds remapDelay{500};

/// The canvas of an island on the screen, in Wayland's units, from the output's top left corner.
QRect surfaceRect(const QRectF &island, const QScreen &screen)
{
    const QRect canvas = canvasFor(island).translated(-screen.geometry().topLeft());
    const double units = qtwayland::unitsOf(screen);
    return {canvas.topLeft() * units, canvas.size() * units};
}

} // namespace

WaylandPanelWindow::WaylandPanelWindow(QWindow &window, WaylandGlobals &globals)
    : window_(&window)
    , globals_(globals)
{
    update_.setSingleShot(true);
    connect(&update_, &QTimer::timeout, this, &WaylandPanelWindow::update);
    // Qt destroys the wl_surface whenever it hides the window, also for reasons of its own; the
    // role must not outlive it.
    connect(&window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            dropRole();
    });
    // Who has been given the keyboard is not to keep it from a window the user turns to.
    connect(&window, &QWindow::activeChanged, this, [this] {
        if (role_ && window_->isActive())
            role_->setKeyboard(LayerSurface::Keyboard::Lent);
    });
    scaleObserver_ = globals_.outputs().onScaleChanged([this] { update_.start(0); });
    answeredObserver_ = globals_.onAnswered([this] { answered(); });
}

WaylandPanelWindow::~WaylandPanelWindow()
{
    unmap();
}

PanelWindow::Capabilities WaylandPanelWindow::capabilities() const
{
    return {.detectsFullscreen = static_cast<bool>(toplevelObserver_),
            .seesPointerElsewhere = false};
}

void WaylandPanelWindow::create(const PanelStyle &style)
{
    unmap();
    Qt::WindowFlags flags = Qt::BypassWindowManagerHint | Qt::FramelessWindowHint;
    flags.setFlag(Qt::WindowDoesNotAcceptFocus, style.nonActivating);
    window_->setFlags(flags);
    window_->setGeometry(canvasFor(QRectF(QPointF(0, 0), style.contentSize)));
}

// The overlay is the highest layer there is.
void WaylandPanelWindow::setLevelAboveMainMenu(int) {}

void WaylandPanelWindow::setTraits(const PanelTraits &traits)
{
    QSurfaceFormat format = window_->requestedFormat();
    format.setAlphaBufferSize(traits.opaque ? 0 : alphaBits);
    window_->setFormat(format);
}

// A layer surface belongs to an output, not to a workspace, and no overview lists it.
void WaylandPanelWindow::setCollectionBehavior(CollectionBehaviors) {}

// Every program that the compositor lets record the screen sees all of it.
void WaylandPanelWindow::setSharingType(SharingType) {}

// The window gets its surface with its first place.
void WaylandPanelWindow::attachContent() {}

// Qt announces every window as a drop target; the content accepts or refuses.
void WaylandPanelWindow::registerForFileDrops() {}

void WaylandPanelWindow::setFrame(const QRectF &frame)
{
    frame_ = frame;
    update();
    updateCovered();
}

void WaylandPanelWindow::setVisible(bool visible)
{
    visible_ = visible && !frame_.isEmpty();
    update();
}

// The compositor keeps the layers in their order.
void WaylandPanelWindow::orderFront() {}

void WaylandPanelWindow::setKey(bool key)
{
    if (window_)
        window_->setFlag(Qt::WindowDoesNotAcceptFocus, !key);
    if (role_)
        role_->setKeyboard(key ? LayerSurface::Keyboard::Taken : LayerSurface::Keyboard::None);
}

Task WaylandPanelWindow::onFullscreenChanged(std::function<void()> listener)
{
    return fullscreenListeners_.add(std::move(listener));
}

void WaylandPanelWindow::update()
{
    QScreen *screen = visible_ && window_ ? screenAbove(frame_) : nullptr;
    wl_output *output = screen ? qtwayland::outputOf(*screen) : nullptr;
    if (!output || !globals_.layerShell()) {
        unmap();
        return;
    }
    const Place place{output, screen->devicePixelRatio()};
    if (!role_ || place_ != place) {
        unmap();
        map(*screen, place);
        return;
    }
    role_->move(surfaceRect(frame_, *screen).topLeft());
    window_->setPosition(canvasFor(frame_).topLeft());
    updateInputRegion();
}

void WaylandPanelWindow::map(QScreen &screen, const Place &place)
{
    window_->setScreen(&screen);
    window_->setGeometry(canvasFor(frame_));
    window_->create();
    wl_surface *surface = qtwayland::surfaceOf(*window_);
    if (!surface)
        return;
    place_ = place;
    role_.emplace(*globals_.layerShell(), *surface, *place.output, surfaceRect(frame_, screen));
    role_->onConfigured = [this] { show(); };
    role_->onClosed = [this] {
        unmap();
        update_.start(remapDelay);
    };
}

/// A surface may be drawn only after the first configure; Qt draws as soon as it is visible.
void WaylandPanelWindow::show()
{
    updateInputRegion();
    window_->setVisible(true);
}

void WaylandPanelWindow::unmap()
{
    dropRole();
    if (window_)
        window_->destroy();
}

void WaylandPanelWindow::dropRole()
{
    role_.reset();
    place_.reset();
}

void WaylandPanelWindow::updateInputRegion()
{
    // An empty mask would mean the whole canvas, but the island is never empty while it is mapped.
    const QRectF inside = frame_.translated(-QPointF(canvasFor(frame_).topLeft()));
    window_->setMask(inside.toAlignedRect());
}

void WaylandPanelWindow::answered()
{
    if (auto *toplevels = globals_.toplevels())
        toplevelObserver_ = toplevels->onChanged([this] { updateCovered(); });
    update();
}

void WaylandPanelWindow::updateCovered()
{
    QScreen *screen = screenAbove(frame_);
    const wl_output *output = screen ? qtwayland::outputOf(*screen) : nullptr;
    auto *toplevels = globals_.toplevels();
    const bool covered = output && toplevels && toplevels->isCovered(*output);
    if (std::exchange(covered_, covered) != covered)
        fullscreenListeners_.notify();
}

} // namespace quillmere
