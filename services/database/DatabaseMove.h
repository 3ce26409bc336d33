// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class AppService;
class DatabaseManager;

/// Takes the live database to another folder. Nothing is deleted until the copy has been opened,
/// configured, and is known to be on the disk; a failure before that ends back on the old file.
class DatabaseMove final
{
public:
    DatabaseMove(AppService *app, DatabaseManager *databases);

    /// Into "ZelvanPOS/data" below the folder. The reason of a failure stands in the log.
    [[nodiscard]] bool below(const QString &destinationFolder);

private:
    /// An existing file is never overwritten.
    [[nodiscard]] static bool isFreeTarget(const QString &source, const QString &target);
    /// After it the file alone is all, and nobody is at work on it.
    [[nodiscard]] bool releaseSource(const QString &source);
    /// From the copy to the configured path; no copy that failed to open is left behind.
    [[nodiscard]] bool switchTo(const QString &target, const QString &source);
    [[nodiscard]] bool takesOver(const QString &target);
    [[nodiscard]] bool configure(const QString &target);
    static void removeSource(const QString &source);

    AppService *m_app;
    DatabaseManager *m_databases;
};
