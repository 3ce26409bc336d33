// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Table.h"

#include <QAbstractListModel>
#include <QList>

class TableRepository;

/// All tables of the restaurant. Not filled at construction.
class TableModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        NameRole,
        CapacityRole,
        StatusRole,
    };

    explicit TableModel(TableRepository *tables, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void reload();

private:
    TableRepository *m_tables;
    QList<Table> m_rows;
};
