#include "settingswindow/SettingsWindow.h"

#include "app/AppEvents.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "settingswindow/SettingsModel.h"

#include <QCoreApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

// Linked statically, nothing else would pull in the module's types, files and compiled scenes.
void qml_register_types_Quillmere_Settings();

static void initializeModule()
{
    qml_register_types_Quillmere_Settings();
    Q_INIT_RESOURCE(qmake_Quillmere_Settings);
    Q_INIT_RESOURCE(qmlcache_quillmere_settingswindow);
}

namespace quillmere {

namespace {

constexpr QSize firstSize(800, 620);
constexpr QSize smallestSize(640, 420);

std::unique_ptr<QQuickItem> makeScene(QQmlEngine &engine, SettingsModel &model)
{
    QQmlComponent component(
        &engine,
        QUrl(QStringLiteral("qrc:/qt-project.org/imports/Quillmere/Settings/SettingsScene.qml")));
    std::unique_ptr<QObject> scene;
    if (component.isReady())
        scene.reset(component.createWithInitialProperties(
            {{QStringLiteral("model"), QVariant::fromValue(&model)}}));
    if (!scene)
        qWarning("[SettingsWindow] %ls", qUtf16Printable(component.errorString()));
    return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem *>(scene.release()));
}

} // namespace

/// Everything that is there only while the window is open, in the order it depends on each other.
class SettingsWindow::Content : public QQuickWindow
{
public:
    Content(SettingsServices &services, std::function<void()> onClosed)
        : model_(services)
        , onClosed_(std::move(onClosed))
        , scene_(makeScene(engine_, model_))
    {
        setTitle(QCoreApplication::translate("Settings", "Quillmere Settings"));
        setMinimumSize(smallestSize);
        resize(firstSize);
        if (!scene_)
            return;
        scene_->setParentItem(contentItem());
        scene_->setSize(size());
        scene_->setFocus(true);
        setColor(scene_->property("background").value<QColor>());
    }

    bool isUsable() const { return scene_ != nullptr; }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QQuickWindow::resizeEvent(event);
        if (scene_)
            scene_->setSize(size());
    }

    bool event(QEvent *event) override
    {
        const bool isHandled = QQuickWindow::event(event);
        if (event->type() == QEvent::Close)
            onClosed_();
        return isHandled;
    }

private:
    SettingsModel model_;
    std::function<void()> onClosed_;
    QQmlEngine engine_;
    std::unique_ptr<QQuickItem> scene_;
};

SettingsWindow::SettingsWindow(SettingsServices services)
    : services_(std::move(services))
    , requests_(services_.platform.notificationCenter.observe(
          events::openSettingsRequest, [this](const QVariantMap &) { open(); }))
    , closed_(services_.platform.notificationCenter.observe(
          events::settingsWindowClosed, [this](const QVariantMap &) { unload(); }))
{
}

SettingsWindow::~SettingsWindow() = default;

void SettingsWindow::open()
{
    if (!content_) {
        initializeModule();
        content_ = std::make_unique<Content>(services_, [this] {
            services_.platform.notificationCenter.post(events::settingsWindowClosed);
        });
        if (!content_->isUsable())
            return content_.reset();
    }
    content_->show();
    content_->raise();
    content_->requestActivate();
}

/// The window is still in the midst of closing.
void SettingsWindow::unload()
{
    auto *closed = content_.release();
    if (!closed)
        return;
    connect(closed, &QObject::destroyed, this, [this] { services_.unloaded(); });
    closed->deleteLater();
}

} // namespace quillmere
