// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/DarkMode.h"

#include "core/platform/DesktopPortal.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStyleHints>

bool systemPrefersDarkMode()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
    if (scheme != Qt::ColorScheme::Unknown) {
        return scheme == Qt::ColorScheme::Dark;
    }
#endif
    // Where the desktop names no scheme, its palette tells: text lighter than its background.
    const QPalette palette = QGuiApplication::palette();
    if (palette.color(QPalette::WindowText).lightness() >
        palette.color(QPalette::Window).lightness()) {
        return true;
    }
    // Qt asks the portal too, but hears the answer only once events run, which is after the first
    // frame.
    return desktopPortalPrefersDarkMode().value_or(false);
}
