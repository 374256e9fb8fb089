#pragma once

#include "platform/CloudKeyValueStore.h"
#include "platform/linux/desktop/JsonStore.h"

namespace quillmere {

class UserDefaults;

/// The cloud store as a file in a folder that the user's own sync client carries between machines.
///
/// The folder is named by the key "cloudFolder" of the machine's local defaults, an absolute path
/// or one that starts with "~/", and is read when the store is first synchronized. Without a name
/// or a folder there is no store. The folder may be a slow mount, so it is only touched off the
/// main thread. What the file holds when it is first read counts as changed by others, except for
/// keys that were set here before.
class FolderCloudStore : public CloudKeyValueStore
{
public:
    FolderCloudStore(RunLoop &runLoop, const UserDefaults &localDefaults);

    void synchronize() override;
    QVariant object(const QString &key) const override;
    void setObject(const QString &key, const QVariant &value) override;
    Task onExternalChange(
        std::function<void(const std::optional<QStringList> &changedKeys)> listener) override;

    /// Waits until everything set and synchronized is in the file. For shutdown only.
    void flush();

private:
    RunLoop &runLoop_;
    const UserDefaults &localDefaults_;
    std::unique_ptr<JsonStore> store_;
    Listeners<const std::optional<QStringList> &> listeners_;
};

} // namespace quillmere
