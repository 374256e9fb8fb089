#include "nowplaying/SpotifyArtwork.h"

#include "nowplaying/ArtworkAddresses.h"
#include "nowplaying/MediaLog.h"
#include "platform/Loggable.h"

namespace quillmere {

void SpotifyArtwork::begin(const ArtworkRequest &)
{
    artworkScript_ =
        tools_.scripts.run(scripts::spotifyArtwork, {}, [this](const ScriptAnswer &answer) {
            tools_.scriptLog.log(answer);
            artworkUrl_ = QString::fromUtf8(answer.output).trimmed();
            askForPage();
        });
}

void SpotifyArtwork::askForPage()
{
    pageScript_ = tools_.scripts.run(scripts::spotifyURL, {}, [this](const ScriptAnswer &answer) {
        tools_.scriptLog.log(answer);
        finding_.contentURL = spotifyPage(QString::fromUtf8(answer.output).trimmed());
        download();
    });
}

void SpotifyArtwork::download()
{
    if (artworkUrl_.isEmpty())
        return finish(finding_);
    qCDebug(mediaLog, "[Quillmere] Spotify artwork URL: %s", qUtf8Printable(loggable(artworkUrl_)));
    download_.start(spotifyPictureUrl(artworkUrl_), false,
                    [this](const std::optional<QImage> &picture) {
                        finding_.artwork = picture;
                        finish(finding_);
                    });
}

} // namespace quillmere
