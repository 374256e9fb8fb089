#include "island/IslandDebugLogger.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QtDebug>

#include <algorithm>
#include <array>
#include <utility>

namespace quillmere {

namespace {

using Category = IslandDebugLogger::Category;

constexpr qsizetype flushSize = 65'536; // bytes

constexpr std::array categoryTexts{
    std::pair{Category::Progress, QLatin1StringView("PROGRESS")},
    std::pair{Category::Airplay, QLatin1StringView("AIRPLAY")},
    std::pair{Category::Collapse, QLatin1StringView("COLLAPSE")},
    std::pair{Category::Poller, QLatin1StringView("POLLER")},
    std::pair{Category::General, QLatin1StringView("GENERAL")},
};

QString timeText(std::chrono::system_clock::time_point time, const QString &format)
{
    using namespace std::chrono;
    const auto sinceEpoch = duration_cast<milliseconds>(time.time_since_epoch());
    return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()).toString(format);
}

/// A message from outside (a track title) must not be able to forge lines of its own.
QString onOneLine(QString message)
{
    for (QChar &character : message) {
        const auto category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            character = u' ';
    }
    return message;
}

void makePrivatePath(const QString &path)
{
    if (QFileInfo::exists(path))
        return;
    makePrivatePath(QFileInfo(path).path());
    QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

IslandDebugLogger::IslandDebugLogger(RunLoop &runLoop, const QString &libraryDir)
    : runLoop_(runLoop)
    , logDir_(libraryDir + u"/Logs/Quillmere")
    , logFile_(logDir_ + u"/debug.log")
    , queue_(runLoop.makeSerialQueue(QStringLiteral("com.quillmere.debuglogger")))
{
    queue_->async([this] { setUp(); });
}

IslandDebugLogger::~IslandDebugLogger() = default;

void IslandDebugLogger::setEnabled(bool enabled)
{
    enabled_ = enabled;
    updateActiveCategories();
}

void IslandDebugLogger::setEnabledCategories(const QSet<Category> &categories)
{
    enabledCategories_ = categories;
    updateActiveCategories();
}

void IslandDebugLogger::updateActiveCategories()
{
    unsigned active = 0;
    if (enabled_) {
        for (const Category category : std::as_const(enabledCategories_))
            active |= bit(category);
    }
    activeCategories_.store(active, std::memory_order_relaxed);
}

void IslandDebugLogger::drain()
{
    queue_->drain();
}

QLatin1StringView IslandDebugLogger::categoryText(Category category)
{
    return categoryTexts.at(static_cast<std::size_t>(category)).second;
}

std::optional<Category> IslandDebugLogger::categoryFromText(QStringView text)
{
    for (const auto &[category, name] : categoryTexts) {
        if (text.compare(name, Qt::CaseInsensitive) == 0)
            return category;
    }
    return std::nullopt;
}

QSet<Category> IslandDebugLogger::allCategories()
{
    QSet<Category> all;
    for (const auto &entry : categoryTexts)
        all.insert(entry.first);
    return all;
}

QSet<Category> IslandDebugLogger::categoriesFromTexts(const QStringList &texts)
{
    QSet<Category> categories;
    for (const QString &text : texts) {
        if (const auto category = categoryFromText(text))
            categories.insert(*category);
        else
            qWarning() << "[Quillmere] unknown debug log category" << text;
    }
    return categories;
}

void IslandDebugLogger::append(Category category, QString &&message, CallSite where)
{
    const auto size = static_cast<qsizetype>(sizeof(Line) + sizeof(QChar) * message.size());
    {
        const std::scoped_lock lock(pendingMutex_);
        if (pending_.dropped > 0 || pending_.size + size > maxPendingSize) {
            ++pending_.dropped; // from the first one on, so that no line is missing in between
        } else {
            pending_.size += size;
            pending_.lines.push_back({runLoop_.wallClock(), where, category, std::move(message)});
        }
        if (std::exchange(writeScheduled_, true))
            return;
    }
    queue_->async([this] { writePending(); });
}

void IslandDebugLogger::setUp()
{
    openLogFile();
}

void IslandDebugLogger::openLogFile()
{
    fileHandle_.reset();
    fileSize_ = 0;
    makePrivatePath(logDir_);
    const QFileInfo info(logFile_);
    if (info.exists() && !info.isFile())
        return; // opening a pipe could wait for ever
    fileHandle_.emplace(logFile_);
    if (fileHandle_->open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered,
                          QFile::ReadOwner | QFile::WriteOwner))
        fileSize_ = fileHandle_->size();
    else
        fileHandle_.reset();
}

void IslandDebugLogger::writePending()
{
    Batch batch;
    {
        const std::scoped_lock lock(pendingMutex_);
        batch = std::exchange(pending_, {});
        writeScheduled_ = false;
    }
    checkFile();
    for (const Line &line : batch.lines)
        writeLine(line);
    if (batch.dropped > 0)
        writeLine({runLoop_.wallClock(), CallSite::here(), Category::General,
                   QStringLiteral("dropped %1 lines").arg(batch.dropped)});
    flush();
}

void IslandDebugLogger::checkFile()
{
    const QFileInfo info(logFile_);
    if (fileHandle_ && info.exists()) {
        fileSize_ = info.size();
        return;
    }
    // Deleted by somebody, perhaps with its folder: going on in the nameless file would fill the
    // disk unseen.
    openLogFile();
    sessionStartWritten_ = false;
}

void IslandDebugLogger::writeLine(const Line &line)
{
    if (fileSize_ >= maxFileSize)
        rotate(); // before the banner, which belongs at the head of the new file
    if (!std::exchange(sessionStartWritten_, true))
        write(u"\n========== Quillmere Session Start " +
              timeText(line.time, QStringLiteral("yyyy-MM-dd HH:mm:ss")) + u" ==========\n");
    const QString file = QFileInfo(QString::fromUtf8(line.where.file)).completeBaseName();
    write(u'[' + timeText(line.time, QStringLiteral("HH:mm:ss.zzz")) + u"] [" +
          categoryText(line.category) + u"] [" + file + u':' + QString::number(line.where.line) +
          u"] " + onOneLine(line.message) + u'\n');
}

void IslandDebugLogger::rotate()
{
    flush();
    fileHandle_.reset();
    const QString oldFile = logDir_ + u"/debug.old.log";
    QFile::remove(oldFile);
    if (!QFile::rename(logFile_, oldFile))
        QFile::resize(logFile_, 0);
    openLogFile();
    sessionStartWritten_ = false;
}

void IslandDebugLogger::write(const QString &text)
{
    if (!fileHandle_)
        return;
    const QByteArray bytes = text.toUtf8();
    fileSize_ += bytes.size();
    buffer_ += bytes;
    if (buffer_.size() >= flushSize)
        flush();
}

void IslandDebugLogger::flush()
{
    if (fileHandle_)
        fileHandle_->write(buffer_);
    buffer_.clear();
}

} // namespace quillmere
