#include "platform/linux/desktop/IconTheme.h"

#include "platform/linux/desktop/KeyFile.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringList>

#include <limits>

namespace quillmere {

namespace {

const QString themeGroup = QStringLiteral("Icon Theme");
const QString commonTheme = QStringLiteral("hicolor"); // which all programs install into
constexpr qsizetype mostThemes = 16;
constexpr int tooSmall = 10'000; // what has to be enlarged fits worse than anything else

QStringList baseFolders()
{
    QStringList folders{QDir::homePath() + QStringLiteral("/.icons")};
    for (const QString &data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders.append(data + QStringLiteral("/icons"));
    return folders;
}

/// How far what lies in a folder is from the size wanted; 0 = as wanted.
int misfit(const KeyGroup &folder, int side)
{
    const int scale = qBound(1, folder.value("Scale").toInt(), 8);
    const int size = folder.value("Size").toInt() * scale;
    if (folder.value("Type") == QLatin1StringView("Scalable")) {
        const QString most = folder.value("MaxSize");
        if (most.isEmpty() || most.toInt() * scale >= side)
            return 0;
    }
    return size < side ? tooSmall + side - size : size - side;
}

QString fileIn(const QString &folder, const QString &name)
{
    for (const auto ending : {QLatin1StringView(".svg"), QLatin1StringView(".png")}) {
        QString path = folder + u'/' + name + ending;
        if (QFile::exists(path))
            return path;
    }
    return {};
}

/// The index of a theme stands for all the folders of that name: programs add icons of their own to
/// a theme in other places, without another index.
QHash<QString, KeyGroup> indexOf(const QString &theme, const QStringList &bases)
{
    for (const QString &base : bases) {
        auto index = keyFile(base + u'/' + theme + QStringLiteral("/index.theme"));
        if (!index.isEmpty())
            return index;
    }
    return {};
}

QString iconIn(const QHash<QString, KeyGroup> &index, const QStringList &themeFolders,
               const QString &name, int side)
{
    const KeyGroup theme = index.value(themeGroup);
    const QString folders = theme.value("Directories") + u',' + theme.value("ScaledDirectories");
    QString best;
    int bestMisfit = std::numeric_limits<int>::max();
    for (const QString &entry : folders.split(u',', Qt::SkipEmptyParts)) {
        const QString folder = entry.trimmed();
        const int distance = misfit(index.value(folder), side);
        for (const QString &place : themeFolders) {
            if (distance >= bestMisfit)
                break;
            if (QString file = fileIn(place + u'/' + folder, name); !file.isEmpty()) {
                best = std::move(file);
                bestMisfit = distance;
            }
        }
    }
    return best;
}

} // namespace

QString themeIcon(const QString &name, const QString &theme, int side)
{
    if (name.isEmpty() || name.contains(u'/'))
        return {};
    const QStringList bases = baseFolders();
    QStringList chain{theme};
    for (qsizetype i = 0; i < chain.size(); ++i) {
        const auto index = indexOf(chain.at(i), bases);
        QStringList folders = bases;
        for (QString &folder : folders)
            folder += u'/' + chain.at(i);
        if (QString file = iconIn(index, folders, name, side); !file.isEmpty())
            return file;
        QString parents = index.value(themeGroup).value("Inherits");
        if (i == chain.size() - 1)
            parents += u',' + commonTheme;
        for (const QString &parent : parents.split(u',', Qt::SkipEmptyParts)) {
            if (!chain.contains(parent.trimmed()) && chain.size() < mostThemes)
                chain.append(parent.trimmed());
        }
    }
    for (const QString &data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        if (QString file = fileIn(data + QStringLiteral("/pixmaps"), name); !file.isEmpty())
            return file;
    }
    return {};
}

} // namespace quillmere
