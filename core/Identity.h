// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

/// The texts by which a database file is known to be one of this program. Persisted: never change.
namespace Identity {
inline const QString appIdKey = QStringLiteral("app.id");
inline const QString appId = QStringLiteral("com.zelvan.pos");
} // namespace Identity
