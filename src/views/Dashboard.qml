import QtQuick
import Quillmere

// The open island: the page shown, the one it slides away from, and at the foot where the user is.
FocusScope {
    id: dashboard

    required property DashboardModel model
    required property int motion
    required property bool live

    readonly property real footHeight: 32

    focus: true
    Window.onActiveChanged: {
        if (!Window.active && model) // taken down, it loses its model before its window
            model.keyboardLeft();
    }
    Keys.onEscapePressed: model.pickerOpen ? model.closePicker() : model.close()
    Keys.onPressed: event => {
        if (model.typing)
            return;
        const forward = LayoutMirroring.enabled ? Qt.Key_Left : Qt.Key_Right;
        const back = LayoutMirroring.enabled ? Qt.Key_Right : Qt.Key_Left;
        if (event.key !== forward && event.key !== back)
            return;
        model.stepPage(event.key === forward ? 1 : -1);
        event.accepted = true;
    }

    // Where the keyboard is until Tab takes it to a control, and again on every page.
    Item {
        id: home

        focus: true
    }
    Connections {
        target: dashboard.model
        function onPageChanged() {
            if (dashboard.activeFocus && !dashboard.model.typing)
                home.forceActiveFocus();
        }
        function onPickerOpenChanged() {
            if (dashboard.activeFocus)
                home.forceActiveFocus();
        }
    }

    Item {
        id: stage

        // Counts pages turned; whole numbers are a page at rest.
        property real position: 0

        width: parent.width
        height: parent.height - dashboard.footHeight
        visible: opacity > 0

        Follower on position {
            to: dashboard.model.slide
            curve: dashboard.motion
            enabled: dashboard.live
        }
        Follower on opacity {
            to: dashboard.model.pickerOpen ? 0 : 1
            curve: Follower.Linear
            riseDuration: 120
            fallDuration: 80
        }

        PageSlot {
            name: dashboard.model.evenPage
            count: dashboard.model.slide % 2 === 0 ? dashboard.model.slide : neighbour
        }
        PageSlot {
            name: dashboard.model.oddPage
            count: dashboard.model.slide % 2 !== 0 ? dashboard.model.slide : neighbour
        }
    }

    component PageSlot: Item {
        id: slot

        required property string name
        required property int count

        // The page slid away from lies on the side the new one did not come from.
        readonly property int neighbour: dashboard.model.slide - dashboard.model.slideDirection
        readonly property bool current: count === dashboard.model.slide
        readonly property real offset: (count - stage.position) * (LayoutMirroring.enabled ? -1 : 1)

        x: offset * width
        width: stage.width
        height: stage.height
        visible: Math.abs(offset) < 1

        Loader {
            anchors.fill: parent
            active: slot.current || slot.visible
            enabled: slot.current
            sourceComponent: {
                switch (slot.name) {
                case "main":
                    return mainPage;
                case "weather":
                    return weatherPage;
                case "system":
                    return systemPage;
                case "timer":
                    return timerPage;
                case "fileTray":
                    return trayPage;
                default:
                    return null;
                }
            }
        }
    }

    Component {
        id: mainPage
        MainPage {
            model: dashboard.model
            live: dashboard.live
            reducedMotion: dashboard.motion === Follower.Linear
        }
    }
    Component {
        id: weatherPage
        WeatherPage {
            model: dashboard.model
        }
    }
    Component {
        id: systemPage
        SystemPage {
            model: dashboard.model.system
            live: dashboard.live
        }
    }
    Component {
        id: timerPage
        TimerPage {
            model: dashboard.model
            live: dashboard.live
        }
    }
    Component {
        id: trayPage
        TrayPage {
            model: dashboard.model
        }
    }

    Loader {
        anchors.fill: stage
        opacity: 0
        active: dashboard.model.pickerOpen || opacity > 0
        visible: opacity > 0
        enabled: dashboard.model.pickerOpen

        Follower on opacity {
            to: dashboard.model.pickerOpen ? 1 : 0
            curve: Follower.Linear
            riseDuration: 120
            fallDuration: 80
        }

        sourceComponent: OutputPicker {
            model: dashboard.model
        }
    }

    Item {
        id: foot

        width: parent.width
        height: dashboard.footHeight
        anchors.bottom: parent.bottom

        PageDots {
            anchors.centerIn: parent
            anchors.verticalCenterOffset: 2
            pages: dashboard.model.pages
            current: dashboard.model.pageIndex
            opacity: 1 - level.opacity
            visible: opacity > 0 && pages.length > 1
            onChosen: index => dashboard.model.showPage(index)
        }

        Loader {
            id: level

            width: 300
            height: 28
            anchors.centerIn: parent
            opacity: 0
            active: dashboard.model.showsLevel || opacity > 0
            visible: opacity > 0

            Follower on opacity {
                to: dashboard.model.showsLevel ? 1 : 0
                curve: Follower.Linear
                enabled: dashboard.live
                riseDuration: 120
                fallDuration: 120
            }

            sourceComponent: LevelHUD {
                objectName: "dashboardHUD"
                face: dashboard.model.level
                overshoot: dashboard.model.overshoot
                onScreen: dashboard.live

                Accessible.role: Accessible.AlertMessage
                Accessible.name: face.accessibleText
            }
        }
    }
}
