#include "app/FileTray.h"

#include "settings/SettingsStore.h"

#include <algorithm>

namespace quillmere {

FileTray::FileTray(SettingsStore &settings)
    : settings_(settings)
{
    connect(&settings_, &SettingsStore::didChange, this, [this](const QString &key) {
        if (key == settings_.fileTrayMaxItems.key())
            setFiles(files_);
    });
}

void FileTray::add(const QList<QUrl> &files)
{
    QList<QUrl> all = files;
    for (const QUrl &file : files_) {
        if (!all.contains(file))
            all.append(file);
    }
    setFiles(std::move(all));
}

void FileTray::remove(const QUrl &file)
{
    QList<QUrl> files = files_;
    files.removeAll(file);
    setFiles(std::move(files));
}

void FileTray::setFiles(QList<QUrl> files)
{
    const auto most = std::max<qsizetype>(settings_.fileTrayMaxItems.get(), 1);
    if (files.size() > most)
        files.resize(most);
    if (files == files_)
        return;
    files_ = std::move(files);
    Q_EMIT filesChanged();
}

} // namespace quillmere
