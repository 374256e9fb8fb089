#pragma once

#include "platform/MediaRemote.h"
#include "platform/Owner.h"
#include "platform/Task.h"
#include "views/MediaFace.h"

#include <QCache>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace quillmere {

class Appearance;
class HUDManager;
class RunLoop;
class SettingsStore;

/// The playing track as the island's scene reads it, and what the user asks of its player.
///
/// When the track goes, only `hasMedia` changes: the scene fades out what it last showed.
class MediaModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool offered READ isOffered NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool hasMedia READ hasMedia NOTIFY hasMediaChanged FINAL)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged FINAL)
    Q_PROPERTY(bool titleFromRight READ titleFromRight NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString artist READ artist NOTIFY artistChanged FINAL)
    Q_PROPERTY(bool isPlaying READ isPlaying NOTIFY isPlayingChanged FINAL)
    Q_PROPERTY(bool hasDuration READ hasDuration NOTIFY durationChanged FINAL)
    Q_PROPERTY(double duration READ duration NOTIFY durationChanged FINAL)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
    Q_PROPERTY(QString elapsed READ elapsed NOTIFY elapsedChanged FINAL)
    Q_PROPERTY(QString remaining READ remaining NOTIFY remainingChanged FINAL)
    Q_PROPERTY(QString accessibleText READ accessibleText NOTIFY accessibleTextChanged FINAL)

    Q_PROPERTY(QList<QColor> waveform READ waveform NOTIFY lookChanged FINAL)
    Q_PROPERTY(QList<QColor> compactWaveform READ compactWaveform NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool showsCompactWaveform READ showsCompactWaveform NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool flipsArtwork READ flipsArtwork NOTIFY lookChanged FINAL)
    Q_PROPERTY(QColor accent READ accent NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString extraSymbol READ extraSymbol NOTIFY lookChanged FINAL)
    Q_PROPERTY(QString extraText READ extraText NOTIFY lookChanged FINAL)
    Q_PROPERTY(bool extraIsOn READ extraIsOn NOTIFY lookChanged FINAL)

public:
    MediaModel(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
               Appearance &appearance, QObject *parent = nullptr);

    /// What the player says; absent if it cannot, and then there is no button for it.
    void setPlayMode(std::optional<bool> isShuffling, std::optional<RepeatMode> repeat);

    bool isOffered() const { return look_.offered; } ///< the user wants to see media at all
    bool hasMedia() const { return hasMedia_; }
    const MediaFace &face() const { return face_; }
    QString title() const { return face_.title; }
    bool titleFromRight() const { return face_.title.isRightToLeft(); }
    QString artist() const { return face_.artist; }
    QImage artwork() const { return face_.artwork; }
    QString symbol() const { return face_.symbol; }
    bool isPlaying() const { return face_.isPlaying; }
    bool hasDuration() const { return face_.duration > 0; }
    double duration() const { return face_.duration; } ///< seconds
    double progress() const { return face_.progress; }
    QString elapsed() const { return face_.elapsed; }
    QString remaining() const { return face_.remaining; }
    QString accessibleText() const { return face_.accessibleText; }

    QList<QColor> waveform() const { return look_.waveform; }
    QList<QColor> compactWaveform() const { return look_.compactWaveform; }
    bool showsCompactWaveform() const { return look_.showsCompactWaveform; }
    bool flipsArtwork() const { return look_.flipsArtwork; }
    QColor accent() const { return look_.accent; }
    QString extraSymbol() const { return look_.extraSymbol; } ///< empty: there is no such button
    QString extraText() const { return look_.extraText; }
    bool extraIsOn() const { return look_.extraIsOn; } ///< as random order may be

    /// The position as text, at `fraction` of the track.
    Q_INVOKABLE QString elapsedAt(double fraction) const;
    Q_INVOKABLE QString remainingAt(double fraction) const;

    Q_INVOKABLE void togglePlayPause();
    Q_INVOKABLE void next();
    Q_INVOKABLE void previous();
    /// The playhead is shown there at once and stays until the player has followed, or does not.
    Q_INVOKABLE void seek(double fraction);
    Q_INVOKABLE void step(double seconds);
    Q_INVOKABLE void pressExtra();
    /// Opens the track's page, else asks for the application that plays it.
    Q_INVOKABLE void openSource();

Q_SIGNALS:
    void hasMediaChanged();
    void titleChanged();
    void artistChanged();
    void artworkChanged();
    void symbolChanged();
    void isPlayingChanged();
    void durationChanged();
    void progressChanged();
    void elapsedChanged();
    void remainingChanged();
    void accessibleTextChanged();
    void lookChanged();

    void togglePlayPauseRequested();
    void nextRequested();
    void previousRequested();
    void seekRequested(double fraction);
    void favoriteRequested();
    void shuffleRequested();
    void repeatRequested();
    void copyRequested(const QString &text);
    void sourceRequested(const QString &bundleID);
    void linkActivated(const QUrl &link);

private:
    struct Look {
        bool operator==(const Look &) const = default;

        bool offered = true;
        QColor accent;
        QList<QColor> waveform;
        QList<QColor> compactWaveform;
        bool showsCompactWaveform = true;
        bool flipsArtwork = true;
        QString extraSymbol;
        QString extraText;
        bool extraIsOn = false;
    };

    void update();
    void refreshLook();
    void setFace(MediaFace face);
    void followSeek(MediaFace &face);
    QColor currentAccent();
    void findAccent();

    RunLoop &runLoop_;
    SettingsStore &settings_;
    HUDManager &hudManager_;
    Appearance &appearance_;

    bool hasMedia_ = false;
    MediaFace face_;
    Look look_;
    std::optional<bool> isShuffling_;
    std::optional<RepeatMode> repeat_;
    std::optional<double> pendingSeek_; ///< where the player was sent
    Task seekTimeout_;
    QCache<qint64, QColor> accents_; ///< by the artwork's cache key
    qint64 accentInWork_ = 0;
    Task appearanceObserver_;
    Owner owner_;
};

} // namespace quillmere
