// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/CanvasItem.h"

#include <QAbstractListModel>
#include <QList>
#include <QVariantMap>

/// What is drawn on the floor shown last, by ascending draw order. Delegates write through it;
/// nothing is stored until the floor is saved.
class CanvasItemModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role
    {
        IdRole = Qt::UserRole + 1,
        TableIdRole,
        TypeRole,
        LabelRole,
        XRole,
        YRole,
        WidthRole,
        HeightRole,
        RotationRole,
        ColorRole,
        BorderColorRole,
        BorderWidthRole,
        OpacityRole,
        ZOrderRole,
        MetadataRole,
        CapacityRole,
        StatusRole,
    };

    explicit CanvasItemModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /// An absent table, metadata, capacity or status is an invalid value, so that a delegate's own
    /// default applies.
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /// Place, looks, metadata, capacity and status only; false for any other role and for a value
    /// that does not convert.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setItems(const QList<CanvasItem> &items);
    [[nodiscard]] QList<CanvasItem> items() const { return m_rows; }
    /// What a screen needs to know of an item; no colours, no rotation. Empty for a row out of
    /// range.
    Q_INVOKABLE [[nodiscard]] QVariantMap get(int index) const;

    void addItem(const CanvasItem &item);
    /// A row out of range is ignored.
    void updateItem(int index, const CanvasItem &item);
    /// A row out of range is ignored.
    Q_INVOKABLE void removeItem(int index);
    Q_INVOKABLE void clear();
    /// Sets the shown status of the first item that draws the table; further ones keep theirs.
    void updateStatusByTable(int tableId, const QString &status);

private:
    [[nodiscard]] bool hasRow(int index) const { return index >= 0 && index < m_rows.size(); }

    QList<CanvasItem> m_rows;
};
