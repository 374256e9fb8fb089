#pragma once

#include "platform/linux/desktop/JsonText.h"

#include <QHash>

#include <atomic>
#include <map>
#include <mutex>
#include <vector>

namespace quillmere {

class RunLoop;
class WatchedFiles;

/// What a file of one JSON object holds, as last read or written, and the changes of ours that it
/// does not hold yet. Knows how to bring the two together without losing what others wrote.
///
/// change() and claimLook() are for the main thread, look() for one thread at a time.
class JsonFileMirror
{
public:
    /// What to do about a file that may be in the middle of being written by someone else: absent,
    /// empty or not parsing although it was fine before.
    enum class Patience { Wait, GiveUp };

    struct Change {
        std::optional<Json> value; ///< absent: remove the key
        quint64 serial = 0;
    };

    struct Outcome {
        QHash<QString, QVariant> changes;   ///< made by others; invalid = the key is gone
        std::map<QString, quint64> written; ///< our changes that are on the disk now, by key
        bool unsettled = false;             ///< patience was needed: look again after a while
    };

    /// `ownsDirectory`: the directory is created when missing. Otherwise a missing directory means
    /// that there is no store, and changes have no effect.
    JsonFileMirror(RunLoop &runLoop, QString path, bool ownsDirectory,
                   std::shared_ptr<WatchedFiles> watch);

    void change(const QString &key, Change change);

    /// True if the caller has to arrange for a look: none is under way that would see what was
    /// changed so far.
    bool claimLook() { return !lookClaimed_.exchange(true); }

    /// Reads the file, writes our changes over it, and tells what others did.
    Outcome look(Patience patience);

    /// True if the file lacks something of ours. Only while no look is under way.
    bool isBehind();

private:
    using Changes = std::map<QString, Change>;
    struct Reading;

    Changes takeChanges();
    void putBack(Changes changes);
    bool directoryIsThere() const;
    Reading read() const;
    bool mayBeHalfWritten(const Reading &reading) const;
    bool setAside(const Reading &reading);
    void write(const Json &base, Changes changes, bool differs, Outcome &outcome);
    Json merged(const Json &base, const Changes &changes);
    void report(const QString &problem);

    RunLoop &runLoop_;
    const QString path_;
    const bool ownsDirectory_;
    const std::shared_ptr<WatchedFiles> watch_;

    std::mutex mutex_;
    Changes changes_; // guarded by mutex_
    std::atomic<bool> lookClaimed_ = false;

    Json known_ = Json::object();
    bool owesCopy_ = false; // what is known was set aside and is nowhere on the disk
    QString reported_;
};

} // namespace quillmere
