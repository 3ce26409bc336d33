// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/Fonts.h"

// The desktop's choice has both: fontconfig looks for each letter.
void chooseFonts() {}
