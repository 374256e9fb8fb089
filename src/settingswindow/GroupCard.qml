import QtQuick
import Quillmere.Settings

// A heading and the rows below it on one card.
Column {
    id: group

    required property var group
    property string highlightedKey

    function find(key: string): Item {
        for (let i = 0; i < repeater.count; i++) {
            if (repeater.itemAt(i).row.key === key)
                return repeater.itemAt(i);
        }
        return null;
    }

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: heading.text

    Text {
        id: heading

        leftPadding: 2
        rightPadding: 2
        width: parent.width
        text: group.group.heading
        textFormat: Text.PlainText
        font: Theme.font(12, Font.DemiBold)
        color: Theme.muted
        visible: text !== ""
        horizontalAlignment: Text.AlignLeft
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Rectangle {
        width: parent.width
        height: rows.height
        radius: 10
        color: Theme.card
        border.width: Theme.cardEdge
        border.color: Theme.line

        Column {
            id: rows

            width: parent.width

            Repeater {
                id: repeater

                model: group.group.rows

                delegate: RowView {
                    required property var modelData
                    required property int index

                    width: rows.width
                    row: modelData
                    highlighted: group.highlightedKey !== "" && group.highlightedKey === row.key

                    Rectangle {
                        width: parent.width
                        height: 1
                        color: Theme.line
                        visible: parent.index > 0
                    }
                }
            }
        }
    }
}
