// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

class QQmlApplicationEngine;

/// Goes through the screens of the program's own window, one after the other and round again.
class PageTurner final
{
public:
    explicit PageTurner(QQmlApplicationEngine &engine);

    void next();
    /// The page that shows nothing of the store, with the last one gone; the round begins anew.
    void toLogin();

private:
    void run(const QString &script);

    QQmlApplicationEngine &m_engine;
    qsizetype m_next = 0;
};
