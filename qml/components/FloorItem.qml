// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
import QtQuick
import zelvan
import "FloorShapes.js" as FloorShapes

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
    readonly property list<Item> handles: [turnHandle, lengthHandle]
    // Lets a press through to the item that is seen there.
    readonly property QtObject seenMask: QtObject {
        function contains(point: point): bool {
            if (!FloorShapes.isInBox(root, point.x, point.y))
                return false
            const at = root.mapToItem(root.parent, point.x, point.y)
            return FloorShapes.seenAt(root.parent, at.x, at.y) === root
        }
    }

    signal changed(real x, real y, real width, real rotation)

    function report() {
        root.changed(root.x, root.y, root.width, root.rotation)
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

    // As many lines as fit between the edges; in a circle, the box that its line encloses.
    Text {
        readonly property bool isRound: root.tableType === "circle"

        anchors.centerIn: parent
        width: isRound ? parent.width * 0.8 : parent.width - 8
        height: Math.max(20, isRound ? parent.height * 0.6 : parent.height - (root.reservationText === "" ? 8 : 32))
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        text: root.label
        textFormat: Text.PlainText
        color: "#383838"
        elide: Text.ElideRight
        font.bold: true
        wrapMode: Text.Wrap
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
            readonly property point centre: FloorShapes.chairCentre(root, index)

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
        containmentMask: root.seenMask
        preventStealing: root.editable
        drag.target: root.editable ? root : null
        cursorShape: root.editable ? Qt.DragMoveCursor : Qt.PointingHandCursor
        onPositionChanged: if (drag.active) root.report()
        onReleased: root.report()
    }

    FloorTurnHandle {
        id: turnHandle

        objectName: "rotationHandle"
        anchors.horizontalCenter: parent.horizontalCenter
        y: -25
        visible: root.editable && (root.type === "wall" || root.type === "divider")
        target: root
    }

    FloorLengthHandle {
        id: lengthHandle

        objectName: "resizeHandle"
        anchors.horizontalCenter: parent.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.editable && root.type === "wall"
        target: root
    }
}
