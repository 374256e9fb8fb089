#include "platform/linux/desktop/FileWatch.h"

#include "platform/linux/desktop/Files.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstring>
#include <sys/inotify.h>
#include <unistd.h>

namespace quillmere {

namespace {

constexpr unsigned fileEvents =
    IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB | IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO;
constexpr unsigned directoryGone = IN_IGNORED | IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT;

} // namespace

WatchedFiles::WatchedFiles()
    : descriptor_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (descriptor_ < 0)
        qWarning("[Quillmere] Edits of the settings files by others will not be noticed: %s",
                 std::strerror(errno));
}

WatchedFiles::~WatchedFiles()
{
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

void WatchedFiles::add(const QString &path)
{
    addExact(path);
    const auto target = files::resolved(path);
    if (target != path)
        addExact(target);
}

void WatchedFiles::addExact(const QString &path)
{
    const QFileInfo info(path);
    const auto directory = QFile::encodeName(info.absolutePath());
    const int watch = ::inotify_add_watch(descriptor_, directory.constData(),
                                          fileEvents | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR);
    if (watch < 0)
        return;
    const std::scoped_lock lock(mutex_);
    names_[watch].insert(info.fileName());
}

bool WatchedFiles::takeEvents()
{
    alignas(inotify_event) std::array<char, 8192> buffer;
    bool concerned = false;
    while (true) {
        const auto size = ::read(descriptor_, buffer.data(), buffer.size());
        if (size <= 0)
            return concerned;
        for (ssize_t offset = 0; offset < size;) {
            const auto *event = reinterpret_cast<const inotify_event *>(buffer.data() + offset);
            const std::string name(event->len > 0 ? event->name : "");
            concerned = concerns(event->wd, event->mask, name) || concerned;
            offset += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
    }
}

bool WatchedFiles::concerns(int directory, unsigned mask, const std::string &name)
{
    if ((mask & IN_Q_OVERFLOW) != 0)
        return true;
    const std::scoped_lock lock(mutex_);
    const auto found = names_.find(directory);
    if (found == names_.end())
        return true; // just being added: one look too many does no harm
    if ((mask & directoryGone) != 0) {
        // A directory that moved away would go on being reported under its old path.
        if ((mask & IN_MOVE_SELF) != 0)
            ::inotify_rm_watch(descriptor_, directory);
        names_.erase(found);
        return true;
    }
    return found->second.contains(QFile::decodeName(name.c_str()));
}

FileWatch::FileWatch(std::shared_ptr<WatchedFiles> files, std::function<void()> onEvent)
    : files_(std::move(files))
    , onEvent_(std::move(onEvent))
{
    if (files_->descriptor() < 0)
        return;
    notifier_ = std::make_unique<QSocketNotifier>(files_->descriptor(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] {
        if (files_->takeEvents())
            onEvent_();
    });
}

} // namespace quillmere
