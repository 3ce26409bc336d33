// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QAbstractItemModel>
#include <QStringList>

/// What a list model offers, told in one line for a comparison.
namespace ModelRows {
/// The role names in the order of their numbers, each as "number name".
QStringList roles(const QAbstractItemModel &model);
/// The value of a row by the role's name; invalid for an unknown name.
QVariant value(const QAbstractItemModel &model, int row, const QByteArray &role);
/// One role of all rows.
QVariantList column(const QAbstractItemModel &model, const QByteArray &role);
} // namespace ModelRows
