// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// Asks before the database moves to another folder. The texts belong to the page of the database.
ModalFrame {
    id: root

    property alias currentPath: currentBox.path
    property alias newPath: newBox.path

    signal accepted()

    mainButton: buttons.acceptButton
    width: 650
    height: 360

    ColumnLayout {
        anchors.fill: parent
        spacing: 10

        PageHeading {
            text: qsTranslate("AdminDatabaseSettings", "Move Database")
        }

        PlainLabel {
            Layout.fillWidth: true
            text: qsTranslate("AdminDatabaseSettings", "The database will be moved from its current location to the following location:")
            wrapMode: Text.WordWrap
        }

        SectionTitle {
            text: qsTranslate("AdminDatabaseSettings", "Current Location")
        }

        PathBox {
            id: currentBox

            Layout.fillWidth: true
        }

        SectionTitle {
            text: qsTranslate("AdminDatabaseSettings", "New Location")
        }

        PathBox {
            id: newBox

            Layout.fillWidth: true
        }

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: qsTranslate("AdminDatabaseSettings", "App will restart after moving.")
            wrapMode: Text.WordWrap
        }

        DialogButtons {
            id: buttons

            acceptText: qsTranslate("AdminDatabaseSettings", "Move Database")
            cancelText: qsTranslate("AdminDatabaseSettings", "Cancel")

            onAccepted: {
                root.close()
                root.accepted()
            }
            onCancelled: root.close()
        }
    }

    onAboutToShow: buttons.acceptButton.forceActiveFocus(Qt.TabFocusReason)
}
