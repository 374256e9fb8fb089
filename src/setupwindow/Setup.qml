import QtQuick

Rectangle {
    id: root

    required property var setup
    readonly property bool isLast: setup.step === setup.stepCount - 1

    color: Look.window
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Binding { target: Look; property: "dark"; value: root.setup.dark }
    Binding { target: Look; property: "highContrast"; value: root.setup.highContrast }
    Binding { target: Look; property: "still"; value: root.setup.reducesMotion }
    Binding { target: Look; property: "accent"; value: root.setup.accent }

    Shortcut { sequence: "Escape"; onActivated: root.setup.skip() }
    Shortcut { sequence: "Alt+Left"; onActivated: root.setup.goBack() }
    Shortcut { sequence: "Alt+Right"; onActivated: if (!root.isLast) root.setup.advance() }

    Loader {
        id: step

        objectName: "page"
        anchors { fill: parent; margins: 28; bottomMargin: 68 }
        sourceComponent: [welcome, sources, needs, finish][root.setup.step]
        Accessible.role: Accessible.Pane
        Accessible.name: item ? item.title : ""
    }
    Component { id: welcome; WelcomeStep {} }
    Component { id: sources; SourcesStep { setup: root.setup } }
    Component { id: needs; NeedsStep { setup: root.setup } }
    Component { id: finish; FinishStep { setup: root.setup } }

    Row {
        anchors { horizontalCenter: parent.horizontalCenter; verticalCenter: forward.verticalCenter }
        spacing: 7
        Accessible.role: Accessible.StaticText
        Accessible.name: qsTr("Step %1 of %2").arg(root.setup.step + 1).arg(root.setup.stepCount)

        Repeater {
            model: root.setup.stepCount

            Rectangle {
                required property int index

                width: Look.highContrast && index === root.setup.step ? 18 : 7
                height: 7
                radius: 3.5
                color: index === root.setup.step ? Look.accent : Look.off
            }
        }
    }
    SetupButton {
        anchors { left: parent.left; leftMargin: 20; verticalCenter: forward.verticalCenter }
        visible: !root.isLast
        plain: true
        text: qsTr("Skip")
        onClicked: root.setup.skip()
    }
    SetupButton {
        anchors { right: forward.left; rightMargin: 10; verticalCenter: forward.verticalCenter }
        visible: root.setup.step > 0
        text: qsTr("Back")
        onClicked: root.setup.goBack()
    }
    SetupButton {
        id: forward

        anchors { right: parent.right; rightMargin: 28; bottom: parent.bottom; bottomMargin: 20 }
        prominent: true
        focus: true
        text: root.isLast ? qsTr("Done") : qsTr("Continue")
        onClicked: root.setup.advance()
    }
}
