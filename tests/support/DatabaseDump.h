// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QStringList>

class TestDatabase;

/// Every row of every table as one text each, so that two moments can be compared as a whole.
[[nodiscard]] QStringList dumpOf(const TestDatabase &database);
