// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/Repositories.h"
#include "core/Services.h"
#include "services/AppService.h"
#include "steel/worker/CountingSpooler.h"
#include "support/TestDatabase.h"
#include "support/TestEnvironment.h"

#include <QCoreApplication>

/// One store for all inputs of a process, with one row of everything that carries the foreign text:
/// a drawn and booked table, a paid bill of a member, a receipt printer.
class FuzzStore final
{
public:
    [[nodiscard]] static FuzzStore &instance();

    /// The input as a stored text, bytes that are no UTF-8 included, for the "?" of the statement.
    void write(const QString &sql, const QByteArray &text);

    static constexpr int floor = 1;
    static constexpr int table = 1;
    static constexpr int paidSession = 1;
    static constexpr int member = 1;

private:
    FuzzStore();

    int m_argc = 1;
    char m_name[5] = "fuzz";
    char *m_argv[2] = {m_name, nullptr};
    TestEnvironment m_environment;
    QCoreApplication m_application{m_argc, m_argv};
    TestDatabase m_database;
    CountingSpooler m_spooler;
    AppService m_app;
    DatabaseManager m_manager;
    Repositories m_repositories;

public:
    Services services;
};
