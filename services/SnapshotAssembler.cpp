// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/SnapshotAssembler.h"

#include "core/Arithmetic.h"
#include "core/records/Membership.h"
#include "core/records/Restaurant.h"
#include "core/records/TaxSettings.h"
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipTransactionRepository.h"
#include "repositories/RestaurantRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "services/AuthService.h"
#include "services/SettingService.h"

namespace {
const QString blank = QStringLiteral("");
} // namespace

SnapshotAssembler::SnapshotAssembler(const RestaurantRepository *restaurant,
                                     const TaxSettingsRepository *taxSettings,
                                     const MembershipRepository *memberships,
                                     const MembershipTransactionRepository *membershipTransactions,
                                     const SettingService *settings, const AuthService *auth)
    : m_restaurant(restaurant)
    , m_taxSettings(taxSettings)
    , m_memberships(memberships)
    , m_membershipTransactions(membershipTransactions)
    , m_settings(settings)
    , m_auth(auth)
{}

std::optional<ReceiptSnapshot> SnapshotAssembler::assemble(const OrderSession &session) const
{
    const std::optional<Restaurant> restaurant = m_restaurant->fetch();
    if (!restaurant) {
        return std::nullopt;
    }
    ReceiptSnapshot snapshot;
    snapshot.order_session_id = session.id;
    snapshot.cashier_name = m_auth->currentUsername();
    snapshot.store_name = restaurant->name;
    snapshot.address = restaurant->address;
    snapshot.phone = restaurant->phone_number.value_or(blank);
    snapshot.email = restaurant->email.value_or(blank);
    snapshot.website = restaurant->website.value_or(blank);
    fillTaxIdentity(snapshot);
    fillMember(snapshot);
    snapshot.order_type = session.order_type;
    return snapshot;
}

void SnapshotAssembler::fillTaxIdentity(ReceiptSnapshot &snapshot) const
{
    const std::optional<TaxSettings> tax = m_taxSettings->fetch();
    if (!tax || !tax->enabled) {
        snapshot.tax_name = blank;
        snapshot.tax_rate = 0;
        snapshot.tax_registration_number = blank;
        return;
    }
    snapshot.tax_name = tax->name;
    snapshot.tax_rate = tax->rate;
    snapshot.tax_registration_number = tax->registration_number.value_or(blank);
}

/// A member who neither earned nor redeemed anything leaves no trace on the receipt.
void SnapshotAssembler::fillMember(ReceiptSnapshot &snapshot) const
{
    if (!m_settings->membershipEnabled()) {
        return;
    }
    const int sessionId = snapshot.order_session_id;
    const int memberId = m_membershipTransactions->getMembershipIdBySession(sessionId);
    if (memberId <= 0) {
        return;
    }
    const Membership member = m_memberships->getById(memberId);
    const int redeemed = m_membershipTransactions->getRedeemedPoints(sessionId);
    const int earned = m_membershipTransactions->getEarnedPoints(sessionId);
    snapshot.member_phone = member.phone_number;
    snapshot.points_balance_after = member.total_points;
    snapshot.points_balance_before =
        Arithmetic::wrapSubtract(Arithmetic::wrapAdd(member.total_points, redeemed), earned);
}
