#include "views/IslandModel.h"

#include "island/ContentView.h"
#include "island/FloatingPanel.h"
#include "island/HUDManager.h"
#include "settings/SettingsStore.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace quillmere {

namespace {

constexpr int silhouetteLead = 120;          // ms
constexpr double oneLine = 50;               // a HUD lower than this has one line
constexpr float leastAccentLightness = 0.6F; // below, it is too dark on black

/// A wheel's notch is 120 eighths of a degree and scrolls ten units.
constexpr double unitsPerAngle = 1.0 / 12;

QColor desktopAccent()
{
    const QColor highlight = QGuiApplication::palette().color(QPalette::Highlight);
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
    highlight.getHslF(&hue, &saturation, &lightness);
    return QColor::fromHslF(std::max(0.0F, hue), saturation,
                            std::max(leastAccentLightness, lightness));
}

/// Whether `next` is the same thing with another level: volume over volume, but no other message
/// over a message.
bool continues(const HUDContent &shown, const HUDContent &next)
{
    using enum HUDContent::HUDType;
    if (shown.type != next.type)
        return false;
    return next.type == Volume || next.type == Brightness || shown.title == next.title;
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
                         SettingsStore &settings, QObject *parent)
    : QObject(parent)
    , hudManager_(hudManager)
    , contentView_(contentView)
    , panel_(panel)
    , settings_(settings)
{
    connect(&hudManager_, &HUDManager::currentHUDChanged, this, &IslandModel::updateHUD);
    connect(&hudManager_, &HUDManager::isOvershootChanged, this, &IslandModel::overshootChanged);
    connect(&contentView_, &ContentView::islandSizeChanged, this, &IslandModel::updateShape);
    connect(&contentView_, &ContentView::presentationChanged, this, [this] {
        updateShape();
        updateHUD();
        Q_EMIT presentationChanged();
    });
    connect(&panel_, &FloatingPanel::alphaChanged, this, &IslandModel::alphaChanged);
    connect(&panel_, &FloatingPanel::collapsedSizeChanged, this, &IslandModel::contentTopChanged);
    connect(&settings_, &SettingsStore::didChange, this, &IslandModel::refreshFace);
    updateShape();
    updateHUD();
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

QString IslandModel::accessibleText() const
{
    return shownHUD_ ? faces_[static_cast<std::size_t>(shownFace_)].accessibleText : tr("Island");
}

void IslandModel::setReducedMotion(bool reduced)
{
    if (reduced == reducedMotion_)
        return;
    reducedMotion_ = reduced;
    Q_EMIT reducedMotionChanged();
}

void IslandModel::press()
{
    panel_.mouseDown();
}

void IslandModel::wheel(const QPointF &pixelDelta, const QPointF &angleDelta)
{
    const bool precise = !pixelDelta.isNull();
    const QPointF delta = precise ? pixelDelta : angleDelta * unitsPerAngle;
    panel_.scrollWheel({.deltaX = delta.x(), .deltaY = delta.y(), .precise = precise});
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
    const auto &hud = hudManager_.currentHUD();
    const bool visible = hud && contentView_.presentation() == Presentation::HUD;
    if (visible) {
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
    faces_[static_cast<std::size_t>(lastFace_)] = hudFace(hud, hudLook(settings_), desktopAccent());
    Q_EMIT facesChanged();
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
