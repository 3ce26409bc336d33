// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

/// Has the screens drawn with families that hold Latin and Chinese letters, where the system's own
/// choice may not. After the application object, before the first screen.
void chooseFonts();
