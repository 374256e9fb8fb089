import QtQuick

StepPage {
    id: page

    title: qsTr("Welcome to Quillmere")
    text: qsTr("A small black island at the top of your screen. It grows for a moment when something happens, and stays out of the way when nothing does.")

    Portrait {
        anchors { left: parent.left; right: parent.right; top: parent.top; topMargin: 6 }
        height: 186
        still: Look.still
    }
}
