#pragma once

#include "platform/Screens.h"

namespace quillmere {

/// Screens set by hand. Changing `list` or `pointer` tells nobody; changed() does.
class FakeScreens : public Screens
{
public:
    QList<ScreenInfo> screens() const override { return list; }
    QPointF pointerPosition() const override
    {
        ++pointerQueries;
        return pointer;
    }
    Task onParametersChanged(std::function<void()> listener) override
    {
        return listeners_.add(std::move(listener));
    }
    void changed() const { listeners_.notify(); }

    /// A screen without a camera housing.
    static ScreenInfo plain(const QString &name, const QRectF &frame)
    {
        ScreenInfo screen;
        screen.name = name;
        screen.frame = frame;
        return screen;
    }

    /// A screen whose housing leaves the strips left of `gapLeft` and right of `gapRight`, both
    /// counted from the screen's left edge.
    static ScreenInfo notched(const QString &name, const QRectF &frame, double inset,
                              double gapLeft, double gapRight)
    {
        ScreenInfo screen = plain(name, frame);
        screen.topInset = inset;
        screen.auxiliaryTopLeft = QRectF(frame.left(), frame.top(), gapLeft, inset);
        screen.auxiliaryTopRight =
            QRectF(frame.left() + gapRight, frame.top(), frame.width() - gapRight, inset);
        return screen;
    }

    QList<ScreenInfo> list;
    QPointF pointer;
    mutable int pointerQueries = 0;

private:
    Listeners<> listeners_;
};

} // namespace quillmere
