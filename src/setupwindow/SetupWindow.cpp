#include "setupwindow/SetupWindow.h"

#include "setupwindow/SetupModel.h"

#include <QAccessible>
#include <QQmlComponent>
#include <QQuickItem>
#include <QScreen>

// Linked statically, nothing else would pull in the module's types, files and compiled scenes.
void qml_register_types_QuillmereSetup();

static void initializeModule()
{
    qml_register_types_QuillmereSetup();
    Q_INIT_RESOURCE(qmake_QuillmereSetup);
    Q_INIT_RESOURCE(qmlcache_quillmere_setupwindow);
}

namespace quillmere {

namespace {

constexpr QSize contentSize(520, 420);

QQuickItem *makeContent(QQmlEngine &engine, SetupModel &model)
{
    QQmlComponent component(
        &engine, QUrl(QStringLiteral("qrc:/qt-project.org/imports/QuillmereSetup/Setup.qml")));
    std::unique_ptr<QObject> content;
    if (component.isReady())
        content.reset(component.createWithInitialProperties(
            {{QStringLiteral("setup"), QVariant::fromValue<QObject *>(&model)}}));
    if (!content)
        qFatal("[SetupWindow] %ls", qUtf16Printable(component.errorString()));
    return qobject_cast<QQuickItem *>(content.release());
}

} // namespace

SetupWindow::SetupWindow(SetupModel &model)
{
    initializeModule();
    setTitle(QStringLiteral("Quillmere Setup"));
    setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
             Qt::WindowCloseButtonHint);
    setMinimumSize(contentSize);
    setMaximumSize(contentSize);
    resize(contentSize);
    content_.reset(makeContent(engine_, model));
    content_->setParentItem(contentItem());
    content_->setSize(contentSize);
    setColor(content_->property("color").value<QColor>()); // what is seen before the first frame
    connect(&model, &SetupModel::stepChanged, this, &SetupWindow::announceStep);
}

SetupWindow::~SetupWindow() = default;

void SetupWindow::present()
{
    if (!isVisible() && screen()) {
        const QRect free = screen()->availableGeometry();
        setPosition(free.center() - QPoint(width() / 2, height() / 2));
    }
    show();
    raise();
    requestActivate();
}

bool SetupWindow::event(QEvent *event)
{
    const bool handled = QQuickWindow::event(event);
    if (event->type() == QEvent::Close && event->isAccepted() && onClosed)
        onClosed();
    return handled;
}

void SetupWindow::announceStep()
{
    if (!QAccessible::isActive())
        return;
    if (auto *page = content_->findChild<QQuickItem *>(QStringLiteral("page"))) {
        QAccessibleEvent alert(page, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

} // namespace quillmere
