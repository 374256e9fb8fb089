#include "platform/linux/desktop/FolderCloudStore.h"

#include "platform/UserDefaults.h"

#include <QDir>

namespace quillmere {

namespace {

/// Empty when the text names no folder.
QString folderPath(const QVariant &stored)
{
    if (stored.typeId() != QMetaType::QString)
        return {};
    const auto text = stored.toString();
    if (text.startsWith(QStringLiteral("~/")))
        return QDir::homePath() + QStringView(text).mid(1);
    return QDir::isAbsolutePath(text) ? text : QString();
}

} // namespace

FolderCloudStore::FolderCloudStore(RunLoop &runLoop, const UserDefaults &localDefaults)
    : runLoop_(runLoop)
    , localDefaults_(localDefaults)
{
}

void FolderCloudStore::synchronize()
{
    if (!store_) {
        const auto folder = folderPath(localDefaults_.object(QStringLiteral("cloudFolder")));
        if (folder.isEmpty())
            return;
        store_ = std::make_unique<JsonStore>(
            runLoop_, folder + QStringLiteral("/quillmere-settings.json"), JsonStore::Options{});
        store_->onOutsideChange = [this](const QStringList &keys) { listeners_.notify(keys); };
    }
    store_->synchronize();
}

QVariant FolderCloudStore::object(const QString &key) const
{
    return store_ ? store_->value(key) : QVariant();
}

void FolderCloudStore::setObject(const QString &key, const QVariant &value)
{
    if (store_)
        store_->setValue(key, value);
}

Task FolderCloudStore::onExternalChange(
    std::function<void(const std::optional<QStringList> &changedKeys)> listener)
{
    return listeners_.add(std::move(listener));
}

void FolderCloudStore::flush()
{
    if (store_)
        store_->flush();
}

} // namespace quillmere
