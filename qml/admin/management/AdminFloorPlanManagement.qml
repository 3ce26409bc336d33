// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import zelvan
import zelvan.Theme 1.0
import Zelvan.Services 1.0
import "../../components/MenuKey.js" as MenuKey

// The editor of floors. Floors and the tables behind the items change at once; places, shapes and
// dividers wait for the platform's save key, and there is no other way of saving.
Item {
    id: root

    property int currentFloorId: -1

    // Part of the page's interface; nothing emits them.
    signal requestSave
    signal requestReload(int floorId)

    // Unsaved changes on the floor shown before are dropped.
    function showFloor(floorId: int) {
        currentFloorId = floorId
        FloorPlanService.loadCanvas(floorId)
    }

    function deleteFloor(floorId: int) {
        if (!FloorPlanService.deleteFloor(floorId))
            return
        FloorPlanService.loadFloors()
        if (floorId !== currentFloorId)
            return
        if (FloorPlanService.floorModel.rowCount() > 0) {
            showFloor(FloorPlanService.floorModel.getFloor(0).id) // qmllint disable type
        } else {
            currentFloorId = -1
            FloorPlanService.clearCanvas()
        }
    }

    function createFloor(name: string) {
        const floorId = FloorPlanService.createFloor(name)
        if (floorId > 0)
            showFloor(floorId)
    }

    function createTable(label: string, seats: int, tableType: string) {
        FloorPlanService.createTableItem({
            type: "table",
            x: 100,
            y: 100,
            width: tableType === "rectangle" ? 140 : 80,
            height: 80,
            label: label,
            floor_id: currentFloorId,
            capacity: seats,
            metadata: JSON.stringify({ table_type: tableType })
        })
    }

    // New items lie on one spot and cover each other until they are dragged away.
    function addDivider() {
        FloorPlanService.addItem({ type: "wall", x: 150, y: 150, width: 150, height: 10, label: "" })
    }

    component FloorTab: ChoiceButton {
        id: floorTab

        required property var model

        function openMenu(x: real, y: real) {
            floorMenu.floorId = model.id
            floorMenu.popup(mapToItem(root, x, y))
        }

        width: Math.min(implicitWidth, 240)
        padding: 10
        font.bold: true
        checked: model.id === root.currentFloorId
        text: model.name
        enabled: !hold.lettingGo
        Keys.onPressed: event => {
            event.accepted = MenuKey.isMeant(event)
            if (event.accepted)
                openMenu(0, height)
        }
        onClicked: root.showFloor(model.id)

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            onPressed: mouse => floorTab.openMenu(mouse.x, mouse.y)
        }

        HoldArea {
            id: hold

            anchors.fill: parent
            onHeld: (x, y) => floorTab.openMenu(x, y)
        }
    }

    implicitWidth: 800
    implicitHeight: 600

    Shortcut {
        sequences: [StandardKey.Save] // qmllint disable unqualified
        onActivated: if (root.currentFloorId > 0) FloorPlanService.saveCanvas(root.currentFloorId)
    }

    ThemedMenu {
        id: floorMenu

        property int floorId: -1

        ThemedMenuItem {
            text: qsTr("Delete Floor")
            onTriggered: root.deleteFloor(floorMenu.floorId)
        }
    }

    FloorDialog {
        id: floorDialog

        title: qsTr("Create Floor")
        label: qsTr("Floor Name")
        placeholder: qsTr("Enter Floor Name")
        confirmText: qsTr("Create Floor")
        cancelText: qsTr("Cancel")
        onConfirmed: name => root.createFloor(name)
    }

    TableItemDialog {
        id: tableDialog

        title: qsTr("Create Table")
        labelTitle: qsTr("Table Label")
        labelPlaceholder: qsTr("Enter Table Label")
        startLabel: qsTr("Table")
        seatsTitle: qsTr("Number Of Seats")
        typeTitle: qsTr("Type Of Table")
        types: [
            { text: qsTr("Square Table"), value: "square" },
            { text: qsTr("Rectangle Table"), value: "rectangle" },
            { text: qsTr("Circle Table"), value: "circle" }
        ]
        confirmText: qsTr("Create Table")
        cancelText: qsTr("Cancel")
        onConfirmed: (label, seats, tableType) => root.createTable(label, seats, tableType)
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            id: tools

            Layout.fillWidth: true
            Layout.preferredHeight: 100
            color: Theme.background
            z: 1

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 10
                spacing: 4

                // More floors than fit are scrolled to, and so is the button after them.
                Flickable {
                    id: tabs

                    Layout.fillWidth: true
                    Layout.preferredHeight: floorRow.height
                    boundsBehavior: Flickable.StopAtBounds
                    clip: true
                    contentWidth: floorRow.width

                    // Between the two rows of buttons.
                    ScrollBar.horizontal: RestingScrollBar {
                        parent: tools
                        x: 10
                        y: 10 + floorRow.height
                        width: tools.width - 20
                        height: 4
                        padding: 0
                    }

                    FlickGuard {
                        list: tabs
                    }

                    Row {
                        id: floorRow

                        spacing: 10

                        Repeater {
                            id: floorTabs

                            model: FloorPlanService.floorModel

                            FloorTab {}
                        }

                        FilledButton {
                            padding: 10
                            radius: 6
                            text: qsTr("+ New Floor")
                            fillColor: Theme.background
                            textColor: Theme.text
                            borderColor: Theme.primary()
                            borderWidth: 2
                            onClicked: floorDialog.open()
                        }
                    }
                }

                Row {
                    visible: root.currentFloorId > 0
                    enabled: visible
                    spacing: 10

                    PrimaryButton {
                        text: qsTr("Add Table")
                        onClicked: tableDialog.open()
                    }

                    PrimaryButton {
                        text: qsTr("Add Divider")
                        onClicked: root.addDivider()
                    }
                }
            }
        }

        EmptyHint {
            Layout.fillWidth: true
            visible: floorTabs.count === 0
            text: qsTranslate("Hints", "No floors yet. Press + New Floor to draw the first one.")
        }

        FloorCanvas {
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            model: FloorPlanService.canvasModel
        }
    }

    Component.onCompleted: {
        FloorPlanService.loadFloors()
        if (FloorPlanService.floorModel.rowCount() > 0)
            showFloor(FloorPlanService.floorModel.getFloor(0).id) // qmllint disable type
    }
}
