// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/DefaultConnectionTransaction.h"

DefaultConnectionTransaction::DefaultConnectionTransaction()
    : m_handle(QSqlDatabase::database(QStringLiteral("qt_sql_default_connection")))
{}

bool DefaultConnectionTransaction::begin()
{
    return m_handle.transaction();
}

bool DefaultConnectionTransaction::commit()
{
    return m_handle.commit();
}

bool DefaultConnectionTransaction::rollback()
{
    return m_handle.rollback();
}
