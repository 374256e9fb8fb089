#pragma once

#include <QQuickItem>

#include <QtQml/qqmlregistration.h>

namespace quillmere {

/// An area of the scene that takes files dropped on it, as copies. Whatever else is dragged over it
/// is refused, and so is what no user would drop: lists that are huge or name no local file.
class DropTarget : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    static constexpr int mostFiles = 100;
    static constexpr qsizetype longestList = 1'048'576; ///< bytes

    explicit DropTarget(QQuickItem *parent = nullptr);

Q_SIGNALS:
    /// Files are over the area; comes before the others.
    void dragEntered();
    /// They have left it, dropped or not; comes after dropped().
    void dragExited();
    /// 1 to mostFiles local files, as "file:" URLs without a host.
    void dropped(const QList<QUrl> &files);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void leave();

    bool over_ = false;
};

/// The local files of a text/uri-list, in its order, each once; empty, with a line in the log, if
/// there are none or too many.
QList<QUrl> filesToTake(const QByteArray &uriList);

} // namespace quillmere
