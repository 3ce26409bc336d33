// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// Where the parts of a floor's items lie, and whose part is seen at a point.

const chairRadius = 6

// The centre of a chair in the item's coordinates.
function chairCentre(item, index) {
    if (item.tableType === "circle")
        return circleChair(item, index)
    return item.tableType === "rectangle" ? longSideChair(item, index) : sideChair(item, index)
}

// From three o'clock, clockwise.
function circleChair(item, index) {
    const angle = index / item.capacity * 2 * Math.PI
    const radius = Math.max(item.width, item.height) / 2 + item.chairSpacing
    return Qt.point(item.width / 2 + Math.cos(angle) * radius, item.height / 2 + Math.sin(angle) * radius)
}

// Above first, then below; none at the short ends.
function longSideChair(item, index) {
    const perSide = Math.ceil(item.capacity / 2)
    const t = (index % perSide + 1) / (perSide + 1)
    return Qt.point(t * item.width, index < perSide ? -item.chairSpacing : item.height + item.chairSpacing)
}

// Top, right, bottom, left. Sides are filled one after the other, so that the last may stay
// empty: the uneven look is meant.
function sideChair(item, index) {
    const perSide = Math.ceil(item.capacity / 4)
    const t = (index % perSide + 1) / (perSide + 1)
    switch (Math.floor(index / perSide)) {
    case 0:
        return Qt.point(t * item.width, -item.chairSpacing)
    case 1:
        return Qt.point(item.width + item.chairSpacing, t * item.height)
    case 2:
        return Qt.point((1 - t) * item.width, item.height + item.chairSpacing)
    default:
        return Qt.point(-item.chairSpacing, (1 - t) * item.height)
    }
}

function isInBox(item, x, y) {
    return x >= 0 && y >= 0 && x <= item.width && y <= item.height
}

// Whether the outline covers the point. The corners around a round table are empty.
function isInOutline(item, x, y) {
    if (!isInBox(item, x, y))
        return false
    if (item.tableType !== "circle")
        return true
    const radius = Math.min(item.width, item.height) / 2
    const beside = Math.max(radius - x, x - (item.width - radius), 0)
    const above = Math.max(radius - y, y - (item.height - radius), 0)
    return beside * beside + above * above <= radius * radius
}

function isOnChair(item, x, y) {
    for (let index = 0; item.type === "table" && index < item.capacity; ++index) {
        const centre = chairCentre(item, index)
        if (Math.hypot(x - centre.x, y - centre.y) <= chairRadius)
            return true
    }
    return false
}

function isOnHandle(item, x, y) {
    for (let i = 0; i < item.handles.length; ++i) {
        const handle = item.handles[i]
        if (handle.visible && isInBox(handle, x - handle.x, y - handle.y))
            return true
    }
    return false
}

// Whether any part of the item is drawn at the point. Chairs count where they are edited with
// their table; elsewhere a click on them means the floor.
function isDrawnAt(item, x, y) {
    return isInOutline(item, x, y) || isOnHandle(item, x, y) || item.editable && isOnChair(item, x, y)
}

// The item that is seen at a point of the sheet, or null. The empty corner of a round table counts
// as the table where nothing else is drawn.
function seenAt(sheet, x, y) {
    let top = null
    let isDrawn = false
    // Children are listed in the order of painting, but for their z.
    for (let i = 0; i < sheet.children.length; ++i) {
        const item = sheet.children[i]
        if (item.chairSpacing === undefined)
            continue
        const at = sheet.mapToItem(item, x, y)
        const drawn = isDrawnAt(item, at.x, at.y)
        if (!drawn && (isDrawn || !isInBox(item, at.x, at.y)))
            continue
        if (top === null || drawn && !isDrawn || item.z >= top.z) {
            top = item
            isDrawn = drawn
        }
    }
    return top
}
