#include "views/IslandWindow.h"

#include "views/DashboardModel.h"
#include "views/IslandModel.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

// Linked statically, nothing else would pull in the module's types, files and compiled scenes.
void qml_register_types_Quillmere();

static void initializeModule()
{
    qml_register_types_Quillmere();
    Q_INIT_RESOURCE(qmake_Quillmere);
    Q_INIT_RESOURCE(qmlcache_quillmere_views);
    Q_INIT_RESOURCE(quillmere_glyphs);
}

namespace quillmere {

namespace {

constexpr QSize canvas(720, 300);

std::unique_ptr<QQuickItem> makeScene(QQmlEngine &engine, IslandModel &island,
                                      DashboardModel &dashboard)
{
    QQmlComponent component(
        &engine, QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmere/IslandScene.qml")));
    const QVariantMap properties{{QStringLiteral("island"), QVariant::fromValue(&island)},
                                 {QStringLiteral("dashboard"), QVariant::fromValue(&dashboard)}};
    std::unique_ptr<QObject> scene;
    if (component.isReady())
        scene.reset(component.createWithInitialProperties(properties));
    if (!scene)
        qFatal("[IslandWindow] %ls", qUtf16Printable(component.errorString()));
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem *>(scene.release()));
}

} // namespace

IslandWindow::IslandWindow()
    : engine_((initializeModule(), std::make_unique<QQmlEngine>()))
{
    setColor(Qt::transparent);
    setTitle(QStringLiteral("Quillmere"));
    resize(canvas);
    connect(this, &QQuickWindow::widthChanged, this, &IslandWindow::fitScene);
    connect(this, &QQuickWindow::heightChanged, this, &IslandWindow::fitScene);
}

IslandWindow::~IslandWindow() = default;

void IslandWindow::clearIsland()
{
    scene_.reset();
    island_ = nullptr;
    dashboard_ = nullptr;
}

void IslandWindow::setIsland(IslandModel &island, DashboardModel &dashboard)
{
    clearIsland();
    island_ = &island;
    dashboard_ = &dashboard;
    scene_ = makeScene(*engine_, island, dashboard);
    scene_->setParentItem(contentItem());
    fitScene();
    connect(island_, &IslandModel::shownFaceChanged, this, &IslandWindow::announceHUD);
    connect(dashboard_, &DashboardModel::levelChanged, this, [this] {
        if (dashboard_ && dashboard_->showsLevel())
            announce(QStringLiteral("dashboardHUD"));
    });
}

void IslandWindow::fitScene()
{
    if (scene_)
        scene_->setSize(size());
}

void IslandWindow::keyPressEvent(QKeyEvent *event)
{
    if (dashboard_)
        dashboard_->keyPressed();
    QQuickWindow::keyPressEvent(event);
}

void IslandWindow::announceHUD()
{
    if (island_ && island_->shownFace() >= 0)
        announce(island_->shownFace() == 0 ? QStringLiteral("firstHUD")
                                           : QStringLiteral("secondHUD"));
}

void IslandWindow::announce(const QString &objectName)
{
    if (!scene_ || !QAccessible::isActive())
        return;
    if (auto *hud = scene_->findChild<QQuickItem *>(objectName)) {
        QAccessibleEvent alert(hud, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace quillmere
