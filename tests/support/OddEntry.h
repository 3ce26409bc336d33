// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// An entry of a folder that is no ordinary file: a pipe, or what Windows hides from its users.
[[nodiscard]] bool makeOddEntry(const QString &path);
