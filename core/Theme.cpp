// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Theme.h"

#include "core/SystemTheme.h"

Theme::Theme(SystemTheme *systemTheme, QObject *parent)
    : QObject(parent)
    , m_systemTheme(systemTheme)
{}

QColor Theme::background() const
{
    return pick("#121212", "#FFFFFF");
}

QColor Theme::surface() const
{
    return pick("#1E1E1E", "#F5F5F5");
}

QColor Theme::border() const
{
    return pick("#2A2A2A", "#DDDDDD");
}

QColor Theme::text() const
{
    return pick("#FFFFFF", "#000000");
}

QColor Theme::secondaryText() const
{
    return pick("#AAAAAA", "#555555");
}

QColor Theme::orange() const
{
    return pick("#FFB74D", "#F57C00");
}

QColor Theme::green() const
{
    return pick("#66BB6A", "#2E7D32");
}

QColor Theme::primary() const
{
    return pick("#9a7bff", "#9a7bff");
}

QColor Theme::error() const
{
    return pick("#ff0000", "#ff0000");
}

void Theme::setFontScale(double fontScale)
{
    if (qFuzzyCompare(fontScale, m_fontScale)) {
        return;
    }
    m_fontScale = fontScale;
    emit themeChanged();
}

int Theme::fontSmall() const
{
    return scaled(12);
}

int Theme::fontNormal() const
{
    return scaled(14);
}

int Theme::fontMedium() const
{
    return scaled(16);
}

int Theme::fontLarge() const
{
    return scaled(18);
}

int Theme::fontXL() const
{
    return scaled(24);
}

int Theme::fontXXL() const
{
    return scaled(28);
}

void Theme::onSystemThemeChanged()
{
    emit themeChanged();
}

QColor Theme::pick(const char *dark, const char *light) const
{
    return QColor(QLatin1String(m_systemTheme->darkMode() ? dark : light));
}

int Theme::scaled(int base) const
{
    return static_cast<int>(base * m_fontScale);
}
