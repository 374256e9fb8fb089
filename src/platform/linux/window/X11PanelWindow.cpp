#include "platform/linux/window/X11PanelWindow.h"

#include "platform/linux/window/PanelShape.h"
#include "platform/linux/window/ScreenMapping.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QScreen>
#include <QSurfaceFormat>

namespace quillmere {

namespace {

constexpr int alphaBits = 8;

} // namespace

X11PanelWindow::X11PanelWindow(QWindow &window, X11Observer &observer)
    : window_(&window)
    , observer_(observer)
{
    window.installEventFilter(this);
    connect(&window, &QWindow::screenChanged, this, &X11PanelWindow::updateShape);
    restackObserver_ = observer_.onRestacked([this] { orderFront(); });
    compositedObserver_ = observer_.onCompositedChanged([this] { updateShape(); });
    fullscreenObserver_ = observer_.onFullscreenWindowChanged([this] { updateCovered(); });
}

X11PanelWindow::~X11PanelWindow()
{
    if (window_)
        window_->hide();
}

void X11PanelWindow::create(const PanelStyle &style)
{
    // Neither the kind of window nor its depth can change under a surface.
    if (window_->handle())
        window_->destroy();
    Qt::WindowFlags flags = Qt::ToolTip | Qt::BypassWindowManagerHint | Qt::FramelessWindowHint;
    flags.setFlag(Qt::WindowDoesNotAcceptFocus, style.nonActivating);
    window_->setFlags(flags);
    window_->setTitle(QStringLiteral("Quillmere"));
    window_->setGeometry(canvasFor(QRectF(QPointF(0, 0), style.contentSize)));
}

void X11PanelWindow::setLevelAboveMainMenu(int levels)
{
    window_->setFlag(Qt::WindowStaysOnTopHint, levels > 0);
}

void X11PanelWindow::setTraits(const PanelTraits &traits)
{
    traits_ = traits;
    QSurfaceFormat format = window_->requestedFormat();
    format.setAlphaBufferSize(traits.opaque ? 0 : alphaBits);
    window_->setFormat(format);
}

// An unmanaged window is on all desktops and beside full-screen windows as it is, and no request
// keeps it out of an overview that shows such windows.
void X11PanelWindow::setCollectionBehavior(CollectionBehaviors) {}

// Every client may read the screen.
void X11PanelWindow::setSharingType(SharingType) {}

void X11PanelWindow::attachContent()
{
    window_->create();
}

// Qt announces every window as a drop target; the content accepts or refuses.
void X11PanelWindow::registerForFileDrops() {}

void X11PanelWindow::setFrame(const QRectF &frame)
{
    frame_ = frame;
    moveCanvas();
    updateShape();
    updateCovered();
}

void X11PanelWindow::setVisible(bool visible)
{
    visible_ = visible && !frame_.isEmpty();
    if (!window_)
        return;
    updateShape();
    window_->setVisible(visible_);
    orderFront();
}

void X11PanelWindow::orderFront()
{
    if (!window_ || !visible_)
        return;
    window_->raise();
    if (const auto surface = X11Surface::of(*window_))
        surface->flush();
}

void X11PanelWindow::setKey(bool key)
{
    const auto surface = window_ ? X11Surface::of(*window_) : std::nullopt;
    if (!surface || key == focusBefore_.has_value())
        return;
    window_->setFlag(Qt::WindowDoesNotAcceptFocus, !key);
    if (key) {
        focusBefore_ = surface->focusedWindow();
        window_->requestActivate();
    } else {
        surface->returnFocus(*std::exchange(focusBefore_, std::nullopt));
        surface->flush();
    }
}

Task X11PanelWindow::onFullscreenChanged(std::function<void()> listener)
{
    return fullscreenListeners_.add(std::move(listener));
}

bool X11PanelWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PlatformSurface &&
        static_cast<QPlatformSurfaceEvent *>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated)
        surfaceCreated();
    return QObject::eventFilter(watched, event);
}

void X11PanelWindow::surfaceCreated()
{
    shape_.reset();
    if (const auto surface = X11Surface::of(*window_))
        surface->describe(observer_.atoms(), traits_.hasShadow);
    updateShape();
}

void X11PanelWindow::moveCanvas()
{
    if (!window_)
        return;
    QScreen *screen = screenAbove(frame_);
    if (screen && screen != window_->screen())
        window_->setScreen(screen);
    window_->setGeometry(canvasFor(frame_));
}

void X11PanelWindow::updateShape()
{
    const auto surface = window_ ? X11Surface::of(*window_) : std::nullopt;
    if (!surface)
        return;
    const double scale = window_->devicePixelRatio();
    const QRect island =
        visible_ ? devicePixels(frame_, canvasFor(frame_).topLeft(), scale) : QRect();
    const Shape shape{island, observer_.isComposited() ? std::nullopt
                                                       : std::optional(silhouette(island, scale))};
    if (shape_ == shape)
        return;
    shape_ = shape;
    surface->setInputRegion(shape.input);
    surface->setBoundingRegion(shape.bounding);
    surface->flush();
}

void X11PanelWindow::updateCovered()
{
    const auto fullscreen = observer_.fullscreenWindow();
    const QScreen *screen = screenAbove(frame_);
    const bool covered =
        fullscreen && screen && fullscreen->contains(ScreenMapping::of(*screen).native());
    if (std::exchange(covered_, covered) != covered)
        fullscreenListeners_.notify();
}

} // namespace quillmere
