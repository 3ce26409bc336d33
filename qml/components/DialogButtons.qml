// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick.Layouts
import zelvan

// The two buttons at the foot of a dialog.
RowLayout {
    id: root

    property alias acceptButton: acceptButton
    property alias acceptText: acceptButton.text
    property alias cancelText: cancelButton.text

    signal accepted()
    signal cancelled()

    spacing: 12

    PrimaryButton {
        id: acceptButton

        Layout.fillWidth: true
        Layout.preferredHeight: 40

        onClicked: Work.start(root.accepted)
    }

    FilledButton {
        id: cancelButton

        Layout.fillWidth: true
        Layout.preferredHeight: 40
        fillColor: "#6b6b6b"

        onClicked: root.cancelled()
    }
}
