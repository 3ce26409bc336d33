// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

/// Knows where the database is and what state it is in before anyone logs in. The path is the one
/// fact kept outside the database, in the platform's settings store.
class AppService final : public QObject
{
    Q_OBJECT

public:
    enum AppState
    {
        /// No path is saved.
        NeedsSetup = 0,
        /// A path is saved but no file is there.
        FileNotFoundNeedsSetup = 1,
        UnableToOpenNeedsSetup = 2,
        /// The file opens but lacks the program's identity.
        NotZelvanDBNeedsSetup = 3,
        /// A good database without an active admin.
        NeedsAdminSetup = 4,
        Ready = 5,
    };
    Q_ENUM(AppState)

    explicit AppService(QObject *parent = nullptr);

    /// Looks afresh at every call and leaves the working connection alone.
    Q_INVOKABLE AppService::AppState determineState();

    /// Empty where none is saved.
    Q_INVOKABLE [[nodiscard]] QString databasePath() const;
    /// The path is not checked, nor whether the settings store took it. A staged restore goes.
    Q_INVOKABLE void setDatabasePath(const QString &path);
    /// The same, and false where the store did not take it for good; the old path then stays.
    [[nodiscard]] bool storeDatabasePath(const QString &path);
    Q_INVOKABLE [[nodiscard]] bool hasDatabasePath() const;

    /// For the file dialogs of the screens: a URL becomes a local path, any other text is kept.
    Q_INVOKABLE [[nodiscard]] QString localPath(const QString &urlOrPath) const;
    /// Where a file dialog starts for this file or folder: the nearest folder there is; empty for
    /// an empty path.
    Q_INVOKABLE [[nodiscard]] QUrl folderUrl(const QString &path) const;

private:
    QString m_pathKey;
};
