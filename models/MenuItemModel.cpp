// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/MenuItemModel.h"

#include "repositories/MenuRepository.h"

MenuItemModel::MenuItemModel(MenuRepository *menu, QObject *parent)
    : QAbstractListModel(parent)
    , m_menu(menu)
{}

int MenuItemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant MenuItemModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size()) {
        return {};
    }
    const MenuItem &item = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return item.id;
    case ItemRole:
        return item.item;
    case PriceRole:
        return item.price / 100.0;
    case CategoryIdRole:
        return item.category_id;
    case PortionRole:
        return item.portion_size.value_or(QStringLiteral(""));
    case AvailableRole:
        return item.is_available;
    case TaxableRole:
        return item.is_taxable;
    default:
        return {};
    }
}

QHash<int, QByteArray> MenuItemModel::roleNames() const
{
    return {{IdRole, "id"},           {ItemRole, "item"},
            {PriceRole, "price"},     {CategoryIdRole, "categoryId"},
            {PortionRole, "portion"}, {AvailableRole, "available"},
            {TaxableRole, "taxable"}};
}

void MenuItemModel::setCategoryId(int categoryId)
{
    if (categoryId == m_categoryId) {
        return;
    }
    m_categoryId = categoryId;
    reload(categoryId);
}

void MenuItemModel::reload(int categoryId)
{
    beginResetModel();
    m_rows = m_menu->getMenuItemsByCategory(categoryId);
    endResetModel();
}
