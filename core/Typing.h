// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>

/// `Typing` in the screens: what an input method is still composing.
class Typing final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Takes what is being composed over into the field, which tells it as if it had been typed.
    /// The input method is asked first; some keep what they have, or answer when the field has
    /// gone.
    Q_INVOKABLE static void commit(QObject *field);
};
