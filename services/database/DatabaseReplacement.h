// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class AppService;
class DatabaseManager;

/// Puts a new empty database in the place of another. The old one is kept beside it until the new
/// one has been initialised and is known to be on the disk, and put back when that fails. Used by
/// the setup screens alone: after a failure the main connection stays closed.
class DatabaseReplacement final
{
public:
    DatabaseReplacement(AppService *app, DatabaseManager *databases, const QString &dbPath);

    [[nodiscard]] bool run();

private:
    [[nodiscard]] bool canBegin() const;
    [[nodiscard]] bool removePreviousBackup() const;
    /// After it the old file alone is all, and closed.
    [[nodiscard]] bool foldOldDatabase();
    [[nodiscard]] bool setOldDatabaseAside() const;
    [[nodiscard]] bool createNewDatabase();
    /// False where the next start might not find the new one.
    [[nodiscard]] bool adoptNewDatabase();
    void removeBackup() const;
    void rollBack();

    AppService *m_app;
    DatabaseManager *m_databases;
    QString m_path;
    QString m_backupPath;
};
