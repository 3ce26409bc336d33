// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QStringList>

class QSqlDatabase;

/// The schema's scripts in running order. Each text is at once the key in `applied_migrations` and
/// the path below ":/migrations/", so none may ever change; a new version adds at the end.
const QStringList &migrationNames();

/// The names of the tables that the scripts make, and of the one that records them.
[[nodiscard]] QStringList schemaTables();

/// Applies and records the scripts that `applied_migrations` does not name yet, in running order,
/// and stops at the first failure, which is logged. The transaction around it is the caller's.
[[nodiscard]] bool applyPendingMigrations(const QSqlDatabase &database);
