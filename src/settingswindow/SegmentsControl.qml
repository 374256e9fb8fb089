import QtQuick
import QtQuick.Templates as T
import Quillmere.Settings

// One of a few, all in sight.
Rectangle {
    id: control

    required property SettingRow row

    function take() {
        const chosen = row.choices.indexOf(row.value);
        repeater.itemAt(Math.max(0, chosen)).forceActiveFocus(Qt.TabFocusReason);
    }

    implicitWidth: segments.implicitWidth + 4
    implicitHeight: 28
    radius: 7
    color: Theme.groove
    border.width: Theme.edgeWidth
    border.color: Theme.edge
    Accessible.role: Accessible.Grouping
    Accessible.name: row.title
    Accessible.description: row.explanation

    Row {
        id: segments

        x: 2
        y: 2

        Repeater {
            id: repeater

            model: control.row.choices

            delegate: T.RadioButton {
                id: segment

                required property string modelData
                required property int index

                function step(by: int) {
                    const next = repeater.itemAt(index + by);
                    if (next) {
                        control.row.change(next.modelData);
                        next.forceActiveFocus(Qt.TabFocusReason);
                    }
                }

                implicitWidth: label.implicitWidth + 20
                implicitHeight: 24
                autoExclusive: true
                checked: control.row.value === modelData
                text: control.row.choiceTitles[index]
                focusPolicy: checked ? Qt.StrongFocus : Qt.ClickFocus
                Accessible.name: text
                Accessible.description: control.row.title
                Keys.onLeftPressed: step(mirrored ? 1 : -1)
                Keys.onRightPressed: step(mirrored ? -1 : 1)
                onCheckedChanged: {
                    if (checked)
                        control.row.change(modelData);
                }

                background: Rectangle {
                    radius: 6
                    color: segment.checked ? Theme.chosen : "transparent"
                    border.width: segment.checked && !Theme.dark && !Theme.highContrast ? 0.5 : 0
                    border.color: Qt.rgba(0, 0, 0, 0.14)
                }
                contentItem: Item {
                    Text {
                        id: label

                        anchors.centerIn: parent
                        text: segment.text
                        textFormat: Text.PlainText
                        font: Theme.font(12, Font.Medium)
                        color: segment.checked ? Theme.chosenText : Theme.text
                    }
                }

                FocusRing {
                    radius: 8
                }
            }
        }
    }
}
