// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// Whether the desktop asks for dark colours, read once at start.
[[nodiscard]] bool systemPrefersDarkMode();
