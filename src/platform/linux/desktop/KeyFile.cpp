#include "platform/linux/desktop/KeyFile.h"

#include <QFile>
#include <QFileInfo>

namespace quillmere {

QHash<QString, KeyGroup> keyFile(const QString &path)
{
    constexpr qint64 longestFile = 524'288; // bytes
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    QHash<QString, KeyGroup> groups;
    KeyGroup *group = nullptr;
    for (const QByteArray &whole : file.read(longestFile).split('\n')) {
        const QByteArray line = whole.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith('[') && line.endsWith(']'))
            group = &groups[QString::fromUtf8(line.mid(1, line.size() - 2))];
        else if (group && equals > 0 && !line.startsWith('#'))
            group->insert(line.left(equals).trimmed(), line.mid(equals + 1).trimmed());
    }
    return groups;
}

} // namespace quillmere
