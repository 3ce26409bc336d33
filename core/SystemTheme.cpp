// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SystemTheme.h"

#include "core/platform/DarkMode.h"

SystemTheme::SystemTheme(QObject *parent)
    : SystemTheme(systemPrefersDarkMode(), parent)
{}

SystemTheme::SystemTheme(bool prefersDarkMode, QObject *parent)
    : QObject(parent)
{
    setDarkMode(prefersDarkMode);
}

void SystemTheme::setDarkMode(bool darkMode)
{
    if (m_darkMode == darkMode) {
        return;
    }
    m_darkMode = darkMode;
    emit darkModeChanged();
}
