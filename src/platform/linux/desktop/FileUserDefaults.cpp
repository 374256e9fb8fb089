#include "platform/linux/desktop/FileUserDefaults.h"

#include "platform/linux/desktop/Files.h"

#include <QFileInfo>

namespace quillmere {

namespace {

/// The directory has to be there before it can be watched.
const QString &withDirectory(const QString &path)
{
    files::makePrivateDirectory(QFileInfo(path).absolutePath());
    return path;
}

} // namespace

FileUserDefaults::FileUserDefaults(RunLoop &runLoop, const QString &path)
    : store_(runLoop, withDirectory(path), {.loadsAtOnce = true, .ownsDirectory = true})
{
    store_.onOutsideChange = [this](const QStringList &keys) { listeners_.notify(keys); };
}

QVariant FileUserDefaults::object(const QString &key) const
{
    return store_.value(key);
}

void FileUserDefaults::setObject(const QString &key, const QVariant &value)
{
    if (store_.setValue(key, value))
        store_.synchronize();
    else
        qWarning("[Quillmere] The value of %s cannot be stored", qUtf8Printable(key));
}

void FileUserDefaults::removeObject(const QString &key)
{
    setObject(key, {});
}

Task FileUserDefaults::onExternalChange(std::function<void(const QStringList &keys)> listener)
{
    return listeners_.add(std::move(listener));
}

void FileUserDefaults::flush()
{
    store_.flush();
}

} // namespace quillmere
