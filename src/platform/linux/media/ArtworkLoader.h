#pragma once

#include "platform/HttpClient.h"
#include "platform/RunLoop.h"
#include "platform/linux/media/MprisReport.h"
#include "platform/linux/media/PictureFile.h"

#include <QImage>

#include <functional>

namespace quillmere {

/// The picture of the track that plays: fetched, read and decoded away from the main thread, once
/// per source; a file again when it has changed. Main thread only.
class ArtworkLoader
{
public:
    /// `onLoaded` is called when image() has changed.
    ArtworkLoader(RunLoop &runLoop, HttpClient &httpClient, std::function<void()> onLoaded);

    /// Makes this the wanted picture. Call it again whenever the player has said so again: a file
    /// that could not be read or has changed is read then.
    void want(const ArtSource &source);

    /// Call it with every poll: asks a server again that failed, if it is time for that.
    void retry();

    /// The picture of this source; null while it isn't there.
    QImage image(const ArtSource &source) const;

private:
    struct Picture {
        FileStamp stamp;
        QImage image;
    };

    static std::optional<Picture> decoded(const QByteArray &data, const FileStamp &stamp = {});

    void load();
    void download();
    void downloaded(const ArtSource &source, const HttpResult &result);
    void take(const ArtSource &source, std::optional<Picture> picture);

    template <class Work>
    void decode(const ArtSource &source, Work work);

    RunLoop &runLoop_;
    HttpClient &httpClient_;
    std::function<void()> onLoaded_;
    ArtSource wanted_;
    ArtSource loaded_; // or found to be none
    Picture picture_;
    bool isBusy_ = false;
    bool isAsked_ = false; // for something while busy
    Task download_;
    Duration pause_{}; // after the failures so far, of which there may be none
    Instant pauseEnd_{};
    Owner owner_;
};

} // namespace quillmere
