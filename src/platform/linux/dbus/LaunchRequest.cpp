#include "platform/linux/dbus/LaunchRequest.h"

namespace quillmere {

QVariantMap platformDataFromEnvironment()
{
    QVariantMap data;
    const auto take = [&data](const char *variable, const QString &key) {
        if (const QString value = qEnvironmentVariable(variable); !value.isEmpty())
            data.insert(key, value);
    };
    take("XDG_ACTIVATION_TOKEN", QStringLiteral("activation-token"));
    take("DESKTOP_STARTUP_ID", QStringLiteral("desktop-startup-id"));
    return data;
}

} // namespace quillmere
