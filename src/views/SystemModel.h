#pragma once

#include <QColor>
#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class SystemLoad;

/// The load of this machine as the island's scene reads it.
class SystemModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool hasSamples READ hasSamples NOTIFY changed FINAL)
    Q_PROPERTY(QVariantList gauges READ gauges NOTIFY changed FINAL)

public:
    explicit SystemModel(const SystemLoad &load, QObject *parent = nullptr);

    /// Whether the page is on show: only then it follows the samples.
    void setWatched(bool watched);

    bool hasSamples() const;

    /// Maps of name, amount, figures, fraction (0..1), color, history (0..1, oldest first) and
    /// accessibleText: processor, memory, disk.
    QVariantList gauges() const;

Q_SIGNALS:
    void changed();

private:
    const SystemLoad &load_;
    bool watched_ = false;
};

} // namespace quillmere
