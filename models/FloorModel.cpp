// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/FloorModel.h"

FloorModel::FloorModel(QObject *parent)
    : QAbstractListModel(parent)
{}

int FloorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FloorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !hasRow(index.row())) {
        return {};
    }
    const Floor &floor = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return floor.id;
    case NameRole:
        return floor.name;
    case FloorNumberRole:
        return floor.floor_number;
    case SortOrderRole:
        return floor.sort_order;
    case IsActiveRole:
        return floor.is_active;
    default:
        return {};
    }
}

QHash<int, QByteArray> FloorModel::roleNames() const
{
    return {{IdRole, "id"},
            {NameRole, "name"},
            {FloorNumberRole, "floor_number"},
            {SortOrderRole, "sort_order"},
            {IsActiveRole, "is_active"}};
}

void FloorModel::setFloors(const QList<Floor> &floors)
{
    beginResetModel();
    m_rows = floors;
    endResetModel();
}

QVariantMap FloorModel::getFloor(int index) const
{
    if (!hasRow(index)) {
        return {};
    }
    const Floor &floor = m_rows.at(index);
    return {{QStringLiteral("id"), floor.id},
            {QStringLiteral("name"), floor.name},
            {QStringLiteral("floor_number"), floor.floor_number},
            {QStringLiteral("sort_order"), floor.sort_order},
            {QStringLiteral("is_active"), floor.is_active}};
}

void FloorModel::addFloor(const Floor &floor)
{
    const int row = static_cast<int>(m_rows.size());
    beginInsertRows(QModelIndex(), row, row);
    m_rows.append(floor);
    endInsertRows();
}

void FloorModel::updateFloor(int index, const Floor &floor)
{
    if (!hasRow(index)) {
        return;
    }
    m_rows[index] = floor;
    const QModelIndex changed = this->index(index);
    emit dataChanged(changed, changed);
}

void FloorModel::removeFloor(int index)
{
    if (!hasRow(index)) {
        return;
    }
    beginRemoveRows(QModelIndex(), index, index);
    m_rows.removeAt(index);
    endRemoveRows();
}
