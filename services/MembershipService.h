// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Membership.h"
#include "core/records/MembershipSettings.h"

#include <QObject>
#include <QString>
#include <QVariantMap>

class MembershipRepository;
class MembershipSettingsRepository;
class MembershipTransactionRepository;

/// What one payment did to a member's points.
struct MembershipResult
{
    bool success = false;
    /// "MEMBER_REVOKED" or "MEMBERSHIP_SETTINGS_NOT_FOUND"; empty on success.
    QString error;
    int redeemedPoints = 0;
    int earnedPoints = 0;
    /// Cents.
    double redeemDiscountCents = 0.0;
};

/// The loyalty rules. A phone number becomes a member at its first payment; there is no enrolment.
/// All arithmetic is 32-bit, every division cuts towards zero, and overflow wraps at its own step.
class MembershipService final : public QObject
{
    Q_OBJECT

public:
    MembershipService(MembershipRepository *memberships, MembershipSettingsRepository *settings,
                      MembershipTransactionRepository *transactions, QObject *parent = nullptr);

    /// What a payment would do, in cents. Writes nothing; reports problems through "success" and
    /// "error". An unknown phone earns but cannot redeem.
    Q_INVOKABLE QVariantMap preview(const QString &phone, int subtotalCents, int totalCents,
                                    int requestedRedeemPoints);

    /// Moves the points and writes their transactions, inside the caller's transaction.
    [[nodiscard]] MembershipResult applyCheckout(int orderSessionId, const QString &phone,
                                                 int subtotalCents, int totalCents,
                                                 int requestedRedeemPoints);

    /// The member of that phone, made where there is none; id -1 when that failed.
    [[nodiscard]] Membership getOrCreateMember(const QString &phone);

private:
    struct Redemption
    {
        int points = 0;
        int discountCents = 0;
        int remainingCents = 0;
    };
    struct Outcome
    {
        Redemption redemption;
        int earnedPoints = 0;
    };

    [[nodiscard]] static Redemption redeem(const MembershipSettings &settings, int balance,
                                           int requestedPoints, int totalCents);
    [[nodiscard]] static int earn(const MembershipSettings &settings, int subtotalCents,
                                  int remainingCents);
    [[nodiscard]] static Outcome applyRules(const MembershipSettings &settings, int balance,
                                            int requestedPoints, int subtotalCents, int totalCents);
    void movePoints(int membershipId, int orderSessionId, const QString &operation,
                    const QString &type, int points);

    MembershipRepository *m_memberships;
    MembershipSettingsRepository *m_settings;
    MembershipTransactionRepository *m_transactions;
};
