#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

namespace quillmere {

class SettingsStore;

/// The files dropped on the island in this run, newest first, as many as `fileTrayMaxItems` allows.
/// Only where they are is kept: a file is neither copied nor held. Main thread only.
class FileTray : public QObject
{
    Q_OBJECT

public:
    explicit FileTray(SettingsStore &settings);

    const QList<QUrl> &files() const { return files_; }

    /// A file that is there already moves to the front.
    void add(const QList<QUrl> &files);
    void remove(const QUrl &file);

Q_SIGNALS:
    void filesChanged();

private:
    void setFiles(QList<QUrl> files);

    SettingsStore &settings_;
    QList<QUrl> files_;
};

} // namespace quillmere
