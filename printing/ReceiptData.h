// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QList>
#include <QString>

#include <optional>

/// One printed line: equal lines of a session's orders are already merged.
struct ReceiptItem
{
    QString name;
    int quantity = 0;
    QString portion;
    /// Currency units.
    double unitPrice = 0.0;
};

/// Everything a receipt says. Money is in currency units. Who sold, who bought and the tax identity
/// come from the snapshot of the payment; order type, table, amounts, points and lines from the
/// live rows.
struct ReceiptData
{
    QString cashier;
    QString storeName;
    QString storeAddress;
    QString storePhone;
    QString storeEmail;
    QString storeWebsite;

    bool isReprint = false;
    /// Date and local time of the payment as one text; set in a reprint only.
    std::optional<QString> saleTime;
    QString receiptNumber;
    /// The session's display number.
    QString orderNumber;
    /// The label, or the stored word where there is no label.
    QString orderType;
    /// The table's present name.
    std::optional<QString> tableName;

    QList<ReceiptItem> items;

    std::optional<QString> taxName;
    /// Percent: 6.0 is 6%.
    std::optional<double> taxRate;
    std::optional<QString> taxRegistrationNumber;
    double subtotal = 0.0;
    double tax = 0.0;
    double discount = 0.0;
    double total = 0.0;

    /// Empty without a member; decides whether the points are printed, and is itself not printed.
    QString memberPhone;
    int balanceBefore = 0;
    int balanceAfter = 0;
    int pointsRedeemed = 0;
    int pointsEarned = 0;
};
