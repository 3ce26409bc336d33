// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QColor>
#include <QObject>

class SystemTheme;

/// Colours and font sizes of every screen. Each read makes the colour anew for the desktop's mode
/// of the moment. `primary` and `error` are functions only: screens write `Theme.primary()`.
class Theme final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double fontScale READ fontScale WRITE setFontScale NOTIFY themeChanged)
    Q_PROPERTY(int fontSmall READ fontSmall NOTIFY themeChanged)
    Q_PROPERTY(int fontNormal READ fontNormal NOTIFY themeChanged)
    Q_PROPERTY(int fontMedium READ fontMedium NOTIFY themeChanged)
    Q_PROPERTY(int fontLarge READ fontLarge NOTIFY themeChanged)
    Q_PROPERTY(int fontXL READ fontXL NOTIFY themeChanged)
    Q_PROPERTY(int fontXXL READ fontXXL NOTIFY themeChanged)
    Q_PROPERTY(QColor background READ background NOTIFY themeChanged)
    Q_PROPERTY(QColor surface READ surface NOTIFY themeChanged)
    Q_PROPERTY(QColor border READ border NOTIFY themeChanged)
    Q_PROPERTY(QColor text READ text NOTIFY themeChanged)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY themeChanged)
    Q_PROPERTY(QColor orange READ orange NOTIFY themeChanged)
    Q_PROPERTY(QColor green READ green NOTIFY themeChanged)

public:
    explicit Theme(SystemTheme *systemTheme, QObject *parent = nullptr);

    Q_INVOKABLE [[nodiscard]] QColor background() const;
    Q_INVOKABLE [[nodiscard]] QColor surface() const;
    Q_INVOKABLE [[nodiscard]] QColor border() const;
    Q_INVOKABLE [[nodiscard]] QColor text() const;
    Q_INVOKABLE [[nodiscard]] QColor secondaryText() const;
    Q_INVOKABLE [[nodiscard]] QColor orange() const;
    Q_INVOKABLE [[nodiscard]] QColor green() const;
    Q_INVOKABLE [[nodiscard]] QColor primary() const;
    Q_INVOKABLE [[nodiscard]] QColor error() const;

    [[nodiscard]] double fontScale() const { return m_fontScale; }
    void setFontScale(double fontScale);

    // Pixels: the base size times the scale, cut towards zero.
    [[nodiscard]] int fontSmall() const;
    [[nodiscard]] int fontNormal() const;
    [[nodiscard]] int fontMedium() const;
    [[nodiscard]] int fontLarge() const;
    [[nodiscard]] int fontXL() const;
    [[nodiscard]] int fontXXL() const;

public slots:
    void onSystemThemeChanged();

signals:
    void themeChanged();

private:
    [[nodiscard]] QColor pick(const char *dark, const char *light) const;
    [[nodiscard]] int scaled(int base) const;

    SystemTheme *m_systemTheme;
    double m_fontScale = 1.2;
};
