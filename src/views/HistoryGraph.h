#pragma once

#include "views/PaintedItem.h"

#include <QColor>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// How a value went lately: a line that ends with the newest sample at the right edge, so that a
/// short history leaves the left empty.
class HistoryGraph : public PaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QList<double> samples MEMBER samples_ NOTIFY changed FINAL) // 0..1, oldest first
    Q_PROPERTY(int length MEMBER length_ NOTIFY changed FINAL) // samples that fill the width
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed FINAL)

public:
    explicit HistoryGraph(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    Drawing drawing() const override;

private:
    QList<double> samples_;
    int length_ = 60;
    QColor color_{Qt::white};
};

} // namespace quillmere
