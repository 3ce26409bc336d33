// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// Where the arrow keys lead on a floor.

function centre(item) {
    return Qt.point(item.x + item.width / 2, item.y + item.height / 2)
}

// The nearest item that takes the focus in a direction, such as (1, 0), or null: what lies more ahead than
// beside the way comes first.
function towards(item, dx, dy) {
    const from = centre(item)
    let nearest = null
    let least = Infinity
    for (let i = 0; i < item.parent.children.length; ++i) {
        const other = item.parent.children[i]
        if (other === item || !other.activeFocusOnTab)
            continue
        const to = centre(other)
        const ahead = (to.x - from.x) * dx + (to.y - from.y) * dy
        const beside = Math.abs((to.x - from.x) * dy) + Math.abs((to.y - from.y) * dx)
        const distance = ahead + 2 * beside + (beside > ahead ? 10000 : 0)
        if (ahead > 0 && distance < least) {
            nearest = other
            least = distance
        }
    }
    return nearest
}
