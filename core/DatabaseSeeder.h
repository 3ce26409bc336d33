// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/RegionalSettings.h"

#include <QSqlDatabase>

class RegionalSettingsRepository;

/// Gives a brand-new database the rows without which the program cannot run. Built on demand with a
/// fresh handle and dropped after use. Failures are warnings in the log and a false.
class DatabaseSeeder final
{
public:
    explicit DatabaseSeeder(const QSqlDatabase &database);

    /// Identity and counters first, then the settings rows: a file with settings always has its
    /// identity.
    [[nodiscard]] bool seedAll();
    /// The identity and the receipt counter, which starts at zero in the (local) year of the setup.
    [[nodiscard]] bool seedAppState();
    /// The single rows of four settings tables, in one transaction. Rows already there stay.
    [[nodiscard]] bool seedSettings();

    /// Locale and currency of the operating system; the currency may be empty. `id` is -1.
    [[nodiscard]] static RegionalSettings detectRegionalDefaults();
    /// Writes the detected row where there is none. The result of the write is not examined.
    static void seedRegionalSettings(RegionalSettingsRepository &repository);

private:
    [[nodiscard]] bool runSettingsInsert(const char *sql, const char *failureText);

    QSqlDatabase m_database;
};
