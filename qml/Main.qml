// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import Zelvan.Services 1.0
import zelvan
import zelvan.Theme 1.0

// The one window. Every screen lives on `stackView` and reaches it and `appWindow` by id.
Window {
    id: appWindow

    // Asked afresh: what the start found may have been mended by the migrations since.
    function showFirstScreen(): void {
        switch (AppService.determineState()) {
        case AppService.NeedsSetup:
            stackView.push("setup/SetupDBChoice.qml")
            break
        case AppService.FileNotFoundNeedsSetup:
            stackView.push("setup/SetupDBChoice.qml", { mode: "missing" })
            break
        case AppService.UnableToOpenNeedsSetup:
        case AppService.NotZelvanDBNeedsSetup:
            stackView.push("setup/SetupDBChoice.qml", { mode: "unusable" })
            break
        case AppService.NeedsAdminSetup:
            stackView.push("setup/SetupAdmin.qml")
            break
        default:
            stackView.push("auth/Login.qml")
        }
    }

    width: 850
    height: 520
    visible: true
    title: "Zelvan"

    // The style's own controls take the theme's colours, whatever the desktop's palette says.
    palette {
        window: Theme.background
        windowText: Theme.text
        base: Theme.background
        alternateBase: Theme.surface
        text: Theme.text
        button: Theme.surface
        buttonText: Theme.text
        placeholderText: Theme.secondaryText
        highlight: Theme.primary()
        highlightedText: "black"
        toolTipBase: Theme.surface
        toolTipText: Theme.text
    }

    Rectangle {
        anchors.fill: parent
        color: Theme.background

        StackView {
            id: stackView

            anchors.fill: parent
            focus: true
        }
    }

    FocusInSight {}

    Component.onCompleted: showFirstScreen()
}
