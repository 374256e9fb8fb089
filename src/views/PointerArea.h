#pragma once

#include <QPointer>
#include <QQuickItem>

namespace quillmere {

class IslandModel;

/// Hands presses and scrolls that no control of the island took to its model.
class PointerArea : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quillmere::IslandModel *island READ island WRITE setIsland NOTIFY islandChanged)

public:
    explicit PointerArea(QQuickItem *parent = nullptr);

    IslandModel *island() const;
    void setIsland(IslandModel *island);

Q_SIGNALS:
    void islandChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QPointer<IslandModel> island_;
};

} // namespace quillmere
