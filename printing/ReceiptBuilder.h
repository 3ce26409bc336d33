// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

class RegionalSettingsRepository;
struct Printer;
struct ReceiptData;

/// Lays a paid session out as a receipt, first print and reprint alike.
class ReceiptBuilder final
{
public:
    /// The repository is asked for the store's locale at every build and is not owned.
    explicit ReceiptBuilder(const RegionalSettingsRepository &regionalSettings);

    /// The bytes for this printer's paper width and cut, dated with the local clock; cannot fail.
    [[nodiscard]] QByteArray build(const ReceiptData &receipt, const Printer &printer) const;

private:
    const RegionalSettingsRepository &m_regionalSettings;
};
