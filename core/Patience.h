// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDeadlineTimer>
#include <QSqlDatabase>

#include <chrono>

struct sqlite3;

/// Ends whatever runs on an open connection once the time is over, as a failed statement: a file of
/// unknown origin may hold what never comes to an end. Lives shorter than the connection is open.
class Patience final
{
public:
    Patience(const QSqlDatabase &database, std::chrono::milliseconds limit);
    ~Patience();
    Q_DISABLE_COPY_MOVE(Patience)

private:
    static int isOver(void *patience);

    sqlite3 *m_handle;
    QDeadlineTimer m_deadline;
};
