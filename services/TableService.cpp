// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/TableService.h"

#include "core/Logging.h"
#include "repositories/TableRepository.h"

TableService::TableService(TableRepository *tables, QObject *parent)
    : QObject(parent)
    , m_tables(tables)
    , m_tableModel(new TableModel(tables, this))
{}

TableModel *TableService::tableModel() const
{
    if (m_tableModel->rowCount() == 0) {
        m_tableModel->reload();
    }
    return m_tableModel;
}

int TableService::addTable(const QString &tableName, int capacity)
{
    const QString name = tableName.trimmed();
    if (name.isEmpty()) {
        qCWarning(lcFloorPlan) << "Cannot add empty table name";
        return -1;
    }
    if (capacity <= 0) {
        qCWarning(lcFloorPlan) << "Capacity must be greater than 0";
        return -1;
    }
    Table table;
    table.table_name = name;
    table.capacity = capacity;
    table.status = QStringLiteral("available");
    const int id = m_tables->create(table);
    m_tableModel->reload();
    emit tablesChanged();
    return id;
}

bool TableService::editTable(int tableId, const QString &tableName, int capacity)
{
    std::optional<Table> table = m_tables->getTableById(tableId);
    if (!table) {
        return false;
    }
    const QString name = tableName.trimmed();
    if (name.isEmpty()) {
        qCWarning(lcFloorPlan) << "Table name cannot be empty";
        return false;
    }
    if (capacity <= 0) {
        qCWarning(lcFloorPlan) << "Capacity must be greater than 0";
        return false;
    }
    table->table_name = name;
    table->capacity = capacity;
    m_tables->update(*table);
    m_tableModel->reload();
    emit tablesChanged();
    return true;
}

bool TableService::removeTable(int tableId)
{
    if (!m_tables->getTableById(tableId)) {
        return false;
    }
    m_tables->remove(tableId);
    m_tableModel->reload();
    emit tablesChanged();
    return true;
}

bool TableService::setTableStatus(int tableId, const QString &status)
{
    // Not looked at: whoever asks is told that the table has this status, stored or not.
    m_tables->setTableState(tableId, status);
    m_tableModel->reload();
    emit tableStatusChanged(tableId, status);
    emit tablesChanged();
    return true;
}

void TableService::announceStoredStatus(int tableId)
{
    m_tableModel->reload();
    if (const std::optional<Table> table = m_tables->getTableById(tableId)) {
        emit tableStatusChanged(tableId, table->status);
    }
    emit tablesChanged();
}
