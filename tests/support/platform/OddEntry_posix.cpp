// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/OddEntry.h"

#include <QFile>

#include <sys/stat.h>

bool makeOddEntry(const QString &path)
{
    return mkfifo(QFile::encodeName(path).constData(), 0600) == 0;
}
