// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/FullSettingsDisk.h"

#include "support/platform/ImportHook_windows.h"

#include <QSettings>

#include <qt_windows.h>

namespace {
// Of an error QSettings would at least warn.
LSTATUS WINAPI setNothing(HKEY, LPCWSTR, DWORD, DWORD, const BYTE *, DWORD)
{
    return ERROR_SUCCESS;
}

LSTATUS WINAPI deleteNothing(HKEY, LPCWSTR)
{
    return ERROR_SUCCESS;
}
} // namespace

/// The registry takes nothing and loses nothing, and does not say so.
struct FullSettingsDisk::Obstacle
{
    ImportHook set{L"Qt6Core.dll", "RegSetValueExW",
                   reinterpret_cast<ImportHook::Function>(&setNothing)};
    ImportHook remove{L"Qt6Core.dll", "RegDeleteValueW",
                      reinterpret_cast<ImportHook::Function>(&deleteNothing)};
    ImportHook removeAll{L"Qt6Core.dll", "RegDeleteKeyW",
                         reinterpret_cast<ImportHook::Function>(&deleteNothing)};
};

FullSettingsDisk::FullSettingsDisk(const QString &startOfText)
{
    if (startOfText.isEmpty()) {
        begin();
    } else {
        m_hook.emplace(startOfText, [this] { begin(); });
    }
}

FullSettingsDisk::~FullSettingsDisk() = default;

void FullSettingsDisk::begin()
{
    if (m_obstacle == nullptr) {
        m_obstacle = std::make_unique<Obstacle>();
    }
}

QByteArray FullSettingsDisk::stored()
{
    const QSettings settings;
    QByteArray lines;
    for (const QString &key : settings.allKeys()) {
        lines += key.section(QLatin1Char('/'), -1).toUtf8() + '=' +
                 settings.value(key).toString().toUtf8() + '\n';
    }
    return lines;
}

QStringList FullSettingsDisk::leftovers()
{
    return {};
}
