// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/HistoryGenerator.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cstdio>

/// Writes a store with a history, to look at or to try the program on: make_history FILE SESSIONS.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int sessions = arguments.size() == 3 ? arguments.at(2).toInt() : 0;
    if (sessions < 1) {
        std::fputs("usage: make_history FILE SESSIONS\n", stderr);
        return 2;
    }
    HistoryGenerator(sessions, QDateTime::currentDateTimeUtc().date()).write(arguments.at(1));
    return 0;
}
