#include "views/IslandModel.h"

#include "app/AudioOutputPicker.h"
#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "platform/Appearance.h"
#include "settings/SettingsStore.h"
#include "views/DesktopAccent.h"
#include "views/OpenableLink.h"

#include <algorithm>

namespace quillmere {

namespace {

constexpr int silhouetteLead = 120; // ms
constexpr double oneLine = 50;      // a HUD lower than this has one line

/// A wheel's notch is 120 eighths of a degree and scrolls ten units.
constexpr double unitsPerAngle = 1.0 / 12;

/// Whether `next` is the same thing with another level: volume over volume, but no other message
/// over a message.
bool continues(const HUDContent &shown, const HUDContent &next)
{
    return shown.type == next.type && (isLevel(next.type) || shown.title == next.title);
}

} // namespace

double cornerRadius(Presentation presentation, double contentHeight)
{
    switch (presentation) {
    case Presentation::Collapsed:
        return 10;
    case Presentation::HUD:
        return contentHeight < oneLine ? 22 : 24;
    case Presentation::Expanded:
        return 28;
    }
    return 0;
}

IslandModel::IslandModel(HUDManager &hudManager, ContentView &contentView, FloatingPanel &panel,
                         SettingsStore &settings, Appearance &appearance,
                         const AudioOutputPicker &output, QObject *parent)
    : QObject(parent)
    , hudManager_(hudManager)
    , contentView_(contentView)
    , panel_(panel)
    , settings_(settings)
    , appearance_(appearance)
    , output_(output)
{
    connect(&contentView_, &ContentView::shownHUDChanged, this, &IslandModel::updateHUD);
    connect(&contentView_, &ContentView::wingsChanged, this, &IslandModel::updateWings);
    connect(&hudManager_, &HUDManager::isOvershootChanged, this, &IslandModel::overshootChanged);
    connect(&contentView_, &ContentView::islandSizeChanged, this, &IslandModel::updateShape);
    connect(&contentView_, &ContentView::presentationChanged, this, [this] {
        updateShape();
        updateHUD();
        updateWings();
        Q_EMIT presentationChanged();
        Q_EMIT surfaceChanged();
    });
    connect(&panel_, &FloatingPanel::alphaChanged, this, &IslandModel::alphaChanged);
    connect(&panel_, &FloatingPanel::collapsedSizeChanged, this, &IslandModel::contentTopChanged);
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        refreshFace();
        if (key == settings_.islandAppearance.key() || key == settings_.glassTransparency.key())
            Q_EMIT surfaceChanged();
        if (key == settings_.useAccentColor.key())
            Q_EMIT accentChanged();
    });
    connect(&output_, &AudioOutputPicker::currentChanged, this, &IslandModel::refreshFace);
    appearanceObserver_ = appearance_.onChanged([this] {
        refreshFace();
        Q_EMIT reducedMotionChanged();
        Q_EMIT accentChanged();
    });
    updateShape();
    updateHUD();
    updateWings();
}

double IslandModel::contentTop() const
{
    return panel_.housingHeight();
}

QString IslandModel::presentation() const
{
    return presentationName(contentView_.presentation());
}

double IslandModel::alpha() const
{
    return panel_.alpha();
}

bool IslandModel::overshoot() const
{
    return hudManager_.isOvershoot();
}

const HUDFace &IslandModel::face(int number) const
{
    return faces_.at(static_cast<std::size_t>(number)).face();
}

QString IslandModel::accessibleText() const
{
    return shownHUD_ ? face(shownFace_).accessibleText : tr("Island");
}

bool IslandModel::reducedMotion() const
{
    return appearance_.reducesMotion();
}

bool IslandModel::isExpanded() const
{
    return contentView_.presentation() == Presentation::Expanded;
}

double IslandModel::surfaceAlpha() const
{
    if (!isExpanded() || settings_.islandAppearance.get() == IslandAppearance::Classic)
        return 1;
    return 1 - 0.5 * std::clamp(settings_.glassTransparency.get(), 0.0, 1.0);
}

QColor IslandModel::accent() const
{
    return settings_.useAccentColor.get() ? desktopAccent(appearance_) : QColor(255, 255, 255, 235);
}

void IslandModel::press()
{
    const auto &hud = contentView_.shownHUD();
    const QUrl link = openableLink(hud ? hud->contentURL : std::nullopt);
    const QString application =
        hud && isMessage(hud->type) ? hud->bundleID.value_or(QString()) : QString();
    if (link.isEmpty() && application.isEmpty()) {
        panel_.mouseDown();
        return;
    }
    contentView_.dismissHUD();
    if (!link.isEmpty())
        Q_EMIT linkActivated(link);
    else
        Q_EMIT applicationWanted(application);
}

void IslandModel::hover(bool inside)
{
    if (inside == pointerInside_)
        return;
    pointerInside_ = inside;
    if (inside)
        contentView_.pointerEntered();
    else
        contentView_.pointerExited();
}

void IslandModel::dragOver(bool over)
{
    Q_EMIT dragOverChanged(over);
}

void IslandModel::drop(const QList<QUrl> &files)
{
    Q_EMIT filesDropped(files);
}

void IslandModel::wheel(const QPointF &pixelDelta, const QPointF &angleDelta, bool touchpad)
{
    const bool precise = touchpad && !pixelDelta.isNull();
    const QPointF delta = precise ? pixelDelta : angleDelta * unitsPerAngle;
    panel_.scrollWheel({.deltaX = delta.x(), .deltaY = delta.y(), .precise = touchpad});
}

void IslandModel::updateWings()
{
    const WingContent content = contentView_.wings().content();
    const bool isCollapsed = contentView_.presentation() == Presentation::Collapsed;
    if (const auto activity = contentView_.idleActivity(); activity && isCollapsed)
        wings_.setFace(hudFace(*activity, hudLook(settings_, output_), desktopAccent(appearance_)));
    const bool shows = isCollapsed && content != WingContent();
    const bool changed = std::exchange(showsWings_, shows) != shows;
    if (shows ? std::exchange(shownWings_, content) != content || changed : changed)
        Q_EMIT wingsChanged();
}

void IslandModel::updateShape()
{
    const QSizeF size = contentView_.islandSize();
    const double radius =
        quillmere::cornerRadius(contentView_.presentation(), size.height() - contentTop());
    if (size == size_ && radius == cornerRadius_)
        return;
    size_ = size;
    cornerRadius_ = radius;
    Q_EMIT shapeChanged();
}

void IslandModel::updateHUD()
{
    const auto &hud = contentView_.shownHUD();
    if (hud) {
        if (hud != shownHUD_)
            show(*hud);
        return;
    }
    if (!shownHUD_)
        return;
    shownHUD_.reset();
    shownFace_ = -1;
    Q_EMIT shownFaceChanged();
    Q_EMIT accessibleTextChanged();
}

void IslandModel::show(const HUDContent &hud)
{
    const bool inPlace = shownHUD_ && continues(*shownHUD_, hud);
    const bool resizes = !shownHUD_ || hudSize(shownHUD_->type) != hudSize(hud.type);
    if (!inPlace) {
        lastFace_ = 1 - lastFace_;
        setContentDelay(resizes ? silhouetteLead : 0);
    }
    shownHUD_ = hud;
    faces_[static_cast<std::size_t>(lastFace_)].setFace(
        hudFace(hud, hudLook(settings_, output_), desktopAccent(appearance_)));
    if (shownFace_ != lastFace_) {
        shownFace_ = lastFace_;
        Q_EMIT shownFaceChanged();
    }
    Q_EMIT accessibleTextChanged();
}

void IslandModel::refreshFace()
{
    if (shownHUD_)
        show(*shownHUD_);
}

void IslandModel::setContentDelay(int milliseconds)
{
    if (milliseconds == contentDelay_)
        return;
    contentDelay_ = milliseconds;
    Q_EMIT contentDelayChanged();
}

} // namespace quillmere
