// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Floor.h"

#include <QAbstractListModel>
#include <QList>
#include <QVariantMap>

/// The floors, by ascending sort order.
class FloorModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        NameRole,
        FloorNumberRole,
        SortOrderRole,
        IsActiveRole,
    };

    explicit FloorModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setFloors(const QList<Floor> &floors);
    [[nodiscard]] QList<Floor> floors() const { return m_rows; }
    /// Keyed by the role names; empty for a row out of range.
    Q_INVOKABLE [[nodiscard]] QVariantMap getFloor(int index) const;

    void addFloor(const Floor &floor);
    /// A row out of range is ignored.
    void updateFloor(int index, const Floor &floor);
    /// A row out of range is ignored.
    Q_INVOKABLE void removeFloor(int index);

private:
    [[nodiscard]] bool hasRow(int index) const { return index >= 0 && index < m_rows.size(); }

    QList<Floor> m_rows;
};
