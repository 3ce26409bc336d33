// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/OrderSession.h"
#include "core/records/ReceiptSnapshot.h"

#include <optional>

class AuthService;
class MembershipRepository;
class MembershipTransactionRepository;
class RestaurantRepository;
class SettingService;
class TaxSettingsRepository;

/// Gathers what a receipt must keep saying: the store, the cashier, the tax identity and the
/// member's balance, all as they stand at the moment of payment.
class SnapshotAssembler final
{
public:
    /// Owns none of what it asks.
    SnapshotAssembler(const RestaurantRepository *restaurant,
                      const TaxSettingsRepository *taxSettings,
                      const MembershipRepository *memberships,
                      const MembershipTransactionRepository *membershipTransactions,
                      const SettingService *settings, const AuthService *auth);

    /// Everything but the table's name, not stored yet. To be asked after the points have moved:
    /// the balance before is reckoned back from the present one. Absent for a store without a
    /// restaurant row, which cannot complete a payment.
    [[nodiscard]] std::optional<ReceiptSnapshot> assemble(const OrderSession &session) const;

private:
    void fillTaxIdentity(ReceiptSnapshot &snapshot) const;
    void fillMember(ReceiptSnapshot &snapshot) const;

    const RestaurantRepository *m_restaurant;
    const TaxSettingsRepository *m_taxSettings;
    const MembershipRepository *m_memberships;
    const MembershipTransactionRepository *m_membershipTransactions;
    const SettingService *m_settings;
    const AuthService *m_auth;
};
