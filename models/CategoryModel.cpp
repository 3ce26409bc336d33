// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/CategoryModel.h"

#include "repositories/CategoryRepository.h"

CategoryModel::CategoryModel(CategoryRepository *categories, QObject *parent)
    : QAbstractListModel(parent)
    , m_categories(categories)
{
    reload();
}

int CategoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CategoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const Category &category = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return category.id;
    case NameRole:
        return category.category;
    default:
        return {};
    }
}

QHash<int, QByteArray> CategoryModel::roleNames() const
{
    return {{IdRole, "id"}, {NameRole, "name"}};
}

void CategoryModel::reload()
{
    beginResetModel();
    m_rows = m_categories->getAllCategories();
    endResetModel();
}
