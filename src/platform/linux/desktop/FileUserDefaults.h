#pragma once

#include "platform/UserDefaults.h"
#include "platform/linux/desktop/JsonStore.h"

namespace quillmere {

/// User defaults in a JSON file of the user, who may edit it while the program runs.
///
/// The file is read by the constructor; after that the main thread never waits for the disk. A
/// write replaces the file as a whole, through a link and keeping its mode, and merges: keys that
/// we did not change stay as they are in the file at that moment. What cannot be used is set aside,
/// never overwritten; a disk that cannot be written costs a log line, and memory goes on.
class FileUserDefaults : public UserDefaults
{
public:
    /// `path`: the file; its directory is created for the user alone when missing.
    FileUserDefaults(RunLoop &runLoop, const QString &path);

    QVariant object(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;
    void removeObject(const QString &key) override;
    Task onExternalChange(std::function<void(const QStringList &keys)> listener) override;
    void flush() override;

private:
    JsonStore store_;
    Listeners<const QStringList &> listeners_;
};

} // namespace quillmere
