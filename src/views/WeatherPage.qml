import QtQuick
import Quillmere

// The weather now and in the next hours, or why there is none; and the search for a place.
Item {
    id: page

    required property DashboardModel model

    readonly property WeatherModel weather: model.weather

    component Panel: Loader {
        property bool shown

        anchors.fill: parent
        opacity: 0
        active: shown || opacity > 0
        visible: opacity > 0
        enabled: shown

        Follower on opacity {
            to: shown ? 1 : 0
            curve: Follower.Linear
            riseDuration: 120
            fallDuration: 80
        }
    }

    Panel {
        shown: page.weather.searching

        sourceComponent: PlaceSearchPanel {
            model: page.model
        }
    }
    Panel {
        shown: !page.weather.searching && page.weather.hasWeather

        sourceComponent: WeatherPanel {
            weather: page.weather
        }
    }
    Panel {
        shown: !page.weather.searching && !page.weather.hasWeather

        sourceComponent: Item {
            Column {
                anchors.centerIn: parent
                width: parent.width - 120
                spacing: 12

                Text {
                    width: parent.width
                    text: page.weather.explanation
                    textFormat: Text.PlainText
                    wrapMode: Text.WordWrap
                    horizontalAlignment: Text.AlignHCenter
                    font: Type.text
                    color: Ink.body
                }
                Button {
                    anchors.horizontalCenter: parent.horizontalCenter
                    symbol: "magnifyingglass"
                    text: qsTr("Choose a place")
                    onPressed: page.weather.openSearch()
                }
            }
        }
    }
}
