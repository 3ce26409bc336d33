// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QList>
#include <QString>

/// One state of the program's screens, and how to get there.
struct View
{
    struct Step
    {
        /// The document on show whose names the script uses.
        QString document;
        QString script;
    };

    QString name;
    /// The document on the window's stack, and its properties as an object in script.
    QString screen;
    QString properties;
    QList<Step> steps;
    /// Shown in the window of the program's start, which nobody has made larger yet.
    bool ofTheStart = false;
};

/// Every page and dialog of the program, in all states that lay out differently.
[[nodiscard]] QList<View> allViews();
