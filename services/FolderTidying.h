// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDir>

/// Whether nothing but folders lies beneath the folder, at any depth. Hidden files, links and
/// whatever belongs to others count as files, and a folder that cannot be read counts as not empty:
/// what is asked here decides about a removal.
[[nodiscard]] bool holdsNoFile(const QDir &folder);
