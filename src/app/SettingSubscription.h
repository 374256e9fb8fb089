#pragma once

#include "platform/Task.h"
#include "settings/SettingsStore.h"

#include <QObject>

namespace quillmere {

/// Calls `apply` with the new value after every change of the setting, until the Task or `context`
/// is gone. Main thread only.
template <class Setting, class Apply>
Task subscribe(SettingsStore &settings, const Setting &setting, QObject *context, Apply apply)
{
    const auto connection = QObject::connect(&settings, &SettingsStore::didChange, context,
                                             [&setting, apply](const QString &key) {
                                                 if (key == setting.key())
                                                     apply(setting.get());
                                             });
    return Task([connection] { QObject::disconnect(connection); });
}

} // namespace quillmere
