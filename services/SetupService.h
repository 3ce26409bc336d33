// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>

class AppService;
class DatabaseManager;

/// Creates a new database and restarts the program. A run that started without a database becomes a
/// working one only through that restart.
class SetupService final : public QObject
{
    Q_OBJECT

public:
    enum SetupResult
    {
        /// The database exists, is seeded, and its path is saved.
        Success = 0,
        /// A file already exists at the path; nothing was touched.
        DatabaseExists = 1,
        /// The path is empty.
        InvalidPath = 2,
        /// The database could not be built or seeded.
        InitializationFailed = 3,
    };
    Q_ENUM(SetupResult)

    SetupService(AppService *app, DatabaseManager *databases, QObject *parent = nullptr);

    /// Blocks until the new file is migrated and seeded.
    Q_INVOKABLE SetupService::SetupResult initializeApp(const QString &dbPath);
    /// Starts a detached copy of the program and quits this one, whether or not the start
    /// succeeded.
    Q_INVOKABLE void restartApp();

private:
    [[nodiscard]] bool buildDatabase(const QString &dbPath);

    AppService *m_app;
    DatabaseManager *m_databases;
};
