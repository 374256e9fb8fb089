#include "settings/SettingsStore.h"

#include "app/AppEvents.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/LoginItem.h"
#include "platform/NotificationCenter.h"
#include "settings/SyncedKeys.h"

#include <algorithm>

namespace quillmere {

SettingsStore::SettingsStore(UserDefaults &userDefaults, CloudKeyValueStore &cloudStore,
                             LoginItem &loginItem, NotificationCenter &notificationCenter,
                             QObject *parent)
    : QObject(parent)
    , registry_(
          userDefaults, [this](const QString &key) { Q_EMIT willChange(key); },
          [this](const QString &key) { Q_EMIT didChange(key); })
    , userDefaults_(userDefaults)
    , cloudStore_(cloudStore)
    , loginItem_(loginItem)
    , notificationCenter_(notificationCenter)
{
    launchAtLogin.didSet = [this] { applyLoginItem(); };
    userDefaultsObserver_ = userDefaults_.onExternalChange(
        [this](const QStringList &keys) { userDefaultsDidChange(keys); });
    applyLoginItem();
    if (syncSettingsViaICloud.get())
        startCloudSync();
}

void SettingsStore::applyLoginItem()
{
    if (launchAtLogin.get())
        loginItem_.registerItem();
    else
        loginItem_.unregisterItem();
}

void SettingsStore::startCloudSync()
{
    cloudStore_.synchronize();
    pushToCloud();
    cloudStore_.synchronize();
    iCloudObserver_ = cloudStore_.onExternalChange(
        [this](const std::optional<QStringList> &changedKeys) { cloudDidChange(changedKeys); });
}

void SettingsStore::pushToCloud()
{
    for (const auto syncedKey : syncedKeys) {
        const QString key(syncedKey);
        const auto value = userDefaults_.object(key);
        if (value.isValid())
            cloudStore_.setObject(key, value);
    }
}

void SettingsStore::cloudDidChange(const std::optional<QStringList> &changedKeys)
{
    if (!syncSettingsViaICloud.get() || isSyncingFromCloud_ || !changedKeys)
        return;
    isSyncingFromCloud_ = true;
    for (const auto &key : *changedKeys)
        copyFromCloud(key);
    notificationCenter_.post(events::settingsDidSyncFromCloud);
    isSyncingFromCloud_ = false;
}

void SettingsStore::copyFromCloud(const QString &key)
{
    if (std::ranges::find(deviceLocalKeys, key) != deviceLocalKeys.end())
        return;
    const auto value = cloudStore_.object(key);
    if (!value.isValid())
        return;
    const auto *setting = registry_.find(key);
    const bool announced =
        setting && setting->isReadThrough() && setting->value() != setting->interpreted(value);
    if (announced)
        Q_EMIT willChange(key);
    userDefaults_.setObject(key, value);
    if (announced)
        Q_EMIT didChange(key);
}

void SettingsStore::userDefaultsDidChange(const QStringList &keys)
{
    for (const auto &key : keys) {
        const auto *setting = registry_.find(key);
        if (!setting || !setting->isReadThrough())
            continue;
        Q_EMIT willChange(key);
        Q_EMIT didChange(key);
    }
}

} // namespace quillmere
