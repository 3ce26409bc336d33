// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The two facts kept outside the database: where it is, and what shall take its place. A change
/// answers true only once the settings store holds it for good.
namespace StoredPaths {
/// Makes it the database of the next start. A staged restore was meant for what was configured
/// before, and would take the new one's place: it goes in the same step.
[[nodiscard]] bool configure(const QString &databasePath);

/// Empty where none is staged.
[[nodiscard]] QString stagedRestore();
[[nodiscard]] bool stageRestore(const QString &path);
[[nodiscard]] bool dropRestore();
} // namespace StoredPaths
