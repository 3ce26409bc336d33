// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <optional>

/// The store's own details, as printed on receipts.
struct Restaurant
{
    int id = -1;
    QString name;
    QString address;
    std::optional<QString> phone_number;
    std::optional<QString> email;
    std::optional<QString> website;
};
