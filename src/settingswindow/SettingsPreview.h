#pragma once

#include "settings/Choices.h"
#include "views/FaceModel.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quillmere {

class Appearance;
class AudioOutputPicker;
class SettingsStore;

/// What the island would look like with the settings of a page, drawn above them. Main thread only.
class SettingsPreview : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the model")
    Q_PROPERTY(QString kind READ kind NOTIFY changed FINAL)
    Q_PROPERTY(quillmere::FaceModel *face READ face CONSTANT FINAL)
    Q_PROPERTY(double surfaceAlpha READ surfaceAlpha NOTIFY changed FINAL)
    Q_PROPERTY(bool showsMedia READ showsMedia NOTIFY changed FINAL)
    Q_PROPERTY(bool showsWaveform READ showsWaveform NOTIFY changed FINAL)
    Q_PROPERTY(QList<QColor> compactWaveform READ compactWaveform NOTIFY changed FINAL)
    Q_PROPERTY(QList<QColor> expandedWaveform READ expandedWaveform NOTIFY changed FINAL)
    Q_PROPERTY(QString extraSymbol READ extraSymbol NOTIFY changed FINAL)

public:
    SettingsPreview(const SettingsStore &settings, const AudioOutputPicker &output,
                    const Appearance &appearance);

    void setPage(SettingsPage page);

    QString kind() const; ///< "island", "media", "level", "battery"; empty: there is nothing to see
    FaceModel *face() { return &face_; }
    double surfaceAlpha() const;
    bool showsMedia() const;
    bool showsWaveform() const;
    QList<QColor> compactWaveform() const;
    QList<QColor> expandedWaveform() const;
    QString extraSymbol() const;

Q_SIGNALS:
    void changed();

private:
    void update();
    QColor artworkAccent() const;

    const SettingsStore &settings_;
    const AudioOutputPicker &output_;
    const Appearance &appearance_;
    SettingsPage page_ = SettingsPage::General;
    FaceModel face_;
};

} // namespace quillmere
