import QtQuick
import Quillmere.Settings

// The whole content of the window.
FocusScope {
    id: scene

    required property SettingsModel model
    readonly property color background: Theme.background

    Keys.onPressed: event => {
        const pages = event.key === Qt.Key_PageDown ? 1 : event.key === Qt.Key_PageUp ? -1 : 0;
        event.accepted = pages !== 0;
        if (event.accepted)
            page.scroll(pages);
    }

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Binding {
        target: Theme
        property: "dark"
        value: scene.model.dark
    }
    Binding {
        target: Theme
        property: "highContrast"
        value: scene.model.highContrast
    }
    Binding {
        target: Theme
        property: "accent"
        value: scene.model.accent
    }
    Binding {
        target: Theme
        property: "reducedMotion"
        value: scene.model.reducedMotion
    }
    Rectangle {
        anchors.fill: parent
        color: Theme.background
    }
    Sidebar {
        id: sidebar

        anchors.left: parent.left
        width: 200
        height: parent.height
        model: scene.model
    }
    PageView {
        id: page

        anchors.left: sidebar.right
        anchors.right: parent.right
        height: parent.height
        model: scene.model
    }
    Connections {
        target: scene.model

        function onPageChanged() {
            page.highlightedKey = "";
            page.contentY = 0;
        }
        function onRevealed(key) {
            page.reveal(key);
        }
    }
    Shortcut {
        sequences: [StandardKey.Find]
        onActivated: sidebar.search()
    }
    Shortcut {
        sequence: "Ctrl+W"
        onActivated: scene.Window.window.close()
    }
    Shortcut {
        sequence: "Esc"
        onActivated: {
            if (!sidebar.clear())
                scene.Window.window.close();
        }
    }
}
