// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSettings>

/// What a Windows user has chosen for the colours of programs. Apart from the registry, so that it
/// is tried everywhere.
[[nodiscard]] inline bool prefersDarkMode(const QSettings &personalization)
{
    return personalization.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
}
