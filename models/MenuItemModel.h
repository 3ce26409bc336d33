// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/MenuItem.h"

#include <QAbstractListModel>
#include <QList>

class MenuRepository;

/// The items of one category. Empty until a category is chosen.
class MenuItemModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        ItemRole,
        /// Currency units: the stored cents / 100.0.
        PriceRole,
        CategoryIdRole,
        PortionRole,
        AvailableRole,
        TaxableRole,
    };

    explicit MenuItemModel(MenuRepository *menu, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The current filter; -1 for no category.
    [[nodiscard]] int categoryId() const { return m_categoryId; }
    /// Nothing happens when the filter stays the same.
    Q_INVOKABLE void setCategoryId(int categoryId);
    /// Refills with the items of the category named here; the filter stays as it was.
    Q_INVOKABLE void reload(int categoryId);

private:
    MenuRepository *m_menu;
    int m_categoryId = -1;
    QList<MenuItem> m_rows;
};
