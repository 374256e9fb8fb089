import QtQuick

StepPage {
    id: page

    required property var setup

    title: qsTr("What should it show?")
    text: qsTr("You can change all of this later in the settings.")

    ScrollPanel {
        name: page.title
        takesFocus: false

        Flow {
            width: parent.width

            Repeater {
                model: page.setup.sources

                SetupSwitch {
                    required property var modelData

                    // What has more to say has a line of its own.
                    width: note === "" ? parent.width / 2 : parent.width
                    enabled: modelData.isOn || !modelData.isAbsent
                    text: modelData.title
                    note: modelData.note
                    symbol: modelData.symbol
                    tint: modelData.color
                    checked: modelData.isOn
                    onToggled: on => modelData.isOn = on
                }
            }
        }
    }
}
