// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// A table or a divider drawn on a floor. Lengths are pixels at scale 1.
struct CanvasItem
{
    int id = -1;
    int floor_id = -1;
    /// The row in `tables` that this item draws; for type "table" only.
    std::optional<int> table_id;
    /// "table" or "wall".
    QString type;
    std::optional<QString> label;
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    /// Degrees, clockwise, about the centre.
    double rotation = 0.0;
    QString color;
    QString border_color;
    double border_width = 1.0;
    double opacity = 1.0;
    int z_order = 0;
    /// A JSON object as text.
    std::optional<QString> metadata;
    /// Run-time only: seats of the table.
    std::optional<int> capacity;
    /// Run-time only: the shown status.
    std::optional<QString> status;
};
