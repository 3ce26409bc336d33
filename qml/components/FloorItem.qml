// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan

// One item of a floor: a table with its chairs, or a wall, with the handles that edit it.
Item {
    id: root

    property string label: ""
    property color borderColor: "black"
    property color color: "#a1a1a1"
    property string type: "table"
    property int capacity: 4
    // The parsed text of the row, whatever that held.
    property var metadata: ({})
    property var reservation: metadata?.reservation ? metadata.reservation : null
    property string reservationText: reservation ? "Reserved " + reservation.time_label : ""
    property string tableType: metadata?.table_type ? String(metadata.table_type) : "square"
    property bool editable: true
    readonly property int chairSpacing: 20

    signal changed(real x, real y, real width, real rotation)

    function report() {
        root.changed(root.x, root.y, root.width, root.rotation)
    }

    // The centre of a chair in the item's coordinates.
    function chairCentre(index: int): point {
        if (tableType === "circle")
            return circleChair(index)
        return tableType === "rectangle" ? longSideChair(index) : sideChair(index)
    }

    // From three o'clock, clockwise.
    function circleChair(index: int): point {
        const angle = index / capacity * 2 * Math.PI
        const radius = Math.max(width, height) / 2 + chairSpacing
        return Qt.point(width / 2 + Math.cos(angle) * radius, height / 2 + Math.sin(angle) * radius)
    }

    // Above first, then below; none at the short ends.
    function longSideChair(index: int): point {
        const perSide = Math.ceil(capacity / 2)
        const t = (index % perSide + 1) / (perSide + 1)
        return Qt.point(t * width, index < perSide ? -chairSpacing : height + chairSpacing)
    }

    // Top, right, bottom, left. Sides are filled one after the other, so that the last may stay
    // empty: the uneven look is meant.
    function sideChair(index: int): point {
        const perSide = Math.ceil(capacity / 4)
        const t = (index % perSide + 1) / (perSide + 1)
        switch (Math.floor(index / perSide)) {
        case 0:
            return Qt.point(t * width, -chairSpacing)
        case 1:
            return Qt.point(width + chairSpacing, t * height)
        case 2:
            return Qt.point((1 - t) * width, height + chairSpacing)
        default:
            return Qt.point(-chairSpacing, (1 - t) * height)
        }
    }

    width: 80
    height: 80
    transformOrigin: Item.Center

    component Shape: Rectangle {
        color: root.color
        border.width: 2
        border.color: root.borderColor
    }

    Component {
        id: circle

        Shape {
            radius: Math.min(width, height) / 2
        }
    }

    Component {
        id: rectangle

        Shape {
            radius: 3
        }
    }

    Component {
        id: square

        Shape {
            radius: 6
        }
    }

    Loader {
        objectName: "shape"
        anchors.fill: parent
        sourceComponent: {
            if (root.tableType === "circle")
                return circle
            return root.tableType === "rectangle" ? rectangle : square
        }
    }

    Text {
        anchors.centerIn: parent
        text: root.label
        textFormat: Text.PlainText
        color: "#383838"
        font.bold: true
    }

    Text {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 4
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        text: root.reservationText
        textFormat: Text.PlainText
        color: "#383838"
        font.pixelSize: 9
        opacity: 0.9
        elide: Text.ElideRight
    }

    Repeater {
        model: root.type === "table" ? root.capacity : 0

        Rectangle {
            required property int index
            readonly property point centre: root.chairCentre(index)

            objectName: "chair"
            x: centre.x - width / 2
            y: centre.y - height / 2
            width: 12
            height: 12
            radius: 6
            color: "#cccccc"
        }
    }

    MouseArea {
        anchors.fill: parent
        drag.target: root.editable ? root : null
        cursorShape: root.editable ? Qt.DragMoveCursor : Qt.PointingHandCursor
        onPositionChanged: if (drag.active) root.report()
        onReleased: root.report()
    }

    FloorItemHandles {
        anchors.fill: parent
        z: 9999
        visible: root.editable
        target: root
    }
}
