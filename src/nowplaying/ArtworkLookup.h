#pragma once

#include <QImage>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace quillmere {

class HttpClient;
class RunLoop;
class RunningApplications;
class ScriptLog;
class ScriptRunner;

/// The track that artwork is looked for.
struct ArtworkRequest {
    QString title;
    QString bundleID{}; ///< of its player
    QString albumID{};  ///< in the store; empty: none
    QString videoID{};  ///< empty: none known
};

struct ArtworkFinding {
    std::optional<QImage> artwork{};
    std::optional<QString> contentURL{}; ///< the track's web page
};

/// What look-ups work with.
struct ArtworkTools {
    RunLoop &runLoop;
    HttpClient &httpClient;
    ScriptRunner &scripts;
    RunningApplications &applications;
    ScriptLog &scriptLog;
};

/// One attempt to find artwork at one source. Destroying it gives up. Main thread only.
class ArtworkLookup
{
public:
    using Done = std::function<void(const ArtworkFinding &)>;

    ArtworkLookup() = default;
    ArtworkLookup(const ArtworkLookup &) = delete;
    ArtworkLookup &operator=(const ArtworkLookup &) = delete;
    virtual ~ArtworkLookup() = default;

    /// Once. `done` gets what was found, never from within start(); it may destroy the look-up.
    void start(const ArtworkRequest &request, Done done)
    {
        done_ = std::move(done);
        begin(request);
    }

protected:
    virtual void begin(const ArtworkRequest &request) = 0;

    /// The last thing to do: the look-up may be gone afterwards.
    void finish(const ArtworkFinding &finding)
    {
        const auto done = std::exchange(done_, nullptr);
        done(ArtworkFinding(finding));
    }

private:
    Done done_;
};

} // namespace quillmere
