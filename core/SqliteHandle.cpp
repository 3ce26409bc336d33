// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SqliteHandle.h"

#include "core/ShortLivedConnection.h"

#include <QSqlDriver>
#include <QVariant>

#include <sqlite3.h>

namespace {
bool openingSeen = false;

int noteOpening(sqlite3 * /*connection*/, char ** /*error*/,
                const sqlite3_api_routines * /*routines*/)
{
    openingSeen = true;
    return SQLITE_OK;
}

/// Whether a connection that the driver opens is one of the library linked here: only that library
/// knows of the extension.
bool isLibraryShared()
{
    auto *extension = reinterpret_cast<void (*)()>(noteOpening);
    sqlite3_auto_extension(extension);
    {
        ShortLivedConnection probe(QStringLiteral("library_probe"), QStringLiteral(":memory:"));
        probe.handle().open();
    }
    sqlite3_cancel_auto_extension(extension);
    return openingSeen;
}
} // namespace

sqlite3 *sqliteHandle(const QSqlDatabase &database)
{
    static const bool isShared = isLibraryShared();
    const QVariant handle = database.driver()->handle();
    if (!isShared || !handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) {
        return nullptr;
    }
    return *static_cast<sqlite3 *const *>(handle.constData());
}
