#include "views/MediaModel.h"

#include "island/HUDManager.h"
#include "platform/Appearance.h"
#include "platform/RunLoop.h"
#include "settings/SettingsStore.h"
#include "views/ArtworkAccent.h"
#include "views/DesktopAccent.h"
#include "views/OpenableLink.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillmere {

namespace {

/// A player that has not followed a seek by then does not want to.
constexpr Duration longestSeek = std::chrono::milliseconds(1500);
constexpr double seekReached = 2; // seconds

constexpr int keptAccents = 32;

} // namespace

MediaModel::MediaModel(RunLoop &runLoop, SettingsStore &settings, HUDManager &hudManager,
                       Appearance &appearance, QObject *parent)
    : QObject(parent)
    , runLoop_(runLoop)
    , settings_(settings)
    , hudManager_(hudManager)
    , appearance_(appearance)
    , accents_(keptAccents)
{
    connect(&hudManager_, &HUDManager::currentNowPlayingChanged, this, &MediaModel::update);
    connect(&settings_, &SettingsStore::didChange, this, [this] {
        update();
        refreshLook();
    });
    appearanceObserver_ = appearance_.onChanged([this] { refreshLook(); });
    update();
    refreshLook();
}

void MediaModel::setPlayMode(std::optional<bool> isShuffling, std::optional<RepeatMode> repeat)
{
    isShuffling_ = isShuffling;
    repeat_ = repeat;
    refreshLook();
}

void MediaModel::update()
{
    const auto &record = hudManager_.currentNowPlaying();
    const bool hasMedia = record.has_value() && settings_.showMediaHUD.get();
    if (hasMedia)
        setFace(mediaFace(*record, hudManager_.progressDuration(),
                          settings_.hideMediaTitleExtras.get()));
    if (hasMedia == hasMedia_)
        return;
    hasMedia_ = hasMedia;
    Q_EMIT hasMediaChanged();
}

void MediaModel::setFace(MediaFace face)
{
    // A player may send the same picture again: that is no new one.
    if (face.artwork.cacheKey() != face_.artwork.cacheKey() && face.artwork == face_.artwork)
        face.artwork = face_.artwork;
    followSeek(face);

    const MediaFace former = std::exchange(face_, std::move(face));
    const auto tell = [&](auto MediaFace::*field, void (MediaModel::*changed)()) {
        if (former.*field != face_.*field)
            Q_EMIT(this->*changed)();
    };
    tell(&MediaFace::title, &MediaModel::titleChanged);
    tell(&MediaFace::artist, &MediaModel::artistChanged);
    tell(&MediaFace::symbol, &MediaModel::symbolChanged);
    if (former.artwork.cacheKey() != face_.artwork.cacheKey()) {
        Q_EMIT artworkChanged();
        refreshLook();
    }
    tell(&MediaFace::isPlaying, &MediaModel::isPlayingChanged);
    tell(&MediaFace::duration, &MediaModel::durationChanged);
    tell(&MediaFace::progress, &MediaModel::progressChanged);
    tell(&MediaFace::elapsed, &MediaModel::elapsedChanged);
    tell(&MediaFace::remaining, &MediaModel::remainingChanged);
    tell(&MediaFace::accessibleText, &MediaModel::accessibleTextChanged);
}

void MediaModel::followSeek(MediaFace &face)
{
    if (!pendingSeek_)
        return;
    const bool sameTrack = face.title == face_.title && face.duration == face_.duration;
    const double distance = std::abs(face.progress - *pendingSeek_) * face.duration;
    if (sameTrack && distance > seekReached) {
        face.progress = *pendingSeek_;
        face.elapsed = elapsedText(face.progress, face.duration);
        face.remaining = remainingText(face.progress, face.duration);
        return;
    }
    pendingSeek_.reset();
    seekTimeout_.cancel();
}

void MediaModel::refreshLook()
{
    Look look;
    look.offered = settings_.showMediaHUD.get();
    look.accent = currentAccent();
    look.waveform = waveformColors(settings_.expandedWaveformStyle.get(), look.accent);
    look.compactWaveform = waveformColors(settings_.compactWaveformStyle.get(), look.accent);
    look.showsCompactWaveform = !settings_.disableCompactWaveform.get();
    look.flipsArtwork = !settings_.disableArtworkFlip.get();
    if (const auto extra = extraButton(settings_.mediaControlButton.get(), isShuffling_, repeat_)) {
        look.extraSymbol = extra->symbol;
        look.extraText = extra->text;
        look.extraIsOn = extra->isOn;
    }
    if (look == look_)
        return;
    look_ = look;
    Q_EMIT lookChanged();
}

QColor MediaModel::currentAccent()
{
    if (!settings_.enableDynamicColors.get() || face_.artwork.isNull())
        return desktopAccent(appearance_);
    if (const QColor *known = accents_.object(face_.artwork.cacheKey()))
        return *known;
    findAccent();
    // Until it is known, the colour stays: it changes once, not twice.
    return look_.accent.isValid() ? look_.accent : desktopAccent(appearance_);
}

void MediaModel::findAccent()
{
    const qint64 key = face_.artwork.cacheKey();
    if (key == accentInWork_)
        return;
    accentInWork_ = key;
    runLoop_.background(
        owner_, [picture = face_.artwork] { return artworkAccent(picture); },
        [this, key](const QColor &accent) {
            accentInWork_ = 0;
            accents_.insert(key, new QColor(accent));
            refreshLook();
        });
}

QString MediaModel::elapsedAt(double fraction) const
{
    return elapsedText(fraction, face_.duration);
}

QString MediaModel::remainingAt(double fraction) const
{
    return remainingText(fraction, face_.duration);
}

void MediaModel::togglePlayPause()
{
    Q_EMIT togglePlayPauseRequested();
}

void MediaModel::next()
{
    Q_EMIT nextRequested();
}

void MediaModel::previous()
{
    Q_EMIT previousRequested();
}

void MediaModel::seek(double fraction)
{
    if (!hasMedia_ || !hasDuration() || !std::isfinite(fraction))
        return;
    pendingSeek_ = std::clamp(fraction, 0.0, 1.0);
    seekTimeout_ = runLoop_.after(longestSeek, [this] {
        pendingSeek_.reset();
        update();
    });
    Q_EMIT seekRequested(*pendingSeek_);
    update();
}

void MediaModel::step(double seconds)
{
    if (hasDuration())
        seek(face_.progress + seconds / face_.duration);
}

void MediaModel::pressExtra()
{
    switch (settings_.mediaControlButton.get()) {
    case MediaControlButton::Favorite:
        Q_EMIT favoriteRequested();
        break;
    case MediaControlButton::Shuffle:
        Q_EMIT shuffleRequested();
        break;
    case MediaControlButton::Repeat:
        Q_EMIT repeatRequested();
        break;
    case MediaControlButton::Copy:
        Q_EMIT copyRequested(face_.artist.isEmpty()
                                 ? face_.title
                                 : face_.title + QStringLiteral(" — ") + face_.artist);
        break;
    }
}

void MediaModel::openSource()
{
    const auto &record = hudManager_.currentNowPlaying();
    if (!record)
        return;
    const QUrl link = openableLink(record->contentURL);
    if (!link.isEmpty())
        Q_EMIT linkActivated(link);
    else if (record->bundleID)
        Q_EMIT sourceRequested(*record->bundleID);
}

} // namespace quillmere
