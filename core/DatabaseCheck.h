// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

/// What is asked of a file of unknown origin before the program works on it.
namespace DatabaseCheck {
/// Reads the whole file: whether its structure is undamaged, and the program's tables in it are
/// tables, without anything that acts on its own. Tables may be missing, for migrations make them.
/// The reason of a false stands in the log.
[[nodiscard]] bool isSound(const QString &path);

/// Names what stands for one of the tables without being one: a view, a virtual table, or a trigger
/// on it. Empty where all that are there are ordinary; else the reason.
[[nodiscard]] QString schemaProblem(const QSqlDatabase &database, const QStringList &tables);
} // namespace DatabaseCheck
