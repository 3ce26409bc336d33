// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QQmlApplicationEngine>
#include <QSize>
#include <QString>

class QQuickWindow;

/// The program's own window, on which a test puts any screen in any state.
class Stage final
{
public:
    Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    [[nodiscard]] QQuickWindow *window() const { return m_window; }

    /// Makes the screen the only one on the window's stack. `screen` is a document's path without
    /// its suffix, `properties` an object in script.
    void show(const QString &screen, const QString &properties);
    /// Runs a script where the shown document of that name ("AdminHome") sees its own names. Empty
    /// when that went well, else what went wrong.
    [[nodiscard]] QString run(const QString &document, const QString &script);
    void resize(QSize size);
    /// Waits until layouts and lists have caught up and no popup is on its way.
    void settle();

private:
    [[nodiscard]] QObject *objectOf(const QString &document) const;

    QQmlApplicationEngine m_engine;
    QQuickWindow *m_window = nullptr;
};
