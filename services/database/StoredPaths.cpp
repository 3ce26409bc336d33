// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/database/StoredPaths.h"

#include "core/SettingsStore.h"
#include "services/SettingsKeys.h"

#include <QSettings>

bool StoredPaths::configure(const QString &databasePath)
{
    // Empty is a path too; only a null text would take the key away.
    const QString path = databasePath.isNull() ? QLatin1String("") : databasePath;
    return SettingsStore::store(
        {{SettingsKeys::databasePath, path}, {SettingsKeys::pendingRestore, QString()}});
}

QString StoredPaths::stagedRestore()
{
    return QSettings().value(SettingsKeys::pendingRestore).toString();
}

bool StoredPaths::stageRestore(const QString &path)
{
    return SettingsStore::store({{SettingsKeys::pendingRestore, path}});
}

bool StoredPaths::dropRestore()
{
    return SettingsStore::store({{SettingsKeys::pendingRestore, QString()}});
}
