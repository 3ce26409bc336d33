// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

/// Database files on disk, made and read apart from the program's own connection.
namespace DatabaseFiles {
/// A migrated database of this program, told from others by the store's name. Folders are made.
void makeStore(const QString &path, const QString &storeName);
/// What is left of a database with a change in its write-ahead log once the file itself is gone.
void makeLogOnly(const QString &path);
/// A SQLite file of another program.
void makeForeign(const QString &path);
void makeText(const QString &path);
/// A store with a page of its orders zeroed.
void makeDamaged(const QString &path);
/// Writes the bytes over the first page of a table or index, or over its beginning.
void damage(const QString &path, const QString &table, const QByteArray &bytes);

/// The first column of the first row, on a connection of its own.
[[nodiscard]] QVariant value(const QString &path, const QString &sql);
/// Runs a statement on a connection of its own.
void run(const QString &path, const QString &sql);
[[nodiscard]] QString storeName(const QString &path);

/// A folder below the one named whose path is so long that SQLite opens no file in it.
[[nodiscard]] QString makeUnopenableFolder(const QString &path);
} // namespace DatabaseFiles
