// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0

// Asks before a backup takes the database's place. The texts belong to the page of the database.
ModalFrame {
    id: root

    property alias file: fileBox.path

    signal accepted()

    mainButton: buttons.acceptButton
    width: 650
    height: 300

    ColumnLayout {
        anchors.fill: parent
        spacing: 14

        PageHeading {
            text: qsTranslate("AdminDatabaseSettings", "Restore Database")
        }

        PlainLabel {
            Layout.fillWidth: true
            text: qsTranslate("AdminDatabaseSettings", "This will replace the current database and restart the application. It is recommended a backup to be created before restoration.")
            wrapMode: Text.WordWrap
        }

        PathBox {
            id: fileBox

            Layout.fillWidth: true
        }

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.secondaryText
            text: qsTranslate("AdminDatabaseSettings", "Make sure you selected the correct restore file.")
            wrapMode: Text.WordWrap
        }

        Item {
            Layout.fillHeight: true
        }

        DialogButtons {
            id: buttons

            acceptText: qsTranslate("AdminDatabaseSettings", "Restore")
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
