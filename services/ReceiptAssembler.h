// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/OrderItem.h"
#include "core/records/OrderSession.h"
#include "core/records/ReceiptSnapshot.h"
#include "printing/ReceiptData.h"

#include <QList>
#include <QString>

#include <optional>

class RegionalSettingsRepository;

/// Turns stored rows into what a receipt says. Store, cashier and tax come from the snapshot, so
/// that a reprint repeats what was true at payment; order type, amounts and lines from the live
/// rows.
namespace ReceiptAssembler {
/// Everything but the lines, the table's name and what only a reprint has. Amounts in currency
/// units.
[[nodiscard]] ReceiptData header(const OrderSession &session, const ReceiptSnapshot &snapshot);

/// The moment of payment in local time, as the store's locale writes its date; absent where the
/// snapshot holds no readable time.
[[nodiscard]] std::optional<QString> saleTime(const ReceiptSnapshot &snapshot,
                                              const RegionalSettingsRepository &regional);

/// Like lines merged across orders, in ascending order of name, portion and price by UTF-16 code
/// units. Remarks and statuses play no part.
[[nodiscard]] QList<ReceiptItem> groupItems(const QList<OrderItem> &items);
} // namespace ReceiptAssembler
