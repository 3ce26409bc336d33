// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QMap>
#include <QString>

/// The tests that cannot run on this system, all of them in one list a system.
namespace NotHere {
/// Why, by the name of the function; "*" stands for the whole class.
[[nodiscard]] QMap<QString, QString> reasons(const QString &className);
} // namespace NotHere
