import QtQuick

// A panel as high as what is on it, as far as there is room; more of it is scrolled, and the panel
// follows the keyboard.
Panel {
    id: panel

    default property alias content: column.data
    property alias contentWidth: column.width
    property string name
    property bool takesFocus: true // where nothing on it does

    function show(item: Item) {
        const top = item.mapToItem(column, 0, 0).y;
        list.contentY = Math.max(Math.min(list.contentY, top), top + item.height - list.height);
    }

    anchors { left: parent.left; right: parent.right; top: parent.top }
    height: Math.min(parent.height, list.contentHeight + 8)

    Flickable {
        id: list

        readonly property real lowest: Math.max(0, contentHeight - height)

        anchors { fill: parent; margins: 4 }
        contentHeight: column.height
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: interactive && panel.takesFocus
        Behavior on contentY {
            enabled: !Look.still && !list.moving
            NumberAnimation { duration: 140; easing.type: Easing.OutCubic }
        }
        Accessible.role: Accessible.List
        Accessible.name: panel.name
        Keys.onDownPressed: contentY = Math.min(lowest, contentY + 40)
        Keys.onUpPressed: contentY = Math.max(0, contentY - 40)
        Keys.onPressed: event => {
            const pages = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
            event.accepted = pages !== 0;
            if (event.accepted)
                contentY = Math.max(0, Math.min(lowest, contentY + pages * height));
        }

        Column {
            id: column

            width: list.width
        }
    }
    Connections {
        target: panel.Window.window

        function onActiveFocusItemChanged() {
            const item = panel.Window.activeFocusItem;
            for (let parent = item; parent; parent = parent.parent) {
                if (parent === column)
                    return panel.show(item);
            }
        }
    }
    Rectangle {
        anchors { right: parent.right; rightMargin: 3 }
        y: list.y + list.visibleArea.yPosition * list.height
        width: 3
        height: list.visibleArea.heightRatio * list.height
        radius: 1.5
        visible: list.interactive
        color: Look.quiet
        opacity: Look.highContrast ? 1 : 0.5
    }
    Rectangle {
        anchors.fill: parent
        radius: 9
        color: "transparent"
        border.width: 2
        border.color: Look.focus
        visible: list.activeFocus
    }
}
