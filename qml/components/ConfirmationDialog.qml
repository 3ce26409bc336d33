// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// Asks before something is deleted. `confirmCallback` hears true for "Delete", false for "Cancel".
ModalFrame {
    id: root

    property string title: qsTr("Confirm")
    property string message: qsTr("Are you sure?")
    property var confirmCallback: null
    // The buttons can still be pressed while the dialog fades away.
    property bool answered: false

    // A message that is longer than the dialog gets smaller letters and tighter margins.
    readonly property bool tight: sample.implicitHeight > 44

    function finish(confirmed: bool): void {
        if (root.answered)
            return
        root.answered = true
        root.close()
        if (root.confirmCallback)
            root.confirmCallback(confirmed) // qmllint disable type
    }

    // By its buttons alone, which take no focus: a deletion is never a slip of the keys.
    closePolicy: Popup.NoAutoClose
    width: 360
    height: 180
    padding: tight ? 12 : 20

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: 120 }
        NumberAnimation { property: "scale"; from: 0.95; to: 1; duration: 120 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: 100 }
    }

    contentItem: ColumnLayout { // qmllint disable deferred-property-id
        spacing: root.tight ? 6 : 15

        PlainLabel {
            id: sample

            text: root.message
            visible: false
            width: 320
            wrapMode: Text.Wrap
        }

        PlainLabel {
            Layout.fillWidth: true
            elide: Text.ElideRight
            font.bold: true
            text: root.title
        }

        Flickable {
            Layout.fillHeight: true
            Layout.fillWidth: true
            Layout.rightMargin: root.tight ? -10 : 0
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            contentHeight: messageLabel.implicitHeight

            ScrollBar.vertical: RestingScrollBar {}

            PlainLabel {
                id: messageLabel

                width: parent.width - (root.tight ? 10 : 0)
                color: Theme.secondaryText
                font.pixelSize: root.tight ? 12 : Theme.fontNormal
                text: root.message
                wrapMode: Text.Wrap
            }
        }

        RowLayout {
            Layout.alignment: Qt.AlignRight

            FilledButton {
                id: cancelButton

                fillColor: Theme.surface
                focusPolicy: Qt.NoFocus
                font.bold: false
                text: qsTr("Cancel")
                textColor: Theme.text

                onClicked: root.finish(false)
            }

            DangerButton {
                id: deleteButton

                fillColor: "#e53935"
                focusPolicy: Qt.NoFocus
                // Whatever the title says, this component confirms a deletion.
                text: qsTr("Delete")

                onClicked: root.finish(true)
            }

            PressKeys {
                button: cancelButton
                sequences: ["Ctrl+Backspace"]
            }

            PressKeys {
                button: deleteButton
                sequences: ["Ctrl+Return", "Ctrl+Enter"]
            }
        }
    }

    onAboutToShow: root.answered = false
}
