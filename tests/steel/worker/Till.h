// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/DatabaseManager.h"
#include "core/Repositories.h"
#include "core/Services.h"
#include "services/AppService.h"
#include "steel/worker/CountingSpooler.h"

/// The program's start without its screens, in the order of the program's own: whatever this does
/// to the files on disk, the program does.
class TillStart
{
public:
    TillStart();

    AppService app;
    DatabaseManager database;
    AppService::AppState state;
};

/// Everything that the program wires, on what its start has found.
class Till final : public TillStart
{
public:
    Till();
    Q_DISABLE_COPY_MOVE(Till)

    CountingSpooler spooler;
    Repositories repositories;
    Services services;
};
