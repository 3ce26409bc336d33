// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/TableNames.h"

#include "core/records/Table.h"
#include "repositories/TableRepository.h"

TableNames::TableNames(const TableRepository &tables)
{
    for (const Table &table : tables.getAllTables()) {
        m_names.insert(table.id, table.table_name);
    }
}

QVariant TableNames::shown(std::optional<int> tableId) const
{
    if (!tableId) {
        return QVariant::fromValue(nullptr);
    }
    return m_names.value(*tableId, QStringLiteral(""));
}
