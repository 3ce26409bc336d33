// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The two facts kept in the platform's settings store. Persisted: never change.
namespace SettingsKeys {
/// Absolute path of the database file.
inline const QString databasePath = QStringLiteral("database/path");
/// Path of the backup to copy over it at the next start; absent when none is staged.
inline const QString pendingRestore = QStringLiteral("database/pendingRestore");
} // namespace SettingsKeys
