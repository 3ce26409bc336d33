// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

/// What a process holds of the computer.
struct Footprint
{
    /// After whatever is free has been given back.
    [[nodiscard]] static Footprint now();

    /// "resident KB heap KB handles N", the heap being what is in use.
    [[nodiscard]] QByteArray toText() const;

    qint64 residentKilobytes = 0;
    qint64 heapKilobytes = 0;
    qint64 handles = 0;
};
