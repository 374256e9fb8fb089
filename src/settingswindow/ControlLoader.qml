import QtQuick
import Quillmere.Settings

// The control that fits the row.
Loader {
    id: loader

    required property SettingRow row

    Component.onCompleted: {
        const files = {
            "switch": "SwitchControl.qml",
            "slider": "SliderControl.qml",
            "segments": "SegmentsControl.qml",
            "text": "TextControl.qml",
            "number": "NumberControl.qml"
        };
        if (row.control in files)
            setSource(files[row.control], {
                row: row
            });
    }
}
