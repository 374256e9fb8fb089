import QtQuick
import Quillmere

// One line of text. One that is too long ends in dots, and shows the rest of itself under the pointer.
Item {
    id: marquee

    required property string text
    required property font font
    property color color: Ink.content
    property bool fromRight: false ///< the text's own direction
    property bool moves: true

    readonly property real excess: Math.max(0, label.implicitWidth - width)
    readonly property bool scrolls: hover.hovered && moves && excess > 0

    property real way: 0

    implicitHeight: label.implicitHeight
    clip: way > 0

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Follower on way {
        to: marquee.scrolls ? marquee.excess : 0
        curve: Follower.Linear
        riseDelay: 400
        riseDuration: 400 + 22 * marquee.excess
        fallDuration: 200
    }

    Text {
        id: label

        readonly property bool whole: marquee.scrolls || marquee.way > 0

        x: !whole ? 0 : marquee.fromRight ? marquee.way - marquee.excess : -marquee.way
        width: whole ? implicitWidth : marquee.width
        text: marquee.text
        textFormat: Text.PlainText
        elide: whole ? Text.ElideNone : Text.ElideRight
        maximumLineCount: 1
        horizontalAlignment: Text.AlignLeft
        font: marquee.font
        color: marquee.color
    }
    HoverHandler {
        id: hover
    }
}
