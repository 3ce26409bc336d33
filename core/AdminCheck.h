// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

namespace AdminCheck {
/// Whether the file holds an active admin, looked up on a connection of its own. Only NULL in
/// `deactivated_at` counts as active here, an empty text does not, and the role text is exact. A
/// file that cannot be read has none; nothing is logged.
[[nodiscard]] bool hasActiveAdmin(const QString &path);
} // namespace AdminCheck
