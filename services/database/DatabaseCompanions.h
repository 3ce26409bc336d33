// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QFile>
#include <QString>

inline QString writeAheadLog(const QString &dbPath)
{
    return dbPath + QStringLiteral("-wal");
}

/// What SQLite may have left beside the file. Mostly there is nothing, so no result is looked at.
inline void removeCompanions(const QString &dbPath)
{
    QFile::remove(writeAheadLog(dbPath));
    QFile::remove(dbPath + QStringLiteral("-shm"));
}
