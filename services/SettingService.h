// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

class KitchenSettingsRepository;
class MembershipSettingsRepository;
class PrinterRepository;
class RegionalSettingsRepository;
class RestaurantRepository;
class TableSettingsRepository;
class TaxSettingsRepository;

/// The one gate through which the screens read and write the store's settings, in maps keyed by
/// column name. A read answers an empty map where there is no row. A save validates nothing and
/// answers true also when the database refused it: only the log tells.
class SettingService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool membershipEnabled READ membershipEnabled NOTIFY membershipEnabledChanged)
    Q_PROPERTY(QString kitchenMode READ kitchenMode NOTIFY kitchenModeChanged)
    Q_PROPERTY(QString currencyCode READ currencyCode NOTIFY currencyChanged)
    Q_PROPERTY(QString tableLayoutMode READ tableLayoutMode NOTIFY tableLayoutModeChanged)

public:
    SettingService(RestaurantRepository *restaurant, PrinterRepository *printers,
                   TaxSettingsRepository *tax, MembershipSettingsRepository *membership,
                   KitchenSettingsRepository *kitchen, RegionalSettingsRepository *regional,
                   TableSettingsRepository *tables, QObject *parent = nullptr);

    [[nodiscard]] bool membershipEnabled() const { return m_membershipEnabled; }
    [[nodiscard]] QString kitchenMode() const { return m_kitchenMode; }
    [[nodiscard]] QString currencyCode() const { return m_currencyCode; }
    [[nodiscard]] QString tableLayoutMode() const { return m_tableLayoutMode; }

    /// "$" for a code that the currency table does not know.
    Q_INVOKABLE [[nodiscard]] QString currencySymbol() const;

    Q_INVOKABLE [[nodiscard]] QVariantMap getRestaurant() const;
    Q_INVOKABLE bool saveRestaurantSetting(const QVariantMap &map);

    Q_INVOKABLE [[nodiscard]] QVariantMap getPrinter(int printerId) const;
    Q_INVOKABLE [[nodiscard]] QVariantList getPrinters() const;
    /// An `id` above 0 updates that row, any other inserts.
    Q_INVOKABLE bool savePrinter(const QVariantMap &map);
    Q_INVOKABLE bool removePrinter(int printerId);

    /// `rate` is scaled so that 1% = 100.
    Q_INVOKABLE [[nodiscard]] QVariantMap getTaxSettings() const;
    Q_INVOKABLE bool saveTaxSettings(const QVariantMap &map);

    /// `earn_spend` and `redeem_value` are in currency units here and cents in the store.
    Q_INVOKABLE [[nodiscard]] QVariantMap getMembershipSettings() const;
    /// Amounts are truncated to cents, never rounded: 19.99 is stored as 1998.
    Q_INVOKABLE bool saveMembershipSettings(const QVariantMap &map);

    Q_INVOKABLE [[nodiscard]] QVariantMap getKitchenSettings() const;
    Q_INVOKABLE bool saveKitchenSettings(const QVariantMap &map);

    /// With `currency_symbol`, which is derived and never stored.
    Q_INVOKABLE [[nodiscard]] QVariantMap getRegionalSettings() const;
    /// The locale takes effect at the next start of the program.
    Q_INVOKABLE bool saveRegionalSettings(const QVariantMap &map);

    Q_INVOKABLE [[nodiscard]] QVariantMap getTableSettings() const;
    Q_INVOKABLE bool saveTableSettings(const QVariantMap &map);

signals:
    void membershipEnabledChanged();
    void kitchenModeChanged();
    void currencyChanged();
    void tableLayoutModeChanged();

private:
    void loadCachedSettings();

    RestaurantRepository *m_restaurant;
    PrinterRepository *m_printers;
    TaxSettingsRepository *m_tax;
    MembershipSettingsRepository *m_membership;
    KitchenSettingsRepository *m_kitchen;
    RegionalSettingsRepository *m_regional;
    TableSettingsRepository *m_tables;

    bool m_membershipEnabled = false;
    QString m_kitchenMode;
    QString m_currencyCode;
    QString m_tableLayoutMode;
};
