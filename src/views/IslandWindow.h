#pragma once

#include <QQuickWindow>

#include <memory>

class QQmlEngine;

namespace quillmere {

class DashboardModel;
class IslandModel;

/// The transparent canvas with the island drawn at the middle of its top edge. What the window is
/// on the desktop and where it stands is decided elsewhere.
///
/// The scene graph has to be the software one: QQuickWindow::setGraphicsApi() before the first
/// window.
class IslandWindow : public QQuickWindow
{
    Q_OBJECT

public:
    IslandWindow();
    ~IslandWindow() override;

    /// Draws this island. The models have to live until clearIsland().
    void setIsland(IslandModel &island, DashboardModel &dashboard);
    void clearIsland();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fitScene();
    void announceHUD();
    void announce(const QString &objectName);

    IslandModel *island_ = nullptr;
    DashboardModel *dashboard_ = nullptr;
    std::unique_ptr<QQmlEngine> engine_;
    std::unique_ptr<QQuickItem> scene_;
};

} // namespace quillmere
