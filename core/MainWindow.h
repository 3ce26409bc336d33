// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

class QQmlApplicationEngine;

/// Loads the root document with everything it pushes. False when it could not be created; the
/// engine's own warnings are in the log then.
[[nodiscard]] bool loadMainWindow(QQmlApplicationEngine &engine);
