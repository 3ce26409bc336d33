// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/TableModel.h"

#include "repositories/TableRepository.h"

TableModel::TableModel(TableRepository *tables, QObject *parent)
    : QAbstractListModel(parent)
    , m_tables(tables)
{}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const Table &table = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return table.id;
    case NameRole:
        return table.table_name;
    case CapacityRole:
        return table.capacity;
    case StatusRole:
        return table.status;
    default:
        return {};
    }
}

QHash<int, QByteArray> TableModel::roleNames() const
{
    return {{IdRole, "id"}, {NameRole, "name"}, {CapacityRole, "capacity"}, {StatusRole, "status"}};
}

void TableModel::reload()
{
    beginResetModel();
    m_rows = m_tables->getAllTables();
    endResetModel();
}
