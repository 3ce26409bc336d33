// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QList>
#include <QRectF>

class QQuickItem;

/// What a layout asks of one item.
namespace Items {
inline constexpr qreal slack = 1.5; // pixels that rounding may take

/// What a person presses or types in.
[[nodiscard]] bool isControl(const QQuickItem *item);
[[nodiscard]] bool isArea(const QQuickItem *item);
[[nodiscard]] bool isAncestor(const QQuickItem *ancestor, const QQuickItem *item);
/// The nearest ancestor that inherits the type, or null.
[[nodiscard]] QQuickItem *ancestorOf(QQuickItem *item, const char *type);
/// Where a text's letters are, which may be more or less than its item.
[[nodiscard]] QRectF lettersOf(const QQuickItem *text);
/// A mouse area that is off, or the frame that shows where the keys go: what lies below is pressed.
[[nodiscard]] bool letsThrough(const QQuickItem *item);
/// As QQuickItem::childAt, which knows nothing of the order in which items are painted.
[[nodiscard]] QQuickItem *topmostChild(const QQuickItem *item, QPointF place);
/// The rows of a list that it has made.
[[nodiscard]] QList<QQuickItem *> rowsOf(const QQuickItem *list);
/// More than rounding does.
[[nodiscard]] bool overlap(const QRectF &a, const QRectF &b);
/// The items of a drawn floor lie where somebody drew them.
[[nodiscard]] bool isDrawn(const QQuickItem *item);
/// Type and text, for a fault to tell of.
[[nodiscard]] QString describe(const QQuickItem *item);
} // namespace Items
