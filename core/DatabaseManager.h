// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSqlDatabase>
#include <QString>

/// Opens, tests, closes and replaces the program's SQLite connections. Holds no state of its own:
/// everything lives in Qt's connection registry. Every failure is a line in the log and a false.
///
/// The whole program works on the one connection `main_connection`. Repositories copy its handle
/// once and nothing refreshes it, so after `initialize`, `openExisting` or `closeDatabase` at run
/// time the program must restart before it touches data.
class DatabaseManager final
{
public:
    static const QString mainConnectionName;

    /// The open handle of `main_connection`, or an invalid one where it does not exist.
    [[nodiscard]] static QSqlDatabase connection();

    /// Whether the file can be opened at all, on a connection of its own. A text file passes.
    [[nodiscard]] static bool testConnection(const QString &path);
    /// Whether the file carries this program's identity, on a connection of its own.
    [[nodiscard]] static bool isZelvanDatabase(const QString &path);

    /// Folds the write-ahead log into the main file, so that copying that one file is enough.
    static bool checkpointWal();

    static bool beginTransaction();
    /// False when SQLite has ended, on a failing or full disk, what `beginTransaction` began.
    /// Nothing written since then reaches the file, and no commit succeeds. Costs nothing to ask.
    [[nodiscard]] static bool transactionStands();
    /// Whether it succeeds or not, no transaction is left open.
    static bool commitTransaction();
    static bool rollbackTransaction();
    /// Rolls back whatever is open, without a word; harmless when nothing is.
    static void abandonTransaction();

    /// Closes and unregisters `main_connection`; harmless when there is none.
    static void closeDatabase();
    /// Lets go of the file for good and keeps the connection's name: whoever still has its handle
    /// finds it closed.
    static void releaseFile();
    /// Makes an existing file the working database, without migrations.
    static bool openExisting(const QString &path);
    /// Makes the file the working database, creating folder and file, and brings its schema up to
    /// date.
    static bool initialize(const QString &path);
    /// Applies every script not yet recorded, all in one transaction: all of them or none.
    static bool runMigrations();
};
