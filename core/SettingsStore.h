// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QMap>
#include <QString>

/// Writing into the program's default settings, the place that QSettings reads. QSettings itself
/// says nothing when a full disk cuts its file short, and the old content is gone by then.
namespace SettingsStore {
/// By key; a null text removes it.
using Changes = QMap<QString, QString>;

/// Stores all of the changes or none. True only once they have been read back from the store and
/// would survive a power cut; after a failure the store is as it was.
[[nodiscard]] bool store(const Changes &changes);
} // namespace SettingsStore
