#include "platform/linux/core/XdgPaths.h"

#include <QDir>

namespace quillmere::xdg {

namespace {

QString directory(const char *variable, QLatin1StringView belowHome)
{
    const QString value = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(value) ? value : QDir::homePath() + u'/' + belowHome;
}

} // namespace

QString configHome()
{
    return directory("XDG_CONFIG_HOME", QLatin1StringView(".config"));
}

QString dataHome()
{
    return directory("XDG_DATA_HOME", QLatin1StringView(".local/share"));
}

QString stateHome()
{
    return directory("XDG_STATE_HOME", QLatin1StringView(".local/state"));
}

} // namespace quillmere::xdg
