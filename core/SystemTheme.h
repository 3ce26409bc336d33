// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>

/// Tells whether the desktop is in dark mode. Read once, at construction: a change of the desktop's
/// setting takes effect at the next start.
class SystemTheme final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool darkMode READ darkMode NOTIFY darkModeChanged)

public:
    explicit SystemTheme(QObject *parent = nullptr);
    /// For a desktop whose answer is known beforehand.
    explicit SystemTheme(bool prefersDarkMode, QObject *parent = nullptr);

    [[nodiscard]] bool darkMode() const { return m_darkMode; }

signals:
    void darkModeChanged();

private:
    void setDarkMode(bool darkMode);

    bool m_darkMode = false;
};
