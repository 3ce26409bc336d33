// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "models/CanvasItemModel.h"

namespace {
template<typename T>
QVariant orInvalid(const std::optional<T> &value)
{
    return value ? QVariant(*value) : QVariant();
}

template<typename T>
void insertIfSet(QVariantMap &map, const QString &key, const std::optional<T> &value)
{
    if (value) {
        map.insert(key, *value);
    }
}

QString orEmpty(const std::optional<QString> &value)
{
    return value.value_or(QStringLiteral(""));
}

bool storeReal(double &target, const QVariant &value)
{
    bool converted = false;
    const double number = value.toDouble(&converted);
    if (converted) {
        target = number;
    }
    return converted;
}

bool storeMetadata(CanvasItem &item, const QVariant &value)
{
    if (!value.canConvert<QString>()) {
        return false;
    }
    item.metadata = value.toString();
    return true;
}

bool store(CanvasItem &item, const QVariant &value, int role)
{
    switch (role) {
    case CanvasItemModel::XRole:
        return storeReal(item.x, value);
    case CanvasItemModel::YRole:
        return storeReal(item.y, value);
    case CanvasItemModel::WidthRole:
        return storeReal(item.width, value);
    case CanvasItemModel::HeightRole:
        return storeReal(item.height, value);
    case CanvasItemModel::RotationRole:
        return storeReal(item.rotation, value);
    case CanvasItemModel::MetadataRole:
        return storeMetadata(item, value);
    // These four take whatever the conversion makes of the value, zero and empty included.
    case CanvasItemModel::LabelRole:
        item.label = value.toString();
        return true;
    case CanvasItemModel::ColorRole:
        item.color = value.toString();
        return true;
    case CanvasItemModel::CapacityRole:
        item.capacity = value.toInt();
        return true;
    case CanvasItemModel::StatusRole:
        item.status = value.toString();
        return true;
    default:
        return false;
    }
}
} // namespace

CanvasItemModel::CanvasItemModel(QObject *parent)
    : QAbstractListModel(parent)
{}

int CanvasItemModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant CanvasItemModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !hasRow(index.row())) {
        return {};
    }
    const CanvasItem &item = m_rows.at(index.row());
    switch (role) {
    case IdRole:
        return item.id;
    case TableIdRole:
        return orInvalid(item.table_id);
    case TypeRole:
        return item.type;
    case LabelRole:
        return orEmpty(item.label);
    case XRole:
        return item.x;
    case YRole:
        return item.y;
    case WidthRole:
        return item.width;
    case HeightRole:
        return item.height;
    case RotationRole:
        return item.rotation;
    case ColorRole:
        return item.color;
    case BorderColorRole:
        return item.border_color;
    case BorderWidthRole:
        return item.border_width;
    case OpacityRole:
        return item.opacity;
    case ZOrderRole:
        return item.z_order;
    case MetadataRole:
        return orInvalid(item.metadata);
    case CapacityRole:
        return orInvalid(item.capacity);
    case StatusRole:
        return orInvalid(item.status);
    default:
        return {};
    }
}

bool CanvasItemModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || !hasRow(index.row()) || !store(m_rows[index.row()], value, role)) {
        return false;
    }
    emit dataChanged(index, index, {role});
    return true;
}

Qt::ItemFlags CanvasItemModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || !hasRow(index.row())) {
        return Qt::NoItemFlags;
    }
    return Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsEnabled;
}

QHash<int, QByteArray> CanvasItemModel::roleNames() const
{
    return {{IdRole, "id"},
            {TableIdRole, "table_id"},
            {TypeRole, "type"},
            {LabelRole, "label"},
            {XRole, "x"},
            {YRole, "y"},
            {WidthRole, "width"},
            {HeightRole, "height"},
            {RotationRole, "rotation"},
            {ColorRole, "color"},
            {BorderColorRole, "border_color"},
            {BorderWidthRole, "border_width"},
            {OpacityRole, "opacity"},
            {ZOrderRole, "z_order"},
            {MetadataRole, "metadata"},
            {CapacityRole, "capacity"},
            {StatusRole, "status"}};
}

void CanvasItemModel::setItems(const QList<CanvasItem> &items)
{
    beginResetModel();
    m_rows = items;
    endResetModel();
}

QVariantMap CanvasItemModel::get(int index) const
{
    if (!hasRow(index)) {
        return {};
    }
    const CanvasItem &item = m_rows.at(index);
    QVariantMap map{{QStringLiteral("id"), item.id},
                    {QStringLiteral("type"), item.type},
                    {QStringLiteral("label"), orEmpty(item.label)},
                    {QStringLiteral("x"), item.x},
                    {QStringLiteral("y"), item.y},
                    {QStringLiteral("width"), item.width},
                    {QStringLiteral("height"), item.height},
                    {QStringLiteral("metadata"), orEmpty(item.metadata)}};
    insertIfSet(map, QStringLiteral("table_id"), item.table_id);
    insertIfSet(map, QStringLiteral("capacity"), item.capacity);
    insertIfSet(map, QStringLiteral("status"), item.status);
    return map;
}

void CanvasItemModel::addItem(const CanvasItem &item)
{
    const int row = static_cast<int>(m_rows.size());
    beginInsertRows(QModelIndex(), row, row);
    m_rows.append(item);
    endInsertRows();
}

void CanvasItemModel::updateItem(int index, const CanvasItem &item)
{
    if (!hasRow(index)) {
        return;
    }
    m_rows[index] = item;
    const QModelIndex changed = this->index(index);
    emit dataChanged(changed, changed);
}

void CanvasItemModel::removeItem(int index)
{
    if (!hasRow(index)) {
        return;
    }
    beginRemoveRows(QModelIndex(), index, index);
    m_rows.removeAt(index);
    endRemoveRows();
}

void CanvasItemModel::clear()
{
    if (m_rows.isEmpty()) {
        return;
    }
    setItems({});
}

void CanvasItemModel::updateStatusByTable(int tableId, const QString &status)
{
    for (int row = 0; row < m_rows.size(); ++row) {
        CanvasItem &item = m_rows[row];
        if (item.type == QLatin1String("table") && item.table_id == tableId) {
            item.status = status;
            const QModelIndex changed = index(row);
            emit dataChanged(changed, changed, {StatusRole});
            return;
        }
    }
}
