// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/MembershipService.h"

#include "core/Arithmetic.h"
#include "core/records/MembershipTransaction.h"
#include "repositories/MembershipRepository.h"
#include "repositories/MembershipSettingsRepository.h"
#include "repositories/MembershipTransactionRepository.h"

#include <algorithm>
#include <optional>

namespace {
const QString statusRevoked = QStringLiteral("revoked");
const QString errorRevoked = QStringLiteral("MEMBER_REVOKED");
const QString errorNoSettings = QStringLiteral("MEMBERSHIP_SETTINGS_NOT_FOUND");
} // namespace

MembershipService::MembershipService(MembershipRepository *memberships,
                                     MembershipSettingsRepository *settings,
                                     MembershipTransactionRepository *transactions, QObject *parent)
    : QObject(parent)
    , m_memberships(memberships)
    , m_settings(settings)
    , m_transactions(transactions)
{}

QVariantMap MembershipService::preview(const QString &phone, int subtotalCents, int totalCents,
                                       int requestedRedeemPoints)
{
    QVariantMap result{
        {QStringLiteral("success"), false},    {QStringLiteral("memberFound"), false},
        {QStringLiteral("memberId"), 0},       {QStringLiteral("currentPoints"), 0},
        {QStringLiteral("redeemedPoints"), 0}, {QStringLiteral("redeemDiscountCents"), 0},
        {QStringLiteral("earnedPoints"), 0},   {QStringLiteral("finalTotalCents"), totalCents},
    };
    if (phone.isEmpty()) {
        return result;
    }

    const Membership member = m_memberships->getByPhone(phone);
    const bool found = member.id > 0;
    result[QStringLiteral("memberFound")] = found;
    if (found) {
        result[QStringLiteral("memberId")] = member.id;
        result[QStringLiteral("currentPoints")] = member.total_points;
        if (member.status == statusRevoked) {
            result[QStringLiteral("error")] = errorRevoked;
            return result;
        }
    }

    const std::optional<MembershipSettings> settings = m_settings->get();
    if (!settings) {
        result[QStringLiteral("error")] = errorNoSettings;
        return result;
    }

    const int balance = found ? member.total_points : 0;
    const Outcome outcome =
        applyRules(*settings, balance, requestedRedeemPoints, subtotalCents, totalCents);
    result[QStringLiteral("success")] = true;
    result[QStringLiteral("redeemedPoints")] = outcome.redemption.points;
    result[QStringLiteral("redeemDiscountCents")] = outcome.redemption.discountCents;
    result[QStringLiteral("earnedPoints")] = outcome.earnedPoints;
    result[QStringLiteral("finalTotalCents")] = outcome.redemption.remainingCents;
    return result;
}

MembershipResult MembershipService::applyCheckout(int orderSessionId, const QString &phone,
                                                  int subtotalCents, int totalCents,
                                                  int requestedRedeemPoints)
{
    MembershipResult result;
    const Membership member = getOrCreateMember(phone);
    if (member.status == statusRevoked) {
        result.error = errorRevoked;
        return result;
    }
    const std::optional<MembershipSettings> settings = m_settings->get();
    if (!settings) {
        result.error = errorNoSettings;
        return result;
    }

    const Outcome outcome = applyRules(*settings, member.total_points, requestedRedeemPoints,
                                       subtotalCents, totalCents);
    movePoints(member.id, orderSessionId, QStringLiteral("subtract"), QStringLiteral("redeem"),
               outcome.redemption.points);
    movePoints(member.id, orderSessionId, QStringLiteral("add"), QStringLiteral("earn"),
               outcome.earnedPoints);

    result.success = true;
    result.redeemedPoints = outcome.redemption.points;
    result.earnedPoints = outcome.earnedPoints;
    result.redeemDiscountCents = outcome.redemption.discountCents;
    return result;
}

Membership MembershipService::getOrCreateMember(const QString &phone)
{
    Membership member = m_memberships->getByPhone(phone);
    if (member.id > 0) {
        return member;
    }
    Membership created;
    created.phone_number = phone;
    created.status = QStringLiteral("active");
    m_memberships->create(created);
    return m_memberships->getByPhone(phone);
}

MembershipService::Redemption MembershipService::redeem(const MembershipSettings &settings,
                                                        int balance, int requestedPoints,
                                                        int totalCents)
{
    Redemption redemption;
    redemption.remainingCents = totalCents;
    const bool applies = requestedPoints > 0 && settings.redeem_points > 0 &&
                         settings.redeem_value > 0 && balance > 0;
    if (!applies) {
        return redemption;
    }
    redemption.points = std::min(requestedPoints, balance);
    redemption.discountCents =
        Arithmetic::wrapMultiply(redemption.points, settings.redeem_value) / settings.redeem_points;
    if (redemption.discountCents > totalCents) {
        // Capped at the bill. The points are cut, so the customer may pay nothing with slightly
        // fewer points than the exact value, down to none at all: that is meant.
        redemption.discountCents = totalCents;
        redemption.points =
            Arithmetic::wrapMultiply(totalCents, settings.redeem_points) / settings.redeem_value;
        redemption.remainingCents = 0;
        return redemption;
    }
    redemption.remainingCents = Arithmetic::wrapSubtract(totalCents, redemption.discountCents);
    return redemption;
}

int MembershipService::earn(const MembershipSettings &settings, int subtotalCents,
                            int remainingCents)
{
    if (!settings.enabled || settings.earn_points < 1 || settings.earn_spend < 1) {
        return 0;
    }
    const int base = settings.earn_on == QLatin1String("subtotal") ? subtotalCents : remainingCents;
    // The division comes first: only complete spend units earn.
    return Arithmetic::wrapMultiply(base / settings.earn_spend, settings.earn_points);
}

MembershipService::Outcome MembershipService::applyRules(const MembershipSettings &settings,
                                                         int balance, int requestedPoints,
                                                         int subtotalCents, int totalCents)
{
    Outcome outcome;
    outcome.redemption = redeem(settings, balance, requestedPoints, totalCents);
    outcome.earnedPoints = earn(settings, subtotalCents, outcome.redemption.remainingCents);
    return outcome;
}

/// The results of both writes are deliberately not examined; the log has their failures.
void MembershipService::movePoints(int membershipId, int orderSessionId, const QString &operation,
                                   const QString &type, int points)
{
    if (points <= 0) {
        return;
    }
    m_memberships->adjustPoints(membershipId, operation, points);
    MembershipTransaction transaction;
    transaction.membership_id = membershipId;
    transaction.order_session_id = orderSessionId;
    transaction.type = type;
    transaction.points = points;
    m_transactions->create(transaction);
}
