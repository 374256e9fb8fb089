import QtQuick
import Quillmere.Settings

// The account box of another part of the program, in this window's colours.
Column {
    id: card

    required property QtObject account

    // Shows the field for the client ID and puts the keyboard there.
    function take() {
        box.item.askForClientId();
    }

    Rectangle {
        width: parent.width
        height: box.height + 28
        radius: 10
        color: Theme.card
        border.width: Theme.cardEdge
        border.color: Theme.line

        Loader {
            id: box

            x: 14
            y: 14
            width: parent.width - 28
            Component.onCompleted: setSource("qrc:/qt-project.org/imports/Quillmere/GoogleAccountBox.qml", {
                account: card.account,
                ink: Qt.binding(() => Theme.text),
                muted: Qt.binding(() => Theme.muted),
                line: Qt.binding(() => Theme.groove),
                ground: Qt.binding(() => Theme.background),
                edge: Qt.binding(() => Theme.edge),
                accent: Qt.binding(() => Theme.accent),
                accentText: Qt.binding(() => Theme.accentText),
                linkColor: Qt.binding(() => Theme.link),
                focusColor: Qt.binding(() => Theme.focus),
                warning: Qt.binding(() => Theme.warning)
            })
        }
    }
}
