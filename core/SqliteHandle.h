// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

class QSqlDatabase;
struct sqlite3;

/// SQLite's own handle of an open connection, for what Qt's driver does not offer. Null where the
/// driver was built with an SQLite of its own: its handles are not for the library linked here.
[[nodiscard]] sqlite3 *sqliteHandle(const QSqlDatabase &database);
