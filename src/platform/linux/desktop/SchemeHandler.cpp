#include "platform/linux/desktop/SchemeHandler.h"

#include "platform/linux/desktop/AutostartLoginItem.h"
#include "platform/linux/desktop/Files.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <functional>

namespace quillmere {

namespace {

constexpr qint64 largestList = qint64{1} << 20; // bytes
const QByteArray entryName("com.quillmere.Quillmere.sign-in.desktop");
const QByteArray section("[Default Applications]");

QString entryPath(const SchemeHandlerPlaces &places)
{
    return places.dataHome + QStringLiteral("/applications/") + QString::fromLatin1(entryName);
}

QString listPath(const SchemeHandlerPlaces &places)
{
    return places.configHome + QStringLiteral("/mimeapps.list");
}

QByteArray entry(const QString &program, const QString &scheme)
{
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quillmere\n"
           "Icon=com.quillmere.Quillmere\n"
           "Exec=" +
           execValue(program).toUtf8() +
           " %u\n"
           "NoDisplay=true\n"
           "Terminal=false\n"
           "StartupNotify=false\n"
           "MimeType=x-scheme-handler/" +
           scheme.toLatin1() + ";\n";
}

bool isOurs(const QByteArray &line)
{
    QByteArray handlers = line.mid(line.indexOf('=') + 1).trimmed();
    if (handlers.endsWith(';'))
        handlers.chop(1);
    return handlers == entryName;
}

/// A list that cannot be read is left alone: the entry alone serves most desktops.
void editList(const SchemeHandlerPlaces &places,
              const std::function<QByteArray(const QByteArray &)> &edit)
{
    const QString path = listPath(places);
    const auto present = files::read(path, largestList);
    if (present.state == files::Contents::State::Unreadable) {
        qWarning("[Quillmere] %s: %s", qUtf8Printable(path), qUtf8Printable(present.problem));
        return;
    }
    const QByteArray edited = edit(present.bytes);
    if (edited == present.bytes)
        return;
    if (edited.trimmed() == section && !QFileInfo(path).isSymLink()) { // there was none before us
        QFile::remove(path);
        return;
    }
    files::makePrivateDirectory(places.configHome);
    if (const auto written = files::replace(path, edited); !written)
        qWarning("[Quillmere] %s: %s", qUtf8Printable(path), qUtf8Printable(written.error()));
}

} // namespace

tl::expected<void, QString> installSchemeHandler(const SchemeHandlerPlaces &places,
                                                 const QString &scheme)
{
    const QString path = entryPath(places);
    files::makePrivateDirectory(QFileInfo(path).absolutePath());
    if (auto written = files::replace(path, entry(places.program, scheme)); !written)
        return written;
    editList(places, [&scheme](const QByteArray &list) { return withHandler(list, scheme); });
    return {};
}

void removeSchemeHandler(const SchemeHandlerPlaces &places)
{
    QFile::remove(entryPath(places));
    editList(places, &withoutHandler);
}

QByteArray withHandler(const QByteArray &list, const QString &scheme)
{
    QByteArray result = withoutHandler(list);
    const QByteArray line = "x-scheme-handler/" + scheme.toLatin1() + '=' + entryName + '\n';
    if (!result.isEmpty() && !result.endsWith('\n'))
        result += '\n';
    qsizetype header = result.startsWith(section) ? 0 : result.indexOf(QByteArray('\n' + section));
    if (header < 0)
        return result + section + '\n' + line;
    const qsizetype next = result.indexOf('\n', header + 1) + 1;
    return result.insert(next, line);
}

QByteArray withoutHandler(const QByteArray &list)
{
    QByteArray result;
    result.reserve(list.size());
    for (qsizetype start = 0; start < list.size();) {
        const qsizetype end = list.indexOf('\n', start);
        const QByteArray line = list.mid(start, end < 0 ? -1 : end + 1 - start);
        if (!isOurs(line))
            result += line;
        start += line.size();
    }
    return result;
}

} // namespace quillmere
