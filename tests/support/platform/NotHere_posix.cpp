// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/NotHere.h"

QMap<QString, QString> NotHere::reasons(const QString & /*className*/)
{
    return {};
}
