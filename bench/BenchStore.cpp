// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/BenchStore.h"

BenchStore::OpenDatabase::OpenDatabase(const QString &path)
{
    if (!DatabaseManager::initialize(path)) {
        qFatal("cannot open %s", qPrintable(path));
    }
}

BenchStore::BenchStore(const QString &path)
    : m_database(path)
    , services(m_app, m_database.manager, m_repositories)
{
    services.connectSignals();
}

BenchStore::~BenchStore() = default;
