import QtQuick
import Quillmere

// One dot per page; the bright one is where the user is.
Row {
    id: dots

    required property var pages
    required property int current

    signal chosen(int index)

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Pages")

    Repeater {
        model: dots.pages

        Item {
            id: dot

            required property int index
            required property string modelData

            readonly property bool shown: index === dots.current

            width: 14
            height: 20
            activeFocusOnTab: true

            Accessible.role: Accessible.PageTab
            Accessible.name: modelData
            Accessible.checked: shown
            Accessible.onPressAction: dots.chosen(index)
            Keys.onReturnPressed: dots.chosen(index)
            Keys.onSpacePressed: dots.chosen(index)

            HoverHandler {
                id: hover
            }
            Disc {
                anchors.centerIn: parent
                width: 5

                FocusRing {
                    anchors.margins: -4
                    visible: dot.activeFocus
                }
                color: dot.shown ? Ink.accent : hover.hovered ? Ink.secondary : Ink.faint
            }
            MouseArea {
                anchors.fill: parent
                onPressed: dots.chosen(dot.index)
            }
        }
    }
}
