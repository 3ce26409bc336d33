// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/DisplayNumber.h"

#include <QRandomGenerator>

namespace {
constexpr int first = 4000;
constexpr int startingPoints = 4000;
constexpr int last = 9999;
} // namespace

int DisplayNumber::after(int highestOfDay)
{
    if (highestOfDay == 0) {
        return first + QRandomGenerator::global()->bounded(startingPoints);
    }
    return highestOfDay < last ? highestOfDay + 1 : first;
}
