import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

// Scrolls its content, and follows the keyboard through it.
Flickable {
    id: scroller

    default property alias content: column.data
    property real margin: 26

    function show(item: Item) {
        const top = item.mapToItem(column, 0, 0).y;
        if (top < contentY + 12)
            contentY = Math.max(0, top - 12);
        else if (top + item.height > contentY + height - 12)
            contentY = Math.min(contentHeight - height, top + item.height - height + 12);
    }

    function scroll(pages: int) {
        const lowest = Math.max(0, contentHeight - height);
        contentY = Math.max(0, Math.min(lowest, contentY + pages * (height - 40)));
    }

    contentWidth: width
    contentHeight: column.height + 36
    clip: true
    boundsBehavior: Flickable.StopAtBounds

    Column {
        id: column

        // Lines stay short in a wide window.
        x: (scroller.width - width) / 2
        y: 18
        width: Math.min(scroller.width - 2 * scroller.margin, 760)
    }
    Connections {
        target: scroller.Window.window

        function onActiveFocusItemChanged() {
            const item = scroller.Window.activeFocusItem;
            for (let parent = item; parent; parent = parent.parent) {
                if (parent === column)
                    return scroller.show(item);
            }
        }
    }

    T.ScrollBar.vertical: T.ScrollBar {
        id: bar

        parent: scroller
        anchors.right: parent.right
        width: 10
        height: parent.height
        visible: size < 1
        focusPolicy: Qt.NoFocus

        contentItem: Item {
            Rectangle {
                x: 2
                y: 2
                width: 5
                height: parent.height - 4
                radius: 2.5
                color: Theme.muted
                opacity: Theme.highContrast ? 1 : bar.pressed ? 0.8 : bar.hovered || scroller.moving ? 0.6 : 0.3
            }
        }
    }
}
