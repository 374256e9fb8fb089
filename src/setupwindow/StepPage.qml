import QtQuick

// A heading, a line below it, and what the step is about.
Item {
    id: page

    property string title
    property string text
    default property alias content: body.data

    Accessible.role: Accessible.Pane
    Accessible.name: title
    Accessible.description: text

    Text {
        id: heading

        width: parent.width
        text: page.title
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: 20
        font.weight: Font.Bold
        color: Look.text
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Text {
        id: line

        anchors { top: heading.bottom; topMargin: 4 }
        width: parent.width
        text: page.text
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        horizontalAlignment: Text.AlignLeft
        font.pixelSize: 13
        lineHeight: 1.15
        color: Look.quiet
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    Item {
        id: body

        anchors { top: line.bottom; topMargin: 14; left: parent.left; right: parent.right; bottom: parent.bottom }
    }
}
