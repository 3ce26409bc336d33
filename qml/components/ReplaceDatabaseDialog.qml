// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Layouts
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// Replaces an existing database by an empty one, once the user has typed the word. Its texts belong
// to the screen that offers it.
ModalFrame {
    id: root

    property string currentPath

    function replace(): void {
        // A failure is told in the log only; the dialog stays as it is.
        if (!DatabaseService.replaceDatabase(root.currentPath))
            return
        root.close()
        SetupService.restartApp()
    }

    mainButton: replaceButton
    padding: 24
    width: 420

    background: DialogSurface {
        color: Theme.surface
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 12

        PageHeading {
            text: qsTranslate("SetupDBChoice", "Replace Existing Database")
        }

        PlainLabel {
            Layout.fillWidth: true
            text: qsTranslate("SetupDBChoice", "This will permanently delete the existing database and create a new one.")
            wrapMode: Text.WordWrap
        }

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.error()
            font.bold: true
            font.pixelSize: Theme.fontSmall
            text: qsTranslate("SetupDBChoice", "All data stored in this database will be lost. This action cannot be undone.")
            wrapMode: Text.WordWrap
        }

        PlainLabel {
            id: instruction

            Layout.fillWidth: true
            text: qsTranslate("SetupDBChoice", "To continue, type \"REPLACE\" below.")
            wrapMode: Text.WordWrap
        }

        ThemedField {
            id: confirmation

            Layout.fillWidth: true
            label: instruction.text
        }

        PlainLabel {
            Layout.fillWidth: true
            color: Theme.secondaryText
            elide: Text.ElideRight
            font.pixelSize: Theme.fontSmall
            maximumLineCount: 2
            text: root.currentPath
            wrapMode: Text.WrapAnywhere
        }

        RowLayout {
            spacing: 12

            FilledButton {
                Layout.fillWidth: true
                Layout.preferredHeight: 42
                borderColor: Theme.border
                fillColor: Theme.background
                text: qsTranslate("SetupDBChoice", "Cancel")
                textColor: Theme.text

                onClicked: root.close()
            }

            DangerButton {
                id: replaceButton

                Layout.fillWidth: true
                Layout.preferredHeight: 42
                enabled: confirmation.text === "REPLACE"
                text: qsTranslate("SetupDBChoice", "Replace Database")

                onClicked: Work.start(root.replace)
            }
        }
    }

    onAboutToShow: {
        confirmation.clear()
        confirmation.forceActiveFocus()
    }
}
