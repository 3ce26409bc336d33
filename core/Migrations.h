// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QStringList>

/// The schema's scripts in running order. Each text is at once the key in `applied_migrations` and
/// the path below ":/migrations/", so none may ever change; a new version adds at the end.
const QStringList &migrationNames();
