#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/desktop/FileWatch.h"
#include "platform/linux/desktop/JsonFileMirror.h"

#include <QHash>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace quillmere {

/// The values of a JSON object file in memory, kept together with the file by work off the main
/// thread. Everything here is for the main thread.
class JsonStore
{
public:
    struct Options {
        bool loadsAtOnce = false; ///< the constructor reads the file and waits for it; otherwise
                                  ///< nothing happens before the first synchronize()
        bool ownsDirectory =
            false; ///< creates the directory; otherwise a missing one means no store
    };

    JsonStore(RunLoop &runLoop, const QString &path, Options options);
    ~JsonStore();

    /// Others changed these keys; value() tells to what.
    std::function<void(const QStringList &keys)> onOutsideChange;

    QVariant value(const QString &key) const { return values_.value(key); }

    /// Changes the memory; the file follows with the next synchronize(). An invalid value removes
    /// the key. False for a value a JSON file cannot hold, which changes nothing.
    bool setValue(const QString &key, const QVariant &value);

    /// Starts bringing memory and file together.
    void synchronize();

    /// Waits until the file holds everything, if it can be written. For shutdown only.
    void flush();

private:
    using Patience = JsonFileMirror::Patience;

    void look(Patience patience);
    void lookSoon();
    void absorb(const JsonFileMirror::Outcome &outcome);

    RunLoop &runLoop_;
    QHash<QString, QVariant> values_;
    QHash<QString, quint64> unwritten_; // the last change of each key the file does not hold yet
    quint64 lastSerial_ = 0;
    std::shared_ptr<JsonFileMirror> mirror_;
    std::unique_ptr<SerialQueue> queue_;
    std::unique_ptr<FileWatch> watch_;
    Task lookSoon_;
    bool lookIsPlanned_ = false;
    Task secondLook_;
    Owner owner_;
};

} // namespace quillmere
