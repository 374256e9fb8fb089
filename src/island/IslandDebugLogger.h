#pragma once

#include "platform/RunLoop.h"

#include <QByteArray>
#include <QFile>
#include <QSet>
#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <concepts>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace quillmere {

/// Appends diagnostic lines of the timing-sensitive paths to Logs/Quillmere/debug.log.
///
/// Callers never wait: a call that is switched off costs one atomic load and formats nothing, one
/// that is switched on hands over time, place and message; formatting and file work happen on a
/// serial queue, in the order of the calls. File-system errors are swallowed.
class IslandDebugLogger
{
public:
    enum class Category { Progress, Airplay, Collapse, Poller, General };

    /// Where a line was logged. What std::source_location is for; the clang tools in use lack it.
    struct CallSite {
        const char *file;
        unsigned line;

        static constexpr CallSite here(const char *file = __builtin_FILE(),
                                       unsigned line = __builtin_LINE())
        {
            return {file, line};
        }
    };

    static constexpr qint64 maxFileSize = 2'097'152;       ///< bytes
    static constexpr qsizetype maxPendingSize = 1'048'576; ///< bytes kept while the disk is slow

    /// Starts switched off, with every category enabled. `libraryDir` need not exist.
    IslandDebugLogger(RunLoop &runLoop, const QString &libraryDir);

    /// Writes what was logged so far.
    ~IslandDebugLogger();

    IslandDebugLogger(const IslandDebugLogger &) = delete;
    IslandDebugLogger &operator=(const IslandDebugLogger &) = delete;

    /// Main thread, like the next two.
    void setEnabled(bool enabled);
    void setEnabledCategories(const QSet<Category> &categories);
    bool enabled() const { return enabled_; }

    /// Whether lines of this category are written at present. Any thread.
    bool writes(Category category) const
    {
        return (activeCategories_.load(std::memory_order_relaxed) & bit(category)) != 0;
    }

    /// `makeMessage()` gives the text and runs, at the caller, only if the category is on. Control
    /// characters in it become spaces, so one call is one line. Any thread.
    template <std::invocable F>
    void log(Category category, F &&makeMessage, CallSite where = CallSite::here())
    {
        if (writes(category))
            append(category, QString(makeMessage()), where);
    }

    void log(Category category, const QString &message, CallSite where = CallSite::here())
    {
        if (writes(category))
            append(category, QString(message), where);
    }

    /// Waits until everything logged before the call is in the file. For shutdown only.
    void drain();

    QString logFile() const { return logFile_; }

    static QLatin1StringView categoryText(Category category);          ///< "PROGRESS", ...
    static std::optional<Category> categoryFromText(QStringView text); ///< any case
    static QSet<Category> allCategories();

    /// The categories a list of texts names. Unknown texts are reported on the console and left
    /// out.
    static QSet<Category> categoriesFromTexts(const QStringList &texts);

private:
    struct Line {
        std::chrono::system_clock::time_point time;
        CallSite where;
        Category category;
        QString message;
    };
    struct Batch {
        std::vector<Line> lines;
        qsizetype size = 0;
        unsigned long dropped = 0;
    };

    static constexpr unsigned bit(Category category)
    {
        return 1U << static_cast<unsigned>(category);
    }

    void updateActiveCategories();
    void append(Category category, QString &&message, CallSite where);

    // On the queue:
    void setUp();
    void openLogFile();
    void writePending();
    void checkFile();
    void writeLine(const Line &line);
    void rotate();
    void write(const QString &text);
    void flush();

    RunLoop &runLoop_;
    const QString logDir_;
    const QString logFile_;
    std::atomic<unsigned> activeCategories_ = 0;
    bool enabled_ = false;
    QSet<Category> enabledCategories_ = allCategories();

    std::mutex pendingMutex_;
    Batch pending_;
    bool writeScheduled_ = false;

    std::optional<QFile> fileHandle_;
    qint64 fileSize_ = 0; ///< including what waits in buffer_
    QByteArray buffer_;
    bool sessionStartWritten_ = false;

    std::unique_ptr<SerialQueue> queue_; ///< last: its end comes before that of what it works on
};

} // namespace quillmere
