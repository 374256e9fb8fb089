#pragma once

#include "platform/NotificationCenter.h"
#include "settings/SettingsStore.h"
#include "support/FakeLoginItem.h"
#include "support/MemoryCloudStore.h"
#include "support/MemoryUserDefaults.h"

namespace quillmere {

/// A settings store on fakes. Fill `defaults` first and build a second store on it to test a start.
struct SettingsFixture {
    MemoryUserDefaults defaults;
    MemoryCloudStore cloud;
    FakeLoginItem loginItem;
    NotificationCenter notifications;
    SettingsStore settings{defaults, cloud, loginItem, notifications};
};

} // namespace quillmere
