// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Category.h"

#include <QAbstractListModel>
#include <QList>

class CategoryRepository;

/// All categories of the menu, in the order the store gives them.
class CategoryModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        NameRole,
    };

    /// Loads at once.
    explicit CategoryModel(CategoryRepository *categories, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void reload();

private:
    CategoryRepository *m_categories;
    QList<Category> m_rows;
};
