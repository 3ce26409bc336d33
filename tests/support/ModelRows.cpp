// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/ModelRows.h"

#include <QMap>

QStringList ModelRows::roles(const QAbstractItemModel &model)
{
    QMap<int, QString> sorted;
    const QHash<int, QByteArray> names = model.roleNames();
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        sorted.insert(it.key(), QString::fromLatin1(it.value()));
    }
    QStringList lines;
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it) {
        lines.append(QStringLiteral("%1 %2").arg(it.key()).arg(it.value()));
    }
    return lines;
}

QVariant ModelRows::value(const QAbstractItemModel &model, int row, const QByteArray &role)
{
    return model.data(model.index(row, 0), model.roleNames().key(role, -1));
}

QVariantList ModelRows::column(const QAbstractItemModel &model, const QByteArray &role)
{
    QVariantList values;
    for (int row = 0; row < model.rowCount(); ++row) {
        values.append(value(model, row, role));
    }
    return values;
}
