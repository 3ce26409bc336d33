// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "services/SettingService.h"

#include "core/Arithmetic.h"
#include "core/Logging.h"
#include "repositories/KitchenSettingsRepository.h"
#include "repositories/MembershipSettingsRepository.h"
#include "repositories/PrinterRepository.h"
#include "repositories/RegionalSettingsRepository.h"
#include "repositories/RestaurantRepository.h"
#include "repositories/TableSettingsRepository.h"
#include "repositories/TaxSettingsRepository.h"
#include "services/CurrencyTable.h"

#include <exception>

namespace {
QString textOf(const QVariantMap &map, const char *key)
{
    const QString text = map.value(QLatin1String(key)).toString();
    // An absent key is an empty text, never NULL.
    return text.isNull() ? QStringLiteral("") : text;
}

/// A number too large to be stored, which a script hands over as a double, ends at the bound.
int integerOf(const QVariantMap &map, const char *key, int absent = 0)
{
    const QVariant value = map.value(QLatin1String(key), absent);
    return value.typeId() == QMetaType::Double ? Arithmetic::nearest<int>(value.toDouble())
                                               : value.toInt();
}

bool flagOf(const QVariantMap &map, const char *key)
{
    return map.value(QLatin1String(key)).toBool();
}

QString orEmpty(const std::optional<QString> &text)
{
    return text.value_or(QStringLiteral(""));
}

/// Truncated and not rounded, on purpose: 0.29 is 28.
int truncatedCents(const QVariantMap &map, const char *key)
{
    return Arithmetic::truncate<int>(map.value(QLatin1String(key)).toDouble() * 100.0);
}

QVariantMap printerMap(const Printer &printer)
{
    return {{QStringLiteral("id"), printer.id},
            {QStringLiteral("system_name"), printer.system_name},
            {QStringLiteral("role"), printer.role},
            {QStringLiteral("paper_width"), printer.paper_width},
            {QStringLiteral("cut_mode"), printer.cut_mode}};
}

/// Only something thrown makes a save fail; a statement that the database refused does not.
template<typename Write>
bool written(const char *failureText, const Write &write)
{
    try {
        write();
        return true;
    } catch (const std::exception &exception) {
        qCWarning(lcSettings) << failureText << exception.what();
        return false;
    }
}
} // namespace

SettingService::SettingService(RestaurantRepository *restaurant, PrinterRepository *printers,
                               TaxSettingsRepository *tax, MembershipSettingsRepository *membership,
                               KitchenSettingsRepository *kitchen,
                               RegionalSettingsRepository *regional,
                               TableSettingsRepository *tables, QObject *parent)
    : QObject(parent)
    , m_restaurant(restaurant)
    , m_printers(printers)
    , m_tax(tax)
    , m_membership(membership)
    , m_kitchen(kitchen)
    , m_regional(regional)
    , m_tables(tables)
    , m_kitchenMode(QStringLiteral("none"))
    , m_currencyCode(QStringLiteral("USD"))
    , m_tableLayoutMode(QStringLiteral("simple"))
{
    loadCachedSettings();
}

void SettingService::loadCachedSettings()
{
    if (const auto membership = m_membership->get()) {
        m_membershipEnabled = membership->enabled;
    }
    if (const auto kitchen = m_kitchen->fetch()) {
        m_kitchenMode = kitchen->mode;
    }
    if (const auto regional = m_regional->fetch()) {
        m_currencyCode = regional->currency_code;
        emit currencyChanged();
    }
    if (const auto tables = m_tables->fetch()) {
        m_tableLayoutMode = tables->layout_mode;
    }
}

QString SettingService::currencySymbol() const
{
    return currencyInfo(m_currencyCode).symbol;
}

QVariantMap SettingService::getRestaurant() const
{
    const auto restaurant = m_restaurant->fetch();
    if (!restaurant) {
        return {};
    }
    return {{QStringLiteral("id"), restaurant->id},
            {QStringLiteral("name"), restaurant->name},
            {QStringLiteral("address"), restaurant->address},
            {QStringLiteral("phone_number"), orEmpty(restaurant->phone_number)},
            {QStringLiteral("email"), orEmpty(restaurant->email)},
            {QStringLiteral("website"), orEmpty(restaurant->website)}};
}

bool SettingService::saveRestaurantSetting(const QVariantMap &map)
{
    Restaurant restaurant;
    restaurant.id = integerOf(map, "id", -1);
    restaurant.name = textOf(map, "name");
    restaurant.address = textOf(map, "address");
    restaurant.phone_number = textOf(map, "phone_number");
    restaurant.email = textOf(map, "email");
    restaurant.website = textOf(map, "website");
    return written("Failed to save restaurant:", [&] { m_restaurant->save(restaurant); });
}

QVariantMap SettingService::getPrinter(int printerId) const
{
    const auto printer = m_printers->fetchById(printerId);
    return printer ? printerMap(*printer) : QVariantMap();
}

QVariantList SettingService::getPrinters() const
{
    QVariantList maps;
    for (const Printer &printer : m_printers->fetchAll()) {
        maps.append(printerMap(printer));
    }
    return maps;
}

bool SettingService::savePrinter(const QVariantMap &map)
{
    Printer printer;
    printer.id = integerOf(map, "id");
    printer.system_name = textOf(map, "system_name");
    printer.role = textOf(map, "role");
    printer.paper_width = integerOf(map, "paper_width");
    printer.cut_mode = textOf(map, "cut_mode");
    return written("Failed to save printer:", [&] {
        if (printer.id > 0) {
            m_printers->update(printer);
        } else {
            m_printers->insert(printer);
        }
    });
}

bool SettingService::removePrinter(int printerId)
{
    return written("Failed to remove printer:", [&] { m_printers->remove(printerId); });
}

QVariantMap SettingService::getTaxSettings() const
{
    const auto tax = m_tax->fetch();
    if (!tax) {
        return {};
    }
    return {{QStringLiteral("id"), tax->id},
            {QStringLiteral("enabled"), tax->enabled},
            {QStringLiteral("rate"), tax->rate},
            {QStringLiteral("registration_number"), orEmpty(tax->registration_number)},
            {QStringLiteral("name"), tax->name}};
}

bool SettingService::saveTaxSettings(const QVariantMap &map)
{
    TaxSettings tax;
    tax.id = integerOf(map, "id", -1);
    tax.enabled = flagOf(map, "enabled");
    tax.rate = integerOf(map, "rate");
    tax.registration_number = textOf(map, "registration_number");
    tax.name = textOf(map, "name");
    return written("Failed to save tax settings:", [&] { m_tax->save(tax); });
}

QVariantMap SettingService::getMembershipSettings() const
{
    const auto membership = m_membership->get();
    if (!membership) {
        return {};
    }
    return {{QStringLiteral("id"), membership->id},
            {QStringLiteral("enabled"), membership->enabled},
            {QStringLiteral("earn_points"), membership->earn_points},
            {QStringLiteral("earn_spend"), membership->earn_spend / 100.0},
            {QStringLiteral("redeem_points"), membership->redeem_points},
            {QStringLiteral("redeem_value"), membership->redeem_value / 100.0},
            {QStringLiteral("earn_on"), membership->earn_on}};
}

bool SettingService::saveMembershipSettings(const QVariantMap &map)
{
    MembershipSettings membership;
    membership.id = integerOf(map, "id", -1);
    membership.enabled = flagOf(map, "enabled");
    membership.earn_points = integerOf(map, "earn_points");
    membership.earn_spend = truncatedCents(map, "earn_spend");
    membership.redeem_points = integerOf(map, "redeem_points");
    membership.redeem_value = truncatedCents(map, "redeem_value");
    membership.earn_on = textOf(map, "earn_on");
    // Unlike the other saves this one lets an exception through.
    m_membership->save(membership);
    if (membership.enabled != m_membershipEnabled) {
        m_membershipEnabled = membership.enabled;
        emit membershipEnabledChanged();
    }
    return true;
}

QVariantMap SettingService::getKitchenSettings() const
{
    const auto kitchen = m_kitchen->fetch();
    if (!kitchen) {
        return {};
    }
    return {
        {QStringLiteral("id"), kitchen->id},
        {QStringLiteral("mode"), kitchen->mode},
        {QStringLiteral("ticket_print_timing"), kitchen->ticket_print_timing},
        {QStringLiteral("require_ready_for_checkout"), kitchen->require_ready_for_checkout},
        {QStringLiteral("allow_edit_after_send"), kitchen->allow_edit_after_send},
    };
}

bool SettingService::saveKitchenSettings(const QVariantMap &map)
{
    KitchenSettings kitchen;
    kitchen.id = integerOf(map, "id", 1);
    kitchen.mode = textOf(map, "mode");
    kitchen.ticket_print_timing = textOf(map, "ticket_print_timing");
    kitchen.require_ready_for_checkout = flagOf(map, "require_ready_for_checkout");
    kitchen.allow_edit_after_send = flagOf(map, "allow_edit_after_send");
    return written("Failed to save kitchen settings:", [&] {
        m_kitchen->save(kitchen);
        if (kitchen.mode != m_kitchenMode) {
            m_kitchenMode = kitchen.mode;
            emit kitchenModeChanged();
        }
    });
}

QVariantMap SettingService::getRegionalSettings() const
{
    const auto regional = m_regional->fetch();
    if (!regional) {
        return {};
    }
    return {{QStringLiteral("id"), regional->id},
            {QStringLiteral("locale"), regional->locale},
            {QStringLiteral("currency_code"), regional->currency_code},
            {QStringLiteral("currency_symbol"), currencyInfo(regional->currency_code).symbol}};
}

bool SettingService::saveRegionalSettings(const QVariantMap &map)
{
    RegionalSettings regional;
    regional.id = integerOf(map, "id", 1);
    regional.locale = map.value(QStringLiteral("locale"), QStringLiteral("en_US")).toString();
    regional.currency_code =
        map.value(QStringLiteral("currency_code"), QStringLiteral("USD")).toString();
    return written("Failed to save regional settings:", [&] {
        m_regional->save(regional);
        if (regional.currency_code != m_currencyCode) {
            m_currencyCode = regional.currency_code;
            emit currencyChanged();
        }
    });
}

QVariantMap SettingService::getTableSettings() const
{
    const auto tables = m_tables->fetch();
    if (!tables) {
        return {};
    }
    return {{QStringLiteral("id"), tables->id},
            {QStringLiteral("layout_mode"), tables->layout_mode}};
}

bool SettingService::saveTableSettings(const QVariantMap &map)
{
    TableSettings tables;
    tables.id = integerOf(map, "id", 1);
    tables.layout_mode =
        map.value(QStringLiteral("layout_mode"), QStringLiteral("simple")).toString();
    return written("Failed to save table settings:", [&] {
        m_tables->save(tables);
        if (tables.layout_mode != m_tableLayoutMode) {
            m_tableLayoutMode = tables.layout_mode;
            emit tableLayoutModeChanged();
        }
    });
}
