#pragma once

#include "island/HUDContent.h"

#include <QObject>
#include <QSizeF>

namespace quillmere {

class FloatingPanel;
class HUDManager;

enum class Presentation { Collapsed, HUD, Expanded };

/// "collapsed", "hud" or "expanded".
QString presentationName(Presentation presentation);

/// How large the island is while it shows a HUD of this type, in logical units.
QSizeF hudSize(HUDContent::HUDType type);

/// The island's presentation: what it shows and how large it is for that. Main thread only.
class ContentView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QSizeF islandSize READ islandSize NOTIFY islandSizeChanged)

public:
    ContentView(HUDManager &hudManager, FloatingPanel &panel);

    Presentation presentation() const { return presentation_; }
    QSizeF islandSize() const { return islandSize_; }

Q_SIGNALS:
    void presentationChanged();
    void islandSizeChanged();

private:
    void update();

    HUDManager &hudManager_;
    FloatingPanel &panel_;
    Presentation presentation_ = Presentation::Collapsed;
    QSizeF islandSize_;
};

} // namespace quillmere
