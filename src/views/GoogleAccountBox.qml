import QtQuick

// Sign in to Google, who is signed in, sign out; before that, the way to a client ID of one's own.
// Its colours and sizes are those of the window it stands in.
Item {
    id: box

    required property QtObject account

    property color ink: "#1c1c1e"
    property color muted: "#636368"
    property color line: Qt.rgba(0, 0, 0, 0.1)
    property color ground: "#f6f6f7"
    property color edge: "transparent" // of what can be pressed or filled in
    property color accent: "#0071e3"
    property color accentText: "white"
    property color linkColor: accent
    property color focusColor: accent
    property color warning: "#9a5200"
    property string family: Qt.application.font.family
    property real textSize: 13

    readonly property bool signedOut: account.state === "signedOut"
    property bool explains: false

    implicitWidth: 480
    implicitHeight: column.implicitHeight

    // With the keyboard in the field for it; who is signed in has to sign out first.
    function askForClientId() {
        if (!signedOut)
            return;
        explains = true;
        input.forceActiveFocus(Qt.TabFocusReason);
        input.selectAll();
    }

    Connections {
        target: box.account

        // From elsewhere; what is being typed may have blanks at its ends.
        function onClientIdChanged() {
            if (input.text.trim() !== box.account.clientId)
                input.text = box.account.clientId;
        }
    }

    // Not bound: it stays when what is typed has become a client ID.
    Component.onCompleted: explains = account.needsClientId

    component Words: Text {
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignLeft
        font.family: box.family
        font.pixelSize: box.textSize
        color: box.ink
    }

    component Choice: Item {
        id: choice

        property string text
        property bool prominent: false
        property bool plain: false // words that can be pressed, without a ground

        signal pressed()

        implicitWidth: label.implicitWidth + (plain ? 4 : 24)
        implicitHeight: plain ? label.implicitHeight + 6 : 30
        activeFocusOnTab: true

        Accessible.role: plain ? Accessible.Link : Accessible.Button
        Accessible.name: text
        Accessible.onPressAction: pressed()
        Keys.onReturnPressed: pressed()
        Keys.onEnterPressed: pressed()
        Keys.onSpacePressed: pressed()

        Rectangle {
            anchors.fill: parent
            visible: !choice.plain
            radius: 7
            color: choice.prominent ? box.accent : box.line
            border.width: box.edge.a > 0 ? 1 : 0
            border.color: box.edge
            opacity: area.containsPress ? 0.7 : 1
        }
        Rectangle {
            anchors.fill: parent
            anchors.margins: -2
            visible: choice.activeFocus
            radius: 9
            color: "transparent"
            border.width: 2
            border.color: box.focusColor
        }
        Words {
            id: label

            anchors.centerIn: parent
            wrapMode: Text.NoWrap
            text: choice.text
            font.underline: choice.plain && (area.containsMouse || box.edge.a > 0)
            color: choice.plain ? box.linkColor : choice.prominent ? box.accentText : box.ink
        }
        MouseArea {
            id: area

            anchors.fill: parent
            hoverEnabled: true
            cursorShape: choice.plain ? Qt.PointingHandCursor : Qt.ArrowCursor
            onClicked: choice.pressed()
        }
    }

    Column {
        id: column

        width: parent.width
        spacing: 12

        Item {
            width: parent.width
            height: Math.max(status.implicitHeight, actions.implicitHeight)

            Words {
                id: status

                anchors.left: parent.left
                anchors.right: actions.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                text: {
                    if (box.account.state === "signedIn")
                        return qsTr("Signed in as %1").arg(box.account.email);
                    return box.signedOut ? qsTr("Not signed in") : qsTr("Sign in with the browser that has opened…");
                }
            }
            Row {
                id: actions

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: 8

                Choice {
                    visible: box.signedOut
                    prominent: true
                    text: qsTr("Sign in with Google")
                    onPressed: box.account.signIn()
                }
                Choice {
                    visible: box.account.state === "signingIn"
                    text: qsTr("Cancel")
                    onPressed: box.account.cancel()
                }
                Choice {
                    visible: box.account.state === "signedIn"
                    text: qsTr("Sign out")
                    onPressed: box.account.signOut()
                }
            }
        }

        Words {
            width: parent.width
            visible: text !== ""
            text: box.account.errorText
            color: box.warning
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }

        Choice {
            visible: box.signedOut && !box.account.needsClientId
            plain: true
            text: box.explains ? qsTr("Hide the client ID") : qsTr("Use another client ID")
            onPressed: box.explains = !box.explains
        }

        Column {
            width: parent.width
            spacing: 8
            visible: box.signedOut && box.explains

            Words {
                width: parent.width
                text: qsTr("Google wants to know which program asks. Make a client ID of your own, in a minute and for nothing:")
            }
            Repeater {
                model: box.account.steps

                Item {
                    id: step

                    required property var modelData
                    required property int index

                    width: column.width
                    height: Math.max(what.implicitHeight, where.implicitHeight)

                    Words {
                        id: number

                        anchors.left: parent.left
                        width: 20
                        text: (step.index + 1) + "."
                        color: box.muted
                    }
                    Words {
                        id: what

                        anchors.left: number.right
                        anchors.right: where.left
                        anchors.rightMargin: 12
                        text: step.modelData.text
                    }
                    Choice {
                        id: where

                        anchors.right: parent.right
                        y: -3 // on the line of the text beside it
                        plain: true
                        text: step.modelData.label
                        onPressed: box.account.open(step.modelData.link)
                    }
                }
            }
            Rectangle {
                width: parent.width
                height: 30
                radius: 7
                color: box.ground
                border.width: input.activeFocus ? 2 : 1
                border.color: input.activeFocus ? box.focusColor : box.edge.a > 0 ? box.edge : box.line

                TextInput {
                    id: input

                    anchors.fill: parent
                    anchors.leftMargin: 9
                    anchors.rightMargin: 9
                    verticalAlignment: TextInput.AlignVCenter
                    activeFocusOnTab: true
                    clip: true
                    selectByMouse: true
                    maximumLength: 300
                    font.family: box.family
                    font.pixelSize: box.textSize
                    color: box.ink
                    selectionColor: box.accent
                    selectedTextColor: box.accentText
                    text: box.account.clientId
                    Accessible.role: Accessible.EditableText
                    Accessible.name: qsTr("Google OAuth client ID")
                    // At once, so that a paste and a press on "Sign in" are enough.
                    onTextEdited: box.account.clientId = text
                    onAccepted: box.account.signIn()
                }
                Words {
                    anchors.fill: input
                    verticalAlignment: Text.AlignVCenter
                    visible: input.text === "" && input.preeditText === ""
                    elide: Text.ElideRight
                    wrapMode: Text.NoWrap
                    text: "123456789012-abcdef.apps.googleusercontent.com"
                    font.italic: box.edge.a > 0 // its colour is that of what is typed
                    color: box.muted
                    Accessible.ignored: true
                }
            }
            Words {
                width: parent.width
                text: box.account.remark
                font.pixelSize: box.textSize - 1
                color: box.muted
            }
        }
    }
}
