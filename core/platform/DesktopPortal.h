// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <optional>

/// Whether the desktop asks for dark colours, as its settings portal says; nothing where no portal
/// answers within 100 ms, or where it has no preference. A bus without a portal says so at once.
[[nodiscard]] std::optional<bool> desktopPortalPrefersDarkMode();
