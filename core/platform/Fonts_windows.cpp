// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/platform/Fonts.h"

#include <QFont>
#include <QGuiApplication>

void chooseFonts()
{
    // What Windows has, then what it may have instead: the first for Latin letters, and for Chinese
    // ones the first that holds them.
    QFont font = QGuiApplication::font();
    font.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Microsoft YaHei UI"),
                      QStringLiteral("Microsoft YaHei"), QStringLiteral("SimSun"),
                      QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Arial")});
    QGuiApplication::setFont(font);
}
