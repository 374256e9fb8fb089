import QtQuick
import Quillmere.Settings

// Search above all pages; while something is searched for, what was found instead of them.
Rectangle {
    id: sidebar

    required property SettingsModel model
    readonly property bool searching: model.query.trim() !== ""
    property int found: 0 // the result that Return opens

    function search() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
        field.selectAll();
    }

    function clear(): bool {
        const wasSearching = field.text !== "";
        field.clear();
        return wasSearching;
    }

    color: Theme.sidebar

    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        visible: Theme.highContrast
        color: Theme.line
    }
    SearchField {
        id: field

        x: 10
        y: 14
        width: parent.width - 20
        onTextChanged: {
            sidebar.found = 0;
            sidebar.model.query = text;
        }
        onAccepted: {
            if (sidebar.searching && list.count > 0)
                list.open(sidebar.found);
        }
        Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
    }
    ListView {
        id: list

        anchors.top: field.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        x: 0
        width: parent.width
        topMargin: 5
        bottomMargin: 10
        clip: true
        spacing: 0
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        model: sidebar.searching ? sidebar.model.results : sidebar.model.pages
        currentIndex: sidebar.searching ? sidebar.found : sidebar.model.page
        Accessible.role: Accessible.List
        Accessible.name: sidebar.searching ? qsTr("Results") : qsTr("Pages")
        Keys.onReturnPressed: open(currentIndex)
        Keys.onEnterPressed: open(currentIndex)
        Keys.onSpacePressed: open(currentIndex)
        Keys.onUpPressed: move(-1)
        Keys.onDownPressed: move(1)
        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
            if (event.accepted)
                select(event.key === Qt.Key_Home ? 0 : count - 1);
        }

        function move(by: int) {
            const next = currentIndex + by;
            if (next < 0)
                return field.forceActiveFocus(Qt.BacktabFocusReason);
            if (next < count)
                select(next);
        }

        function select(index: int) {
            if (sidebar.searching)
                sidebar.found = index;
            else
                sidebar.model.page = index;
            // Where it goes on is in sight as well.
            for (const row of [index + 1, index - 1, index])
                positionViewAtIndex(Math.max(0, Math.min(count - 1, row)), ListView.Contain);
        }

        function open(index: int) {
            if (sidebar.searching)
                sidebar.model.reveal(sidebar.model.results[index]);
            else
                sidebar.model.page = index;
        }

        delegate: SidebarRow {
            required property int index

            x: 10
            width: list.width - 20
            chosen: sidebar.searching ? false : index === sidebar.model.page
            focused: list.activeFocus && index === list.currentIndex
            ready: sidebar.searching && field.activeFocus && index === sidebar.found
            onOpened: list.open(index)
        }
    }
    Text {
        anchors.top: list.top
        anchors.topMargin: 14
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: qsTr("Nothing found")
        visible: sidebar.searching && list.count === 0
        font: Theme.font(13, Font.Normal)
        color: Theme.muted
    }
}
