// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "steel/worker/Till.h"

#include "services/DatabaseService.h"

TillStart::TillStart()
{
    DatabaseService::applyPendingRestore();
    state = app.determineState();
    if (state > AppService::NotZelvanDBNeedsSetup) {
        DatabaseManager::initialize(app.databasePath());
    }
}

Till::Till()
    : services(app, database, repositories, &spooler)
{
    services.connectSignals();
}
