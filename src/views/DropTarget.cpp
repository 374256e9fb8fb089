#include "views/DropTarget.h"

#include <QMimeData>
#include <QSysInfo>

namespace quillmere {

namespace {

const QString uriListFormat = QStringLiteral("text/uri-list");

bool isTakeable(const QDropEvent &event)
{
    return event.possibleActions().testFlag(Qt::CopyAction) &&
           event.mimeData()->hasFormat(uriListFormat);
}

void take(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

/// Empty for anything but a file of this machine.
QUrl localFile(const QByteArray &line)
{
    const QUrl url = QUrl::fromEncoded(line, QUrl::StrictMode);
    const QString host = url.host();
    const bool here = host.isEmpty() || host == QLatin1StringView("localhost") ||
                      host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    const QString path = url.path(QUrl::FullyDecoded);
    if (!url.isLocalFile() || !here || !path.startsWith(u'/') || path.contains(QChar::Null))
        return {};
    return QUrl::fromLocalFile(path);
}

} // namespace

QList<QUrl> filesToTake(const QByteArray &uriList)
{
    if (uriList.size() > DropTarget::longestList) {
        qWarning("[DropTarget] refused a drop: its list has %lld bytes",
                 static_cast<long long>(uriList.size()));
        return {};
    }
    QList<QUrl> files;
    for (qsizetype start = 0, end = 0; start < uriList.size(); start = end + 1) {
        end = uriList.indexOf('\n', start);
        if (end < 0)
            end = uriList.size();
        const QUrl file = localFile(uriList.sliced(start, end - start).trimmed());
        if (file.isEmpty() || files.contains(file))
            continue;
        if (files.size() == DropTarget::mostFiles) {
            qWarning("[DropTarget] refused a drop of more than %d files", DropTarget::mostFiles);
            return {};
        }
        files.append(file);
    }
    if (files.isEmpty())
        qWarning("[DropTarget] refused a drop without local files");
    return files;
}

DropTarget::DropTarget(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemAcceptsDrops);
}

// The formats come with the drag; its content would have to be waited for.
void DropTarget::dragEnterEvent(QDragEnterEvent *event)
{
    if (!isTakeable(*event)) {
        event->ignore();
        return;
    }
    take(*event);
    over_ = true;
    Q_EMIT dragEntered();
}

void DropTarget::dragMoveEvent(QDragMoveEvent *event)
{
    if (isTakeable(*event))
        take(*event);
    else
        event->ignore();
}

void DropTarget::dragLeaveEvent(QDragLeaveEvent *)
{
    leave();
}

void DropTarget::dropEvent(QDropEvent *event)
{
    const auto files =
        isTakeable(*event) ? filesToTake(event->mimeData()->data(uriListFormat)) : QList<QUrl>();
    if (files.isEmpty()) {
        event->ignore();
    } else {
        take(*event);
        Q_EMIT dropped(files);
    }
    leave();
}

void DropTarget::leave()
{
    if (std::exchange(over_, false))
        Q_EMIT dragExited();
}

} // namespace quillmere
