// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Patience.h"

#include "core/SqliteHandle.h"

#include <sqlite3.h>

Patience::Patience(const QSqlDatabase &database, std::chrono::milliseconds limit)
    : m_handle(sqliteHandle(database))
    , m_deadline(limit)
{
    constexpr int instructions = 10'000;
    if (m_handle != nullptr) {
        sqlite3_progress_handler(m_handle, instructions, isOver, this);
    }
}

Patience::~Patience()
{
    if (m_handle != nullptr) {
        sqlite3_progress_handler(m_handle, 0, nullptr, nullptr);
    }
}

int Patience::isOver(void *patience)
{
    return static_cast<const Patience *>(patience)->m_deadline.hasExpired() ? 1 : 0;
}
