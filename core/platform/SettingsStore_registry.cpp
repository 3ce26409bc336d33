// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SettingsStore.h"

#include <QCoreApplication>
#include <QSettings>

#include <qt_windows.h>

#include <string>

namespace {
void write(const SettingsStore::Changes &changes)
{
    QSettings settings;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isNull()) {
            settings.remove(change.key());
        } else {
            settings.setValue(change.key(), change.value());
        }
    }
}

SettingsStore::Changes current(const QStringList &keys)
{
    const QSettings settings;
    SettingsStore::Changes values;
    for (const QString &key : keys) {
        values.insert(key, settings.contains(key) ? settings.value(key).toString() : QString());
    }
    return values;
}

/// Read from the registry itself: every QSettings asks it anew.
bool holds(const SettingsStore::Changes &changes)
{
    const QSettings settings;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const bool isWanted = !change.value().isNull();
        if (settings.contains(change.key()) != isWanted ||
            settings.value(change.key()).toString() != change.value()) {
            return false;
        }
    }
    return true;
}

/// The registry writes to the disk some seconds later unless it is asked to.
bool flush()
{
    const std::wstring name =
        QStringLiteral("Software\\%1\\%2")
            .arg(QCoreApplication::organizationName(), QCoreApplication::applicationName())
            .toStdWString();
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
        return false;
    }
    const bool flushed = RegFlushKey(key) == ERROR_SUCCESS;
    RegCloseKey(key);
    return flushed;
}
} // namespace

bool SettingsStore::store(const Changes &changes)
{
    const Changes before = current(changes.keys());
    write(changes);
    if (holds(changes) && flush()) {
        return true;
    }
    write(before);
    return false;
}
