// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>

class AppService;
class DatabaseManager;

/// Backs up, restores, opens, moves and replaces the database file. Every operation blocks, answers
/// false for any failure and tells the reason in the log. After each success but a backup the
/// program must restart: nothing is re-created on the new file.
class DatabaseService final : public QObject
{
    Q_OBJECT

public:
    DatabaseService(AppService *app, DatabaseManager *databases, QObject *parent = nullptr);

    /// Copies a staged backup over the configured file. Called at program start, before any
    /// connection to it exists. A staged file that is no good is forgotten; a copy that failed is
    /// tried again at the next start.
    static bool applyPendingRestore();

    /// Writes a consistent copy into the folder "backups" beside the database, named by the local
    /// time. Fails within the same second as another.
    Q_INVOKABLE bool backupDatabase();
    /// Validates the file and stages it for the next start; nothing else changes yet.
    Q_INVOKABLE bool restoreDatabase(const QString &dbFilePath);
    /// Validates the file and makes it the configured one for the next start, without any restore
    /// that was still to come.
    Q_INVOKABLE bool openDatabase(const QString &dbFilePath);
    /// Moves the live database into "ZelvanPOS/data" below the folder. Nothing is deleted until the
    /// copy has been opened and configured; a failure before that ends back on the old file.
    Q_INVOKABLE bool moveDatabase(const QString &destinationFolder);
    /// Puts a new empty database in the place of the one at the path. The old one is kept beside it
    /// until the new one has been initialised, and put back when that fails.
    Q_INVOKABLE bool replaceDatabase(const QString &dbPath);

private:
    AppService *m_app;
    DatabaseManager *m_databases;
};
