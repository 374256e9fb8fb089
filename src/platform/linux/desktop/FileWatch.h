#pragma once

#include <QSet>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace quillmere {

/// The kernel's side of a watch. Files are watched through their directories, so one that is
/// replaced, deleted and created again stays watched, and other files there wake nobody.
class WatchedFiles
{
public:
    WatchedFiles();
    ~WatchedFiles();
    WatchedFiles(const WatchedFiles &) = delete;
    WatchedFiles &operator=(const WatchedFiles &) = delete;

    /// Watches the path and what it links to; again is harmless, and needed after the directory was
    /// missing. Any thread; may wait for the disk.
    void add(const QString &path);

    /// Takes the pending events; true if one concerns a watched file. Never waits.
    bool takeEvents();

    /// -1 when the system has no more watches to give.
    int descriptor() const { return descriptor_; }

private:
    void addExact(const QString &path);
    bool concerns(int directory, unsigned mask, const std::string &name);

    int descriptor_;
    std::mutex mutex_;
    std::map<int, QSet<QString>> names_; // by the directory's watch
};

/// Calls back on the main thread after something happened to the watched files.
class FileWatch
{
public:
    FileWatch(std::shared_ptr<WatchedFiles> files, std::function<void()> onEvent);

private:
    std::shared_ptr<WatchedFiles> files_;
    std::function<void()> onEvent_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace quillmere
