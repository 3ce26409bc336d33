// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/DatabaseManager.h"
#include "core/Repositories.h"
#include "core/Services.h"
#include "services/AppService.h"

#include <QString>

/// The program on one database file, wired as `main` wires it, without its screens. Only one can be
/// open at a time.
class BenchStore final
{
public:
    explicit BenchStore(const QString &path);
    ~BenchStore();
    Q_DISABLE_COPY_MOVE(BenchStore)

private:
    /// Opened before the repositories take their handles.
    struct OpenDatabase
    {
        explicit OpenDatabase(const QString &path);
        DatabaseManager manager;
    };

    OpenDatabase m_database;
    AppService m_app;
    Repositories m_repositories;

public:
    Services services;
};
