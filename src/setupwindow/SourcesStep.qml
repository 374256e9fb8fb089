import QtQuick

StepPage {
    id: page

    required property var setup

    title: qsTr("What should it show?")
    text: qsTr("You can change all of this later in the settings.")

    Panel {
        anchors { left: parent.left; right: parent.right; top: parent.top }
        height: grid.height + 8

        Grid {
            id: grid

            x: 4
            y: 4
            columns: 2
            flow: Grid.LeftToRight

            Repeater {
                model: page.setup.sources

                SetupSwitch {
                    required property var modelData

                    width: (page.width - 8) / 2
                    text: modelData.title
                    symbol: modelData.symbol
                    tint: modelData.color
                    checked: modelData.isOn
                    onToggled: on => modelData.isOn = on
                }
            }
        }
    }
}
